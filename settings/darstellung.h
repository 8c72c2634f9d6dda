// The choices of the pages for look and paper as tables: gaps, paper formats, colours of the screen form. A
// value that is none of them has no place.
#pragma once

#include "rules/spielwerte.h"

#include <array>
#include <optional>
#include <string_view>

struct Abstandswahl {
    std::string_view aufschrift;
    float millimeter;
};
inline constexpr std::array<Abstandswahl, 5> abstaende{
    {{" ohne", 0.0F}, {" 1 mm", 1.0F}, {" 1.5 mm", 1.5F}, {" 2 mm", 2.0F}, {" 2.5 mm", 2.5F}}};

struct Papierwahl {
    std::string_view aufschrift;
    std::string_view format;
};
inline constexpr std::array<Papierwahl, 2> papiere{
    {{"auf DIN A5 quer (A4 hoch)", "A5 quer"}, {"auf DIN A4 quer", "A4 quer"}}};

// Colour numbers in the order of the screen.
struct Farbwahl {
    int nummer;
    std::string_view aufschrift;
};
inline constexpr std::array<Farbwahl, 6> farbwahlen{
    {{2, " grün"}, {4, " rot"}, {1, " blau"}, {3, " türkis"}, {8, " dunkelgrau"}, {7, " hellgrau"}}};

// Index of the gap, exactly, or of the paper format.
[[nodiscard]] constexpr std::optional<int> AbstandStelle(float millimeter) {
    int stelle = 0;
    for (const Abstandswahl& wahl : abstaende) {
        // Meant: exact, so that 0.7 from a file is no gap of the list.
        if (wahl.millimeter == millimeter) {
            return stelle;
        }
        ++stelle;
    }
    return std::nullopt;
}

[[nodiscard]] constexpr std::optional<int> PapierStelle(std::string_view format) {
    int stelle = 0;
    for (const Papierwahl& wahl : papiere) {
        if (wahl.format == format) {
            return stelle;
        }
        ++stelle;
    }
    return std::nullopt;
}
