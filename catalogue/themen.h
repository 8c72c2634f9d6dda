// The catalogue's 16 themes and 138 sub-themes: which file belongs to which pair, and the two lists that the
// list files fill. Reads nothing itself: catalogue/katalogdatei.h turns bytes into lists.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

inline constexpr int anzahlListenplaetze = 20;
using Namensliste = std::array<std::string, anzahlListenplaetze + 1>;

// Places 1 to 20 of the theme list and of the sub-theme list last read; index 0 isn't used.
struct Themenlisten {
    Namensliste ThemenListe, UnterthemenListe;
};
inline Themenlisten Katalog;

struct Unterthema {
    std::string_view name;
    std::string_view datei;
};

struct Thema {
    std::string_view name;
    std::string_view ordner;         // under "\WISSEN\"
    std::string_view listendatei;    // in that folder
    bool kommentarzeilen;            // lines beginning with an apostrophe are skipped
    std::string_view meldungsordner; // folder that the failure message names, right or not: it is meant
    std::span<const Unterthema> unterthemen;
};

// The table, in alphabetical order of the list file.
[[nodiscard]] std::span<const Thema> Themen();

// The theme of exactly that name, nullptr for none.
[[nodiscard]] const Thema* ThemaSuchen(std::string_view name);

// File name of the sub-theme of exactly that name, "" for none.
[[nodiscard]] std::string_view UnterthemaDatei(const Thema& thema, std::string_view unterthema);
