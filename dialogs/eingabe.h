// The input service: asks for one line of text. Knows nothing of what the text is for.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Asks for a line. bildNr 1 to 8; vorgabe is the text proposed. No value after Abbrechen.
std::optional<std::string> Eingabe(int bildNr, std::string_view titel, std::string_view text,
                                   std::string_view vorgabe);
