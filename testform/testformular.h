// A test form as a value: ten rows, the head and the total. The module's object is the stored copy of the
// open form: it lives from one new or opened form to the next. Written by HB_Merken, the spin controls and
// the form file's reader. Index 0 isn't used.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

inline constexpr int anzahlTestfragen = 10;

// Where a text stands, as the user is told: "Frage 3".
[[nodiscard]] inline std::string Zeilenname(int i, std::string_view was) {
    return std::string(was) + ' ' + std::to_string(i);
}

struct Testformular {
    std::array<std::string, anzahlTestfragen + 1> HBFrageText;
    std::array<std::string, anzahlTestfragen + 1> HBAntwortText;
    std::array<std::int16_t, anzahlTestfragen + 1> HBPunkte{};

    std::string HBFach;
    std::int16_t HBGesamtpunkte = 0;

    // Captions of title, subject and group as the form file holds them.
    std::string HBKopf1, HBKopf2, HBKopf3;

    friend bool operator==(const Testformular&, const Testformular&) = default;
};

// How the points stand on the screen, beyond what a form file has: captions, "" where they are blanked, and
// whether the total shows.
struct Punktanzeige {
    std::array<std::string, anzahlTestfragen + 1> punkte;
    bool summe = false;

    friend bool operator==(const Punktanzeige&, const Punktanzeige&) = default;
};

inline Testformular HBForm;
