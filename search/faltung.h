// Texts made comparable: what upper and lower case, umlauts and accents, ß and blanks tell apart becomes the
// same bytes. Compares nothing itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// In a folded text letters and digits lie from here on, all else below.
inline constexpr unsigned char erstesWortzeichen = '0';
[[nodiscard]] constexpr bool IstWortzeichen(char zeichen) {
    return static_cast<unsigned char>(zeichen) >= erstesWortzeichen;
}

// Small letters without accents: ä, ae and a are "a", the same for o and u, ß is "ss", blanks and line ends
// in a row are one blank. Bytes below 0x20 stand for characters of ASCII behind the digits, but 0x1E and 0x1F
// for nothing: they are free to part texts. Input is UTF-8; what is none stays as it is.
[[nodiscard]] std::string Gefaltet(std::string_view text);
// Appends it; ausgelassen gets the places in ziel ahead of which the e of ae, oe or ue has fallen out.
void GefaltetAnhaengen(std::string& ziel, std::string_view text,
                       std::vector<std::uint32_t>* ausgelassen = nullptr);

// The same with what is needed to find places in text again.
struct Faltung {
    std::string text;
    std::vector<std::size_t> stellen; // place in the original of each byte, and its size behind the last
    // Each e that has fallen out: ahead of which byte, and its place in the original.
    struct Luecke {
        std::size_t vor, stelle;
    };
    std::vector<Luecke> luecken;
};
[[nodiscard]] Faltung FaltungMitStellen(std::string_view text);

// The letters and digits of the folded text: equal for two texts that differ in blanks, marks and case only.
[[nodiscard]] std::string Fragenschluessel(std::string_view frage);
// The same as a number, from a text that is folded already; 0 for a text without any.
[[nodiscard]] std::uint64_t Fragenabdruck(std::string_view gefaltet);
