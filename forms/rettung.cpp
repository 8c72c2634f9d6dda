#include "forms/rettung.h"

#include "core/datei.h"
#include "core/formularfenster.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "core/wartezeiger.h"
#include "dialogs/meldung.h"
#include "forms/formulare.h"
#include "persistence/formulardatei.h"
#include "persistence/rettungsname.h"
#include "persistence/texte.h"

#include <algorithm>

namespace {

// An array without any value takes the former ones.
template <typename Feld>
void Ergaenzen(Feld& feld, const Feld& vorher) {
    const typename Feld::value_type leer{};
    if (std::ranges::all_of(feld, [&leer](const auto& wert) { return wert == leer; })) {
        feld = vorher;
    }
}

// The open form as a save would write it. What was blanked on the screen as a whole stands in the stored copy
// only, and isn't lost either.
std::string Bytes(Formart art) {
    const Formularwerte gemerkt = GemerkteWerte();
    Formularwerte werte = AbgeleseneWerte();
    Ergaenzen(werte.quiz.FrageText, gemerkt.quiz.FrageText);
    Ergaenzen(werte.quiz.AntwortText, gemerkt.quiz.AntwortText);
    Ergaenzen(werte.quiz.FeldSpezial, gemerkt.quiz.FeldSpezial);
    Ergaenzen(werte.test.HBFrageText, gemerkt.test.HBFrageText);
    Ergaenzen(werte.test.HBAntwortText, gemerkt.test.HBAntwortText);
    Ergaenzen(werte.test.HBPunkte, gemerkt.test.HBPunkte);
    return FormularBytes(art, werte);
}

// The first name under which nothing stands.
std::string FreierName(const std::string& ordner) {
    int nummer = 0;
    std::string name = Rettungsname(nummer);
    while (DateiDa(PfadVerbinden(ordner, name)) || OrdnerDa(PfadVerbinden(ordner, name))) {
        name = Rettungsname(++nummer);
    }
    return name;
}

// Writes the bytes and returns the file's name. Throws Laufzeitfehler.
std::string Ablegen(const std::string& ordner, const std::string& bytes, const std::string& wirdGelesen) {
    const Wartezeiger warten;
    if (!OrdnerDa(ordner)) {
        OrdnerAnlegen(ordner);
    }
    std::string name = Rettungsname(0);
    const std::string frei = FreierName(ordner);
    const std::string ziel = PfadVerbinden(ordner, name);
    const bool bleibt = NativerPfad(ziel) == NativerPfad(wirdGelesen);
    if (OrdnerDa(ziel) || (DateiDa(ziel) && bleibt)) {
        name = frei;
    } else if (DateiDa(ziel)) {
        DateiKopieren(ziel, PfadVerbinden(ordner, frei)); // stands whole before the name is used again
    }
    DateiSchreiben(PfadVerbinden(ordner, name), bytes);
    return name;
}

} // namespace

bool UngesichertesRetten(const std::string& wirdGelesen, std::string& name) {
    Formularfenster* form = OffenesFormular();
    if (!Stand.FormGeaendert || form == nullptr) {
        return true;
    }
    form->EingabeAbschliessen();
    try {
        const std::string ordner = Stand.AppPfad + std::string(Formularordner(form->art()));
        name = Ablegen(ordner, Bytes(form->art()), wirdGelesen);
        return true;
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(persistenztexte::ortRettung, fehler);
        return false;
    }
}
