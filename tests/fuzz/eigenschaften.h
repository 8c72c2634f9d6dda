// What holds for every reader, writer and layout of the model whatever bytes it gets, one routine a subject.
// A property that doesn't hold ends the process. Run by libFuzzer with inputs of its own making
// (fuzzlauf.cpp) and as an ordinary test over the files of the program and all findings so far
// (korpus_test.cpp).
#pragma once

#include <array>
#include <string_view>

namespace fuzz {

void Formular(std::string_view bytes);      // forms of both kinds, read and written
void Einstellungen(std::string_view bytes); // the settings file
void Katalog(std::string_view bytes);       // the catalogue's three formats
void Katalogtext(std::string_view bytes);   // the editor's file
void Wertgrammatik(std::string_view bytes); // single values
void Zeichen(std::string_view bytes);       // code page 1252
void Umbruch(std::string_view bytes);       // line breaking
void Seite(std::string_view bytes);         // layout of the two sheets
void Suche(std::string_view bytes);         // words typed, questions found
void Fragen(std::string_view bytes);        // questions compared, quotation marks replaced
void Blaetter(std::string_view bytes);      // the sheets beside a form's own
void Pdf(std::string_view bytes);           // PDF files put in order

struct Ziel {
    std::string_view name;
    void (*pruefen)(std::string_view bytes);
    bool formatiert; // reads a file of ours, so that the delivered files are a beginning
};
inline constexpr std::array ziele{Ziel{"formular", Formular, true},
                                  Ziel{"einstellungen", Einstellungen, true},
                                  Ziel{"katalog", Katalog, true},
                                  Ziel{"katalogtext", Katalogtext, true},
                                  Ziel{"wertgrammatik", Wertgrammatik, true},
                                  Ziel{"zeichen", Zeichen, false},
                                  Ziel{"umbruch", Umbruch, false},
                                  Ziel{"seite", Seite, false},
                                  Ziel{"suche", Suche, false},
                                  Ziel{"fragen", Fragen, false},
                                  Ziel{"blaetter", Blaetter, false},
                                  Ziel{"pdf", Pdf, false}};

// Ends the process with the words when the condition doesn't hold.
void Verlange(bool bedingung, std::string_view worte);

// Takes an input apart: a choice from its first byte, then the rest; pieces up to a separator.
struct Eingabe {
    std::string_view rest;
    // 0 to anzahl - 1; 0 of an input that has ended.
    int Wahl(int anzahl);
    // Up to the next byte 0xFF, which texts don't need.
    std::string_view Stueck();
};

} // namespace fuzz
