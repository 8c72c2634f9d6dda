// The kinds of form. How a file names them is persistence/formulardatei, how a window does it the window's.
#pragma once

#include <cstdint>

enum class Formart : std::uint8_t {
    Keine,
    Quiz,
    Test,
    Fremd, // a file's word for a kind that there isn't
};
