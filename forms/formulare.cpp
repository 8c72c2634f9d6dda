#include "forms/formulare.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "core/schritt.h"
#include "dialogs/meldung.h"
#include "forms/quizformulare.h"
#include "forms/speichern.h"
#include "forms/testformulare.h"
#include "printing/druckerwahl.h"

#include <array>

namespace {

struct Weg {
    Formart art;
    std::string_view ordner;
    std::string Programmstand::*datei;
    void (*zeigen)(std::string_view titel);
    void (*ablesen)(Formularwerte& werte);
    void (*drucken)(bool blanko);
};
constexpr std::array<Weg, 2> wege{
    {{Formart::Quiz, "\\KRANZ", &Programmstand::FKDateiName, FK_GelesenesZeigen, FK_InWerte, FK_Drucken},
     {Formart::Test, "\\TEST", &Programmstand::HBDateiName, HB_GelesenesZeigen, HB_InWerte,
      [](bool) { HB_Drucken(); }}}};

const Weg& WegFuer(Formart art) {
    return art == Formart::Test ? wege.back() : wege.front();
}

void EingabeAbschliessen() {
    if (Formularfenster* form = OffenesFormular(); form != nullptr) {
        KindNachVorn(form->fenster());
        form->EingabeAbschliessen();
    }
}

} // namespace

std::string_view Formularordner(Formart art) {
    return WegFuer(art).ordner;
}

std::string& Formulardatei(Formart art) {
    return Stand.*WegFuer(art).datei;
}

Formularwerte GemerkteWerte() {
    return {Stand.FormTyp, FKForm, HBForm, Spiel, {}};
}

Formularwerte AbgeleseneWerte() {
    Formularwerte werte = GemerkteWerte();
    for (const Weg& weg : wege) {
        weg.ablesen(werte);
    }
    return werte;
}

void GelesenesZeigen(Formart art, std::string_view titel) {
    // Only one form can be open; one of the other kind was asked about before the file was read.
    for (const Weg& weg : wege) {
        Formularfenster* form = OffenesFormular(weg.art);
        if (weg.art != art && form != nullptr) {
            form->Entladen();
        }
    }
    FormularWechselt();
    WegFuer(art).zeigen(titel);
}

bool MitGemerktem(bool (*speichern)()) {
    const Schritt schritt("Speichern"); // nothing is compared while the stored copy isn't what it will be
    const Quizformular quiz = FKForm;
    const Testformular test = HBForm;
    if (Formularfenster* form = OffenesFormular(); form != nullptr) {
        form->Merken();
    }
    const bool gespeichert = speichern();
    if (!gespeichert) {
        FKForm = quiz;
        HBForm = test;
    }
    return gespeichert;
}

void FormulareEntladen() {
    while (Formularfenster* form = OffenesFormular()) {
        form->Entladen();
    }
}

bool NeuErlaubt(const NachrichtText& neu, const NachrichtText& speichern) {
    if (Nachricht(neu) == Antwort::Abbrechen) {
        return false;
    }
    if (!Stand.FormGeaendert) {
        return true;
    }
    const Antwort antwort = Nachricht(speichern);
    if (antwort == Antwort::Ja) {
        return MitGemerktem(Speichern); // a save that did not come about counts as Abbrechen
    }
    return antwort != Antwort::Abbrechen;
}

void OffenesSpeichern() {
    EingabeAbschliessen();
    MitGemerktem(Speichern);
}

void OffenesSpeichernUnter() {
    EingabeAbschliessen();
    MitGemerktem([] { return SpeichernUnter(Speicherart::Formular); });
}

void OffenesDrucken(Formart art, bool blanko) {
    WegFuer(art).drucken(blanko);
}

void DruckerEinrichten() {
    const Formart art = Stand.FormTyp == Formart::Test ? Formart::Test : Formart::Quiz;
    DruckerWahl(art, Formulardatei(art));
}
