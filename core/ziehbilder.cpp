#include "core/ziehbilder.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <cmath>
#include <numbers>

namespace {

const QColor tinte(32, 32, 32);

QPen Stift(const QColor& farbe, double breite) {
    return QPen(farbe, breite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

// A written sheet with its corner turned down.
void BlattMalen(QPainter& maler, QPointF ecke) {
    maler.save();
    maler.translate(ecke);
    maler.setPen(Stift(tinte, 1.5));
    maler.setBrush(Qt::white);
    maler.drawPolygon(QPolygonF{{0, 0}, {12, 0}, {17, 5}, {17, 22}, {0, 22}});
    maler.setBrush(QColor(214, 214, 214));
    maler.drawPolygon(QPolygonF{{12, 0}, {12, 5}, {17, 5}});
    maler.setPen(Stift(QColor(120, 120, 120), 1.2));
    for (const double y : {6.0, 10.0, 14.0, 18.0}) {
        maler.drawLine(QPointF(3, y), QPointF(y < 8 ? 9 : 14, y));
    }
    maler.restore();
}

// An arrow of height 14 around a point, pointing down or up, with a light rim on any ground.
void PfeilMalen(QPainter& maler, QPointF mitte, bool abwaerts, const QColor& farbe) {
    QPolygonF pfeil{{0, 8}, {-7, 0}, {-3, 0}, {-3, -7}, {3, -7}, {3, 0}, {7, 0}};
    QTransform lage = QTransform::fromTranslate(mitte.x(), mitte.y());
    if (!abwaerts) {
        lage.scale(1, -1);
    }
    pfeil = lage.map(pfeil);
    maler.setPen(Stift(Qt::white, 4));
    maler.setBrush(farbe);
    maler.drawPolygon(pfeil);
    maler.setPen(Stift(tinte, 1.2));
    maler.drawPolygon(pfeil);
}

void AufnehmenMalen(QPainter& maler) {
    BlattMalen(maler, {2, 8});
    PfeilMalen(maler, {23, 10}, false, QColor(58, 120, 205));
}

void AblegenMalen(QPainter& maler) {
    BlattMalen(maler, {2, 1});
    PfeilMalen(maler, {23, 14}, true, QColor(30, 150, 60));
    maler.setPen(Stift(Qt::white, 5));
    maler.drawPolyline(QPolygonF{{4, 25}, {4, 29}, {28, 29}, {28, 25}});
    maler.setPen(Stift(tinte, 2.4));
    maler.drawPolyline(QPolygonF{{4, 25}, {4, 29}, {28, 29}, {28, 25}});
}

void NeinMalen(QPainter& maler) {
    BlattMalen(maler, {7.5, 5});
    const QRectF ring(4, 4, 24, 24);
    const QLineF balken(QPointF(8, 8), QPointF(24, 24));
    maler.setBrush(Qt::NoBrush);
    for (const QPen& stift : {Stift(Qt::white, 6), Stift(QColor(200, 20, 20), 3.6)}) {
        maler.setPen(stift);
        maler.drawEllipse(ring);
        maler.drawLine(balken);
    }
}

// The question bursts: twelve points around a core.
void AtomMalen(QPainter& maler) {
    QPolygonF stern;
    constexpr int ecken = 24;
    for (int i = 0; i < ecken; ++i) {
        const double winkel = 2.0 * std::numbers::pi * i / ecken;
        const double radius = i % 2 == 0 ? 15.0 : 8.5;
        stern << QPointF(16 + radius * std::sin(winkel), 16 - radius * std::cos(winkel));
    }
    maler.setPen(Stift(tinte, 1.3));
    maler.setBrush(QColor(255, 150, 20));
    maler.drawPolygon(stern);
    maler.setBrush(QColor(255, 240, 120));
    maler.drawEllipse(QPointF(16, 16), 5.5, 5.5);
}

} // namespace

QPixmap Ziehpixmap(ZiehBild bild, double pixelverhaeltnis) {
    if (bild == ZiehBild::Keins) {
        return {};
    }
    const int kante = static_cast<int>(std::ceil(ziehBildKante * pixelverhaeltnis));
    QPixmap pixmap(kante, kante);
    pixmap.setDevicePixelRatio(pixelverhaeltnis);
    pixmap.fill(Qt::transparent);
    QPainter maler(&pixmap);
    maler.setRenderHint(QPainter::Antialiasing);
    switch (bild) {
    case ZiehBild::Aufnehmen:
        AufnehmenMalen(maler);
        break;
    case ZiehBild::Ablegen:
        AblegenMalen(maler);
        break;
    case ZiehBild::Nein:
        NeinMalen(maler);
        break;
    case ZiehBild::Atom:
        AtomMalen(maler);
        break;
    case ZiehBild::Keins:
        break;
    }
    return pixmap;
}
