// Whether two questions are nearly the same: asked in other words, with a word more or less. Decides by the
// beginnings of the words that they share; knows no form and no catalogue.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

// What of a question is compared, made once for many comparisons.
struct Wortanfaenge {
    std::vector<std::uint64_t> anfaenge; // sorted, each once
};
[[nodiscard]] Wortanfaenge WortanfaengeVon(std::string_view frage);

// Also true of the same question. Empty questions resemble nothing.
[[nodiscard]] bool Fastgleich(const Wortanfaenge& a, const Wortanfaenge& b);
