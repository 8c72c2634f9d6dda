#include "core/zustand.h"
#include "editor/editordaten.h"
#include "persistence/abschnitt.h"
#include "persistence/formulardatei.h"
#include "quizform/formdaten.h"
#include "settings/einstellungen.h"
#include "testform/formdaten.h"

#include <array>

namespace {

constexpr std::array<Platz, 5> fkIni{&FormTyp, &FelderGesamt, &FragenProWissen, &AnzahlWissen, reserviert};

constexpr std::array<Platz, 3> allgemeines{&FormNr, &FormDatum, &FormZeit};

// Kinds in the order A, G, J, R, E and the count first: unlike the settings file, and meant.
constexpr std::array<Platz, 15> fkPunkte{
    &FelderA, &PunkteA, &FelderG,   &PunkteG,   &FelderJ,   &PunkteJ,         &FelderR,         &PunkteR,
    &FelderE, &PunkteE, reserviert, reserviert, reserviert, &Zwischenabstand, &FarbeHintergrund};

constexpr std::array<Platz, 3> hbAllgemeines{&HBKopf1, &HBKopf2, &HBKopf3};

constexpr std::array<Platz, 10> hilfe{&HilfeEintrag[1], &HilfeEintrag[2], &HilfeEintrag[3], &HilfeEintrag[4],
                                      &HilfeEintrag[5], reserviert,       reserviert,       reserviert,
                                      reserviert,       reserviert};

} // namespace

void SchreibeFKIni(WertSchreiber& schreiber) {
    schreiber.Text("[FKINI]");
    // The tag of the layout, also should FormTyp say something else: a file without it would open no form.
    schreiber.Text("FK");
    PlaetzeSchreiben(schreiber, std::span(fkIni).subspan(1));
}

void LeseFKIni(WertLeser& leser) {
    // The tag overwrites the one at the head of the file without any check, and that is meant.
    PlaetzeLesen(leser, fkIni);
}

void SchreibeAllgemeines(WertSchreiber& schreiber) {
    schreiber.Text("[ALLGEMEINES]");
    PlaetzeSchreiben(schreiber, allgemeines);
}

void LeseAllgemeines(WertLeser& leser) {
    PlaetzeLesen(leser, allgemeines);
}

void SchreibeFKPunkte(WertSchreiber& schreiber) {
    schreiber.Text("[FKPUNKTE]");
    PlaetzeSchreiben(schreiber, fkPunkte);
}

void LeseFKPunkte(WertLeser& leser) {
    PlaetzeLesen(leser, fkPunkte);
}

// All six areas and all thirty cells, whatever the shape of the board.
void SchreibeFragen(WertSchreiber& schreiber) {
    schreiber.Text("[FRAGEN]");
    for (std::size_t a = 1; a <= anzahlGebiete; ++a) {
        schreiber.Text(WissenTitel[a]);
        for (std::size_t n = fragenJeGebiet * (a - 1) + 1; n <= fragenJeGebiet * a; ++n) {
            schreiber.Text(FrageText[n]);
            schreiber.Text(AntwortText[n]);
            schreiber.Text(FeldSpezial[n]);
        }
    }
}

void LeseFragen(WertLeser& leser) {
    for (std::size_t a = 1; a <= anzahlGebiete; ++a) {
        WissenTitel[a] = leser.Text();
        for (std::size_t n = fragenJeGebiet * (a - 1) + 1; n <= fragenJeGebiet * a; ++n) {
            FrageText[n] = leser.Text();
            AntwortText[n] = leser.Text();
            FeldSpezial[n] = leser.Text();
        }
    }
}

void SchreibeHBAllgemeines(WertSchreiber& schreiber) {
    schreiber.Text("[HB-ALLGEMEINES]");
    PlaetzeSchreiben(schreiber, hbAllgemeines);
}

void LeseHBAllgemeines(WertLeser& leser) {
    PlaetzeLesen(leser, hbAllgemeines);
}

void SchreibeHBFragen(WertSchreiber& schreiber) {
    schreiber.Text("[HB-FRAGEN]");
    schreiber.Text(HBFach);
    for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
        schreiber.Text(HBFrageText[i]);
        schreiber.Text(HBAntwortText[i]);
        schreiber.Ganzzahl(HBPunkte[i]);
    }
    schreiber.Ganzzahl(HBGesamtpunkte);
}

void LeseHBFragen(WertLeser& leser) {
    HBFach = leser.Text();
    for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
        HBFrageText[i] = leser.Text();
        HBAntwortText[i] = leser.Text();
        HBPunkte[i] = leser.Ganzzahl();
    }
    HBGesamtpunkte = leser.Ganzzahl();
}

void SchreibeHilfe(WertSchreiber& schreiber) {
    schreiber.Text("[HILFE]");
    PlaetzeSchreiben(schreiber, hilfe);
}

void LeseHilfe(WertLeser& leser) {
    PlaetzeLesen(leser, hilfe);
}

void LeseBemerkung(WertLeser& leser) {
    Bemerkung = leser.Text();
}
