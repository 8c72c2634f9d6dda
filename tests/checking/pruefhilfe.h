// What the tests of the rules share: a measure of text, and findings as lines that can be read.
#pragma once

#include "checking/pruefung.h"
#include "printing/zeichnung.h"
#include "tests/checking/pruefformular.h"

#include <string>
#include <vector>

// A letter is as wide as the font's size in tenths of a millimetre, a line half of it high.
class Pruefmass final : public Schriftmass {
public:
    [[nodiscard]] Millimeter Breite(std::string_view text, const Druckschrift& schrift) const override {
        return Millimeter(static_cast<float>(text.size()) * schrift.groesse.zahl() * 0.1F);
    }
    [[nodiscard]] Millimeter Hoehe(const Druckschrift& schrift) const override {
        return Millimeter(schrift.groesse.zahl() * 0.5F);
    }
};

inline Formularstand Stand(const Quizformular& form, const Spielwerte& spiel = VollesBrett()) {
    return {Quizstand{form, form}, spiel};
}

// "Fehler | Gebiet 1, Frage 2 | ..."
inline std::vector<std::string> Zeilen(const Befunde& befunde) {
    std::vector<std::string> zeilen;
    for (const Befund& befund : befunde) {
        zeilen.push_back(std::string(Schwerewort(befund.schwere)) + " | " + Ortsname(befund.ort) + " | " +
                         befund.text);
    }
    return zeilen;
}

inline std::vector<std::string> Geprueft(const Formularstand& stand, const Benutzungstext& benutzt = {}) {
    return Zeilen(FormularPruefen(stand, {Pruefmass(), benutzt}));
}
