// Whether two questions are nearly the same: asked in other words, with a word more or less. Decides by the
// beginnings of the words that they share; knows no form and no catalogue.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

// What of a question is compared, made once for many comparisons.
struct Wortanfaenge {
    struct Wort {
        std::uint64_t stamm;   // its first letters without ending, six bits each, the first one on top
        std::uint64_t geruest; // the same without vowels, as they change in verbs; 0 for a noun
        int gewicht;           // how much it tells the question from others
    };
    std::vector<Wort> woerter; // by stamm, each once; words that nearly every question has aren't there
    // Bits for the letters of the words, of all and of those that can't be done without: a word that has no
    // partner in another question nearly always shows by its bit.
    std::uint64_t alle = 0, wichtige = 0;
};
[[nodiscard]] Wortanfaenge WortanfaengeVon(std::string_view frage);

// Also true of the same question. Empty questions resemble nothing.
[[nodiscard]] bool Fastgleich(const Wortanfaenge& a, const Wortanfaenge& b);
