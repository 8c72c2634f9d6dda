// What a press on a question of the quiz form starts: a drag, a refusal or nothing.
#pragma once

#include "core/meldungstext.h"
#include "core/ziehwert.h"

#include <optional>
#include <string_view>

struct Ziehbeginn {
    std::optional<Zugart> art;             // the drag, none where nothing begins
    std::optional<MeldungsText> ablehnung; // what is said instead
};

// art: what the keys ask for; buchstabe: the cell's letter.
[[nodiscard]] Ziehbeginn FeldZiehbeginn(std::optional<Zugart> art, std::string_view buchstabe,
                                        bool frageLeer);
