// The quiz form's empty cells and what fits them: the wishes for each area, the letters, the points of the
// row; and a proposal that fills as many as can be filled.
#pragma once

#include "filling/fuellauftrag.h"
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

struct Brettwunsch {
    std::array<Themenwahl, anzahlGebiete + 1> gebiete; // from 1
    bool punkteWieZeile = true; // a question of three points goes to row 3, and to no other
    bool nurUnbenutzte = true;
};

// The theme that an area's title names, all themes where it names none. A sub-theme's name will do where only
// one theme has it, as the titles from the Häuptlingsbuch are.
[[nodiscard]] Themenwahl WahlAusTitel(std::string_view titel);

[[nodiscard]] Fuellauftrag BrettauftragAus(std::shared_ptr<const Fragenvorrat> vorrat,
                                           const Quizformular& form, const Spielwerte& spiel,
                                           const Brettwunsch& wunsch);

// The same seed gives the same proposal.
[[nodiscard]] Vorschlag Brettvorschlag(const Fuellauftrag& auftrag, std::uint64_t saat);
