// The steps of the two counters and the ticking of their rules, as decisions: which refusal or question goes
// with a step, and what the value is afterwards. Asking and showing is the dialog's.
#pragma once

#include "core/meldungstext.h"
#include "rules/wertebereiche.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

enum class Richtung : std::uint8_t { Hoch, Runter };

struct Regelfrage {
    std::string_view titel;
    std::string text; // with its own line ends
};

struct Regelschritt {
    const MeldungsText* absage = nullptr; // told instead of the step; the value stays
    std::optional<Regelfrage> frage;      // asked before the step; on Abbrechen the value stays
    std::int16_t neu = 0;                 // the value after the step
};

// A step of the questions an area. Without the rule the count can't be lowered at all, but raising it asks in
// the name of the rules whatever the switch says; both are meant.
[[nodiscard]] Regelschritt FragenSchritt(Richtung richtung, std::int16_t fragen, bool optionMaxFelder);

// A step of the areas. Upwards the text goes by the questions an area: with one question it names two areas
// whatever their count, otherwise the step from one area to two asks nothing. Meant as well.
[[nodiscard]] Regelschritt WissenSchritt(Richtung richtung, std::int16_t wissen, std::int16_t fragen,
                                         bool optionMaxWissen);

// The question that ticking a rule raises, nothing where the board is full anyway.
[[nodiscard]] std::optional<Regelfrage> FragenBegrenzung(std::int16_t fragen);
[[nodiscard]] std::optional<Regelfrage> WissenBegrenzung(std::int16_t wissen);
