#include "checking/fragenpruefung.h"

#include "checking/texte.h"
#include "core/meldungstext.h"
#include "search/aehnlich.h"
#include "search/faltung.h"
#include "search/wortstamm.h"

#include <algorithm>
#include <array>

namespace {

Befund Hinweis(Anlass anlass, const Befundort& ort, std::string_view text) {
    return {Schwere::Hinweis, anlass, ort, std::string(text)};
}

void LueckePruefen(Befunde& befunde, const Pruefzeile& zeile, bool mitAntworten) {
    const bool keineFrage = IstLeer(zeile.frage);
    const bool keineAntwort = IstLeer(zeile.antwort);
    const bool test = zeile.ort.art == Formart::Test;
    if (keineFrage && keineAntwort) {
        if (!test) {
            befunde.push_back(Hinweis(Anlass::Leer, zeile.ort, pruefungtexte::leeresFeld));
        }
    } else if (test && zeile.frage.empty()) { // a row of blanks is printed
        befunde.push_back({Schwere::Fehler, Anlass::Ungedruckt, zeile.antwortort(),
                           std::string(pruefungtexte::ungedruckt)});
    } else if (keineFrage) {
        befunde.push_back(Hinweis(Anlass::Leer, zeile.ort, pruefungtexte::frageFehlt));
    } else if (keineAntwort && mitAntworten) {
        befunde.push_back(Hinweis(Anlass::Leer, zeile.antwortort(), pruefungtexte::antwortFehlt));
    }
}

// Folded and made comparable once for the comparison of each with each.
struct Vergleichszeile {
    const Pruefzeile* zeile;
    std::string schluessel;
    Wortanfaenge anfaenge;
};

// The words of a text, each between two blanks: "the words of it" are found in it as a whole.
std::string Wortfolge(std::string_view text) {
    std::string folge(1, ' ');
    for (const char zeichen : Gefaltet(wortstamm::OhneKlammern(text))) {
        if (IstWortzeichen(zeichen)) {
            folge += zeichen;
        } else if (folge.back() != ' ') {
            folge += ' ';
        }
    }
    if (folge.back() != ' ') {
        folge += ' ';
    }
    return folge;
}

// "Die Arche" stands in "... vor der Arche" as well.
std::string_view OhneArtikel(std::string_view folge) {
    constexpr std::array<std::string_view, 9> artikel{" der ", " die ",  " das ",   " den ",  " dem ",
                                                      " ein ", " eine ", " einen ", " einem "};
    for (const std::string_view wort : artikel) {
        if (folge.starts_with(wort) && folge.size() > wort.size()) {
            return folge.substr(wort.size() - 1);
        }
    }
    return folge;
}

} // namespace

Befunde LueckenPruefen(std::span<const Pruefzeile> zeilen) {
    Befunde befunde;
    const bool test = !zeilen.empty() && zeilen.front().ort.art == Formart::Test;
    const bool mitAntworten =
        !test || std::ranges::any_of(zeilen, [](const Pruefzeile& zeile) { return !IstLeer(zeile.antwort); });
    for (const Pruefzeile& zeile : zeilen) {
        LueckePruefen(befunde, zeile, mitAntworten);
    }
    if (test && std::ranges::all_of(zeilen, [](const Pruefzeile& zeile) { return IstLeer(zeile.frage); })) {
        befunde.push_back(Hinweis(Anlass::Leer, zeilen.front().ort, pruefungtexte::leeresFormular));
    }
    return befunde;
}

Befunde DoppeltePruefen(std::span<const Pruefzeile> zeilen) {
    Befunde befunde;
    std::vector<Vergleichszeile> bisher;
    for (const Pruefzeile& zeile : zeilen) {
        Vergleichszeile diese{&zeile, Fragenschluessel(zeile.frage), WortanfaengeVon(zeile.frage)};
        if (diese.schluessel.empty()) {
            continue;
        }
        const auto gleich = std::ranges::find(bisher, diese.schluessel, &Vergleichszeile::schluessel);
        const auto fund = gleich != bisher.end()
                              ? gleich
                              : std::ranges::find_if(bisher, [&diese](const Vergleichszeile& andere) {
                                    return Fastgleich(andere.anfaenge, diese.anfaenge);
                                });
        if (fund != bisher.end()) {
            const std::string_view text =
                fund == gleich ? pruefungtexte::doppelt : pruefungtexte::fastDoppelt;
            befunde.push_back(
                Hinweis(Anlass::Doppelt, zeile.ort, Einsetzen(text, {Ortsname(fund->zeile->ort)})));
        }
        bisher.push_back(std::move(diese));
    }
    return befunde;
}

Befunde BenutztePruefen(std::span<const Pruefzeile> zeilen, const Benutzungstext& benutzt) {
    Befunde befunde;
    for (const Pruefzeile& zeile : zeilen) {
        std::string text = IstLeer(zeile.frage) || !benutzt ? std::string() : benutzt(zeile.frage);
        if (!text.empty()) {
            text.front() = text.front() == 's' ? 'S' : text.front(); // it begins a sentence here
            befunde.push_back(Hinweis(Anlass::Benutzt, zeile.ort, text + '.'));
        }
    }
    return befunde;
}

Befunde VerratenePruefen(std::span<const Pruefzeile> zeilen) {
    Befunde befunde;
    for (const Pruefzeile& zeile : zeilen) {
        if (AntwortInFrage(zeile.frage, zeile.antwort)) {
            befunde.push_back(Hinweis(Anlass::Verraten, zeile.antwortort(), pruefungtexte::verraten));
        }
    }
    return befunde;
}

bool AntwortInFrage(std::string_view frage, std::string_view antwort) {
    const std::string folge = Wortfolge(frage);
    const std::string gesucht = Wortfolge(antwort);
    if (gesucht.size() < 3 || folge.find(" oder ") != std::string::npos) {
        return false; // no word, or one of several to choose from
    }
    return folge.find(OhneArtikel(gesucht)) != std::string::npos;
}
