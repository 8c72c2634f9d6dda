#include "filling/befund.h"

#include "core/meldungstext.h"
#include "filling/testfuellung.h"
#include "filling/texte.h"
#include "quizform/quizformular.h"

#include <initializer_list>

namespace {

using fuelltexte::Mengentext;

std::string Mit(const Mengentext& text, std::size_t anzahl, std::initializer_list<std::string_view> werte) {
    return Einsetzen(anzahl == 1 ? text.eines : text.mehrere, werte);
}

// "Gebiet 2 (Frage 3, 5), Gebiet 4 (Frage 1)"
std::string OhneFrage(const Fuellauftrag& auftrag, const Vorschlag& vorschlag) {
    std::string orte;
    int gebiet = 0;
    for (int n = 1; n <= anzahlFelder; ++n) {
        const auto stelle = static_cast<std::size_t>(n);
        if (auftrag.felder.at(stelle).lage != Feldlage::Leer || vorschlag.at(stelle)) {
            continue;
        }
        if (GebietVon(n) == gebiet) {
            orte += ", ";
        } else {
            orte += gebiet == 0 ? "" : "), ";
            gebiet = GebietVon(n);
            orte += "Gebiet " + std::to_string(gebiet) + " (Frage ";
        }
        orte += std::to_string(ZeileVon(n));
    }
    return orte + (gebiet == 0 ? "" : ")");
}

// How many of the empty ones get a question, without a full stop.
std::string Gefuellte(const Fuellauftrag& auftrag, const Vorschlag& vorschlag) {
    const std::size_t leere = auftrag.leere();
    const std::size_t gefuellt = Anzahl(vorschlag);
    if (gefuellt == 0) {
        return Mit(fuelltexte::keines, leere, {std::to_string(leere)});
    }
    if (gefuellt == leere) {
        return Mit(fuelltexte::alle, leere, {std::to_string(leere)});
    }
    return Einsetzen(fuelltexte::einige, {std::to_string(gefuellt), std::to_string(leere)});
}

} // namespace

std::string Leerbefund(const Fuellauftrag& auftrag) {
    const std::size_t leere = auftrag.leere();
    return leere == 0 ? std::string(fuelltexte::nichtsLeer)
                      : Mit(fuelltexte::leere, leere, {std::to_string(leere)});
}

std::string Brettbefund(const Fuellauftrag& auftrag, const Vorschlag& vorschlag) {
    if (auftrag.leere() == 0) {
        return std::string(fuelltexte::nichtsLeer);
    }
    const std::string satz = Gefuellte(auftrag, vorschlag);
    const std::size_t gefuellt = Anzahl(vorschlag);
    return gefuellt == 0 || gefuellt == auftrag.leere()
               ? satz + "."
               : satz + Einsetzen(fuelltexte::ohneFrage, {OhneFrage(auftrag, vorschlag)});
}

std::string Testbefund(const Fuellauftrag& auftrag, const Vorschlag& vorschlag,
                       std::optional<int> zielpunkte) {
    if (auftrag.leere() == 0) {
        return std::string(fuelltexte::nichtsLeer);
    }
    const std::string satz = Gefuellte(auftrag, vorschlag);
    if (Anzahl(vorschlag) == 0) {
        return satz + ".";
    }
    const std::string summe = std::to_string(Gesamtpunkte(auftrag, vorschlag));
    if (zielpunkte && std::to_string(*zielpunkte) != summe) {
        return Einsetzen(fuelltexte::zielVerfehlt, {satz, std::to_string(*zielpunkte), summe});
    }
    return Einsetzen(fuelltexte::mitSumme, {satz, summe});
}
