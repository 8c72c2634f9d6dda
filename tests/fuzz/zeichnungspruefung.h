// What the properties of pages share: forms made of an input, a measure of text, and what holds for every
// drawing.
#pragma once

#include "core/cp1252.h"
#include "printing/zeichnung.h"
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "tests/fuzz/eigenschaften.h"

#include <algorithm>
#include <cmath>

namespace fuzz {

// Every letter as wide as the next.
class Gleichbreit : public Schriftmass {
public:
    [[nodiscard]] Millimeter Breite(std::string_view text, const Druckschrift& schrift) const override {
        return Millimeter(0.2F * schrift.groesse.zahl() * static_cast<float>(text.size()));
    }
    [[nodiscard]] Millimeter Hoehe(const Druckschrift& schrift) const override {
        return Millimeter(0.35F * schrift.groesse.zahl());
    }
};

inline std::string OhneLeeres(std::string_view text) {
    std::string rest(text);
    std::erase_if(rest, [](char z) { return z == ' ' || z == '\r' || z == '\n'; });
    return rest;
}

inline void LinienPruefen(const Zeichnung& zeichnung) {
    for (const Element& element : zeichnung) {
        const bool endlich = std::visit(
            [](const auto& e) {
                if constexpr (requires { e.x1; }) {
                    return std::isfinite(e.x1.zahl() + e.y1.zahl() + e.x2.zahl() + e.y2.zahl());
                } else if constexpr (requires { e.x; }) {
                    return std::isfinite(e.x.zahl() + e.y.zahl());
                } else {
                    return !e.flaeche || std::isfinite(e.flaeche->x.zahl() + e.flaeche->y.zahl());
                }
            },
            element);
        Verlange(endlich, "everything has a place");
    }
}

struct Zufallsform {
    Quizformular quiz;
    Spielwerte spiel;
};

inline Zufallsform FormAus(Eingabe& eingabe) {
    Zufallsform form;
    form.spiel.OptionTitel = form.spiel.OptionRahmen = eingabe.Wahl(2) == 1;
    form.spiel.OptionMaxFelder = form.spiel.OptionMaxWissen = eingabe.Wahl(2) == 1;
    form.spiel.FragenProWissen = static_cast<std::int16_t>(eingabe.Wahl(8) - 1);
    form.spiel.AnzahlWissen = static_cast<std::int16_t>(eingabe.Wahl(9) - 1);
    form.quiz.FormNr = eingabe.Stueck();
    form.quiz.WissenTitel[2] = eingabe.Stueck();
    for (std::size_t n = 1; n < form.quiz.FrageText.size() && !eingabe.rest.empty(); ++n) {
        form.quiz.FeldSpezial[n] = std::string(1, "JGREA \"x"[eingabe.Wahl(8)]);
        form.quiz.FrageText[n] = AusCp1252(eingabe.Stueck());
        form.quiz.AntwortText[n] = AusCp1252(eingabe.Stueck());
    }
    return form;
}

} // namespace fuzz
