// The special fields by the rules of the game: their letters, the count against the limits, and what a cell's
// points panel shows. What is fixed for a kind stands in rules/spezialarten.h; the panels are the window's.
#pragma once

#include "core/farbe.h"
#include "rules/spielwerte.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The kind of a letter, none for "" or another text.
[[nodiscard]] std::optional<Spezialart> ArtVon(std::string_view buchstabe);

// Entries of the list of kinds, in its order, the plain question first.
[[nodiscard]] std::vector<std::string_view> Spezialliste();
// Letter of a list entry: its first two characters, trimmed.
[[nodiscard]] std::string SpezialBuchstabe(std::string_view eintrag);

// How many of the letters are of each kind.
[[nodiscard]] Artwerte SpezialAnzahl(std::span<const std::string> buchstaben);

// True when a further cell of that kind is refused at that count. A and E are refused from the limit on, G, J
// and R only at exactly the limit; both are meant.
[[nodiscard]] bool GrenzeErreicht(const Spielwerte& spiel, Spezialart art, std::int16_t anzahl);

// What the points panel of a cell shows; no back colour is system face.
struct PunkteBild {
    std::string caption;
    std::optional<Farbe> grund;
    Farbe schrift;
};
[[nodiscard]] PunkteBild PunkteBildFuer(const Spielwerte& spiel, std::string_view buchstabe, int feldPunkte);

// The tip of a cell's special panel with the limits in force.
[[nodiscard]] std::string SpezialTipp(const Spielwerte& spiel);

// The kind whose limit hint is due: its letter was the key, and its count has just reached the built-in limit
// (an Ereignis at least one).
[[nodiscard]] std::optional<Spezialart> FaelligerRegelHinweis(char taste, const Artwerte& anzahl);
