// The values that shape a round and its look. The settings file and the quiz form's file both write the
// values in force: loading a form overwrites them, and that is meant. Written by the readers in persistence/
// and by the settings dialog; they live as long as the process.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

// Points and field limits in force, one pair a kind of special field.
inline std::int16_t PunkteA = 0, PunkteE = 0, PunkteG = 0, PunkteJ = 0, PunkteR = 0;
inline std::int16_t FelderA = 0, FelderE = 0, FelderG = 0, FelderJ = 0, FelderR = 0;

// Standard values for a full form of 30 questions. FelderVE may hold nothing before its first assignment.
inline std::int16_t PunkteVA = 0, PunkteVE = 0, PunkteVG = 0, PunkteVJ = 0, PunkteVR = 0;
inline std::int16_t FelderVA = 0, FelderVG = 0, FelderVJ = 0, FelderVR = 0;
inline std::optional<std::string> FelderVE;

// Shape of the board.
inline std::int16_t FelderGesamt = 0;
inline std::int16_t FragenProWissen = 0;
inline std::int16_t AnzahlWissen = 0;

// Rules to be enforced, 1 or 0.
inline std::int16_t OptionMaxFelder = 0;
inline std::int16_t OptionMaxSpezial = 0;
inline std::int16_t OptionMaxWissen = 0;

// Look on screen and paper. Zwischenabstand is in millimetres.
inline float Zwischenabstand = 0.0F;
inline std::int16_t FarbeHintergrund = 0;
inline std::int16_t OptionTitel = 0;
inline std::int16_t OptionWissen = 0;
inline std::int16_t OptionJoker = 0;
inline std::optional<std::string> OptionEreignis; // reserved; kept as it was read
inline std::int16_t OptionRahmen = 0;
inline std::string Papierformat; // "A4 quer", "A5 quer" or ""

// 1 makes a backup at every save.
inline std::int16_t OptionDatei = 0;

// The last four form files, most recent first.
inline std::string Datei1, Datei2, Datei3, Datei4;

// Five help strings; index 0 isn't used.
inline std::array<std::string, 6> HilfeEintrag;
