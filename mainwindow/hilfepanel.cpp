#include "mainwindow/hilfepanel.h"

#include "core/oberflaeche.h"

#include <QPainter>

namespace {

constexpr int statusBreite = 3600 - 60; // twips, up to the clipboard panels

} // namespace

Hilfepanel::Hilfepanel(QWidget* eltern) : Panel(eltern, QStringLiteral("pnlHilfe")) {}

void Hilfepanel::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.fillRect(rect(), grund());
    const QRect flaeche(2, 0, Pixel(statusBreite), height());
    QFont schrift = Schrift(8.25);
    if (QFontMetrics(schrift).horizontalAdvance(caption()) > flaeche.width()) {
        schrift = Schrift(7.5);
    }
    maler.setFont(schrift);
    maler.setPen(palette().color(QPalette::ButtonText));
    maler.drawText(flaeche, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextWordWrap, caption());
    drawFrame(&maler); // not the panel's own painting, which would set the caption in one line
}
