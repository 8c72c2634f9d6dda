#include "core/cp1252.h"

#include <algorithm>
#include <array>

namespace {

// Letters with marks, a range of the character set at a time: one equivalent a character, "?" for a hole.
// What the code page holds is never asked for, it only fills its place.
struct Bereich {
    char32_t erstes;
    std::u32string_view ersatz;
};
constexpr std::array<Bereich, 9> bereiche{
    {{0x0100,
      U"AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi??JjKkkLlLlLlLlLlNnNnNn?NnOoOoOoŒœRrRrRrSsSsSsŠš"
      U"TtTtTtUuUuUuUuUuUuWwYyŸZzZzŽžs"},
     {0x01CD, U"AaIiOoUuÜüÜüÜüÜü?ÄäAaÆæ??GgKkOoOo??j???Gg??NnÅåÆæØø"},
     {0x0200, U"AaAaEeEeIiIiOoOoRrRrUuUuSsTt??Hh??????AaEeÖöÕõOoOoYy"},
     {0x1E00,
      U"AaBbBbBbÇçDdDdDdDdDdÈèÉéEeEeEeFfGgHhHhHhHhHhIiÏïKkKkKkLlLlLlLlMmMmMmNnNnNnNnÕõÕõÒòÓóPpPpRrRrRrRrSsSsS"
      U"s"
      U"ŠšSsTtTtTtTtUuUuUuÚúÜüVvVvWwWwWwWwWwXxXxYyZzZzZzhtwy?s??ß?AaAaÂâÂâÂâÂâÂâÁáÀàAaÃãAaEeEeEeÊêÊêÊêÊêÊê"
      U"IiIiOoOoÔôÔôÔôÔôÔôÓóÒòOoÕõOoUuUuÚúÙùUuUuUuYyYyYyYy"},
     // Greek and Cyrillic letters that look and sound like a Latin one; the others have no equivalent.
     {0x0391, U"AB??EZ??IK?MN?O????T????????????a???e???ik?µ??o????t"},
     {0x0410, U"A????E????K?M?O???T?????????????a????e????k?m?o???t"},
     // Spaces of every width, and the hyphens and dashes behind them.
     {0x2000, U"           "
              U"?????"
              U"--"},
     // Superscript and subscript digits with their signs.
     {0x2070, U"0i??456789+-=()n"},
     {0x2080, U"0123456789+-=()"}}};

// What becomes more than one character, or stands alone.
struct Einzeln {
    char32_t zeichen;
    std::string_view ersatz;
};
constexpr std::array<Einzeln, 90> einzelne{
    {{0x0132, "IJ"},  {0x0133, "ij"},  {0x0149, "'n"},     {0x018F, "E"},   {0x01C4, "DŽ"},
     {0x01C5, "Dž"},  {0x01C6, "dž"},  {0x01C7, "LJ"},     {0x01C8, "Lj"},  {0x01C9, "lj"},
     {0x01CA, "NJ"},  {0x01CB, "Nj"},  {0x01CC, "nj"},     {0x01F1, "DZ"},  {0x01F2, "Dz"},
     {0x01F3, "dz"},  {0x0259, "e"},   {0x02B9, "'"},      {0x02BA, "\""},  {0x02BB, "‘"},
     {0x02BC, "’"},   {0x02C9, "¯"},   {0x02CA, "´"},      {0x02CB, "`"},   {0x02DD, "\""},
     {0x03B2, "ß"},   {0x2012, "–"},   {0x2015, "—"},      {0x2017, "_"},   {0x201B, "‘"},
     {0x201F, "“"},   {0x2023, "•"},   {0x2024, "."},      {0x2025, ".."},  {0x2027, "·"},
     {0x2028, " "},   {0x2029, " "},   {0x202F, "\u00A0"}, {0x2032, "'"},   {0x2033, "\""},
     {0x2035, "`"},   {0x203C, "!!"},  {0x2043, "-"},      {0x2044, "/"},   {0x2047, "??"},
     {0x2048, "?!"},  {0x2049, "!?"},  {0x205F, " "},      {0x20A4, "£"},   {0x2103, "°C"},
     {0x2109, "°F"},  {0x2116, "Nr."}, {0x2126, "Ohm"},    {0x212A, "K"},   {0x212B, "Å"},
     {0x2153, "1/3"}, {0x2154, "2/3"}, {0x215B, "1/8"},    {0x215C, "3/8"}, {0x215D, "5/8"},
     {0x215E, "7/8"}, {0x2190, "<-"},  {0x2192, "->"},     {0x2194, "<->"}, {0x21D0, "<="},
     {0x21D2, "=>"},  {0x21D4, "<=>"}, {0x2212, "-"},      {0x2215, "/"},   {0x2217, "*"},
     {0x2219, "·"},   {0x2236, ":"},   {0x223C, "~"},      {0x2248, "~"},   {0x2260, "<>"},
     {0x2264, "<="},  {0x2265, ">="},  {0x22C5, "·"},      {0x25CF, "•"},   {0x25E6, "°"},
     {0x2605, "*"},   {0x2794, "->"},  {0x27F5, "<-"},     {0x27F6, "->"},  {0x3000, " "},
     {0xFB00, "ff"},  {0xFB01, "fi"},  {0xFB02, "fl"},     {0xFB03, "ffi"}, {0xFB04, "ffl"}}};

static_assert(std::is_sorted(einzelne.begin(), einzelne.end(),
                             [](const Einzeln& a, const Einzeln& b) { return a.zeichen < b.zeichen; }));

// All equivalents of the ranges lie below U+0800.
std::string Utf8(char32_t zeichen) {
    if (zeichen < 0x80) {
        return {static_cast<char>(zeichen)};
    }
    return {static_cast<char>(0xC0U | (zeichen >> 6)), static_cast<char>(0x80U | (zeichen & 0x3FU))};
}

} // namespace

std::string Ersatzzeichen(char32_t zeichen) {
    const auto* const einzeln =
        std::lower_bound(einzelne.begin(), einzelne.end(), zeichen,
                         [](const Einzeln& eintrag, char32_t gesucht) { return eintrag.zeichen < gesucht; });
    if (einzeln != einzelne.end() && einzeln->zeichen == zeichen) {
        return std::string(einzeln->ersatz);
    }
    // The full-width forms repeat ASCII.
    if (zeichen >= 0xFF01 && zeichen <= 0xFF5E) {
        return Utf8(zeichen - 0xFF01 + U'!');
    }
    for (const Bereich& bereich : bereiche) {
        if (zeichen >= bereich.erstes && zeichen - bereich.erstes < bereich.ersatz.size()) {
            const char32_t ersatz = bereich.ersatz[zeichen - bereich.erstes];
            return ersatz == U'?' ? std::string() : Utf8(ersatz);
        }
    }
    return {};
}
