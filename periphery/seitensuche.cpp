// Searching in the pages of a document, and marking what was found.
#include "periphery/seitenansicht.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {

const QColor fundfarbe(255, 236, 120);
const QColor fundfarbeVorn(255, 170, 60);
constexpr int zeile = 24; // pixels that a place must be away from the edge to count as seen

} // namespace

int Seitenansicht::Suchen(const QString& text) {
    funde_.clear();
    fund_ = -1;
    suche_.setSearchString(text);
    for (int seite = 0; !text.isEmpty() && seite < Seiten(); ++seite) {
        for (const QPdfLink& stelle : suche_.resultsOnPage(seite)) {
            funde_.push_back({seite, stelle.rectangles()});
        }
    }
    viewport()->update();
    return static_cast<int>(funde_.size());
}

int Seitenansicht::FundZeigen(int fund) {
    fund_ = fund;
    const Fund& stelle = funde_.at(static_cast<std::size_t>(fund));
    const QRect& platz = lage_.plaetze.at(static_cast<std::size_t>(stelle.seite));
    const double faktor = platz.width() / masse_.at(static_cast<std::size_t>(stelle.seite)).width();
    const QRectF flaeche = stelle.flaechen.value(0);
    const QPointF mitte = QPointF(platz.topLeft()) + flaeche.center() * faktor;
    // The place comes to the upper third, where the eye begins; one that can be seen already stays.
    const QRect sicht(-Verschiebung(), viewport()->size());
    if (!sicht.adjusted(0, zeile, 0, -zeile).contains(mitte.toPoint())) {
        verticalScrollBar()->setValue(static_cast<int>(mitte.y()) - viewport()->height() / 3);
        horizontalScrollBar()->setValue(static_cast<int>(mitte.x()) - viewport()->width() / 2);
    }
    viewport()->update();
    return stelle.seite + 1;
}

int Seitenansicht::FundAbHier() const {
    const auto ab = std::ranges::find_if(
        funde_, [seite = Seite() - 1](const Fund& stelle) { return stelle.seite >= seite; });
    return ab == funde_.end() ? 0 : static_cast<int>(ab - funde_.begin());
}

void Seitenansicht::FundeMalen(QPainter& maler, int seite, const QRect& platz) const {
    const double faktor = platz.width() / masse_.at(static_cast<std::size_t>(seite)).width();
    maler.save();
    maler.setCompositionMode(QPainter::CompositionMode_Multiply); // the text stays legible beneath
    for (std::size_t i = 0; i < funde_.size(); ++i) {
        if (funde_.at(i).seite != seite) {
            continue;
        }
        QRegion stelle; // the rectangles of one place overlap, and no pixel is to be coloured twice
        for (const QRectF& flaeche : funde_.at(i).flaechen) {
            const QRectF ziel(QPointF(platz.topLeft()) + flaeche.topLeft() * faktor, flaeche.size() * faktor);
            stelle += ziel.adjusted(-2, -2, 2, 2).toAlignedRect();
        }
        for (const QRect& flaeche : stelle) {
            maler.fillRect(flaeche, static_cast<int>(i) == fund_ ? fundfarbeVorn : fundfarbe);
        }
    }
    maler.restore();
}
