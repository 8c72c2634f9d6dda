// The test form's rows without a question and what fits them; and a proposal whose points, with those that
// stand on the form, make the wanted total if any questions do.
#pragma once

#include "filling/fuellauftrag.h"
#include "testform/testformular.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

struct Testwunsch {
    std::vector<Themenwahl> unterthemen;
    bool nurUnbenutzte = true;
};

// The sub-themes that a test of that subject asks about: those of its name, else all of the Häuptlingsbuch.
[[nodiscard]] std::vector<Themenwahl> WahlAusFach(std::string_view fach);

// Only questions worth 1 to 20 points fit, the points that a row can have.
[[nodiscard]] Fuellauftrag TestauftragAus(std::shared_ptr<const Fragenvorrat> vorrat,
                                          const Testformular& form, const Testwunsch& wunsch);

// The form's total once the proposal stands on it: rows that get no question keep their points.
[[nodiscard]] int Gesamtpunkte(const Fuellauftrag& auftrag, const Vorschlag& vorschlag);

// Fills the first rows; all of them if the total allows, fewer if only that meets it. A total that no
// questions meet is met as nearly as can be. Without one, chance decides. The same seed gives the same.
[[nodiscard]] Vorschlag Testvorschlag(const Fuellauftrag& auftrag, std::optional<int> zielpunkte,
                                      std::uint64_t saat);
