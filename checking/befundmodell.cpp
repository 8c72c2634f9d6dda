#include "checking/befundmodell.h"

#include "checking/texte.h"
#include "core/bilder.h"
#include "core/oberflaeche.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// A sign of its own shape for each, beside the word.
QIcon Zeichen(Schwere schwere) {
    static const QIcon fehler = Bildzeichen("dialog/achtung");
    static const QIcon hinweis = Bildzeichen("dialog/zeigefinger");
    return schwere == Schwere::Fehler ? fehler : hinweis;
}

QString Text(const Befund& befund, int spalte) {
    if (spalte == 0) {
        return Anzeige(Schwerewort(befund.schwere));
    }
    return Anzeige(spalte == 1 ? Ortsname(befund.ort) : befund.text);
}

} // namespace

void Befundmodell::setBefunde(Befunde befunde) {
    const auto [alt, neu] = std::ranges::mismatch(befunde_, befunde);
    const auto gleich = static_cast<std::size_t>(alt - befunde_.begin());
    const std::size_t kuerzere = std::min(befunde_.size(), befunde.size()) - gleich;
    std::size_t hinten = 0;
    while (hinten < kuerzere &&
           befunde_[befunde_.size() - 1 - hinten] == befunde[befunde.size() - 1 - hinten]) {
        ++hinten;
    }
    const auto erste = static_cast<int>(gleich);
    if (const auto weg = static_cast<int>(befunde_.size() - gleich - hinten); weg > 0) {
        beginRemoveRows({}, erste, erste + weg - 1);
        befunde_.erase(befunde_.begin() + erste, befunde_.begin() + erste + weg);
        endRemoveRows();
    }
    if (const auto dazu = static_cast<int>(befunde.size() - gleich - hinten); dazu > 0) {
        beginInsertRows({}, erste, erste + dazu - 1);
        befunde_ = std::move(befunde);
        endInsertRows();
    }
}

int Befundmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(befunde_.size());
}

int Befundmodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(pruefungtexte::spalten.size());
}

QVariant Befundmodell::data(const QModelIndex& stelle, int rolle) const {
    if (!checkIndex(stelle, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Befund& befund = befunde_.at(static_cast<std::size_t>(stelle.row()));
    if (rolle == Qt::DisplayRole) {
        return Text(befund, stelle.column());
    }
    return rolle == Qt::DecorationRole && stelle.column() == 0 ? QVariant(Zeichen(befund.schwere))
                                                               : QVariant();
}

QVariant Befundmodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal || abschnitt < 0 || abschnitt >= columnCount()) {
        return {};
    }
    if (rolle == Qt::TextAlignmentRole) {
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return rolle == Qt::DisplayRole
               ? QVariant(Anzeige(pruefungtexte::spalten.at(static_cast<std::size_t>(abschnitt))))
               : QVariant();
}
