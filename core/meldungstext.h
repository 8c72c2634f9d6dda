// What a message or a question consists of, so that each subsystem can keep its texts in a table. A {} in a
// text stands for a value that Einsetzen puts there. Shows nothing: that is dialogs/meldung.h.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

struct MeldungsText {
    int bild;                // picture, 0 to 11
    std::string_view text;   // lines joined by CR LF
    std::string_view nummer; // corner box
    std::string_view taste;  // caption of the one button
};

struct NachrichtText {
    int bild; // picture, 1 to 12
    std::string_view titel;
    std::string_view text;
    int tasten; // button set, 0 to 4
    int nummer;
};

// The text with each {} replaced by the values in turn. Values are put in as they are, also with a {} in
// them.
[[nodiscard]] std::string Einsetzen(std::string_view text, std::initializer_list<std::string_view> werte);

// Answers of a question.
enum class Antwort : std::uint8_t { OK, Abbrechen, Ja, Nein };
