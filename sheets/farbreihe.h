// The colours of the Wissensgebiete on boards and cards: light enough for black letters, on a black-and-white
// printer too.
#pragma once

#include "core/farbe.h"

#include <array>
#include <cstddef>

struct Gebietsfarben {
    Farbe kopf, feld;
};

// gebiet: from 1.
[[nodiscard]] constexpr Gebietsfarben FarbenVon(std::size_t gebiet) {
    constexpr std::array<Gebietsfarben, 6> reihe{{{{255, 205, 130}, {255, 243, 226}},
                                                  {{178, 222, 150}, {238, 248, 232}},
                                                  {{160, 208, 240}, {232, 243, 251}},
                                                  {{248, 180, 180}, {253, 237, 237}},
                                                  {{214, 190, 238}, {245, 239, 251}},
                                                  {{244, 226, 128}, {253, 249, 227}}}};
    return reihe.at((gebiet - 1) % reihe.size());
}
