// Whether the Bible places that a text names exist: books under the names of the Luther Bible, their chapters
// and verses. Knows no files.
#pragma once

#include <string>
#include <string_view>

// 0 for a name that no book has.
[[nodiscard]] int Kapitelzahl(std::string_view buch);
// Where the chapter's own number of verses isn't in the table: that of the book's longest chapter, more than
// which no chapter can have.
[[nodiscard]] int Verszahl(std::string_view buch, int kapitel);

// What is wrong with the places of a text, empty if all of them exist: those in brackets as in "(1. Mose 8)",
// "(Lukas 15,11-32)" or "(2. Mose 7 bis 12)", which must be places, and those that stand in a sentence.
[[nodiscard]] std::string Bibelstellenfehler(std::string_view text);
