#include "settings/frmIni.h"

#include "core/bilder.h"
#include "core/drehfeld.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "core/schritt.h"
#include "dialogs/meldung.h"
#include "dialogs/modal.h"
#include "rules/spezialarten.h"
#include "rules/spielwerte.h"
#include "settings/hinweistexte.h"
#include "settings/texte.h"
#include "settings/vorgabendialog.h"
#include "tooltips/hinweise.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

// A row of the table without an index holds for all members of a control array.
void HinweisAnwenden(const frmIni& fenster, const initexte::Hinweis& hinweis) {
    const QString name = Anzeige(hinweis.name);
    for (auto* teil : fenster.findChildren<QWidget*>()) {
        if (teil->objectName() == name || teil->objectName().startsWith(name + u'(')) {
            HinweisSetzen(teil, hinweis.tipp, hinweis.titel, hinweis.status);
        }
    }
}

} // namespace

void VorgabenZeigen() {
    const Hilfewahrer wahrer;                      // the dialog speaks while it loads already
    const Schritt schritt("Einstellungen ändern"); // also what a counter sets before the OK
    frmIni fenster;
    ModalZeigen(fenster);
}

frmIni::frmIni() {
    setObjectName(QStringLiteral("frmIni"));
    setWindowTitle(Anzeige(initexte::fenster));
    setWindowIcon(Bildzeichen("leiste/vorgaben"));
    setModal(true);
    HilfeText(initexte::laden);
    auto* spalte = new QVBoxLayout(this);
    spalte->setSizeConstraint(QLayout::SetFixedSize);
    RegisterBauen();
    ToolbarBauen();
    spalte->addWidget(tabIni_);
    spalte->addWidget(pnlToolbar_);
    RegelnVerbinden();
    DarstellungVerbinden();
    BefehleVerbinden();
    HinweiseSetzen();
    vorgaben_ = VorgabenAus(Spiel);
    for (const Gruppe gruppe : {Punkte, Felder, PunkteV, FelderV}) {
        ArtenZeigen(gruppe);
    }
    OptionenZeigen();
    RegisterAnwenden(tabIni_->currentIndex());
}

// The dialog's activation: once, when it comes on the screen. Coming back from one of its own questions must
// not note numbers that have been stepped meanwhile.
void frmIni::showEvent(QShowEvent* ereignis) {
    QDialog::showEvent(ereignis);
    if (!aktiviert_) {
        aktiviert_ = true;
        vorher_ = Spiel;
        OptionenZeigen();
        ZaehlerZeigen();
    }
}

// A key held down must not answer the questions that its first press has raised.
bool frmIni::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (ereignis->type() == QEvent::KeyPress) {
        const auto* taste = static_cast<QKeyEvent*>(ereignis);
        if (taste->isAutoRepeat() && (taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter)) {
            return true;
        }
    }
    return QDialog::eventFilter(objekt, ereignis);
}

// Enter applies, but not from a spin control, where it is pressed out of habit behind a number.
void frmIni::keyPressEvent(QKeyEvent* ereignis) {
    const bool eingabe = ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter;
    if (eingabe &&
        (ereignis->isAutoRepeat() || qobject_cast<Drehfeld*>(QApplication::focusWidget()) != nullptr)) {
        ereignis->accept();
        return;
    }
    QDialog::keyPressEvent(ereignis);
}

void frmIni::reject() {
    Ausfuehren("cmdAbbrechen", [this] { Abbrechen(); });
}

QGroupBox* frmIni::RahmenBauen(QWidget* eltern, const char* name, const QString& titel) {
    auto* rahmen = new QGroupBox(titel, eltern);
    rahmen->setObjectName(QLatin1String(name));
    return rahmen;
}

QCheckBox* frmIni::KastenBauen(QWidget* eltern, const char* name, const char* aufschrift) {
    auto* kasten = new QCheckBox(QString::fromUtf8(aufschrift), eltern);
    kasten->setObjectName(QLatin1String(name));
    return kasten;
}

QPushButton* frmIni::TasteBauen(QWidget* eltern, const char* name, const char* aufschrift) {
    auto* taste = new QPushButton(QString::fromUtf8(aufschrift), eltern);
    taste->setObjectName(QLatin1String(name));
    taste->installEventFilter(this);
    return taste;
}

void frmIni::HinweiseSetzen() {
    for (const initexte::Hinweis& hinweis : initexte::hinweise) {
        HinweisAnwenden(*this, hinweis);
    }
    ArtenhinweiseSetzen();
}

void frmIni::ArtenhinweiseSetzen() {
    for (const Artzeile& zeile : spezialarten) {
        const std::string index = std::to_string(Artstelle(zeile.art));
        const auto setzen = [this, &index](const char* feld, std::string_view tipp, std::string_view dazu,
                                           std::string_view status) {
            const std::string name = Einsetzen("{}({})", {feld, index});
            HinweisAnwenden(*this, {name, std::string(tipp) + std::string(dazu), status});
        };
        for (const char* feld : {"pnlPunkte", "spnPunkte"}) {
            setzen(feld, zeile.punkteTipp, initexte::imTabStandard, initexte::punkteStatus);
        }
        for (const char* feld : {"pnlPunkteV", "spnPunkteV"}) {
            setzen(feld, zeile.punkteTippV, initexte::imTabSpezial, initexte::punkteStatus);
        }
        for (const char* feld : {"pnlFelder", "spnFelder", "pnlFelderV", "spnFelderV"}) {
            setzen(feld, zeile.felderTipp, "", initexte::felderStatus);
        }
    }
}

// Fills the boxes and options from the settings without a question.
void frmIni::OptionenZeigen() {
    fuellt_ = true;
    RegelnZeigen();
    DarstellungZeigen();
    fuellt_ = false;
}

void frmIni::Ausfuehren(const char* name, const std::function<void()>& schritt) {
    try {
        schritt();
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(Einsetzen(initexte::ort, {name}), fehler);
    }
}
