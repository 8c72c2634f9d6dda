#include "forms/speichern.h"

#include "core/anfuehrung.h"
#include "core/datei.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "core/wartezeiger.h"
#include "dialogs/meldung.h"
#include "filetools/dateidialog.h"
#include "forms/formulare.h"
#include "forms/formularpfad.h"
#include "forms/verlauf.h"
#include "persistence/anfuehrungsorte.h"
#include "persistence/dateiblick.h"
#include "persistence/formulardatei.h"
#include "persistence/fremdfrage.h"
#include "persistence/sicherung.h"
#include "persistence/texte.h"

#include <optional>

namespace {

using namespace persistenztexte;

constexpr std::string_view ortSpeichern = "DATEI : FormularSpeichern"; // that FehlerMelden names

// The form to be saved comes to the front, so that it is the one whose layout is written, whatever child
// window the user looked at last.
Formularfenster* FormularVorbereiten() {
    Formularfenster* form = OffenesFormular();
    if (form != nullptr) {
        KindNachVorn(form->fenster());
    }
    return form;
}

// Writes the whole form, whose file this is from then on. The old file is whole until the new one is.
void FormularSchreiben(Formularfenster& form, const std::string& pfad) {
    const Wartezeiger warten;
    form.KopfMerken();
    BekanntSchreiben(pfad, form.art() == Formart::Quiz ? FormularBytes(FKForm, Spiel) : FormularBytes(HBForm),
                     Formularkenntnis());
    FormularpfadMerken(form.art(), pfad);
}

// What the file won't give back whole.
void AnfuehrungenMelden(Formart art) {
    const std::string hinweis =
        AnfuehrungHinweis(art == Formart::Quiz ? Anfuehrungsorte(FKForm) : Anfuehrungsorte(HBForm));
    if (!hinweis.empty()) {
        HilfeText(hinweis);
    }
}

// The path that a save without a question goes to. A slow disk is waited for here already.
std::string EigenerPfadVon(const Formularfenster& form) {
    const Wartezeiger warten;
    return Formularpfad(form.art());
}

// True when the form stands in its file or in another one; everything else was told. bekannt: the content
// that may be replaced without a question.
bool FormularSpeichern(Formularfenster* form, const std::string& pfad, const Dateikenntnis& bekannt = {}) {
    if (form == nullptr || NurDateiname(pfad).empty()) {
        Meldung(nameFehlt);
        return false;
    }
    const Antwort antwort =
        FremdesFragen(pfad, {dieFormulardatei, neinAndererName}, bekannt, SicherungAnlegenForm);
    if (antwort != Antwort::Ja) {
        return antwort == Antwort::Nein && SpeichernUnter(Speicherart::Formular);
    }
    if (IstGeleert() && pfad == Formulardatei(form->art())) {
        SicherungVorLeerung(pfad);
    }
    try {
        FormularSchreiben(*form, pfad);
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(ortSpeichern, fehler);
        GespeichertVergessen(); // what the form shows may stand in no file by now
        FormStatusSetzen(true);
        return false;
    }
    Meldung(gespeichert, {NurDateiname(pfad)});
    FormStatusSetzen(false);
    AnfuehrungenMelden(form->art());
    return true;
}

// False for a bad name, which is told. That there is none is told by the save.
bool NameErlaubt(const std::string& pfad) {
    const std::string name = NurDateiname(pfad);
    if (name.empty() || NameBrauchbar(name)) {
        return true;
    }
    FehlerMelden(ortSpeichern, Laufzeitfehler(Fehler::DateinameFalsch));
    return false;
}

std::string MitEndung(std::string pfad, std::string_view endung) {
    if (!NurDateiname(pfad).empty() && !Grossschreiben(pfad).ends_with(endung)) {
        pfad += endung;
    }
    return pfad;
}

// Asks until the answer is Ja. The content that may be replaced, or nothing when the existing file is to
// stay.
std::optional<Dateikenntnis> DarfUeberschreiben(const std::string& pfad, Speicherart art) {
    if (!DateiDa(pfad)) {
        return Dateikenntnis();
    }
    const Dateikenntnis gefragt = Angesehen(pfad);
    const std::string_view wasDa = art == Speicherart::Ini ? dieIniDatei : dieAuswertung;
    Antwort antwort = Antwort::Nein;
    while (antwort != Antwort::Ja) {
        antwort = Nachricht(ueberschreiben, {wasDa, NurDateiname(pfad)});
        if (antwort == Antwort::Abbrechen) {
            Meldung(abgebrochen);
            return std::nullopt;
        }
    }
    return gefragt;
}

bool UnterNamenSpeichern(Formularfenster* form, const std::string& pfad, Speicherart art) {
    const std::optional<Dateikenntnis> bekannt = DarfUeberschreiben(pfad, art);
    return bekannt && FormularSpeichern(form, pfad, *bekannt);
}

// Where the dialog starts: a form without a file in the folder of its kind, one whose name is only proposed
// where that file lies, and one with a file where the last dialog was left.
std::string Anfangsordner(Formart art, const std::string& vorschlag) {
    if (vorschlag.empty()) {
        return Startordner(art);
    }
    const std::size_t ende = vorschlag.size() - NurDateiname(vorschlag).size();
    return Formulardatei(art).empty() ? vorschlag.substr(0, ende) : std::string();
}

// Asks for the name. No value when the dialog was cancelled.
std::optional<std::string> NameErfragen(Formart art, const std::string& bisher) {
    return DateidialogZeigen({std::string(speichernUnter),
                              true,
                              {"Feldkranz-Formular (*.FKR)", "Alle Dateien (*.*)"},
                              {"*.fkr", "*.bak", "*.ini", "*.*"},
                              "*.FKR",
                              Anfangsordner(art, bisher),
                              NurDateiname(bisher),
                              true,
                              bisher});
}

void BefehleZuruecknehmen(Formart art) {
    BefehleFreigeben(art, false);
    for (int n = 1; n <= anzahlFelder; ++n) {
        MiniaturFaerben(n, std::nullopt);
    }
    FormStatusSetzen(false);
    FlaggeZeigen(true);
}

} // namespace

bool Speichern() {
    Formularfenster* form = FormularVorbereiten();
    if (form == nullptr) {
        return FormularSpeichern(form, {}); // which says that there is nothing to save
    }
    const std::string pfad = EigenerPfadVon(*form);
    return pfad.empty() ? SpeichernUnter(Speicherart::Formular)
                        : FormularSpeichern(form, pfad, Formularkenntnis());
}

bool SpeichernUnter(Speicherart art) {
    Formularfenster* form = FormularVorbereiten();
    if (form == nullptr) {
        return FormularSpeichern(form, {});
    }
    SoundSpielen("freiz_2");
    const std::optional<std::string> gewaehlt = NameErfragen(form->art(), Namensvorschlag(form->art()));
    const std::string pfad = MitEndung(gewaehlt.value_or(""), art == Speicherart::Ini ? ".INI" : ".FKR");
    if (!gewaehlt || !NameErlaubt(*gewaehlt) || !UnterNamenSpeichern(form, pfad, art)) {
        static_cast<void>(Formularpfad(form->art())); // the form keeps the file it had
        return false;
    }
    form->TitelSetzen(NurDateiname(Formulardatei(form->art())) +
                      " "); // the name may have been asked for again
    return true;
}

bool AuswertungSpeichernFragen() {
    Antwort antwort = Antwort::OK;
    while (antwort != Antwort::Ja && antwort != Antwort::Nein) {
        antwort = Nachricht(aenderungen);
        if (antwort == Antwort::Abbrechen) {
            return false;
        }
    }
    if (antwort == Antwort::Nein) {
        Meldung(nichtGespeichert);
        return true;
    }
    if (!MitGemerktem(Speichern)) {
        return false; // a save that did not come about counts as Abbrechen
    }
    Meldung(wurdeGespeichert);
    return true;
}

bool SchliessenPruefen(Formart art) {
    if (Stand.FormGeaendert) {
        const Antwort antwort = Nachricht(schliessen);
        if (antwort == Antwort::Abbrechen || (antwort == Antwort::Ja && !MitGemerktem(Speichern))) {
            return false;
        }
    }
    BefehleZuruecknehmen(art);
    return true;
}
