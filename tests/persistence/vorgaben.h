// States that several tests of the files start from. Writes the program's own variables, as a new process or
// a filled form would leave them.
#pragma once

#include "core/zustand.h"
#include "editor/editordaten.h"
#include "quizform/formdaten.h"
#include "settings/einstellungen.h"
#include "testform/formdaten.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>

// All that a form or settings file touches, as at the start of the program.
inline void AllesLeeren() {
    FormTyp = DateiName = DateiAlt = "";
    DateiAbbruch = 0;
    FormNr = FormDatum = FormZeit = "";
    WissenTitel.fill("");
    FrageText.fill("");
    AntwortText.fill("");
    FeldSpezial.fill("");
    HBFrageText.fill("");
    HBAntwortText.fill("");
    HBPunkte.fill(0);
    HBFach = HBKopf1 = HBKopf2 = HBKopf3 = "";
    HBGesamtpunkte = 0;
    for (auto* wert :
         {&PunkteA,          &PunkteE,      &PunkteG,         &PunkteJ,          &PunkteR,
          &FelderA,          &FelderE,      &FelderG,         &FelderJ,          &FelderR,
          &PunkteVA,         &PunkteVE,     &PunkteVG,        &PunkteVJ,         &PunkteVR,
          &FelderVA,         &FelderVG,     &FelderVJ,        &FelderVR,         &FelderGesamt,
          &FragenProWissen,  &AnzahlWissen, &OptionMaxFelder, &OptionMaxSpezial, &OptionMaxWissen,
          &FarbeHintergrund, &OptionTitel,  &OptionWissen,    &OptionJoker,      &OptionRahmen,
          &OptionDatei}) {
        *wert = 0;
    }
    FelderVE.reset();
    OptionEreignis.reset();
    Zwischenabstand = 0.0F;
    Papierformat = Datei1 = Datei2 = Datei3 = Datei4 = Bemerkung = "";
    HilfeEintrag.fill("");
}

// A quiz form with a different value at every place.
inline void QuizFuellen() {
    AllesLeeren();
    FormTyp = "FK";
    FelderGesamt = 24;
    FragenProWissen = 4;
    AnzahlWissen = 6;
    FormNr = "7";
    FormDatum = "24. Dezember";
    FormZeit = "1½ Stunden";
    std::tie(FelderA, PunkteA, FelderG, PunkteG, FelderJ) = std::tuple(2, 5, 3, 10, 4);
    std::tie(PunkteJ, FelderR, PunkteR, FelderE, PunkteE) = std::tuple(6, 1, -3, 5, 11);
    Zwischenabstand = 1.5F;
    FarbeHintergrund = 3;
    for (std::size_t a = 1; a < WissenTitel.size(); ++a) {
        WissenTitel[a] = "Gebiet " + std::to_string(a);
    }
    for (std::size_t n = 1; n < FrageText.size(); ++n) {
        FrageText[n] = "Frage " + std::to_string(n) + "\r\nüber zwei Zeilen, mit Komma";
        AntwortText[n] = "Antwört " + std::to_string(n);
        FeldSpezial[n] = n % 6 == 0 ? "" : std::string(1, "AEGJR"[n % 6 - 1]);
    }
}

inline void TestFuellen() {
    AllesLeeren();
    FormTyp = "Test";
    HBKopf1 = " TEST  HFZ";
    HBKopf2 = " Knoten";
    HBKopf3 = " II";
    HBFach = " Knoten";
    HBGesamtpunkte = 55;
    for (std::size_t i = 1; i < HBFrageText.size(); ++i) {
        HBFrageText[i] = "Aufgabe " + std::to_string(i);
        HBAntwortText[i] = "Lösung, " + std::to_string(i);
        HBPunkte[i] = static_cast<std::int16_t>(i);
    }
}

inline auto Zeilenzahl(std::string_view bytes) {
    return std::count(bytes.begin(), bytes.end(), '\n');
}

// The line of a file, counted from 1, without its end.
inline std::string Zeile(std::string_view bytes, int nummer) {
    for (; nummer > 1; --nummer) {
        bytes.remove_prefix(bytes.find("\r\n") + 2);
    }
    return std::string(bytes.substr(0, bytes.find("\r\n")));
}
