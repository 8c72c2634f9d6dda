// Boxes around texts on paper, and findings about what reaches out of its place: what the checks of all
// sheets have in common.
#pragma once

#include "checking/papierpruefung.h"

class Sammler {
public:
    explicit Sammler(Papierbefunde& befunde) : befunde_(befunde) {}
    // text: with a {} for the millimetres. What rounds to less than a tenth of one doesn't count.
    void Ueberstand(const Befundort& ort, std::string_view text, Millimeter laenge, const Flaeche& kasten);

private:
    Papierbefunde& befunde_;
};

// The texts of a drawing that a condition holds for.
template <typename Gesucht>
[[nodiscard]] std::vector<Textstelle> Texte(const Zeichnung& zeichnung, Gesucht gesucht) {
    std::vector<Textstelle> texte;
    for (const Element& element : zeichnung) {
        if (const auto* text = std::get_if<Textstelle>(&element); text != nullptr && gesucht(*text)) {
            texte.push_back(*text);
        }
    }
    return texte;
}

// The box around lines; blanks at the end of a line can't be seen.
[[nodiscard]] Flaeche Kasten(const std::vector<Textstelle>& zeilen, const Schriftmass& mass);
[[nodiscard]] Millimeter RechterRand(const Flaeche& kasten);
[[nodiscard]] Millimeter UntererRand(const Flaeche& kasten);
