// What the paper shows of a test form, as the screen has it: captions as they stand, with the screen's line
// ends, and a row's points "" where they are blanked.
#pragma once

#include "testform/testformular.h"

#include <array>
#include <string>

struct Testblatt {
    std::string titel, fach, gruppenwort, gruppe, name;
    struct Zeile {
        std::string frage, antwort, punkte;
    };
    std::array<Zeile, anzahlTestfragen + 1> zeilen; // from 1
};
