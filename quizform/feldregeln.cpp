#include "quizform/feldregeln.h"

namespace {

// Rows that stay for 1 to 4 questions an area.
constexpr std::array<std::array<bool, fragenJeGebiet + 1>, 5> bleibendeZeilen{{
    {},
    {false, false, false, true, false, false},
    {false, false, true, false, true, false},
    {false, true, false, true, false, true},
    {false, true, true, false, true, true},
}};

constexpr FeldSicht verborgen{false, false, false, false};

} // namespace

bool ZeileBleibt(int zeile, int fragenProWissen) {
    if (fragenProWissen < 1 || fragenProWissen > 4) {
        return true;
    }
    return bleibendeZeilen.at(static_cast<std::size_t>(fragenProWissen)).at(static_cast<std::size_t>(zeile));
}

void FragenRegelAnwenden(Feldsichten& sichten, int fragenProWissen) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        FeldSicht& sicht = sichten.at(static_cast<std::size_t>(n));
        if (!ZeileBleibt(ZeileVon(n), fragenProWissen)) {
            sicht = verborgen;
        } else if (fragenProWissen == 1) {
            sicht.punkte = false; // meant: with one question an area no points panel shows
        }
    }
}

void WissenRegelAnwenden(Feldsichten& sichten, int anzahlWissen) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        if (GebietGeschlossen(GebietVon(n), anzahlWissen)) {
            sichten.at(static_cast<std::size_t>(n)) = verborgen;
        }
    }
}

bool GebietGeschlossen(int gebiet, int anzahlWissen) {
    return anzahlWissen >= 1 && anzahlWissen <= 5 && gebiet > anzahlWissen;
}

Feldsichten BrettSichten(const Spielwerte& spiel) {
    Feldsichten sichten;
    if (spiel.OptionMaxFelder) {
        FragenRegelAnwenden(sichten, spiel.FragenProWissen);
    }
    if (spiel.OptionMaxWissen) {
        WissenRegelAnwenden(sichten, spiel.AnzahlWissen);
    }
    return sichten;
}

bool GebietOffen(const Spielwerte& spiel, int gebiet) {
    return !spiel.OptionMaxWissen || !GebietGeschlossen(gebiet, spiel.AnzahlWissen);
}
