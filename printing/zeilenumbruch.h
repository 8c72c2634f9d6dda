// Breaks a text into printed lines. The width of text comes from the caller; where the lines stand on the
// page is the layout's affair.
#pragma once

#include "core/laenge.h"

#include <functional>
#include <string_view>
#include <vector>

// Width of a text in the font in force.
using Breitenmass = std::function<Millimeter(std::string_view)>;

// When a word is measured against the width.
enum class Wortmass {
    // At the blank behind it and together with that blank. What is left at the end becomes the last line
    // without being measured, so it may stand out by a word; that is meant.
    AmLeerzeichen,
    // Without the blank, and the last word as well: only a single wide word stands out.
    JedesWort
};

// The lines of a text, as parts of it. When what has been gathered is wider than breite, the part up to the
// previous blank becomes a line; a single wide word is never broken. A line end of the text counts as a blank
// that ends the line in any case. An empty text gives one empty line.
[[nodiscard]] std::vector<std::string_view> Umbrechen(std::string_view text, Millimeter breite,
                                                      const Breitenmass& messen,
                                                      Wortmass wortmass = Wortmass::AmLeerzeichen);
