// What the check of a form has to say, as values: how grave it is, which place it is about, in which words.
// What is amiss at all is checking/pruefung.h.
#pragma once

#include "core/formart.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A Fehler loses text or spoils the sheet; a Hinweis is for the leader to judge.
enum class Schwere : std::uint8_t { Fehler, Hinweis };

[[nodiscard]] std::string_view Schwerewort(Schwere schwere);

// The parts of both kinds of form, in the order in which they are told: the head, then what has a number.
enum class Teil : std::uint8_t {
    Nr,
    Datum,
    Zeit,
    Titel,
    Fach,
    Gruppe,
    Gebiet,
    Frage,
    Antwort,
    Spezialfeld,
    Punkte
};

// A place of the open form: the part with the number of its cell, row or area, 0 for the head.
struct Befundort {
    Formart art = Formart::Quiz;
    Teil teil = Teil::Frage;
    int nummer = 0;

    friend bool operator==(const Befundort&, const Befundort&) = default;
};

// Its name as the user is told it: "Gebiet 2, Frage 3".
[[nodiscard]] std::string Ortsname(const Befundort& ort);
// The control of the form's window that gets the focus there: "txtFrage(8)".
[[nodiscard]] std::string Ortselement(const Befundort& ort);
// True when the first is to be told before the second.
[[nodiscard]] bool StehtDavor(const Befundort& a, const Befundort& b);

// The rules.
enum class Anlass : std::uint8_t {
    Ueberstand, // sticks out on paper
    Anfuehrung, // a quotation mark cuts the text in its file
    Ungedruckt, // an answer without its question
    Leer,
    Doppelt,  // the same question, or nearly the same, once more on the form
    Benutzt,  // or in another form
    Verraten, // the answer stands in its question
    ZuViele,  // special fields beyond their limit
    OhnePunkte
};

struct Befund {
    Schwere schwere = Schwere::Hinweis;
    Anlass anlass = Anlass::Leer;
    Befundort ort;
    std::string text; // UTF-8, a whole sentence

    friend bool operator==(const Befund&, const Befund&) = default;
};
using Befunde = std::vector<Befund>;

// Of the same rule about the same place, whatever its words are.
[[nodiscard]] bool Derselbe(const Befund& a, const Befund& b);
