// What the window says about a proposal: how many cells or rows get a question, which don't, and what comes
// of the wanted total. Only texts made of values.
#pragma once

#include "filling/fuellauftrag.h"

#include <optional>
#include <string>

// Before there is a proposal.
[[nodiscard]] std::string Leerbefund(const Fuellauftrag& auftrag);
// Of the quiz form; of the test form. Both begin with how many are filled.
[[nodiscard]] std::string Brettbefund(const Fuellauftrag& auftrag, const Vorschlag& vorschlag);
[[nodiscard]] std::string Testbefund(const Fuellauftrag& auftrag, const Vorschlag& vorschlag,
                                     std::optional<int> zielpunkte);
