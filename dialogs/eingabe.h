// The input service: asks for one line of text. Knows nothing of what the text is for.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

inline std::string InputVorgabe;      // the text proposed
inline std::string InputErgebnis;     // the result; a cancelled dialog gives the proposal back
inline std::int16_t InputAbbruch = 0; // 1 after Abbrechen; nothing reads it

// Asks for a line. bildNr 1 to 8; nummer is kept and otherwise unused. Returns InputErgebnis.
const std::string& Eingabe(int bildNr, std::string_view titel, std::string_view text,
                           std::string_view vorgabe, int nummer);
