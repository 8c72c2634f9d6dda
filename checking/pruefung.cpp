#include "checking/pruefung.h"

#include "checking/anfuehrungen.h"
#include "checking/papierpruefung.h"
#include "checking/texte.h"
#include "core/meldungstext.h"
#include "quizform/feldregeln.h"
#include "rules/spezialarten.h"
#include "rules/spezialfelder.h"

#include <algorithm>

namespace {

void Anhaengen(Befunde& befunde, Befunde weitere) {
    std::ranges::move(weitere, std::back_inserter(befunde));
}

void FragenPruefen(Befunde& befunde, const std::vector<Pruefzeile>& zeilen, const Benutzungstext& benutzt) {
    Anhaengen(befunde, LueckenPruefen(zeilen));
    Anhaengen(befunde, DoppeltePruefen(zeilen));
    Anhaengen(befunde, BenutztePruefen(zeilen, benutzt));
    Anhaengen(befunde, VerratenePruefen(zeilen));
}

std::string Anzahl(const Befunde& befunde, Schwere schwere, std::string_view einer,
                   std::string_view mehrere) {
    const auto anzahl = std::ranges::count(befunde, schwere, &Befund::schwere);
    if (anzahl == 0) {
        return {};
    }
    return anzahl == 1 ? std::string(einer) : Einsetzen(mehrere, {std::to_string(anzahl)});
}

} // namespace

Befunde FormularPruefen(const Formularstand& stand, const Pruefmittel& mittel) {
    Befunde befunde;
    if (const auto* quiz = std::get_if<Quizstand>(&stand.form); quiz != nullptr) {
        Anhaengen(befunde, PapierPruefen(quiz->gezeigt, stand.spiel, mittel.mass));
        FragenPruefen(befunde, Pruefzeilen(quiz->gezeigt, stand.spiel), mittel.benutzt);
        Anhaengen(befunde, GrenzenPruefen(quiz->gezeigt, stand.spiel));
    } else {
        const auto& test = std::get<Teststand>(stand.form);
        Anhaengen(befunde, PapierPruefen(test.gezeigt, mittel.mass));
        FragenPruefen(befunde, Pruefzeilen(test.gezeigt), mittel.benutzt);
        Anhaengen(befunde, PunktePruefen(test.gezeigt, test.punkte));
    }
    Anhaengen(befunde, AnfuehrungenPruefen(stand));
    std::ranges::stable_sort(befunde, [](const Befund& a, const Befund& b) {
        return a.schwere == b.schwere ? StehtDavor(a.ort, b.ort) : a.schwere < b.schwere;
    });
    return befunde;
}

Befunde GrenzenPruefen(const Quizformular& form, const Spielwerte& spiel) {
    Befunde befunde;
    const Feldsichten sichten = BrettSichten(spiel);
    Artwerte anzahl;
    JeArt<int> erstesZuViel;
    for (int n = 1; n <= anzahlFelder; ++n) {
        const auto stelle = static_cast<std::size_t>(n);
        const auto art = ArtVon(form.FeldSpezial.at(stelle));
        if (!art || !sichten.at(stelle).spezial) {
            continue;
        }
        if (++anzahl[*art] > spiel.Felder[*art] && erstesZuViel[*art] == 0) {
            erstesZuViel[*art] = n;
        }
    }
    for (const Artzeile& zeile : spezialarten) {
        if (erstesZuViel[zeile.art] > 0) {
            befunde.push_back({Schwere::Hinweis,
                               Anlass::ZuViele,
                               {Formart::Quiz, Teil::Spezialfeld, erstesZuViel[zeile.art]},
                               Einsetzen(pruefungtexte::zuViele,
                                         {zeile.name, std::to_string(anzahl[zeile.art]),
                                          std::to_string(std::max<int>(0, spiel.Felder[zeile.art]))})});
        }
    }
    return befunde;
}

Befunde PunktePruefen(const Testformular& form, const Punktanzeige& punkte) {
    Befunde befunde;
    for (int i = 1; i <= anzahlTestfragen; ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        const std::string& anzeige = punkte.punkte.at(stelle);
        const bool keine = anzeige.find_first_not_of(" 0") == std::string::npos;
        if (keine && !IstLeer(form.HBFrageText.at(stelle))) {
            befunde.push_back({Schwere::Hinweis,
                               Anlass::OhnePunkte,
                               {Formart::Test, Teil::Punkte, i},
                               std::string(pruefungtexte::ohnePunkte)});
        }
    }
    return befunde;
}

std::string Befundzahl(const Befunde& befunde) {
    const std::string fehler =
        Anzahl(befunde, Schwere::Fehler, pruefungtexte::einFehler, pruefungtexte::mehrFehler);
    const std::string hinweise =
        Anzahl(befunde, Schwere::Hinweis, pruefungtexte::einHinweis, pruefungtexte::mehrHinweise);
    if (befunde.empty()) {
        return std::string(pruefungtexte::inOrdnung);
    }
    const std::string_view und = fehler.empty() || hinweise.empty() ? std::string_view() : pruefungtexte::und;
    return Einsetzen(pruefungtexte::gefunden, {fehler + std::string(und) + hinweise});
}
