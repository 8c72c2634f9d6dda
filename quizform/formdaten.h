// The stored copy of a quiz form. It lives from one new or opened form to the next; the window's boxes are
// the working copy, and FK_Merken makes the two equal. Written by FK_Merken, the rule routines and the form
// file's reader. Index 0 of every array exists and isn't used.
#pragma once

#include <array>
#include <cstdint>
#include <string>

inline constexpr int anzahlFelder = 30;
inline constexpr int anzahlGebiete = 6;
inline constexpr int fragenJeGebiet = 5;

inline std::array<std::string, anzahlGebiete + 1> WissenTitel;
inline std::array<std::string, anzahlFelder + 1> FrageText;
inline std::array<std::string, anzahlFelder + 1> AntwortText;
inline std::array<std::string, anzahlFelder + 1> FeldSpezial; // "", "J", "G", "R", "A" or "E"
inline std::array<std::int16_t, anzahlFelder + 1> FeldPunkte{};

// Head of the form: number, date and duration of the round.
inline std::string FormNr, FormDatum, FormZeit;

// The cell or area that a routine for a single one works on.
inline std::int16_t AktuellesFeld = 0;

// 1 only while FK_FragenLoeschen runs: keeps the repaint from filling the boxes from the arrays.
inline std::int16_t LoeschLauf = 0;

// Path that the open quiz form was opened from or saved to, "" for none.
inline std::string FKDateiName;

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
