// German words as they are compared whatever their ending: a stem of few letters, with the weight that the
// word has in a question. Part of search/aehnlich.h, which decides what is nearly the same.
#pragma once

#include "search/aehnlich.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wortstamm {

// How much a word tells a question from others.
struct Gewicht {
    static constexpr int Nebenwort = 1;  // "Stadt", "Tier": says of what kind the thing is
    static constexpr int Wort = 2;       // verbs and the like
    static constexpr int Steigerung = 3; // "größte", "zweite": turns a question into another one
    static constexpr int Hauptwort = 4;  // nouns, names, numbers
};

// The text with blanks for what stands in round brackets.
[[nodiscard]] std::string OhneKlammern(std::string_view text);

// Letters of a stem.
[[nodiscard]] int Laenge(std::uint64_t stamm);
// Its first letter and its consonants; the stem itself where that would leave too little.
[[nodiscard]] std::uint64_t Geruest(std::uint64_t stamm);
// "Wappen" and "Wappentier".
[[nodiscard]] bool EinerBeginntDenAnderen(std::uint64_t a, std::uint64_t b);

// The words of a question in their order, without those that nearly every question has; all of them where it
// has no other. What stands in round brackets isn't looked at where there is more: places in the Bible,
// explanations.
[[nodiscard]] std::vector<Wortanfaenge::Wort> Worte(std::string_view frage);

} // namespace wortstamm
