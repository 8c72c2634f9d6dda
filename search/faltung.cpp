#include "search/faltung.h"

#include <array>
#include <cstdint>

namespace {

// What a character becomes: two bytes at most.
struct Ersatz {
    std::array<char, 2> zeichen{};
    std::uint8_t laenge = 0; // 0: left out
};

constexpr char klein(char zeichen) {
    return zeichen >= 'A' && zeichen <= 'Z' ? static_cast<char>(zeichen - 'A' + 'a') : zeichen;
}

// ASCII: small letters, blanks for control characters, marks behind the digits below them.
constexpr std::array<char, 128> ascii = [] {
    std::array<char, 128> tabelle{};
    char frei = '\x01';
    for (std::size_t i = 0; i != tabelle.size(); ++i) {
        const char zeichen = klein(static_cast<char>(i));
        const bool wort = (zeichen >= '0' && zeichen <= '9') || (zeichen >= 'a' && zeichen <= 'z');
        const bool hinten = i > '9' && !wort;
        tabelle[i] = hinten ? (i == 0x7F ? ' ' : frei++) : i < ' ' ? ' ' : zeichen;
    }
    return tabelle;
}();

// U+00C0 to U+00DF; the small letters stand 32 behind them. "." stands for none.
constexpr std::string_view grossbuchstaben = "aaaaaaaceeeeiiiidnooooo.ouuuuy..";

constexpr Ersatz Ein(char zeichen) {
    return {{zeichen, 0}, 1};
}

struct Sonderzeichen {
    char32_t zeichen = 0;
    Ersatz ersatz;
};
constexpr std::array sonderzeichen{
    Sonderzeichen{0xA0, Ein(' ')},          Sonderzeichen{0xAD, {}}, // where a line may break
    Sonderzeichen{0xAB, Ein('"')},          Sonderzeichen{0xBB, Ein('"')},
    Sonderzeichen{0xDF, {{'s', 's'}, 2}},   Sonderzeichen{0xDE, {{'t', 'h'}, 2}},
    Sonderzeichen{0xFE, {{'t', 'h'}, 2}},   Sonderzeichen{0xFF, Ein('y')},
    Sonderzeichen{0x152, Ein('o')},         Sonderzeichen{0x153, Ein('o')},
    Sonderzeichen{0x160, Ein('s')},         Sonderzeichen{0x161, Ein('s')},
    Sonderzeichen{0x178, Ein('y')},         Sonderzeichen{0x17D, Ein('z')},
    Sonderzeichen{0x17E, Ein('z')},         Sonderzeichen{0x192, Ein('f')},
    Sonderzeichen{0x1E9E, {{'s', 's'}, 2}}, Sonderzeichen{0x2013, Ein('-')},
    Sonderzeichen{0x2014, Ein('-')},        Sonderzeichen{0x2018, Ein('\'')},
    Sonderzeichen{0x2019, Ein('\'')},       Sonderzeichen{0x201A, Ein('\'')},
    Sonderzeichen{0x201C, Ein('"')},        Sonderzeichen{0x201D, Ein('"')},
    Sonderzeichen{0x201E, Ein('"')},        Sonderzeichen{0x2026, Ein('.')},
    Sonderzeichen{0x2039, Ein('\'')},       Sonderzeichen{0x203A, Ein('\'')},
};

// A character from outside ASCII, and its bytes.
struct Zeichen {
    char32_t wert = 0; // 0 for bytes that are no UTF-8
    std::size_t laenge = 1;
};

Zeichen Lesen(std::string_view text) {
    const auto byte = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const auto folgt = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    if (byte(0) >= 0xC2 && byte(0) < 0xE0 && folgt(1)) {
        return {(byte(0) & 0x1FU) << 6U | (byte(1) & 0x3FU), 2};
    }
    if (byte(0) >= 0xE0 && byte(0) < 0xF0 && folgt(1) && folgt(2)) {
        return {(byte(0) & 0x0FU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU), 3};
    }
    return {};
}

// False for a character that stays as it is.
bool ErsatzFuer(char32_t zeichen, Ersatz& ersatz) {
    for (const Sonderzeichen& zeile : sonderzeichen) {
        if (zeile.zeichen == zeichen) {
            ersatz = zeile.ersatz;
            return true;
        }
    }
    if (zeichen < 0xC0 || zeichen > 0xFF || zeichen == 0xD7 || zeichen == 0xF7) {
        return false;
    }
    ersatz = Ein(grossbuchstaben.at((zeichen - 0xC0) % 32));
    return true;
}

// What one character from outside ASCII becomes.
struct Gefaltetes {
    std::size_t laenge = 1; // of the character
    Ersatz ersatz;
    std::string_view roh; // the character itself where it stays

    [[nodiscard]] std::string_view bytes() const {
        return roh.empty() ? std::string_view(ersatz.zeichen.data(), ersatz.laenge) : roh;
    }
};

Gefaltetes AnderesZeichen(std::string_view text) {
    const Zeichen zeichen = Lesen(text);
    Gefaltetes ergebnis{zeichen.laenge, {}, {}};
    if (zeichen.wert == 0 || !ErsatzFuer(zeichen.wert, ergebnis.ersatz)) {
        ergebnis.roh = text.substr(0, zeichen.laenge);
    }
    return ergebnis;
}

// Gives each byte of the folded text with the place that it comes from, and also what falls out of it: an e
// behind a vowel and a blank behind a blank. Without branches where it can, since letters follow no pattern.
template <typename Senke>
void Falten(std::string_view text, Senke senke) {
    bool blank = false; // the last byte was one
    bool laut = false;  // it was an a, o or u, and no umlaut
    const auto geben = [&](char zeichen, std::size_t stelle) {
        const bool faellt = (laut && zeichen == 'e') || (blank && zeichen == ' ');
        senke(zeichen, stelle, !faellt);
        blank = zeichen == ' ';
        laut = zeichen == 'a' || zeichen == 'o' || zeichen == 'u';
    };
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x80) {
            geben(ascii[byte], i++);
            continue;
        }
        const Gefaltetes anderes = AnderesZeichen(text.substr(i));
        for (const char zeichen : anderes.bytes()) {
            laut = false; // none of these is an e
            geben(zeichen, i);
            laut = false; // an umlaut keeps the e behind it
        }
        i += anderes.laenge;
    }
}

} // namespace

void GefaltetAnhaengen(std::string& ziel, std::string_view text, std::vector<std::uint32_t>* ausgelassen) {
    // No character becomes longer.
    const std::size_t anfang = ziel.size();
    ziel.resize(anfang + text.size());
    char* ende = ziel.data() + anfang;
    Falten(text, [&](char zeichen, std::size_t /*stelle*/, bool bleibt) {
        *ende = zeichen;
        ende += bleibt ? 1 : 0;
        if (!bleibt && zeichen == 'e' && ausgelassen != nullptr) {
            ausgelassen->push_back(static_cast<std::uint32_t>(ende - ziel.data()));
        }
    });
    ziel.resize(static_cast<std::size_t>(ende - ziel.data()));
}

std::string Gefaltet(std::string_view text) {
    std::string ergebnis;
    GefaltetAnhaengen(ergebnis, text);
    return ergebnis;
}

Faltung FaltungMitStellen(std::string_view text) {
    Faltung ergebnis;
    Falten(text, [&](char zeichen, std::size_t stelle, bool bleibt) {
        if (bleibt) {
            ergebnis.text += zeichen;
            ergebnis.stellen.push_back(stelle);
        } else if (zeichen == 'e') {
            ergebnis.luecken.push_back({ergebnis.text.size(), stelle});
        }
    });
    ergebnis.stellen.push_back(text.size());
    return ergebnis;
}

std::string Fragenschluessel(std::string_view frage) {
    std::string ergebnis = Gefaltet(frage);
    std::erase_if(ergebnis, [](char zeichen) { return !IstWortzeichen(zeichen); });
    return ergebnis;
}

std::uint64_t Fragenabdruck(std::string_view gefaltet) {
    // FNV-1a in 64 bits: http://www.isthe.com/chongo/tech/comp/fnv/
    std::uint64_t abdruck = 0xCBF29CE484222325ULL;
    bool leer = true;
    for (const char zeichen : gefaltet) {
        const bool zaehlt = IstWortzeichen(zeichen);
        const std::uint64_t naechster = (abdruck ^ static_cast<unsigned char>(zeichen)) * 0x100000001B3ULL;
        abdruck = zaehlt ? naechster : abdruck;
        leer = leer && !zaehlt;
    }
    return leer ? 0 : abdruck;
}
