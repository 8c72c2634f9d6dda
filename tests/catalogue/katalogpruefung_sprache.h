// What a program can tell about the language of a question: years where facts change, punctuation, brackets,
// and whether the answer stands in the case that is asked for. Knows no files.
#pragma once

#include <string>
#include <string_view>

// Whether a question asks for what is different in some years and names no year: officials and champions of
// the present, inhabitants and members, limits of the law, records among what is built.
[[nodiscard]] bool OhneJahr(std::string_view frage);

// What is wrong with punctuation, brackets and »« of a text, empty for nothing.
[[nodiscard]] std::string Zeichenfehler(std::string_view text);
// What is wrong with the last sign of a question, or with the first or the last one of its answer.
[[nodiscard]] std::string Randfehler(std::string_view frage, std::string_view antwort);

// What is wrong with the article or the preposition that an answer begins with, empty for nothing. Tells only
// what is wrong with every noun: "Ein" may stand for two cases, and so passes for both.
[[nodiscard]] std::string Fallfehler(std::string_view frage, std::string_view antwort);
