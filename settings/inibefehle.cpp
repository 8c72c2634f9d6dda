// The commands of the settings dialog: presets, loading and saving them, applying and cancelling.
#include "core/hauptfenster.h"
#include "core/texte.h"
#include "dialogs/meldung.h"
#include "persistence/einstellungenladen.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/spezialfelder.h"
#include "settings/einstellungen.h"
#include "settings/frmIni.h"
#include "settings/texte.h"

#include <QPushButton>
#include <QTabWidget>

namespace {

constexpr int tabSpezial = 0;
constexpr int vollesBrett = 30;

// Closing the question by its frame changes nothing either.
bool Gefragt(const NachrichtText& frage) {
    NachrichtAntwort = antwortAbbrechen;
    return Nachricht(frage) != antwortAbbrechen;
}

// A list that still stands open over a cell or a title belongs to a board that is gone.
void ListenSchliessen() {
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr) {
        return;
    }
    form->cmbSpezial->hide();
    form->cmbWissen->hide();
    for (Panel* titel : form->pnlWissen) {
        if (titel != nullptr) {
            titel->show();
        }
    }
}

// The rules on the board, in their fixed order. Here the cells really lose what the messages announced.
void BrettAnpassen() {
    ListenSchliessen();
    FK_AlleFelderZeigen();
    FK_FragenRegel();
    FK_WissenRegel();
}

void FormAuffrischen() {
    FK_SpezialMerken();
    FK_SpezialZaehlen();
    FK_FelderFaerben();
    frmFKFragen* form = FKFragenOffen();
    if (form != nullptr) {
        form->SpezialTippsErneuern(); // they name the limits
    }
}

} // namespace

void frmIni::BefehleVerbinden() {
    const auto verbinden = [this](const char* name, void (frmIni::*routine)()) {
        connect(findChild<QPushButton*>(QLatin1String(name)), &QPushButton::clicked, this,
                [this, name, routine] { Ausfuehren(name, [this, routine] { (this->*routine)(); }); });
    };
    verbinden("cmdAbsolut", &frmIni::Absolut_Click);
    verbinden("cmdStandard", &frmIni::Standard_Click);
    verbinden("cmdStandard2", &frmIni::Standard2_Click);
    verbinden("cmdNull", &frmIni::Null_Click);
    verbinden("cmdIniLaden", &frmIni::IniLaden_Click);
    verbinden("cmdIniSpeichern", &frmIni::IniSpeichern_Click);
    verbinden("cmdEinOK", &frmIni::EinOK_Click);
    verbinden("cmdAbbrechen", &frmIni::Abbrechen_Click);
    // Meant: the help button only has its status line.
}

void frmIni::Absolut_Click() {
    StdPunkte = werkPunkte;
    StdFelder = werkFelder;
    ArtenZeigen(PunkteV);
    ArtenZeigen(FelderV);
}

void frmIni::Standard_Click() {
    VorgabePunkte = StdPunkte;
    VorgabeFelder = StdFelder;
    ArtenZeigen(Punkte);
    ArtenZeigen(Felder);
    FelderrahmenBeschriften(vollesBrett);
}

void frmIni::Standard2_Click() {
    if (FelderGesamt == 0 || FragenProWissen == 0) {
        Meldung(initexte::nichtUmrechenbar);
        return;
    }
    const Artwerte felder = FelderUmrechnen(StdFelder, FelderGesamt);
    VorgabePunkte = PunkteUmrechnen(StdPunkte, FragenProWissen);
    VorgabeFelder = felder;
    ArtenZeigen(Punkte);
    ArtenZeigen(Felder);
    FelderrahmenBeschriften(FelderGesamt);
}

// One button for two things: the counts in force on the one tab, the standard points on the other.
void frmIni::Null_Click() {
    const bool spezial = tabIni_->currentIndex() == tabSpezial;
    if (!Gefragt(spezial ? initexte::felderNullen : initexte::punkteNullen)) {
        return;
    }
    (spezial ? VorgabeFelder : StdPunkte).fill(0);
    ArtenZeigen(spezial ? Felder : PunkteV);
}

void frmIni::IniLaden_Click() {
    if (!Gefragt(initexte::standardLaden)) {
        return;
    }
    try {
        EinstellungenLesen();
    } catch (const Laufzeitfehler& fehler) {
        // What was read so far is in force, without a message; the status line says why there isn't more.
        HilfeText(Einsetzen(initexte::nichtGelesen, {fehler.text()}));
    }
    if (FarbeHintergrund == 0) {
        FarbeHintergrund = 7; // as when a form's window opens
    }
    StandardHolen();
    ArtenZeigen(PunkteV);
    ArtenZeigen(FelderV);
    OptionenZeigen();
    DateilisteAnzeigen();
}

void frmIni::IniSpeichern_Click() {
    if (!Gefragt(initexte::standardSpeichern)) {
        return;
    }
    StandardUebernehmen();
    try {
        EinstellungenSchreiben();
    } catch (const Laufzeitfehler& fehler) {
        Meldung(kerntexte::iniFehler, {fehler.text()});
    }
}

void frmIni::EinOK_Click() {
    VorgabenUebernehmen();
    BrettAnpassen();
    FelderAnzeigen();
    StandardUebernehmen();
    FarbeHintergrund = static_cast<std::int16_t>(farbe_);
    FarbeZeigen(); // a file loaded meanwhile may hold another
    FormStatusSetzen(1);
    done(QDialog::Accepted);
    FormAuffrischen();
}

void frmIni::Abbrechen_Click() {
    if (!Gefragt(initexte::verwerfen)) {
        return;
    }
    SchnappschussZurueck(schnappschuss_);
    done(QDialog::Rejected);
    if (gestuft_) {
        GesamtRechnen(); // the total goes with the counters
    }
}
