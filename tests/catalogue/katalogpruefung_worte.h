// When two questions are the same one, and when a question gives its own answer away: comparing texts by
// their words, without regard to case, punctuation, umlauts, endings and order. Knows no files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The words of a text in small letters a to z and digits: ä is ae, ß is ss, é is e.
[[nodiscard]] std::vector<std::string> Worte(std::string_view utf8);
// A word without its ending, as far as four letters are left: "hohen", "hoher" and "hohe" are one.
[[nodiscard]] std::string Stamm(std::string_view wort);
// Stems of the words that carry an answer: without what stands in brackets and without articles,
// prepositions and their like; all of them where nothing else is left.
[[nodiscard]] std::vector<std::string> Kernworte(std::string_view antwort, std::string_view frage);

// Two texts and the share of their words that they have in common, 0 to 1. A word counts the less, the more
// texts hold it: "Wie heißt die Hauptstadt von" makes no two questions alike.
struct Textpaar {
    std::size_t erster, zweiter;
    double gemeinsam;
};
// All pairs that share at least that much. Looks only at pairs with a common word.
[[nodiscard]] std::vector<Textpaar> AehnlichePaare(const std::vector<std::string_view>& texte,
                                                   double mindestens);

// Whether whoever reads the question has the answer before him: every word that carries it stands there, by
// itself or inside a longer one, or its one word is put together from two of the question's words. A
// question with "oder" names its answer on purpose.
[[nodiscard]] bool Verraten(std::string_view frage, std::string_view antwort);
