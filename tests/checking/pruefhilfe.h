// What the tests of the check share: forms as values, and findings as lines that can be read.
#pragma once

#include "checking/pruefung.h"
#include "printing/zeichnung.h"

#include <string>
#include <vector>

// A letter is as wide as the font's size in tenths of a millimetre, a line half of it high.
class Pruefmass final : public Schriftmass {
public:
    [[nodiscard]] Millimeter Breite(std::string_view text, const Schrift& schrift) const override {
        return Millimeter(static_cast<float>(text.size()) * schrift.groesse.zahl() * 0.1F);
    }
    [[nodiscard]] Millimeter Hoehe(const Schrift& schrift) const override {
        return Millimeter(schrift.groesse.zahl() * 0.5F);
    }
};

inline Spielwerte VollesBrett() {
    Spielwerte spiel;
    spiel.AnzahlWissen = anzahlGebiete;
    spiel.FragenProWissen = fragenJeGebiet;
    spiel.Felder.fill(2);
    spiel.Papierformat = "A4 quer";
    return spiel;
}

// Thirty questions about which there is nothing to say, and their answers.
inline Quizformular GutesFormular() {
    constexpr std::array<const char*, 6> was{"Berg", "Fluss", "Turm", "Vogel", "Fisch", "Baum"};
    constexpr std::array<const char*, 5> woher{"Norwegen", "Portugal", "Kanada", "Ungarn", "Japan"};
    Quizformular form;
    for (std::size_t n = 1; n <= anzahlFelder; ++n) {
        const auto gebiet = static_cast<std::size_t>(GebietVon(static_cast<int>(n)) - 1);
        const auto zeile = static_cast<std::size_t>(ZeileVon(static_cast<int>(n)) - 1);
        form.FrageText.at(n) = std::string("Welcher ") + was.at(gebiet) + " aus " + woher.at(zeile) + "?";
        form.AntwortText.at(n) = "Antwort";
    }
    return form;
}

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
