#include "core/cp1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace {

// Characters of the bytes 0x80 to 0x9F; the five holes are the control characters of the same value.
constexpr std::array<char32_t, 32> oberesFeld{0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                              0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

// Base letter and composed letter in turn, for the combining marks that the code page knows composed.
struct Zusammensetzung {
    char32_t zeichen;
    std::u32string_view paare;
};
constexpr std::array<Zusammensetzung, 8> zusammensetzungen{{{0x0300, U"AÀEÈIÌOÒUÙaàeèiìoòuù"},
                                                            {0x0301, U"AÁEÉIÍOÓUÚYÝaáeéiíoóuúyý"},
                                                            {0x0302, U"AÂEÊIÎOÔUÛaâeêiîoôuû"},
                                                            {0x0303, U"AÃNÑOÕaãnñoõ"},
                                                            {0x0308, U"AÄEËIÏOÖUÜYŸaäeëiïoöuüyÿ"},
                                                            {0x030A, U"AÅaå"},
                                                            {0x030C, U"SŠZŽsšzž"},
                                                            {0x0327, U"CÇcç"}}};

constexpr char32_t keinZeichen = 0xFFFFFFFF;

// Length of the run of ASCII bytes at the beginning, 32 bytes a step: most text has no others at all.
std::size_t AsciiLaenge(std::string_view text) {
    constexpr std::uint64_t hoheBits = 0x8080808080808080ULL;
    std::size_t stelle = 0;
    for (std::array<std::uint64_t, 4> stueck{}; stelle + sizeof stueck <= text.size();
         stelle += sizeof stueck) {
        std::memcpy(stueck.data(), text.data() + stelle, sizeof stueck);
        if (((stueck[0] | stueck[1] | stueck[2] | stueck[3]) & hoheBits) != 0) {
            break;
        }
    }
    while (stelle < text.size() && static_cast<unsigned char>(text[stelle]) < 0x80) {
        ++stelle;
    }
    return stelle;
}

// UTF-8 of the bytes from 0x80 on.
struct Zeichenfolge {
    std::array<char, 3> bytes{};
    std::uint8_t laenge = 0;
};

constexpr Zeichenfolge AlsUtf8(char32_t zeichen) {
    Zeichenfolge folge;
    const auto teil = [&](unsigned vorsatz, unsigned bits) {
        const unsigned byte = vorsatz | (static_cast<unsigned>(zeichen >> bits) & 0x3FU);
        folge.bytes[folge.laenge++] = static_cast<char>(static_cast<unsigned char>(byte));
    };
    if (zeichen < 0x800) {
        teil(0xC0, 6);
    } else {
        teil(0xE0, 12);
        teil(0x80, 6);
    }
    teil(0x80, 0);
    return folge;
}

constexpr std::array<Zeichenfolge, 128> obereHaelfte = [] {
    std::array<Zeichenfolge, 128> folgen;
    for (std::size_t byte = 0x80; byte <= 0xFF; ++byte) {
        folgen[byte - 0x80] = AlsUtf8(byte < 0xA0 ? oberesFeld[byte - 0x80] : static_cast<char32_t>(byte));
    }
    return folgen;
}();

// Turns the bytes into UTF-8 at ziel, which has room for three times as many; returns the length.
std::size_t Umwandeln(std::string_view bytes, char* ziel) {
    constexpr std::uint64_t hoheBits = 0x8080808080808080ULL;
    char* ende = ziel;
    for (std::size_t i = 0; i < bytes.size();) {
        std::uint64_t stueck = hoheBits;
        if (i + sizeof stueck <= bytes.size()) {
            std::memcpy(&stueck, bytes.data() + i, sizeof stueck);
        }
        if ((stueck & hoheBits) == 0) {
            std::memcpy(ende, &stueck, sizeof stueck);
            ende += sizeof stueck;
            i += sizeof stueck;
        } else if (const auto byte = static_cast<unsigned char>(bytes[i++]); byte < 0x80) {
            *ende++ = static_cast<char>(byte);
        } else {
            const Zeichenfolge& folge = obereHaelfte[byte - 0x80U];
            ende = std::copy_n(folge.bytes.begin(), folge.laenge, ende);
        }
    }
    return static_cast<std::size_t>(ende - ziel);
}

// Takes one character off the front; a byte that begins none is keinZeichen.
char32_t Utf8Nehmen(std::string_view& text) {
    const auto erstes = static_cast<unsigned char>(text.front());
    std::size_t laenge = erstes < 0x80 ? 1U : erstes >= 0xF0 ? 4U : erstes >= 0xE0 ? 3U : 2U;
    constexpr std::array<unsigned, 5> maske{0, 0x7F, 0x1F, 0x0F, 0x07};
    constexpr std::array<char32_t, 5> kleinstes{0, 0, 0x80, 0x800, 0x10000};
    char32_t zeichen = erstes & maske[laenge];
    bool gut = (erstes < 0x80 || erstes >= 0xC2) && erstes < 0xF5 && laenge <= text.size();
    for (std::size_t i = 1; gut && i < laenge; ++i) {
        const auto folge = static_cast<unsigned char>(text[i]);
        gut = (folge & 0xC0U) == 0x80U;
        zeichen = (zeichen << 6) | (folge & 0x3FU);
    }
    gut = gut && zeichen >= kleinstes[laenge];
    text.remove_prefix(gut ? laenge : 1);
    return gut ? zeichen : keinZeichen;
}

// The byte of a character, -1 where the code page doesn't hold it.
int Byte(char32_t zeichen) {
    if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) {
        return static_cast<int>(zeichen);
    }
    const auto* const fund = std::find(oberesFeld.begin(), oberesFeld.end(), zeichen);
    return fund == oberesFeld.end() ? -1 : 0x80 + static_cast<int>(fund - oberesFeld.begin());
}

bool Kombinierend(char32_t zeichen) {
    return (zeichen >= 0x0300 && zeichen <= 0x036F) || (zeichen >= 0x200B && zeichen <= 0x200D) ||
           zeichen == 0x2060 || zeichen == 0xFEFF || (zeichen >= 0xFE00 && zeichen <= 0xFE0F);
}

// A letter followed by a combining mark becomes one letter; a mark without such a partner is dropped.
void Verbinden(std::string& ziel, char32_t marke) {
    const auto* const reihe =
        std::find_if(zusammensetzungen.begin(), zusammensetzungen.end(),
                     [marke](const Zusammensetzung& eintrag) { return eintrag.zeichen == marke; });
    if (reihe == zusammensetzungen.end() || ziel.empty()) {
        return;
    }
    for (std::size_t i = 0; i + 1 < reihe->paare.size(); i += 2) {
        if (Byte(reihe->paare[i]) == static_cast<unsigned char>(ziel.back())) {
            ziel.back() = static_cast<char>(Byte(reihe->paare[i + 1]));
            return;
        }
    }
}

// An equivalent holds characters of the code page only.
void ErsatzAnhaengen(std::string& ziel, char32_t zeichen) {
    const std::string ersatz = zeichen == keinZeichen ? std::string() : Ersatzzeichen(zeichen);
    std::string_view rest = ersatz.empty() ? std::string_view("?") : ersatz;
    while (!rest.empty()) {
        ziel += static_cast<char>(Byte(Utf8Nehmen(rest)));
    }
}

void ByteAnhaengen(std::string& ziel, char32_t zeichen) {
    if (const int byte = Byte(zeichen); byte >= 0) {
        ziel += static_cast<char>(byte);
    } else if (Kombinierend(zeichen)) {
        Verbinden(ziel, zeichen);
    } else {
        ErsatzAnhaengen(ziel, zeichen);
    }
}

} // namespace

void AusCp1252Anhaengen(std::string& ziel, std::string_view bytes) {
    // By way of a small block, so that the text grows once a block and not once a letter.
    constexpr std::size_t blockgroesse = 256;
    std::array<char, 3 * blockgroesse> block; // NOLINT(cppcoreguidelines-pro-type-member-init): written first
    while (!bytes.empty()) {
        const std::string_view stueck = bytes.substr(0, blockgroesse);
        ziel.append(block.data(), Umwandeln(stueck, block.data()));
        bytes.remove_prefix(stueck.size());
    }
}

std::string AusCp1252(std::string_view bytes) {
    std::string ergebnis;
    AusCp1252Anhaengen(ergebnis, bytes);
    return ergebnis;
}

std::string NachCp1252(std::string_view utf8) {
    std::string ergebnis;
    while (true) {
        const std::size_t lauf = AsciiLaenge(utf8);
        ergebnis.append(utf8.data(), lauf);
        utf8.remove_prefix(lauf);
        if (utf8.empty()) {
            return ergebnis;
        }
        ByteAnhaengen(ergebnis, Utf8Nehmen(utf8));
    }
}

bool InCp1252(char32_t zeichen) {
    return Byte(zeichen) >= 0;
}
