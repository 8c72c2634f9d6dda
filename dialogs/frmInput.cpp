#include "dialogs/frmInput.h"

#include "core/oberflaeche.h"
#include "core/textfeld.h"
#include "dialogs/hinweistexte.h"
#include "dialogs/meldung.h"
#include "dialogs/sinnbilder.h"
#include "tooltips/hinweise.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr double innenBreite = 3525;
constexpr double innenHoehe = 2985;
constexpr double tastenOben = 2340;
constexpr int tippBreite = 300; // pixels

} // namespace

frmInput::frmInput()
    : Dialoggrund(QStringLiteral("frmInput"), innenBreite, innenHoehe,
                  Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      lblInput_(new Textschild(this, QStringLiteral("lblInput"))),
      txtInput_(new QLineEdit(this)),
      cmdOK_(TasteBauen("cmdOK", QStringLiteral("&OK"), 120)),
      cmdAbbruch_(TasteBauen("cmdAbbruch", QStringLiteral("&Abbrechen"), 1200)),
      cmdHilfe_(TasteBauen("cmdHilfe", QStringLiteral("&Hilfe"), 2370)) {
    Zentrieren(innenHoehe + titelHoeheTwips);
    TwipsGeometrie(lblInput_, 75, 750, innenBreite - 180, 855);
    HintergrundLaden("INPUT.bmp");
    for (int i = 1; i < static_cast<int>(picSymbol_.size()); ++i) {
        auto* bild = SinnbildLabel(this, "picSymbol", i, sinnbilder::eingabe.at(static_cast<std::size_t>(i)));
        bild->move(Pixel(1560), Pixel(180));
        picSymbol_[static_cast<std::size_t>(i)] = bild;
    }
    ZeileBauen();
    TabfolgeSetzen();
    TippsEinrichten(this, tippBreite);
    HinweiseSetzen(*this, dialogtexte::eingabe);
    cmdOK_->setDefault(true);
    connect(cmdOK_, &QPushButton::clicked, this, &frmInput::Uebernehmen);
    connect(cmdAbbruch_, &QPushButton::clicked, this, &frmInput::Abbrechen);
}

void frmInput::ZeileBauen() {
    // Names of files and folders may hold any character, so the line takes them all.
    txtInput_->setObjectName(QStringLiteral("txtInput"));
    txtInput_->setAccessibleName(QStringLiteral("Eingabe"));
    txtInput_->setFont(Schrift(10));
    TwipsGeometrie(txtInput_, 180, 1710, innenBreite - 360, 390);
    txtInput_->installEventFilter(this);
}

QPushButton* frmInput::TasteBauen(const char* name, const QString& wort, double links) {
    auto* taste = new QPushButton(wort, this);
    taste->setObjectName(QLatin1String(name));
    taste->setFont(Schrift(9));
    TwipsGeometrie(taste, links, tastenOben, name == std::string_view("cmdAbbruch") ? 1125 : 1035, 450);
    return taste;
}

void frmInput::TabfolgeSetzen() {
    setTabOrder(txtInput_, cmdOK_);
    setTabOrder(cmdOK_, cmdAbbruch_);
    setTabOrder(cmdAbbruch_, cmdHilfe_);
}

void frmInput::Fragen(int bild, const QString& titel, const QString& text, const QString& vorgabe) {
    bild_ = bild;
    vorgabe_ = vorgabe;
    ergebnis_.reset();
    lblInput_->setText(text);
    setWindowTitle(titel);
    VorgabeEinsetzen();
}

void frmInput::VorgabeEinsetzen() {
    txtInput_->setFocus();
    if (txtInput_->text() != vorgabe_) {
        txtInput_->setText(vorgabe_);
    }
    TextMarkieren(txtInput_);
}

// Painting the window anew puts the proposal back; the blinking of the cursor and the like paint a part of it
// only and don't count.
void frmInput::paintEvent(QPaintEvent* ereignis) {
    Dialoggrund::paintEvent(ereignis);
    if (QRegion(rect()).subtracted(ereignis->region()).isEmpty()) {
        VorgabeEinsetzen();
    }
}

void frmInput::showEvent(QShowEvent* ereignis) {
    Dialoggrund::showEvent(ereignis);
    for (int i = 1; i < static_cast<int>(picSymbol_.size()); ++i) {
        picSymbol_[static_cast<std::size_t>(i)]->setVisible(i == bild_);
    }
}

bool frmInput::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt != txtInput_) {
        return Dialoggrund::eventFilter(objekt, ereignis);
    }
    if (ereignis->type() == QEvent::FocusIn) {
        // Behind the click that brought the focus, which would take the selection away.
        QTimer::singleShot(0, txtInput_, [zeile = txtInput_] { TextMarkieren(zeile); });
    }
    if (ereignis->type() == QEvent::KeyPress) {
        const auto* taste = static_cast<QKeyEvent*>(ereignis);
        const bool eingabe = taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter;
        // Code 15 is the control character of the letter O.
        const bool steuerungO = taste->key() == Qt::Key_O && taste->modifiers() == Qt::ControlModifier;
        if (eingabe || steuerungO) {
            cmdOK_->click();
            return true;
        }
    }
    return Dialoggrund::eventFilter(objekt, ereignis);
}

// Esc and the frame's close box are the same as the button.
void frmInput::reject() {
    Abbrechen();
}

void frmInput::Uebernehmen() {
    SoundSpielen("dubb");
    ergebnis_ = txtInput_->text().toStdString();
    done(QDialog::Accepted);
}

void frmInput::Abbrechen() {
    SoundSpielen("clack");
    done(QDialog::Rejected);
}
