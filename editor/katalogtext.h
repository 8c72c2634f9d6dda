// A catalogue file as a whole text, on bytes in memory: its first token, and everything behind it as lines.
// Knows no question and finds no file; what is said when a file fails is editor/editordateien.h.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

struct Katalogtext {
    std::string marke; // the first token, without quotes around it
    std::string text;  // every further line with CR LF behind it; both UTF-8
};

// What a text field on the screen can still show without keeping the program busy for minutes.
inline constexpr std::size_t groessterKatalogtext = std::size_t{32} << 20U; // bytes
inline constexpr std::size_t laengsteKatalogzeile = std::size_t{1} << 20U;
inline constexpr std::size_t meisteKatalogzeilen = 2'000'000;

// False for bytes that no text file holds: a zero byte is among them.
[[nodiscard]] bool IstTextdatei(std::string_view bytes);

// Takes the bytes of a file apart. The first token follows the rules of core/wertgrammatik.h: quotes
// around the first line fall away, and behind a comma in it the rest becomes the first line of the text. No
// bytes at all are run-time error 62, a file beyond the sizes above is 7.
[[nodiscard]] Katalogtext KatalogtextLesen(std::string_view bytes);

// The header of a text that never had a file: the name of its first one without the extension. What the rules
// of tokens would take away at the next reading stays outside: commas, quotes, blanks at the ends.
[[nodiscard]] std::string KatalogkopfAus(std::string_view dateiname);

// The bytes of the file in code page 1252: both as they are, each with CR LF behind it. As the text of a read
// file already ends in CR LF, every reading and writing makes the file one empty line longer: it is meant.
[[nodiscard]] std::string KatalogtextBytes(std::string_view marke, std::string_view text);
