// The five kinds of special fields: their table, the count against the limits, and what a cell's points panel
// shows for each. Texts of the refusals are in quizform/texte.h; the panels themselves are the window's.
#pragma once

#include "core/farbe.h"
#include "quizform/formdaten.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// Kinds in their fixed order A, E, G, J, R.
inline constexpr int anzahlArten = 5;
inline constexpr std::array<std::string_view, anzahlArten> spezialBuchstaben{"A", "E", "G", "J", "R"};

// Entries of the list of kinds, in the order of the list.
inline constexpr std::array<std::string_view, 6> spezialListe{
    "   Frage (Standard)", "J  Joker", "G Glücksfrage", "R Risiko-Frage", "A Aktion/Aufgabe", "E Ereignis"};

// Number of cells with each letter as of the last count; index 5 isn't used. Only the counting routines write
// it, and the limit test reads it as it stands.
inline std::array<std::int16_t, 6> SpezialAnzahl{};

// Edit copies of points and limits, index order A, E, G, J, R. Written by FK_Vorgaben and the settings
// dialog.
inline std::array<std::int16_t, anzahlArten> VorgabePunkte{};
inline std::array<std::int16_t, anzahlArten> VorgabeFelder{};

// The character code that would make the limit hint speak. Nothing gives it a value: the hint never speaks,
// and that is meant.
inline std::int16_t RegelTaste = 0;
inline std::int16_t RegelHinweis = 0;

// Built-in values into VorgabePunkte and VorgabeFelder.
void FK_Vorgaben();

// Index of a letter, -1 for "" or another text.
[[nodiscard]] int SpezialIndex(std::string_view buchstabe);
// Letter of a list entry: its first two characters, trimmed.
[[nodiscard]] std::string SpezialBuchstabe(std::string_view eintrag);

// Limit in force and points in force of a kind (0 to 4).
[[nodiscard]] std::int16_t FelderGrenze(int art);
[[nodiscard]] std::int16_t PunkteWert(int art);

// True when a further cell of that kind is refused by SpezialAnzahl as it stands. A and E are refused from
// the limit on, G, J and R only at exactly the limit; both are meant.
[[nodiscard]] bool GrenzeErreicht(int art);

// Counts the letters (index 1 to 30) into SpezialAnzahl.
void SpezialAnzahlZaehlen(const std::array<std::string, anzahlFelder + 1>& buchstaben);

// What the points panel of a cell shows; no back colour is system face.
struct PunkteBild {
    std::string caption;
    std::optional<Farbe> grund;
    Farbe schrift;
};
[[nodiscard]] PunkteBild PunkteBildFuer(std::string_view buchstabe, int feldPunkte);

// The kind whose limit hint is due now, -1 for none. Takes the hint back when it is.
[[nodiscard]] int FaelligerRegelHinweis();
