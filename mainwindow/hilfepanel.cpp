#include "mainwindow/hilfepanel.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panelansage.h"
#include "core/pfadname.h"
#include "mainwindow/dateihinweis.h"
#include "mainwindow/texte.h"
#include "tooltips/hinweise.h"
#include "tooltips/tooltip.h"

#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace {

constexpr Twips statusBreite = 3600_tw - 60_tw; // up to the clipboard panels
constexpr int linkerRand = 2;                   // pixels
constexpr int zeilenPlatz = 2;

QFont Kleinschrift() {
    return Schrift(7.5_pt);
}

// The text in lines; a path is one long word and is broken anywhere.
void Umbrechen(QTextLayout& satz) {
    QTextOption umbruch;
    umbruch.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    satz.setTextOption(umbruch);
    satz.beginLayout();
    double y = 0.0;
    for (QTextLine zeile = satz.createLine(); zeile.isValid(); zeile = satz.createLine()) {
        zeile.setLineWidth(Pixel(statusBreite));
        zeile.setPosition(QPointF(0, y));
        y += std::floor(zeile.height());
    }
    satz.endLayout();
}

// The text as two lines show it, with dots where it goes on.
QString Gekuerzt(const QString& text, const QFont& schrift) {
    QTextLayout satz(text, schrift);
    Umbrechen(satz);
    if (satz.lineCount() <= zeilenPlatz) {
        return text;
    }
    const int letzte = satz.lineAt(zeilenPlatz - 1).textStart();
    return text.left(letzte) +
           QFontMetrics(schrift).elidedText(text.mid(letzte), Qt::ElideRight, Pixel(statusBreite));
}

bool Passt(const std::string& text) {
    QTextLayout satz(Anzeige(text) + u' ', Kleinschrift());
    Umbrechen(satz);
    return satz.lineCount() <= zeilenPlatz;
}

} // namespace

Hilfepanel::Hilfepanel(QWidget* eltern) : Panel(eltern, QStringLiteral("pnlHilfe")) {
    WechselAnsagen(this);
}

void Hilfepanel::DateiZeigen(std::string_view text, const std::string& pfad) {
    const std::string name = NurDateiname(pfad);
    const std::size_t davor = pfad.size() - name.size();
    HilfeText(Dateihinweis(text, name, pfad.substr(0, davor == 0 ? 0 : davor - 1), Passt));
    if (grundtipp_.isEmpty()) {
        grundtipp_ = toolTip();
    }
    const std::string tipp = Modelltext(grundtipp_) + std::string(kerntexte::zuletztAbgelegt) + pfad;
    Tippobjekt(*this).AddControl(this, tipp);
}

void Hilfepanel::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.fillRect(rect(), grund());
    QFont schrift = Schrift(8.25_pt);
    if (QFontMetrics(schrift).horizontalAdvance(caption()) > Pixel(statusBreite)) {
        schrift = Kleinschrift();
    }
    QTextLayout satz(Gekuerzt(caption(), schrift), schrift);
    Umbrechen(satz);
    const double hoehe = satz.lineCount() == 0 ? 0.0 : satz.boundingRect().height();
    maler.setPen(palette().color(QPalette::ButtonText));
    satz.draw(&maler, QPointF(linkerRand, std::floor((height() - hoehe) / 2)));
    drawFrame(&maler); // not the panel's own painting, which would set the caption in one line
}
