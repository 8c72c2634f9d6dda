// How the list of forms is put together; what happens in it is filetools/frmFKformulare.cpp.
#include "core/bilder.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "filetools/formularlistetexte.h"
#include "filetools/frmFKformulare.h"
#include "tooltips/hinweise.h"

#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QPushButton* Taste(const char* name, const QString& aufschrift, QWidget* eltern) {
    auto* taste = new QPushButton(aufschrift, eltern);
    taste->setObjectName(QLatin1String(name));
    taste->setAutoDefault(true); // Enter presses the one that has the focus
    taste->setMinimumWidth(60);
    return taste;
}

// The part of the screen that the window may use: never under a task bar.
QRect Bereich(const QWidget& fenster) {
    const QSize groesse = Bildschirmgroesse(Hauptfenster());
    const QScreen* schirm = fenster.screen();
    return groesse == schirm->size() ? schirm->availableGeometry() : QRect(QPoint(0, 0), groesse);
}

// On a wide screen there is room beside a form, and the list stands upright. On others it lies, so that it
// covers as little of a form as it can.
bool Aufrecht(const QRect& bereich) {
    return bereich.width() >= 1860;
}

QSize Wunschgroesse(const QRect& bereich) {
    return Aufrecht(bereich) ? QSize(280, 520) : QSize(400, 132);
}

} // namespace

void frmFKformulare::Aufbauen() {
    auto* aussen =
        new QBoxLayout(Aufrecht(Bereich(*this)) ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this);
    aussen->setContentsMargins(4, 4, 4, 4);
    aussen->setSpacing(4);
    aussen->addWidget(ListeBauen(), 1);
    auto* spalte = new QVBoxLayout;
    spalte->setSpacing(4);
    TastenBauen(spalte);
    InfoBauen(spalte);
    spalte->addStretch(1);
    MusterBauen(spalte);
    aussen->addLayout(spalte);
    HinweiseSetzen(*this, listentexte::hinweise);
}

void frmFKformulare::TastenBauen(QVBoxLayout* spalte) {
    cmdNeuFK_ = Taste("cmdNeuFK", QStringLiteral("&Feldkranz"), this);
    cmdNeuHB_ = Taste("cmdNeuHB", QStringLiteral("&Test"), this);
    TastenbildSetzen(cmdNeuFK_, "leiste/feldkranz");
    TastenbildSetzen(cmdNeuHB_, "leiste/test");
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(cmdNeuFK_);
    zeile->addWidget(cmdNeuHB_);
    spalte->addLayout(zeile);
}

QWidget* frmFKformulare::ListeBauen() {
    filDateiliste_ = new QListWidget(this);
    filDateiliste_->setObjectName(QStringLiteral("filDateiliste"));
    filDateiliste_->setAccessibleName(QStringLiteral("Formulare"));
    filDateiliste_->setUniformItemSizes(true); // thousands of names are laid out as fast as a few
    filDateiliste_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    filDateiliste_->setMinimumWidth(120);
    filDateiliste_->installEventFilter(this);
    return filDateiliste_;
}

void frmFKformulare::MusterBauen(QVBoxLayout* spalte) {
    auto* picPattern = new QFrame(this);
    picPattern->setObjectName(QStringLiteral("picPattern"));
    picPattern->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    auto* zeile = new QHBoxLayout(picPattern);
    zeile->setContentsMargins(6, 1, 6, 1);
    constexpr std::array kuerzel{"*.F&KR", "*.&BAK"};
    for (std::size_t i = 0; i < optPattern_.size(); ++i) {
        optPattern_.at(i) = new QRadioButton(QLatin1String(kuerzel.at(i)), picPattern);
        optPattern_.at(i)->setObjectName(QStringLiteral("optPattern(%1)").arg(i));
        zeile->addWidget(optPattern_.at(i));
    }
    optPattern_.front()->setChecked(true);
    auto* unten = new QHBoxLayout;
    unten->addWidget(picPattern, 1);
    cmdAbbruch_ = Taste("cmdAbbruch", QStringLiteral("&Schließen"), this);
    TastenbildSetzen(cmdAbbruch_, "datei/abbrechen");
    unten->addWidget(cmdAbbruch_);
    spalte->addLayout(unten);
}

void frmFKformulare::InfoBauen(QVBoxLayout* spalte) {
    auto* rahmen = new QGroupBox(Anzeige(listentexte::infoTitel), this);
    rahmen->setObjectName(QStringLiteral("fraDateiInfo"));
    auto* innen = new QVBoxLayout(rahmen);
    innen->setContentsMargins(6, 2, 6, 4);
    lblDateiInfo_ = new QLabel(Anzeige(listentexte::infoLeer), rahmen);
    lblDateiInfo_->setObjectName(QStringLiteral("lblDateiInfo"));
    lblDateiInfo_->setTextFormat(Qt::PlainText);
    QFont schrift = lblDateiInfo_->font();
    schrift.setWordSpacing(-0.6); // with it the texts' own blanks bring the columns under each other
    lblDateiInfo_->setFont(schrift);
    lblDateiInfo_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblDateiInfo_->setFixedHeight(3 * lblDateiInfo_->fontMetrics().lineSpacing() + 2);
    innen->addWidget(lblDateiInfo_);
    spalte->addWidget(rahmen);
}

// At the left edge above the status panel: opposite the selection dialog, and clear of toolbars and panels.
void frmFKformulare::Einpassen() {
    constexpr int rand = 2;
    constexpr int titelzeile = 20;
    constexpr int statuszeile = 27;
    const QRect bereich = Bereich(*this);
    resize(Wunschgroesse(bereich).boundedTo(bereich.size() - QSize(2 * rand, 2 * titelzeile)));
    move(bereich.left() + rand,
         std::max(bereich.top(), bereich.bottom() + 1 - statuszeile - height() - titelzeile));
}
