#include "catalogue/blattfall.h"

#include <QPainter>
#include <QPolygonF>

#include <cmath>

namespace {

constexpr int tickDauer = 80; // milliseconds
constexpr QSize feldgroesse(104, 104);
constexpr QSize blattgroesse(44, 44);
constexpr QRect korbplatz(28, 54, 48, 48);

// Where each sheet hangs in the air: its corner and its slant in degrees. The last ones sink into the basket.
struct Lage {
    int x, y;
    double neigung;
};
constexpr std::array<Lage, anzahlBlaetter> lagen{
    {{22, 0, -24}, {34, 8, 12}, {40, 17, 28}, {32, 27, 4}, {26, 37, -18}, {30, 48, -4}, {30, 60, 0}}};

QPixmap Leinwand(QSize groesse, double pixelverhaeltnis) {
    QPixmap pixmap((QSizeF(groesse) * pixelverhaeltnis).toSize());
    pixmap.setDevicePixelRatio(pixelverhaeltnis);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

QPixmap BlattBild(double neigung, double pixelverhaeltnis) {
    QPixmap pixmap = Leinwand(blattgroesse, pixelverhaeltnis);
    QPainter maler(&pixmap);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.translate(blattgroesse.width() / 2.0, blattgroesse.height() / 2.0);
    maler.rotate(neigung);
    maler.setPen(QPen(QColor(60, 60, 60), 1.3));
    maler.setBrush(Qt::white);
    maler.drawPolygon(QPolygonF{{-11, -14}, {6, -14}, {11, -9}, {11, 14}, {-11, 14}});
    maler.setPen(QPen(QColor(130, 130, 130), 1.2));
    for (const double y : {-7.0, -2.0, 3.0, 8.0}) {
        maler.drawLine(QPointF(-7, y), QPointF(7, y));
    }
    return pixmap;
}

QPixmap KorbBild(double pixelverhaeltnis) {
    QPixmap pixmap = Leinwand(korbplatz.size(), pixelverhaeltnis);
    QPainter maler(&pixmap);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(QColor(48, 56, 64), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    maler.setBrush(QColor(150, 166, 178));
    maler.drawPolygon(QPolygonF{{4, 6}, {44, 6}, {38, 46}, {10, 46}});
    maler.setPen(QPen(QColor(86, 102, 114), 1.6, Qt::SolidLine, Qt::RoundCap));
    for (const double teil : {0.2, 0.4, 0.6, 0.8}) {
        maler.drawLine(QPointF(4 + 40 * teil, 13), QPointF(10 + 28 * teil, 42));
    }
    maler.setPen(QPen(QColor(48, 56, 64), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    maler.setBrush(QColor(192, 204, 212));
    maler.drawRoundedRect(QRectF(1.5, 2, 45, 7), 3, 3);
    return pixmap;
}

} // namespace

Blattfall::Blattfall(QWidget* eltern) : QWidget(eltern) {
    setObjectName(QStringLiteral("picMuell"));
    setFixedSize(feldgroesse);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("Müll"));
    const double pixelverhaeltnis = devicePixelRatioF();
    for (std::size_t i = 0; i < picBlatt_.size(); ++i) {
        auto* blatt = new QLabel(this);
        blatt->setObjectName(QStringLiteral("picBlatt(%1)").arg(i));
        blatt->setAccessibleName(QStringLiteral("Fallendes Blatt"));
        blatt->setPixmap(BlattBild(lagen[i].neigung, pixelverhaeltnis));
        blatt->setGeometry(QRect(QPoint(lagen[i].x, lagen[i].y), blattgroesse));
        blatt->hide();
        picBlatt_[i] = blatt;
    }
    auto* korb = new QLabel(this);
    korb->setObjectName(QStringLiteral("picKorb"));
    korb->setAccessibleName(QStringLiteral("Papierkorb"));
    korb->setPixmap(KorbBild(pixelverhaeltnis));
    korb->setGeometry(korbplatz);
    Timer1_.setObjectName(QStringLiteral("Timer1"));
    Timer1_.setParent(this);
    connect(&Timer1_, &QTimer::timeout, this, &Blattfall::Tick);
    Timer1_.start(tickDauer);
}

void Blattfall::paintEvent(QPaintEvent* /*ereignis*/) {
    if (hasFocus()) {
        QPainter maler(this);
        maler.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        maler.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

// Runs all the time; at rest every sheet is hidden already, and nothing is painted anew.
void Blattfall::Tick() {
    for (QLabel* blatt : picBlatt_) {
        blatt->hide();
    }
    if (blattNr_ < anzahlBlaetter) {
        picBlatt_[static_cast<std::size_t>(blattNr_)]->show();
        ++blattNr_;
    }
}
