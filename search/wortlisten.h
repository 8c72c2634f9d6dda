// The words that the comparison of questions treats apart, folded (search/faltung.h) and each list in the
// order of the alphabet. What they are for is search/wortstamm.h.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace wortlisten {

// Words that nearly every question has.
inline constexpr auto allerwelt = std::to_array<std::string_view>(
    {"ab",      "aber",    "alle",         "alles",   "als",        "am",      "an",       "andere",
     "anderen", "auch",    "auf",          "aufgabe", "aufs",       "aus",     "bedeuten", "bedeutet",
     "bei",     "beim",    "bestehen",     "besteht", "bezeichnet", "bin",     "bis",      "bist",
     "bitte",   "da",      "dann",         "darf",    "das",        "dass",    "dazu",     "dein",
     "deine",   "dem",     "den",          "denn",    "der",        "des",     "dich",     "die",
     "dies",    "diese",   "dieser",       "dieses",  "dir",        "doch",    "dort",     "du",
     "durch",   "durfen",  "eigentlich",   "ein",     "eine",       "einem",   "einen",    "einer",
     "eines",   "einst",   "er",           "erganze", "es",         "etwa",    "etwas",    "eur",
     "falsch",  "fruher",  "fur",          "gab",     "geben",      "gegen",   "gehoren",  "gehort",
     "geht",    "genannt", "genau",        "gibt",    "gleich",     "habe",    "haben",    "habt",
     "hast",    "hat",     "hatte",        "hatten",  "heissen",    "heisst",  "heute",    "hier",
     "hiess",   "hiessen", "ich",          "ihm",     "ihn",        "ihr",     "ihre",     "ihrem",
     "ihren",   "ihrer",   "im",           "in",      "ist",        "jede",    "jeder",    "jedes",
     "kam",     "kann",    "kein",         "keine",   "keinen",     "keiner",  "kommen",   "kommt",
     "konnen",  "konnte",  "lag",          "lauten",  "lautet",     "liegen",  "liegt",    "machen",
     "macht",   "man",     "mehr",         "mein",    "meine",      "meinem",  "meinen",   "meiner",
     "mich",    "mir",     "mit",          "muss",    "mussen",     "nach",    "nannte",   "nenne",
     "nennen",  "nennt",   "nicht",        "noch",    "nur",        "oder",    "ohne",     "passt",
     "ratsel",  "richtig", "schon",        "sehr",    "sein",       "seine",   "seinem",   "seinen",
     "seiner",  "seit",    "selbst",       "sich",    "sie",        "sind",    "so",       "soll",
     "sollen",  "sollte",  "sondern",      "stammen", "stammt",     "stammte", "stand",    "statt",
     "stehen",  "steht",   "tun",          "tut",     "uber",       "um",      "und",      "uns",
     "unser",   "unter",   "ursprunglich", "vom",     "von",        "vor",     "wann",     "war",
     "ware",    "waren",   "warum",        "was",     "weil",       "weiter",  "welche",   "welchem",
     "welchen", "welcher", "welches",      "wem",     "wen",        "wenn",    "wer",      "werden",
     "wessen",  "wie",     "will",         "wir",     "wird",       "wo",      "wobei",    "wodurch",
     "wofur",   "woher",   "wohin",        "wollen",  "womit",      "woran",   "worauf",   "woraus",
     "wovon",   "wozu",    "wurd",         "wurde",   "wurden",     "zu",      "zum",      "zur"});
static_assert(std::ranges::is_sorted(allerwelt));

// Stems of nouns that say no more than of what kind the thing is.
inline constexpr auto nebenworte = std::to_array<std::string_view>(
    {"anzahl", "art", "begriff", "bild", "ding",      "fachwor", "form", "hoh",  "jahr", "land", "nam",
     "nummer", "ort", "person",  "sach", "sprichwor", "stad",    "teil", "tier", "wor",  "zahl"});
static_assert(std::ranges::is_sorted(nebenworte));

// Words at the end of a question that belong to its verb: "auf" and "unter" make two questions of one.
inline constexpr auto verbteile =
    std::to_array<std::string_view>({"ab", "an", "auf", "aus", "ein", "um", "unter", "vor", "zu"});
static_assert(std::ranges::is_sorted(verbteile));

// Words that are another's: numbers, and what the world is called.
using Wortpaar = std::pair<std::string_view, std::string_view>;
inline constexpr std::array gleichbedeutend{
    Wortpaar{"acht", "8"},     Wortpaar{"drei", "3"},      Wortpaar{"dreissig", "30"},
    Wortpaar{"elf", "11"},     Wortpaar{"erde", "welt"},   Wortpaar{"funf", "5"},
    Wortpaar{"funfzig", "50"}, Wortpaar{"hundert", "100"}, Wortpaar{"neun", "9"},
    Wortpaar{"sechs", "6"},    Wortpaar{"sieben", "7"},    Wortpaar{"tausend", "1000"},
    Wortpaar{"vier", "4"},     Wortpaar{"vierzig", "40"},  Wortpaar{"zehn", "10"},
    Wortpaar{"zwanzig", "20"}, Wortpaar{"zwei", "2"},      Wortpaar{"zwolf", "12"}};
static_assert(std::ranges::is_sorted(gleichbedeutend));

} // namespace wortlisten
