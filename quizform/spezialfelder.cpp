#include "quizform/spezialfelder.h"

#include "core/laufzeitfehler.h"
#include "core/pfadname.h"
#include "settings/einstellungen.h"
#include "settings/skalierung.h"

#include <algorithm>

namespace {

struct Artfarben {
    std::optional<Farbe> grund;
    Farbe schrift;
};

constexpr std::array<Artfarben, anzahlArten> punkteFarben{{{Farbe{0, 0, 255}, farbeGelb},
                                                           {Farbe{255, 127, 0}, farbeWeiss},
                                                           {Farbe{0, 255, 0}, farbeSchwarz},
                                                           {Farbe{255, 255, 0}, farbeSchwarz},
                                                           {Farbe{255, 0, 0}, farbeWeiss}}};

constexpr int artA = 0;
constexpr int artE = 1;
constexpr int artR = 4;

std::size_t Stelle(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

void FK_Vorgaben() {
    VorgabePunkte = werkPunkte;
    VorgabeFelder = werkFelder;
}

int SpezialIndex(std::string_view buchstabe) {
    const auto* const fund = std::find(spezialBuchstaben.begin(), spezialBuchstaben.end(), buchstabe);
    return fund == spezialBuchstaben.end() ? -1 : static_cast<int>(fund - spezialBuchstaben.begin());
}

std::string SpezialBuchstabe(std::string_view eintrag) {
    return Getrimmt(eintrag.substr(0, 2));
}

std::int16_t FelderGrenze(int art) {
    return std::array{FelderA, FelderE, FelderG, FelderJ, FelderR}.at(Stelle(art));
}

std::int16_t PunkteWert(int art) {
    return std::array{PunkteA, PunkteE, PunkteG, PunkteJ, PunkteR}.at(Stelle(art));
}

bool GrenzeErreicht(int art) {
    const std::int16_t anzahl = SpezialAnzahl.at(Stelle(art));
    const std::int16_t grenze = FelderGrenze(art);
    return art == artA || art == artE ? grenze <= anzahl : anzahl == grenze;
}

void SpezialAnzahlZaehlen(const std::array<std::string, anzahlFelder + 1>& buchstaben) {
    SpezialAnzahl.fill(0);
    for (int n = 1; n <= anzahlFelder; ++n) {
        const int art = SpezialIndex(buchstaben.at(Stelle(n)));
        if (art >= 0) {
            ++SpezialAnzahl.at(Stelle(art));
        }
    }
}

PunkteBild PunkteBildFuer(std::string_view buchstabe, int feldPunkte) {
    const int art = SpezialIndex(buchstabe);
    if (art < 0) {
        return {std::to_string(feldPunkte), std::nullopt, farbeSchwarz};
    }
    const Artfarben farben = punkteFarben.at(Stelle(art));
    if (art == artR) {
        return {"..", farben.grund, farben.schrift}; // the stake is set in play
    }
    const int wert = art == artA ? feldPunkte : PunkteWert(art);
    return {std::to_string(wert), farben.grund, farben.schrift};
}

int FaelligerRegelHinweis() {
    for (int art = 0; art < anzahlArten; ++art) {
        const bool taste = RegelTaste == spezialBuchstaben.at(Stelle(art)).front();
        const std::int16_t anzahl = SpezialAnzahl.at(Stelle(art));
        if (taste && anzahl == VorgabeFelder.at(Stelle(art)) && (art != artE || anzahl > 0)) {
            RegelTaste = 0;
            RegelHinweis = 1;
            return art;
        }
    }
    return -1;
}
