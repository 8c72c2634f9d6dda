// As many places as possible get a question of those that fit them, each question once and none beside one
// that it disturbs. Knows neither form nor catalogue.
#pragma once

#include "filling/wuerfel.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

// candidates[i]: what fits place i, in any order. stoert: two numbers can't stand on one board; each disturbs
// itself. Where disturbing is mutual among all that disturb one another no assignment fills more places;
// where it isn't, one place more may be possible at times. Which candidates are taken is up to chance.
[[nodiscard]] std::vector<std::optional<std::uint32_t>>
Zuordnen(std::vector<std::vector<std::uint32_t>> kandidaten,
         const std::function<bool(std::uint32_t, std::uint32_t)>& stoert, Wuerfel& wuerfel);
