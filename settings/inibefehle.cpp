// The commands of the settings dialog: presets, loading and saving them, applying and cancelling.
#include "core/hauptfenster.h"
#include "core/pfadname.h"
#include "core/wartezeiger.h"
#include "dialogs/meldung.h"
#include "persistence/einstellungenladen.h"
#include "persistence/fremdfrage.h"
#include "persistence/texte.h"
#include "quizform/fkformular.h"
#include "rules/spezialarten.h"
#include "rules/spielwerte.h"
#include "settings/frmIni.h"
#include "settings/texte.h"

#include <QPushButton>
#include <QTabWidget>

namespace {

constexpr int tabSpezial = 0;
constexpr int vollesBrett = 30;

// The settings have one file and no other name: Nein leaves it as Abbrechen does, and is told the same.
bool IniUeberschreibbar() {
    using namespace persistenztexte;
    const std::string pfad = Einstellungspfad();
    const Antwort antwort = FremdesFragen(pfad, {dieIniDatei, neinBleibt}, Einstellungskenntnis());
    if (antwort == Antwort::Nein) {
        Meldung(fremdesBleibt, {NurDateiname(pfad)});
    }
    return antwort == Antwort::Ja;
}

} // namespace

void frmIni::BefehleVerbinden() {
    const auto verbinden = [this](const char* name, void (frmIni::*routine)()) {
        connect(findChild<QPushButton*>(QLatin1String(name)), &QPushButton::clicked, this,
                [this, name, routine] { Ausfuehren(name, [this, routine] { (this->*routine)(); }); });
    };
    verbinden("cmdAbsolut", &frmIni::SpielregelwerteEintragen);
    verbinden("cmdStandard", &frmIni::StandardEinsetzen);
    verbinden("cmdStandard2", &frmIni::StandardUmrechnen);
    verbinden("cmdNull", &frmIni::AufNullSetzen);
    verbinden("cmdIniLaden", &frmIni::EinstellungenLaden);
    verbinden("cmdIniSpeichern", &frmIni::EinstellungenSpeichern);
    verbinden("cmdEinOK", &frmIni::Anwenden);
    verbinden("cmdAbbrechen", &frmIni::Abbrechen);
    // Meant: the help button only has its status line.
}

void frmIni::SpielregelwerteEintragen() {
    vorgaben_.PunkteV = werkPunkte;
    vorgaben_.FelderV = werkFelder;
    ArtenZeigen(PunkteV);
    ArtenZeigen(FelderV);
}

void frmIni::StandardEinsetzen() {
    vorgaben_.Punkte = vorgaben_.PunkteV;
    vorgaben_.Felder = vorgaben_.FelderV;
    ArtenZeigen(Punkte);
    ArtenZeigen(Felder);
    FelderrahmenBeschriften(vollesBrett);
}

void frmIni::StandardUmrechnen() {
    if (Spiel.FelderGesamt == 0 || Spiel.FragenProWissen == 0) {
        Meldung(initexte::nichtUmrechenbar);
        return;
    }
    const Artwerte felder = FelderUmrechnen(vorgaben_.FelderV, Spiel.FelderGesamt);
    vorgaben_.Punkte = PunkteUmrechnen(vorgaben_.PunkteV, Spiel.FragenProWissen);
    vorgaben_.Felder = felder;
    ArtenZeigen(Punkte);
    ArtenZeigen(Felder);
    FelderrahmenBeschriften(Spiel.FelderGesamt);
}

// One button for two things: the counts in force on the one tab, the standard points on the other.
void frmIni::AufNullSetzen() {
    const bool spezial = tabIni_->currentIndex() == tabSpezial;
    if (!Bestaetigt(spezial ? initexte::felderNullen : initexte::punkteNullen)) {
        return;
    }
    (spezial ? vorgaben_.Felder : vorgaben_.PunkteV).fill(0);
    ArtenZeigen(spezial ? Felder : PunkteV);
}

void frmIni::EinstellungenLaden() {
    if (!Bestaetigt(initexte::standardLaden)) {
        return;
    }
    try {
        EinstellungenLesen();
    } catch (const Laufzeitfehler& fehler) {
        // What was read so far is in force, without a message; the status line says why there isn't more.
        HilfeText(Einsetzen(initexte::nichtGelesen, {fehler.text()}));
    }
    if (Spiel.FarbeHintergrund == 0) {
        Spiel.FarbeHintergrund = 7; // as when a form's window opens
    }
    StandardHolen(vorgaben_, Spiel);
    ArtenZeigen(PunkteV);
    ArtenZeigen(FelderV);
    OptionenZeigen();
    DateilisteAnzeigen();
}

void frmIni::EinstellungenSpeichern() {
    if (!Bestaetigt(initexte::standardSpeichern) || !IniUeberschreibbar()) {
        return;
    }
    StandardUebernehmen(vorgaben_, Spiel);
    try {
        const Wartezeiger warten;
        EinstellungenSchreiben();
    } catch (const Laufzeitfehler& fehler) {
        Meldung(persistenztexte::iniFehler, {fehler.text()});
    }
}

void frmIni::Anwenden() {
    VorgabenUebernehmen(vorgaben_, Spiel);
    FK_VorgabenAnwenden();
    FelderAnzeigen();
    StandardUebernehmen(vorgaben_, Spiel);
    Spiel.FarbeHintergrund = static_cast<std::int16_t>(farbe_);
    FarbeZeigen(); // a file loaded meanwhile may hold another
    FormStatusSetzen(true);
    done(QDialog::Accepted);
    FK_Auffrischen();
}

void frmIni::Abbrechen() {
    if (!Bestaetigt(initexte::verwerfen)) {
        return;
    }
    RegelnZuruecksetzen(vorher_, Spiel);
    done(QDialog::Rejected);
    if (gestuft_) {
        GesamtRechnen(Spiel); // the total goes with the counters
    }
}
