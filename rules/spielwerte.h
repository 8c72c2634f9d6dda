// The values that shape a round and its look, and what else the settings file keeps. The settings file and
// the quiz form's file both write the values in force: loading a form overwrites them, and that is meant.
// Written by the readers in persistence/ and by the settings dialog; they live as long as the process.
#pragma once

#include "rules/spezialart.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

struct Spielwerte {
    // Points and field limits in force.
    Artwerte Punkte, Felder;

    // Standard values for a full form of 30 questions. That of the Ereignis fields stands in FelderVE, as the
    // file's text, and may hold nothing before its first assignment; its place in FelderV isn't used.
    Artwerte PunkteV, FelderV;
    std::optional<std::string> FelderVE;

    // Shape of the board.
    std::int16_t FelderGesamt = 0;
    std::int16_t FragenProWissen = 0;
    std::int16_t AnzahlWissen = 0;

    // Rules to be enforced.
    bool OptionMaxFelder = false;
    bool OptionMaxSpezial = false;
    bool OptionMaxWissen = false;

    // Look on screen and paper. Zwischenabstand is in millimetres.
    float Zwischenabstand = 0.0F;
    std::int16_t FarbeHintergrund = 0;
    bool OptionTitel = false;
    bool OptionWissen = false;
    bool OptionJoker = false;
    std::optional<std::string> OptionEreignis; // reserved; kept as it was read
    bool OptionRahmen = false;
    std::string Papierformat; // "A4 quer", "A5 quer" or ""

    // Make a backup at every save.
    bool OptionDatei = false;

    // The last four form files, most recent first.
    std::array<std::string, 4> Datei;

    // Five help strings; index 0 isn't used.
    std::array<std::string, 6> HilfeEintrag;

    friend bool operator==(const Spielwerte&, const Spielwerte&) = default;
};

inline Spielwerte Spiel;
