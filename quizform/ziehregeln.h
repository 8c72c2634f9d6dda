// What a press on a question of the quiz form starts: a move, a copy, a refusal or nothing.
#pragma once

#include "dialogs/texte.h"

#include <cstdint>
#include <string_view>

struct ZiehBeginn {
    std::int16_t art = 0;                    // 1 a move, 2 a copy, 0 no drag
    const MeldungsText* ablehnung = nullptr; // what is said instead
};

// Shift alone is a move, Ctrl alone a copy; both together, Alt or none start nothing. The mouse button
// doesn't count, and that is meant.
[[nodiscard]] ZiehBeginn ZiehBeginnFuer(bool umschalt, bool strg, bool alt, std::string_view buchstabe,
                                        bool frageLeer);
