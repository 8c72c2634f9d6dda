// A quiz form as a value: what a form file keeps of it. The module's object is the stored copy of the open
// form: it lives from one new or opened form to the next, the window's boxes are the working copy, and
// FK_Merken makes the two equal. Written by FK_Merken, the rule routines and the form file's reader. Index 0
// of every array exists and isn't used.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

inline constexpr int anzahlFelder = 30;
inline constexpr int anzahlGebiete = 6;
inline constexpr int fragenJeGebiet = 5;

template <typename Wert>
using JeZelle = std::array<Wert, anzahlFelder + 1>;

// Cell number of row r (1 to 5) in area a (1 to 6).
[[nodiscard]] constexpr int Feldnummer(int a, int r) {
    return fragenJeGebiet * (a - 1) + r;
}
[[nodiscard]] constexpr int GebietVon(int n) {
    return (n - 1) / fragenJeGebiet + 1;
}
[[nodiscard]] constexpr int ZeileVon(int n) {
    return (n - 1) % fragenJeGebiet + 1;
}

// Where a text stands, as the user is told: "Gebiet 2, Frage 3".
[[nodiscard]] inline std::string Zellenname(int n, std::string_view was) {
    return "Gebiet " + std::to_string(GebietVon(n)) + ", " + std::string(was) + ' ' +
           std::to_string(ZeileVon(n));
}

struct Quizformular {
    std::array<std::string, anzahlGebiete + 1> WissenTitel;
    JeZelle<std::string> FrageText;
    JeZelle<std::string> AntwortText;
    // The cell's letter as the panel shows it, "" for a plain question. A file may hold any text here, and it
    // is shown and saved again as it is.
    JeZelle<std::string> FeldSpezial;
    JeZelle<std::int16_t> FeldPunkte{};

    // Head of the form: number, date and duration of the round.
    std::string FormNr, FormDatum, FormZeit;

    friend bool operator==(const Quizformular&, const Quizformular&) = default;
};

inline Quizformular FKForm;
