// Colours as the model names them: red, green and blue from 0 to 255. System face is a colour of the
// toolkit's palette and so has no value here.
#pragma once

#include <array>
#include <cstdint>

struct Farbe {
    std::uint8_t rot = 0;
    std::uint8_t gruen = 0;
    std::uint8_t blau = 0;
    friend constexpr bool operator==(Farbe, Farbe) = default;
};

inline constexpr Farbe farbeSchwarz{0, 0, 0};
inline constexpr Farbe farbeWeiss{255, 255, 255};
inline constexpr Farbe farbeGelb{255, 255, 0};
inline constexpr Farbe farbeSilber{192, 192, 192};

// Background of a form for the index in FarbeHintergrund: the sixteen classic console colours, but 7 is a
// warmer grey than theirs. An index outside 0 to 15 counts as 7.
[[nodiscard]] constexpr Farbe FormularFarbe(int index) {
    constexpr std::array<Farbe, 16> palette{{{0, 0, 0},
                                             {0, 0, 128},
                                             {0, 128, 0},
                                             {0, 128, 128},
                                             {128, 0, 0},
                                             {128, 0, 128},
                                             {128, 128, 0},
                                             {188, 184, 176},
                                             {128, 128, 128},
                                             {0, 0, 255},
                                             {0, 255, 0},
                                             {0, 255, 255},
                                             {255, 0, 0},
                                             {255, 0, 255},
                                             {255, 255, 0},
                                             {255, 255, 255}}};
    return palette[index < 0 || index > 15 ? 7U : static_cast<unsigned>(index)];
}
