#include "printing/zeilenumbruch.h"

#include <cstddef>

namespace {

constexpr auto keins = std::string_view::npos;

// The text and the part of it that has been read but not printed.
struct Puffer {
    std::string_view text;
    std::size_t beginn = 0;
    std::size_t letztesLeer = keins; // last blank inside the buffer

    [[nodiscard]] std::string_view Bis(std::size_t ende) const { return text.substr(beginn, ende - beginn); }
};

// Ends a line at the previous blank when the buffer up to ende is too wide.
void BeiLeerzeichen(Puffer& puffer, std::size_t ende, float breite, const Breitenmass& messen,
                    std::vector<std::string_view>& zeilen) {
    if (puffer.letztesLeer == keins || messen(puffer.Bis(ende)) <= breite) {
        return;
    }
    zeilen.push_back(puffer.Bis(puffer.letztesLeer));
    puffer.beginn = puffer.letztesLeer + 1;
    puffer.letztesLeer = keins;
}

} // namespace

std::vector<std::string_view> Umbrechen(std::string_view text, float breite, const Breitenmass& messen) {
    std::vector<std::string_view> zeilen;
    Puffer puffer{text};
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char zeichen = text[i];
        if (zeichen == ' ') {
            BeiLeerzeichen(puffer, i + 1, breite, messen, zeilen);
            puffer.letztesLeer = i;
        } else if (zeichen == '\r' || zeichen == '\n') {
            BeiLeerzeichen(puffer, i, breite, messen, zeilen);
            zeilen.push_back(puffer.Bis(i));
            if (zeichen == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
                ++i;
            }
            puffer.beginn = i + 1;
            puffer.letztesLeer = keins;
        }
    }
    zeilen.push_back(puffer.Bis(text.size()));
    return zeilen;
}
