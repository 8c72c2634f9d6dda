// The stored copy of a test form: ten rows, the head and the total. It lives from one new or opened form to
// the next. Written by HB_Merken, the spin controls and the form file's reader. Index 0 isn't used.
#pragma once

#include <array>
#include <cstdint>
#include <string>

inline constexpr int anzahlTestfragen = 10;

inline std::array<std::string, anzahlTestfragen + 1> HBFrageText;
inline std::array<std::string, anzahlTestfragen + 1> HBAntwortText;
inline std::array<std::int16_t, anzahlTestfragen + 1> HBPunkte{};

inline std::string HBFach;
inline std::int16_t HBGesamtpunkte = 0;

// Captions of title, subject and group as the form file holds them.
inline std::string HBKopf1, HBKopf2, HBKopf3;

// Path that the open test form was opened from or saved to, "" for none.
inline std::string HBDateiName;
