#include "catalogue/blattfall.h"

#include "core/bilder.h"

#include <QPainter>

#include <string>

namespace {

constexpr int tickDauer = 80; // milliseconds
constexpr QSize feldgroesse(104, 104);
constexpr QSize blattgroesse(44, 44);
constexpr QRect korbplatz(28, 54, 48, 48);

// The corner of each sheet in the air. The last ones sink into the basket.
constexpr std::array<QPoint, anzahlBlaetter> lagen{
    {{22, 0}, {34, 6}, {40, 13}, {32, 21}, {26, 28}, {30, 37}, {30, 46}}};

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
        blatt->setPixmap(Bild("muell/blatt" + std::to_string(i), pixelverhaeltnis));
        blatt->setGeometry(QRect(lagen[i], blattgroesse));
        blatt->hide();
        picBlatt_[i] = blatt;
    }
    auto* korb = new QLabel(this);
    korb->setObjectName(QStringLiteral("picKorb"));
    korb->setAccessibleName(QStringLiteral("Papierkorb"));
    korb->setPixmap(Bild("muell/korb", pixelverhaeltnis));
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
