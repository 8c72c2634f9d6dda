#include "persistence/oeffnen.h"

#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/pfadname.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "filetools/dateidialog.h"
#include "persistence/dateiliste.h"
#include "persistence/formulardatei.h"
#include "persistence/formularlesen.h"
#include "persistence/formularpfad.h"
#include "persistence/rettung.h"
#include "persistence/rettungsname.h"
#include "persistence/speichern.h"
#include "persistence/texte.h"
#include "persistence/wartezeiger.h"
#include "quizform/fkformular.h"
#include "settings/einstellungen.h"
#include "testform/hbformular.h"

#include <functional>

namespace {

using namespace persistenztexte;

// The quiz toolbar, with the shape of the board. A shape whose product fits no counter is reported and gives
// way to the full board.
void QuizModus() {
    try {
        ModusFK();
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden("DATEI : Oeffnen_Fragen", fehler);
        AnzahlWissen = FragenProWissen = 0;
        ModusFK();
    }
}

// What was rescued comes back as a form without a file: a save must not go over the rescued one.
void PfadUebernehmen(std::string_view tag) {
    if (IstRettungsname(NurDateiname(DateiName))) {
        FormularpfadVergessen(tag);
    } else {
        FormularpfadMerken(tag);
    }
}

void QuizZeigen() {
    DateilisteErgaenzen(DateiName);
    DateilisteAnzeigen();
    DateiAbbruch = 0;
    HB_Entladen(); // only one form can be open
    QuizModus();
    FK_FormularZeigen(NurDateiname(DateiAlt) + " ");
    PfadUebernehmen("FKFragen");
    FormStatusSetzen(0);
}

void TestZeigen() {
    // Only one form can be open. The one of the other kind was asked about before the file was read.
    FK_Entladen();
    HB_FormularZeigen(" Test : " + NurDateiname(DateiAlt));
    PfadUebernehmen("HBFragen");
    FormStatusSetzen(0);
}

// Mode tag of the form that is open, "" for none.
std::string_view OffeneArt() {
    return FKFragenOffen() != nullptr ? "FK" : HBFragenOffen() != nullptr ? "Test" : "";
}

// A tag of no kind opens no form, and a form that is open stays as it is.
void NichtsZeigen() {
    FormTyp = OffeneArt();
    if (FormTyp.empty()) {
        FormStatusSetzen(0);
    }
}

// The last count characters of a text in UTF-8.
std::string Schluss(const std::string& text, int zeichen) {
    std::size_t anfang = text.size();
    while (anfang > 0 && zeichen > 0) {
        --anfang;
        zeichen -= (static_cast<unsigned char>(text[anfang]) & 0xC0U) == 0x80U ? 0 : 1;
    }
    return text.substr(anfang);
}

// True when the file was taken.
bool Laden(const std::function<bool()>& vorDemErsatz) {
    if (DateiName.empty()) {
        Meldung(keineDatei);
        return false;
    }
    DateiAlt = DateiName;
    const Lesung lesung = FormularEinlesen(vorDemErsatz);
    if (lesung == Lesung::KeinFormular) {
        Meldung(keinFormular);
    }
    if (lesung != Lesung::Ganz && lesung != Lesung::Teilweise) {
        return false;
    }
    if (FormTyp == "FK") {
        QuizZeigen();
    } else if (FormTyp == "Test") {
        TestZeigen();
    } else {
        NichtsZeigen();
    }
    return true;
}

// The bytes for a preview. A file that is too large for a form isn't searched for the numbers of one.
std::string Vorschaubytes() {
    return DateiLesen(DateiName, groesstesFormular);
}

} // namespace

void FormularOeffnen() {
    if (FormGeaendert == 1 && AuswertungSpeichernFragen() == 1) {
        return;
    }
    DateiAbbruch = 0;
    DateidialogZeigen({std::string(oeffnen),
                       false,
                       {"Feldkranz-Formular (*.FKR)", "Feldkranz-Formular (*.BAK)", "Alle Dateien (*.*)"},
                       {"*.fkr", "*.*"},
                       "*.FKR",
                       "",
                       ""});
    DateiAbbruch = 0; // a cancelled dialog has left its mark in the empty DateiName
    FormularLaden();
}

void FormularLaden() {
    FormTyp = OffeneArt(); // without a form the list of forms may have set one
    Laden({});
}

bool FormularErsetzen() {
    if (const std::string_view art = OffeneArt(); !art.empty()) {
        FormTyp = art; // the list's preview and buttons may have set another one
    }
    std::string gerettet;
    const bool genommen = Laden([&gerettet] { return UngesichertesRetten(gerettet); });
    if (!gerettet.empty()) {
        HilfeText(Einsetzen(rettungsort, {gerettet}));
    }
    return genommen;
}

void FormularInfoLesen() {
    if (DateiName.empty()) {
        return;
    }
    DateiAlt = DateiName;
    HilfeText(std::string(ichLade) + Schluss(DateiName, 12));
    try {
        const Wartezeiger warten;
        if (const auto werte = FKIniAusBytes(Vorschaubytes())) {
            FormTyp = werte->formTyp;
            FelderGesamt = werte->felderGesamt;
            FragenProWissen = werte->fragenProWissen;
            AnzahlWissen = werte->anzahlWissen;
        }
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden("DATEI : Oeffnen_Vorschau", fehler);
    }
}
