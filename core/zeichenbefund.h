// What became of characters that code page 1252 doesn't hold while a text was typed or pasted, and how the
// user is told: each character once, with its number where there were more.
#pragma once

#include <string>
#include <vector>

struct Zeichenbefund {
    struct Eintrag {
        char32_t zeichen = 0;
        std::string ersatz; // what stands there instead, "" for nothing
        int anzahl = 0;
    };
    std::vector<Eintrag> eintraege; // in the order of their first appearance

    [[nodiscard]] bool leer() const { return eintraege.empty(); }
    void Notieren(char32_t zeichen, const std::string& ersatz);
};

// The text for the status help; "" for an empty record.
[[nodiscard]] std::string ZeichenHinweis(const Zeichenbefund& befund);
