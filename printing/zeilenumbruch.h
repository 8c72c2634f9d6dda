// Breaks a text into printed lines. The width of text comes from the caller; where the lines stand on the
// page is the layout's affair.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

// Width of a text in mm in the font in force.
using Breitenmass = std::function<float(std::string_view)>;

// The lines of a text, as parts of it. At each blank, what has been gathered, the blank included, is
// measured; when it is wider than breite, the part up to the previous blank becomes a line. What is left at
// the end becomes the last line without being measured, so it may stand out by a word, and a single wide
// word is never broken: both are meant. A line end of the text counts as a blank that ends the line in any
// case. An empty text gives one empty line.
[[nodiscard]] std::vector<std::string_view> Umbrechen(std::string_view text, float breite,
                                                      const Breitenmass& messen);
