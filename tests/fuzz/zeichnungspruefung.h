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

// True where everything has a place.
struct Endlich {
    template <typename Teil>
    bool operator()(const Teil& teil) const {
        return std::isfinite(teil.x.zahl() + teil.y.zahl());
    }
    bool operator()(const Strich& strich) const {
        return std::isfinite(strich.x1.zahl() + strich.y1.zahl() + strich.x2.zahl() + strich.y2.zahl());
    }
    bool operator()(const Zuschnitt& zuschnitt) const {
        return !zuschnitt.flaeche || (*this)(*zuschnitt.flaeche);
    }
};

inline void LinienPruefen(const Zeichnung& zeichnung) {
    for (const Element& element : zeichnung) {
        Verlange(std::visit(Endlich{}, element), "everything has a place");
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
