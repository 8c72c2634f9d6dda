#include "persistence/formulardatei.h"

#include "core/cp1252.h"
#include "core/zustand.h"
#include "persistence/abschnitt.h"
#include "settings/einstellungen.h"

#include <array>

namespace {

constexpr std::string_view kennungFormular = "Feldkranz";

constexpr std::array<Abschnitt, 8> abschnitte{{{"[FKINI]", LeseFKIni},
                                               {"[ALLGEMEINES]", LeseAllgemeines},
                                               {"[HB-ALLGEMEINES]", LeseHBAllgemeines},
                                               {"[FRAGEN]", LeseFragen},
                                               {"[HB-FRAGEN]", LeseHBFragen},
                                               {"[FKPUNKTE]", LeseFKPunkte},
                                               {"[HILFE]", LeseHilfe},
                                               {"[BEMERKUNG]", LeseBemerkung}}};

// Values that no form can do without. PunkteR and the five counts are left as they are, and that is meant.
void FehlendeWerteErgaenzen() {
    struct Vorgabe {
        std::int16_t* wert;
        std::int16_t vorgabe;
    };
    constexpr std::array<Vorgabe, 5> vorgaben{
        {{&PunkteA, 5}, {&PunkteE, 10}, {&PunkteG, 10}, {&PunkteJ, 5}, {&FarbeHintergrund, 7}}};
    for (const Vorgabe& v : vorgaben) {
        if (*v.wert == 0) {
            *v.wert = v.vorgabe;
        }
    }
}

// Type word and mode tag; the result's code is set where the file goes no further.
void KopfLesen(WertLeser& leser, FormularErgebnis& ergebnis) {
    if (leser.Token() != kennungFormular) {
        ergebnis.code = 1;
        return;
    }
    ergebnis.kennung = leser.Text();
    if (!FormTyp.empty() && ergebnis.kennung != FormTyp) {
        ergebnis.code = 2;
    }
}

} // namespace

bool IstFormular(std::string_view bytes) {
    WertLeser leser(bytes);
    return !leser.AmEnde() && leser.Token() == kennungFormular;
}

bool FormularAnnehmbar(std::string_view bytes) {
    FormularErgebnis ergebnis;
    try {
        WertLeser leser(bytes);
        if (!leser.AmEnde()) {
            KopfLesen(leser, ergebnis);
        }
    } catch (const Laufzeitfehler&) {
        return false; // cut short inside its head
    }
    return !ergebnis.code;
}

std::string FormularBytes(std::string_view tag) {
    WertSchreiber schreiber;
    schreiber.Text(kennungFormular);
    if (tag == "FKFragen") {
        schreiber.Text("FK");
        SchreibeFKIni(schreiber);
        SchreibeAllgemeines(schreiber);
        SchreibeFKPunkte(schreiber);
        SchreibeFragen(schreiber);
    } else if (tag == "HBFragen") {
        schreiber.Text("Test");
        SchreibeHBAllgemeines(schreiber);
        SchreibeHBFragen(schreiber);
    }
    return schreiber.bytes();
}

FormularErgebnis FormularAusBytes(std::string_view bytes, const WertLeser::Fehlermelder& melder) {
    FormularErgebnis ergebnis;
    WertLeser leser(bytes, [&melder](const Laufzeitfehler& fehler) {
        if (melder) {
            melder(fehler);
        }
    });
    try {
        // An empty file counts as read to the end.
        if (!leser.AmEnde()) {
            KopfLesen(leser, ergebnis);
            FormTyp = ergebnis.code ? FormTyp : ergebnis.kennung;
        }
        if (!ergebnis.code) {
            AbschnitteLesen(leser, abschnitte);
            FehlendeWerteErgaenzen();
            ergebnis.code = 0;
        }
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
            FKIni werte;
            werte.formTyp = leser.Text();
            werte.felderGesamt = leser.Ganzzahl();
            werte.fragenProWissen = leser.Ganzzahl();
            werte.anzahlWissen = leser.Ganzzahl();
            leser.Token();
            ergebnis = werte;
        }
    }
    return ergebnis;
}
