// What the preview window is made of.
#include "core/bilder.h"
#include "core/fensterzeichen.h"
#include "core/oberflaeche.h"
#include "core/taste.h"
#include "sheets/frmVorschau.h"
#include "sheets/texte.h"
#include "tooltips/hinweise.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int saum = 6; // pixels

QCheckBox* Schalter(const char* name, std::string_view aufschrift, QWidget* eltern) {
    auto* schalter = new QCheckBox(Anzeige(aufschrift), eltern);
    schalter->setObjectName(QLatin1String(name));
    schalter->setFont(Schrift(9_pt));
    return schalter;
}

} // namespace

void frmVorschau::Aufbauen() {
    setObjectName(QStringLiteral("frmVorschau"));
    setProperty("tag", Anzeige(Fensterzeichen(Kindfenster::Vorschau)));
    setAttribute(Qt::WA_DeleteOnClose);
    setAutoFillBackground(true);
    setWindowTitle(Anzeige(blatttexte::fenstertitel));
    setMinimumSize(420, 260);
    auto* gesamt = new QVBoxLayout(this);
    gesamt->setContentsMargins(saum, saum, saum, saum);
    gesamt->setSpacing(saum);
    WahlBauen(*gesamt);
    picBlatt_ = new QPrintPreviewWidget(drucker_.get(), this);
    picBlatt_->setObjectName(QStringLiteral("picBlatt"));
    picBlatt_->setAccessibleName(Anzeige(blatttexte::fenstertitel));
    gesamt->addWidget(picBlatt_, 1);
    lblBlattHinweis_ = new QLabel(this);
    lblBlattHinweis_->setObjectName(QStringLiteral("lblBlattHinweis"));
    lblBlattHinweis_->setTextFormat(Qt::PlainText);
    lblBlattHinweis_->setFont(Schrift(9_pt));
    lblBlattHinweis_->setWordWrap(true);
    lblBlattHinweis_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Always the same room, so that the page doesn't jump while one types.
    lblBlattHinweis_->setFixedHeight(3 * QFontMetrics(Schrift(9_pt)).lineSpacing() + 2);
    gesamt->addWidget(lblBlattHinweis_);
    FusszeileBauen(*gesamt);
    setFocusProxy(cmbBlatt_);
    HinweiseSetzen(*this, blatttexte::hinweise);
}

void frmVorschau::WahlBauen(QBoxLayout& gesamt) {
    lblBlatt_ = new QLabel(Anzeige(blatttexte::blattwahl), this);
    lblBlatt_->setObjectName(QStringLiteral("lblBlatt"));
    lblBlatt_->setFont(Schrift(9_pt));
    cmbBlatt_ = new QComboBox(this);
    cmbBlatt_->setObjectName(QStringLiteral("cmbBlatt"));
    cmbBlatt_->setFont(Schrift(9_pt));
    cmbBlatt_->setMaxVisibleItems(12);
    cmbBlatt_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    lblBlatt_->setBuddy(cmbBlatt_);
    chkOhneTitel_ = Schalter("chkOhneTitel", blatttexte::ohneTitel, this);
    chkMitAntworten_ = Schalter("chkMitAntworten", blatttexte::mitAntworten, this);
    cmdGanz_ = LupeBauen("cmdGanz", "seite/ganz", blatttexte::ganz);
    cmdBreite_ = LupeBauen("cmdBreite", "seite/breite", blatttexte::breite);
    cmdKleiner_ = LupeBauen("cmdKleiner", "seite/kleiner", blatttexte::kleiner);
    cmdGroesser_ = LupeBauen("cmdGroesser", "seite/groesser", blatttexte::groesser);
    auto* reihe = new QHBoxLayout;
    reihe->setSpacing(saum);
    for (QWidget* element : {static_cast<QWidget*>(lblBlatt_), static_cast<QWidget*>(cmbBlatt_),
                             static_cast<QWidget*>(chkOhneTitel_), static_cast<QWidget*>(chkMitAntworten_)}) {
        reihe->addWidget(element);
    }
    reihe->addStretch(1);
    for (QToolButton* lupe : {cmdGanz_, cmdBreite_, cmdKleiner_, cmdGroesser_}) {
        reihe->addWidget(lupe);
    }
    gesamt.addLayout(reihe);
}

// was: for who can't see the picture.
QToolButton* frmVorschau::LupeBauen(const char* name, std::string_view bild, std::string_view was) {
    auto* lupe = new QToolButton(this);
    lupe->setObjectName(QLatin1String(name));
    lupe->setFocusPolicy(Qt::TabFocus);
    lupe->setAccessibleName(Anzeige(was));
    TastenbildSetzen(lupe, bild);
    return lupe;
}

void frmVorschau::FusszeileBauen(QBoxLayout& gesamt) {
    cmdDrucken_ = TasteBauen("cmdDrucken", blatttexte::drucken, "leiste/drucken", this);
    cmdAlsPDF_ = TasteBauen("cmdAlsPDF", blatttexte::alsPdf, "leiste/speichern", this);
    cmdAbbruch_ = TasteBauen("cmdAbbruch", blatttexte::schliessen, "datei/abbrechen", this);
    auto* reihe = new QHBoxLayout;
    reihe->setSpacing(saum);
    reihe->addWidget(cmdDrucken_);
    reihe->addWidget(cmdAlsPDF_);
    reihe->addStretch(1);
    reihe->addWidget(cmdAbbruch_);
    gesamt.addLayout(reihe);
}
