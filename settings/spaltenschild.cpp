#include "settings/spaltenschild.h"

#include <QPainter>

Spaltenschild::Spaltenschild(QWidget* eltern, const QString& name, const QString& text)
    : QLabel(text, eltern) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
}

void Spaltenschild::paintEvent(QPaintEvent*) {
    const QStringList worte = text().split(u' ', Qt::SkipEmptyParts);
    const double spalte = static_cast<double>(width()) / static_cast<double>(worte.size());
    QPainter maler(this);
    maler.setPen(palette().color(QPalette::WindowText));
    double links = 0.0;
    for (const QString& wort : worte) {
        maler.drawText(QRectF(links, 0, spalte, height()), Qt::AlignCenter, wort);
        links += spalte;
    }
}
