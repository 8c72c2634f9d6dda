#include "checking/pruefzeile.h"

#include "quizform/feldregeln.h"
#include "rules/spezialarten.h"
#include "rules/spezialfelder.h"

bool IstLeer(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

std::vector<Pruefzeile> Pruefzeilen(const Quizformular& form, const Spielwerte& spiel) {
    std::vector<Pruefzeile> zeilen;
    const Feldsichten sichten = BrettSichten(spiel);
    for (int n = 1; n <= anzahlFelder; ++n) {
        const auto i = static_cast<std::size_t>(n);
        const auto art = ArtVon(form.FeldSpezial.at(i));
        if (sichten.at(i).frage && (!art || ArtzeileVon(*art).druckWort.empty())) {
            zeilen.push_back({{Formart::Quiz, Teil::Frage, n}, form.FrageText.at(i), form.AntwortText.at(i)});
        }
    }
    return zeilen;
}

std::vector<Pruefzeile> Pruefzeilen(const Testformular& form) {
    std::vector<Pruefzeile> zeilen;
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        const auto i = static_cast<std::size_t>(n);
        zeilen.push_back({{Formart::Test, Teil::Frage, n}, form.HBFrageText.at(i), form.HBAntwortText.at(i)});
    }
    return zeilen;
}
