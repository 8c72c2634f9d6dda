// Points of a test's rows as the form shows them: captions of decimal digits, empty after a blanking. Steps,
// values and totals; what shows them is testform/hbpunkte.cpp.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

inline constexpr int hoechstePunkte = 20;

// The number at the head of a caption; 0 where there is none. Beyond 16 bits: run-time error 6.
[[nodiscard]] std::int16_t PunkteWert(std::string_view aufschrift);

// The caption after one step up (+1) or down (-1): above 20 it begins again at 0, below 0 at 20, however far
// outside a file has put it. Run-time error 6 for a caption beyond 16 bits.
[[nodiscard]] std::string PunkteNachSchritt(std::string_view aufschrift, int schritt);

// Sum of the captions' values. A row that would carry it beyond 16 bits is left out, and that is meant.
[[nodiscard]] std::int16_t PunkteSumme(std::span<const std::string> aufschriften);
