#include "settings/blattskizze.h"

#include <QPainter>

namespace {

const QColor linie(92, 58, 30);
const QColor kopf(250, 226, 150);

// The form in small: a head strip above six columns of five cells.
void FormularZeichnen(QPainter& maler, const QRectF& rahmen) {
    const double hoehe = rahmen.height() / 7.0;
    maler.setPen(QPen(linie, 1));
    maler.setBrush(kopf);
    maler.drawRect(QRectF(rahmen.topLeft(), QSizeF(rahmen.width(), hoehe)));
    maler.setBrush(Qt::NoBrush);
    const QRectF gitter = rahmen.adjusted(0, 1.5 * hoehe, 0, 0);
    for (int spalte = 0; spalte <= 6; ++spalte) {
        const double x = gitter.left() + gitter.width() * spalte / 6.0;
        maler.drawLine(QPointF(x, gitter.top()), QPointF(x, gitter.bottom()));
    }
    for (int zeile = 0; zeile <= 5; ++zeile) {
        const double y = gitter.top() + gitter.height() * zeile / 5.0;
        maler.drawLine(QPointF(gitter.left(), y), QPointF(gitter.right(), y));
    }
}

} // namespace

Blattskizze::Blattskizze(QWidget* eltern, const QString& name, bool halb) : QWidget(eltern), halb_(halb) {
    setObjectName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Blattskizze::sizeHint() const {
    return {170, 140};
}

void Blattskizze::paintEvent(QPaintEvent*) {
    constexpr double lang = 130.0;
    constexpr double kurz = lang / 1.4142;
    const QSizeF blatt = halb_ ? QSizeF(kurz, lang) : QSizeF(lang, kurz);
    QRectF sitz(QPointF(0, 0), blatt);
    sitz.moveCenter(QRectF(rect()).center());
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.fillRect(sitz.translated(3, 3), QColor(190, 184, 172));
    maler.setPen(QPen(linie, 1));
    maler.setBrush(Qt::white);
    maler.drawRect(sitz);
    if (!halb_) {
        FormularZeichnen(maler, sitz.adjusted(8, 10, -8, -8));
        return;
    }
    const QRectF oben = sitz.adjusted(0, 0, 0, -sitz.height() / 2.0);
    FormularZeichnen(maler, oben.adjusted(6, 7, -6, -6));
    maler.setPen(QPen(linie, 1, Qt::DashLine));
    maler.drawLine(oben.bottomLeft(), oben.bottomRight());
}
