// The properties of the search: what is typed, what is found, what is marked.
#include "tests/fuzz/eigenschaften.h"

#include "core/cp1252.h"
#include "search/faltung.h"
#include "search/suche.h"
#include "tests/search/langsamesuche.h"

#include <algorithm>
#include <string>

namespace fuzz {

namespace {

std::shared_ptr<const Fragenbestand> Bestand(Eingabe& eingabe) {
    const std::string thema = AusCp1252(eingabe.Stueck());
    Fragenliste fragen;
    while (!eingabe.rest.empty()) {
        const std::string_view frage = eingabe.Stueck();
        fragen.Anhaengen({"1", frage, eingabe.Stueck(), "2"});
    }
    return std::make_shared<const Fragenbestand>(
        std::vector{BestandsdateiAus(thema, "Luft", std::move(fragen))});
}

void Fundstelle(std::string_view text, const Suchanfrage& anfrage) {
    std::size_t bisher = 0;
    for (const Textbereich& bereich : Fundstellen(text, anfrage)) {
        Verlange(bereich.von >= bisher && bereich.von < bereich.bis && bereich.bis <= text.size(),
                 "marks stand in the text, one behind the other");
        bisher = bereich.bis;
    }
    const bool alle =
        std::ranges::all_of(anfrage.noetig, [&](const auto& wort) { return langsam::Beginnt(text, wort); });
    Verlange(!alle || anfrage.noetig.empty() || bisher > 0, "what is found is marked");
}

void Stellen(std::string_view text) {
    const Faltung faltung = FaltungMitStellen(text);
    Verlange(faltung.text == Gefaltet(text), "folding with places is folding");
    Verlange(faltung.stellen.size() == faltung.text.size() + 1, "every byte has a place");
    Verlange(std::ranges::is_sorted(faltung.stellen) && faltung.stellen.back() == text.size(),
             "places rise to the end");
    Verlange(faltung.text.find_first_of("\x1E\x1F") == std::string::npos, "the separators stay free");
}

} // namespace

void Suche(std::string_view bytes) {
    constexpr std::size_t genug = 1000; // the slow way grows with the square
    Eingabe eingabe{bytes.substr(0, genug)};
    const std::string_view roh = eingabe.Stueck();
    Stellen(roh); // also what is no UTF-8
    static_cast<void>(AnfrageAus(roh));
    const Suchanfrage anfrage = AnfrageAus(AusCp1252(roh));
    const auto bestand = Bestand(eingabe);
    std::vector<std::uint32_t> gefunden = Suchlauf().Suchen(bestand, anfrage);
    std::ranges::sort(gefunden);
    std::vector<std::uint32_t> erwartet;
    for (std::uint32_t nr = 0; nr < bestand->anzahl(); ++nr) {
        const Katalogfrage frage = bestand->frage(nr);
        Stellen(frage.frage);
        Fundstelle(frage.frage, anfrage);
        if (langsam::Erwartet(frage, anfrage)) {
            erwartet.push_back(nr);
        }
    }
    Verlange(gefunden == erwartet, "the search finds what a look at each question finds");
}

} // namespace fuzz
