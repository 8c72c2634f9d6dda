// Which of the 30 cells exist for the numbers of the settings, and with which of their four controls. Decides
// only; hiding and clearing is the window's.
#pragma once

#include "quizform/quizformular.h"
#include "rules/spielwerte.h"

#include <array>

struct FeldSicht {
    bool frage = true;
    bool antwort = true;
    bool punkte = true;
    bool spezial = true;
    friend constexpr bool operator==(FeldSicht, FeldSicht) = default;
};

// Index is the cell number; 0 isn't used.
using Feldsichten = std::array<FeldSicht, anzahlFelder + 1>;

// True when a row (1 to 5) stays with that many questions an area. The rows stay spread symmetrically over
// the column: the board keeps its shape. Numbers outside 1 to 4 leave all rows.
[[nodiscard]] bool ZeileBleibt(int zeile, int fragenProWissen);

// Rule of questions: hides rows in every area. With one question an area the points panel that stays is
// hidden all the same; that is meant.
void FragenRegelAnwenden(Feldsichten& sichten, int fragenProWissen);

// Rule of areas: hides the cells of the areas above anzahlWissen (1 to 5; other numbers hide nothing).
void WissenRegelAnwenden(Feldsichten& sichten, int anzahlWissen);

// Which cells are in play for the rules in force, with which of their controls: the board's shape.
[[nodiscard]] Feldsichten BrettSichten(const Spielwerte& spiel);
// True when the rules in force leave the area (1 to 6) open.
[[nodiscard]] bool GebietOffen(const Spielwerte& spiel, int gebiet);

// True when the area (1 to 6) is closed for that number of areas.
[[nodiscard]] bool GebietGeschlossen(int gebiet, int anzahlWissen);
