#include "persistence/formulardatei.h"

#include "persistence/abschnitt.h"
#include "persistence/formularabschnitte.h"

#include <array>

namespace {

constexpr std::string_view typwort = "Feldkranz";

std::array<Abschnitt, 8> Abschnitte(Formularwerte& werte) {
    return {{{"[FKINI]", [&](WertLeser& l) { LeseFKIni(l, werte); }},
             {"[ALLGEMEINES]", [&](WertLeser& l) { LeseAllgemeines(l, werte.quiz); }},
             {"[HB-ALLGEMEINES]", [&](WertLeser& l) { LeseHBAllgemeines(l, werte.test); }},
             {"[FRAGEN]", [&](WertLeser& l) { LeseFragen(l, werte.quiz); }},
             {"[HB-FRAGEN]", [&](WertLeser& l) { LeseHBFragen(l, werte.test); }},
             {"[FKPUNKTE]", [&](WertLeser& l) { LeseFKPunkte(l, werte.spiel); }},
             {"[HILFE]", [&](WertLeser& l) { LeseHilfe(l, werte.spiel); }},
             {"[BEMERKUNG]", [&](WertLeser& l) { werte.Bemerkung = l.Text(); }}}};
}

// Values that no form can do without. The points of Risiko and the five counts are left as they are, and that
// is meant.
void FehlendeWerteErgaenzen(Spielwerte& spiel) {
    const auto ergaenzen = [](std::int16_t& wert, std::int16_t vorgabe) {
        wert = wert == 0 ? vorgabe : wert;
    };
    ergaenzen(spiel.Punkte[Spezialart::Aktion], 5);
    ergaenzen(spiel.Punkte[Spezialart::Ereignis], 10);
    ergaenzen(spiel.Punkte[Spezialart::Glueck], 10);
    ergaenzen(spiel.Punkte[Spezialart::Joker], 5);
    ergaenzen(spiel.FarbeHintergrund, 7);
}

// Type word and kind. No value where the file goes on.
std::optional<Leseende> KopfLesen(WertLeser& leser, Formart offen, Formart& kennung) {
    if (leser.Token() != typwort) {
        return Leseende::KeinFormular;
    }
    kennung = ArtVonKennung(leser.Text());
    return offen != Formart::Keine && kennung != offen ? std::optional(Leseende::Abgelehnt) : std::nullopt;
}

} // namespace

bool IstFormular(std::string_view bytes) {
    WertLeser leser(bytes);
    return !leser.AmEnde() && leser.Token() == typwort;
}

bool FormularAnnehmbar(std::string_view bytes, Formart offen) {
    try {
        Formart kennung = Formart::Keine;
        WertLeser leser(bytes);
        return leser.AmEnde() || !KopfLesen(leser, offen, kennung);
    } catch (const Laufzeitfehler&) {
        return false; // cut short inside its head
    }
}

std::string FormularBytes(const Quizformular& form, const Spielwerte& spiel) {
    WertSchreiber schreiber;
    schreiber.Text(typwort);
    schreiber.Text(Formkennung(Formart::Quiz));
    SchreibeFKIni(schreiber, spiel);
    SchreibeAllgemeines(schreiber, form);
    SchreibeFKPunkte(schreiber, spiel);
    SchreibeFragen(schreiber, form);
    return schreiber.bytes();
}

std::string FormularBytes(const Testformular& form) {
    WertSchreiber schreiber;
    schreiber.Text(typwort);
    schreiber.Text(Formkennung(Formart::Test));
    SchreibeHBAllgemeines(schreiber, form);
    SchreibeHBFragen(schreiber, form);
    return schreiber.bytes();
}

std::string FormularBytes(Formart art, const Formularwerte& werte) {
    switch (art) {
    case Formart::Quiz:
        return FormularBytes(werte.quiz, werte.spiel);
    case Formart::Test:
        return FormularBytes(werte.test);
    default: {
        WertSchreiber schreiber;
        schreiber.Text(typwort);
        return schreiber.bytes();
    }
    }
}

FormularErgebnis FormularAusBytes(std::string_view bytes, Formart offen, Formularwerte& werte,
                                  const WertLeser::Fehlermelder& melder) {
    FormularErgebnis ergebnis;
    WertLeser leser(bytes, [&melder](const Laufzeitfehler& fehler) {
        if (melder) {
            melder(fehler);
        }
    });
    try {
        // An empty file counts as read to the end.
        if (!leser.AmEnde()) {
            if (const auto ende = KopfLesen(leser, offen, ergebnis.kennung)) {
                ergebnis.ende = *ende;
                return ergebnis;
            }
            werte.art = ergebnis.kennung;
        }
        AbschnitteLesen(leser, Abschnitte(werte));
        FehlendeWerteErgaenzen(werte.spiel);
        ergebnis.ende = Leseende::Ganz;
    } catch (const Laufzeitfehler& fehler) {
        ergebnis.fehler = fehler;
    }
    return ergebnis;
}

std::optional<FKIni> FKIniAusBytes(std::string_view bytes) {
    std::optional<FKIni> ergebnis;
    WertLeser leser(bytes);
    while (!leser.AmEnde()) {
        if (IstMarke(leser.Token(), "[FKINI]")) {
            Formularwerte werte;
            LeseFKIni(leser, werte);
            ergebnis = {werte.spiel.FelderGesamt, werte.spiel.FragenProWissen, werte.spiel.AnzahlWissen};
        }
    }
    return ergebnis;
}
