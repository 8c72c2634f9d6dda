#include "persistence/formularabschnitte.h"

#include "persistence/abschnitt.h"

#include <vector>

namespace {

using Plaetze = std::vector<Platz>;

constexpr std::string_view kennungQuiz = "FK";
constexpr std::string_view kennungTest = "Test";

// Behind the kind's word.
Plaetze FKIniPlaetze(Spielwerte& s) {
    return {&s.FelderGesamt, &s.FragenProWissen, &s.AnzahlWissen, reserviert};
}

Plaetze AllgemeinesPlaetze(Quizformular& f) {
    return {&f.FormNr, &f.FormDatum, &f.FormZeit};
}

// Kinds in the order A, G, J, R, E and the count first: unlike the settings file, and meant.
Plaetze FKPunktePlaetze(Spielwerte& s) {
    Plaetze plaetze;
    for (const Spezialart art : {Spezialart::Aktion, Spezialart::Glueck, Spezialart::Joker,
                                 Spezialart::Risiko, Spezialart::Ereignis}) {
        plaetze.insert(plaetze.end(), {&s.Felder[art], &s.Punkte[art]});
    }
    plaetze.insert(plaetze.end(),
                   {reserviert, reserviert, reserviert, &s.Zwischenabstand, &s.FarbeHintergrund});
    return plaetze;
}

Plaetze HBAllgemeinesPlaetze(Testformular& f) {
    return {&f.HBKopf1, &f.HBKopf2, &f.HBKopf3};
}

Plaetze HilfePlaetze(Spielwerte& s) {
    return {&s.HilfeEintrag[1], &s.HilfeEintrag[2], &s.HilfeEintrag[3], &s.HilfeEintrag[4],
            &s.HilfeEintrag[5], reserviert,         reserviert,         reserviert,
            reserviert,         reserviert};
}

// Writes the places of a copy: they point into what is also read into.
template <typename Wert>
void Schreiben(WertSchreiber& schreiber, std::string_view marke, Plaetze (*plaetze)(Wert&), Wert kopie) {
    schreiber.Text(marke);
    PlaetzeSchreiben(schreiber, plaetze(kopie));
}

} // namespace

std::string_view Formkennung(Formart art) {
    return art == Formart::Quiz ? kennungQuiz : art == Formart::Test ? kennungTest : std::string_view();
}

Formart ArtVonKennung(std::string_view kennung) {
    if (kennung.empty()) {
        return Formart::Keine;
    }
    return kennung == kennungQuiz ? Formart::Quiz : kennung == kennungTest ? Formart::Test : Formart::Fremd;
}

void SchreibeFKIni(WertSchreiber& schreiber, const Spielwerte& spiel) {
    schreiber.Text("[FKINI]");
    // The kind of the layout, whatever is open: a file without it would open no form.
    schreiber.Text(kennungQuiz);
    Spielwerte kopie = spiel;
    PlaetzeSchreiben(schreiber, FKIniPlaetze(kopie));
}

void LeseFKIni(WertLeser& leser, Formularwerte& werte) {
    // The kind overwrites the one at the head of the file without any check, and that is meant.
    werte.art = ArtVonKennung(leser.Text());
    PlaetzeLesen(leser, FKIniPlaetze(werte.spiel));
}

void SchreibeAllgemeines(WertSchreiber& schreiber, const Quizformular& form) {
    Schreiben(schreiber, "[ALLGEMEINES]", AllgemeinesPlaetze, form);
}

void LeseAllgemeines(WertLeser& leser, Quizformular& form) {
    PlaetzeLesen(leser, AllgemeinesPlaetze(form));
}

void SchreibeFKPunkte(WertSchreiber& schreiber, const Spielwerte& spiel) {
    Schreiben(schreiber, "[FKPUNKTE]", FKPunktePlaetze, spiel);
}

void LeseFKPunkte(WertLeser& leser, Spielwerte& spiel) {
    PlaetzeLesen(leser, FKPunktePlaetze(spiel));
}

// All six areas and all thirty cells, whatever the shape of the board.
void SchreibeFragen(WertSchreiber& schreiber, const Quizformular& form) {
    schreiber.Text("[FRAGEN]");
    for (std::size_t a = 1; a <= anzahlGebiete; ++a) {
        schreiber.Text(form.WissenTitel[a]);
        for (std::size_t n = fragenJeGebiet * (a - 1) + 1; n <= fragenJeGebiet * a; ++n) {
            schreiber.Text(form.FrageText[n]);
            schreiber.Text(form.AntwortText[n]);
            schreiber.Text(form.FeldSpezial[n]);
        }
    }
}

void LeseFragen(WertLeser& leser, Quizformular& form) {
    for (std::size_t a = 1; a <= anzahlGebiete; ++a) {
        form.WissenTitel[a] = leser.Text();
        for (std::size_t n = fragenJeGebiet * (a - 1) + 1; n <= fragenJeGebiet * a; ++n) {
            form.FrageText[n] = leser.Text();
            form.AntwortText[n] = leser.Text();
            form.FeldSpezial[n] = leser.Text();
        }
    }
}

void SchreibeHBAllgemeines(WertSchreiber& schreiber, const Testformular& form) {
    Schreiben(schreiber, "[HB-ALLGEMEINES]", HBAllgemeinesPlaetze, form);
}

void LeseHBAllgemeines(WertLeser& leser, Testformular& form) {
    PlaetzeLesen(leser, HBAllgemeinesPlaetze(form));
}

void SchreibeHBFragen(WertSchreiber& schreiber, const Testformular& form) {
    schreiber.Text("[HB-FRAGEN]");
    schreiber.Text(form.HBFach);
    for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
        schreiber.Text(form.HBFrageText[i]);
        schreiber.Text(form.HBAntwortText[i]);
        schreiber.Ganzzahl(form.HBPunkte[i]);
    }
    schreiber.Ganzzahl(form.HBGesamtpunkte);
}

void LeseHBFragen(WertLeser& leser, Testformular& form) {
    form.HBFach = leser.Text();
    for (std::size_t i = 1; i <= anzahlTestfragen; ++i) {
        form.HBFrageText[i] = leser.Text();
        form.HBAntwortText[i] = leser.Text();
        form.HBPunkte[i] = leser.Ganzzahl();
    }
    form.HBGesamtpunkte = leser.Ganzzahl();
}

void SchreibeHilfe(WertSchreiber& schreiber, const Spielwerte& spiel) {
    Schreiben(schreiber, "[HILFE]", HilfePlaetze, spiel);
}

void LeseHilfe(WertLeser& leser, Spielwerte& spiel) {
    PlaetzeLesen(leser, HilfePlaetze(spiel));
}
