#include "persistence/speichern.h"

#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/pfadname.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "filetools/dateidialog.h"
#include "persistence/formulardatei.h"
#include "persistence/formularpfad.h"
#include "persistence/texte.h"
#include "persistence/wartezeiger.h"
#include "quizform/fkformular.h"
#include "testform/hbformular.h"

namespace {

using namespace persistenztexte;

constexpr int artIni = 1;

// Tag of the form that is open, "" for none.
std::string_view OffenesFormular() {
    return FKFragenOffen() != nullptr ? "FKFragen" : HBFragenOffen() != nullptr ? "HBFragen" : "";
}

// The form to be saved comes to the front, so that it is the one whose layout is written, whatever child
// window the user looked at last; and its own path comes back into DateiName.
std::string_view FormularVorbereiten() {
    const std::string_view tag = OffenesFormular();
    if (!tag.empty()) {
        KindNachVorn(tag);
        FormularpfadEinsetzen(tag);
    }
    return tag;
}

// Writes the whole form to DateiName. The old file is whole until the new one is.
void FormularSchreiben(std::string_view tag) {
    const Wartezeiger warten;
    FK_KopfMerken();
    HB_KopfMerken();
    DateiSchreiben(DateiName, FormularBytes(tag));
}

// True when the form stands in its file; everything else was told.
bool FormularSpeichern(std::string_view tag) {
    if (tag.empty() || NurDateiname(DateiName).empty()) {
        Meldung(nameFehlt);
        return false;
    }
    SicherungAnlegenForm();
    try {
        FormularSchreiben(tag);
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden("DATEI : FormularSpeichern", fehler);
        FormStatusSetzen(1); // what the form shows may stand in no file by now
        return false;
    }
    FormularpfadMerken(tag);
    Meldung(gespeichert, {NurDateiname(DateiName)});
    FormStatusSetzen(0);
    return true;
}

void EndungErgaenzen(std::string_view endung) {
    const std::string gross = Grossschreiben(DateiName);
    if (!NurDateiname(DateiName).empty() && !gross.ends_with(endung)) {
        DateiName += endung;
    }
}

// Asks until the answer is Ja. False when the existing file is to stay.
bool DarfUeberschreiben(int art) {
    if (!DateiDa(DateiName)) {
        return true;
    }
    const std::string_view wasDa = art == artIni ? dieIniDatei : dieAuswertung;
    do {
        NachrichtAntwort = antwortAbbrechen;
        Nachricht(ueberschreiben, {wasDa, NurDateiname(DateiName)});
        if (NachrichtAntwort == antwortAbbrechen) {
            Meldung(abgebrochen);
            return false;
        }
    } while (NachrichtAntwort != antwortJa);
    return true;
}

void TitelSetzen(std::string_view tag) {
    const std::string titel = NurDateiname(DateiAlt) + " ";
    if (tag == "HBFragen") {
        HB_FenstertitelSetzen(titel);
    } else {
        FK_FenstertitelSetzen(titel);
    }
}

// Asks for the name. False when the dialog was cancelled.
bool NameErfragen() {
    DateiAbbruch = 0; // an older dialog's mark mustn't cancel this one
    DateidialogZeigen({std::string(speichernUnter),
                       true,
                       {"Feldkranz-Formular (*.FKR)", "Alle Dateien (*.*)"},
                       {"*.fkr", "*.bak", "*.ini", "*.*"},
                       "*.FKR",
                       "",
                       NurDateiname(DateiName)});
    const bool abgelehnt = DateiAbbruch == 1;
    DateiAbbruch = 0;
    return !abgelehnt;
}

} // namespace

bool Speichern() {
    const std::string_view tag = FormularVorbereiten();
    if (!tag.empty() && DateiName.empty()) {
        return SpeichernUnter(2);
    }
    return FormularSpeichern(tag);
}

bool SpeichernUnter(int art) {
    const std::string_view tag = FormularVorbereiten();
    if (tag.empty()) {
        return FormularSpeichern(tag); // which says that there is nothing to save
    }
    SoundSpielen("freiz_2");
    bool gelungen = NameErfragen();
    if (gelungen) {
        EndungErgaenzen(art == artIni ? ".INI" : ".FKR");
        DateiAlt = DateiName;
        gelungen = DarfUeberschreiben(art) && FormularSpeichern(tag);
    }
    if (gelungen) {
        TitelSetzen(tag);
    } else {
        FormularpfadEinsetzen(tag); // the form keeps the file it had
    }
    return gelungen;
}
