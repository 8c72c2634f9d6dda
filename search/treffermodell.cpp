#include "search/treffermodell.h"

#include "core/oberflaeche.h"
#include "search/texte.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int schub = 500; // rows at a time

} // namespace

Treffermodell::Treffermodell(Nutzung nutzung, QObject* eltern)
    : QAbstractTableModel(eltern), nutzung_(std::move(nutzung)) {}

void Treffermodell::setTreffer(std::shared_ptr<const Fragenbestand> bestand,
                               std::vector<std::uint32_t> nummern, Suchanfrage anfrage) {
    beginResetModel();
    bestand_ = std::move(bestand);
    nummern_ = std::move(nummern);
    anfrage_ = std::move(anfrage);
    gezeigt_ = static_cast<int>(std::min<std::size_t>(nummern_.size(), schub));
    endResetModel();
}

void Treffermodell::NutzungNeu() {
    if (gezeigt_ > 0) {
        constexpr int spalte = static_cast<int>(Trefferspalte::Benutzt);
        Q_EMIT dataChanged(index(0, spalte), index(gezeigt_ - 1, spalte));
    }
}

Katalogfrage Treffermodell::treffer(int zeile) const {
    return bestand_->frage(nummer(zeile));
}

int Treffermodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : gezeigt_;
}

int Treffermodell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(suchtexte::spalten.size());
}

QVariant Treffermodell::data(const QModelIndex& stelle, int rolle) const {
    const bool alsText = rolle == Qt::DisplayRole || rolle == Qt::ToolTipRole;
    if (!alsText || !checkIndex(stelle, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Katalogfrage frage = treffer(stelle.row());
    switch (static_cast<Trefferspalte>(stelle.column())) {
    case Trefferspalte::Frage:
        return Anzeige(frage.frage);
    case Trefferspalte::Antwort:
        return Anzeige(frage.antwort);
    case Trefferspalte::Thema:
        return Anzeige(frage.thema);
    case Trefferspalte::Unterthema:
        return Anzeige(frage.unterthema);
    case Trefferspalte::Punkte:
        return Anzeige(frage.punkte);
    case Trefferspalte::Benutzt:
        return Anzeige(rolle == Qt::ToolTipRole ? nutzung_.ganz(frage.frage) : nutzung_.kurz(frage.frage));
    }
    return {};
}

QVariant Treffermodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal || rolle != Qt::DisplayRole || abschnitt < 0 ||
        abschnitt >= columnCount()) {
        return {};
    }
    return Anzeige(suchtexte::spalten.at(static_cast<std::size_t>(abschnitt)));
}

bool Treffermodell::canFetchMore(const QModelIndex& eltern) const {
    return !eltern.isValid() && static_cast<std::size_t>(gezeigt_) < nummern_.size();
}

void Treffermodell::fetchMore(const QModelIndex& eltern) {
    if (!canFetchMore(eltern)) {
        return;
    }
    const auto rest = nummern_.size() - static_cast<std::size_t>(gezeigt_);
    const int mehr = static_cast<int>(std::min<std::size_t>(rest, schub));
    beginInsertRows({}, gezeigt_, gezeigt_ + mehr - 1);
    gezeigt_ += mehr;
    endInsertRows();
}
