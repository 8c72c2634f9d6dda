#include "filetools/laufwerksfeld.h"

#include "core/bilder.h"
#include "core/klappliste.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "filetools/dateitexte.h"
#include "tooltips/hinweise.h"

#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>

namespace {

constexpr int tastenJeZeile = 3;

// A drive's letter is shown as a capital; a volume's name stays as it is.
QString Aufschrift(const Laufwerk& laufwerk) {
    return laufwerk.name.size() <= 2 ? laufwerk.name.toUpper() : laufwerk.name;
}

} // namespace

Laufwerksfeld::Laufwerksfeld(QWidget* eltern)
    : QGroupBox(QStringLiteral("Laufwerk"), eltern),
      drvList_(new Klappliste(this, QStringLiteral("drvList"))) {
    setObjectName(QStringLiteral("fraLaufwerk"));
    drvList_->setAccessibleName(QStringLiteral("Laufwerk"));
    auto* raster = new QGridLayout(this);
    raster->setContentsMargins(6, 2, 6, 6);
    raster->setSpacing(4);
    raster->addWidget(drvList_, 0, 0, 1, tastenJeZeile);
    int i = 0;
    for (const Laufwerk& laufwerk : Laufwerke()) {
        const std::string wurzel = EigenerPfad(laufwerk.wurzel);
        const QString name = Aufschrift(laufwerk);
        auto* taste = new QPushButton(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")), this);
        taste->setObjectName(QStringLiteral("cmdLaufwerk(%1)").arg(i));
        TastenbildSetzen(taste, "datei/laufwerk");
        taste->setAutoDefault(false);
        taste->setMinimumWidth(30);
        const std::string wort = name.toStdString();
        HinweisSetzen(taste, Einsetzen(dateitexte::laufwerkTipp, {wort}), dateitexte::standard,
                      Einsetzen(dateitexte::laufwerkStatus, {wort}));
        connect(taste, &QPushButton::clicked, this, [this, wurzel] { Q_EMIT gewaehlt(wurzel); });
        raster->addWidget(taste, 1 + i / tastenJeZeile, i % tastenJeZeile);
        cmdLaufwerk_.push_back(taste);
        drvList_->addItem(name, QString::fromStdString(wurzel));
        ++i;
    }
    connect(drvList_, &QComboBox::activated, this,
            [this](int platz) { Q_EMIT gewaehlt(drvList_->itemData(platz).toString().toStdString()); });
    ListeZeigen(false);
}

bool Laufwerksfeld::listeSteht() const {
    return !drvList_->isHidden();
}

void Laufwerksfeld::ListeZeigen(bool liste) {
    drvList_->setVisible(liste);
    for (QPushButton* taste : cmdLaufwerk_) {
        taste->setVisible(!liste);
    }
}

void Laufwerksfeld::SuchansichtZeigen() {
    if (!cmdLaufwerk_.empty()) {
        cmdLaufwerk_.front()->setFixedWidth(Pixel(300_tw));
    }
    ListeZeigen(true);
    setFixedWidth(Pixel(3015_tw));
}

void Laufwerksfeld::mouseDoubleClickEvent(QMouseEvent*) {
    ListeZeigen(!listeSteht());
}
