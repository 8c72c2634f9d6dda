// The kinds of special fields by name, and a value for each of them. What a kind looks like, says and counts
// is its row in rules/spezialarten.h.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

// In the order of their letters, which is also that of the control arrays in the settings dialog.
enum class Spezialart : std::uint8_t { Aktion, Ereignis, Glueck, Joker, Risiko };

inline constexpr int anzahlArten = 5;

// Number of a kind in control arrays, from 0.
[[nodiscard]] constexpr std::size_t Artstelle(Spezialart art) {
    return static_cast<std::size_t>(art);
}

// One value a kind.
template <typename Wert>
struct JeArt {
    std::array<Wert, anzahlArten> werte{};

    constexpr Wert& operator[](Spezialart art) { return werte.at(Artstelle(art)); }
    constexpr const Wert& operator[](Spezialart art) const { return werte.at(Artstelle(art)); }
    constexpr void fill(const Wert& wert) { werte.fill(wert); }
    friend constexpr bool operator==(const JeArt&, const JeArt&) = default;
};

using Artwerte = JeArt<std::int16_t>;
