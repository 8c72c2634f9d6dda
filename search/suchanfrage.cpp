#include "search/suchanfrage.h"

#include "search/faltung.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<std::string_view, 4> gaensefuesse{"\"", "„", "“", "”"};

// Length of the quotation mark at the beginning, 0 for none.
std::size_t Gaensefuss(std::string_view text) {
    for (const std::string_view zeichen : gaensefuesse) {
        if (text.starts_with(zeichen)) {
            return zeichen.size();
        }
    }
    return 0;
}

bool IstBlank(char zeichen) {
    return static_cast<unsigned char>(zeichen) <= ' ';
}

std::string OhneRaender(std::string text) {
    const auto blank = [](char zeichen) { return zeichen == ' '; };
    text.erase(text.begin(), std::find_if_not(text.begin(), text.end(), blank));
    text.erase(std::find_if_not(text.rbegin(), text.rend(), blank).base(), text.end());
    return text;
}

void Aufnehmen(std::vector<std::string>& worte, std::string_view text) {
    std::string wort = OhneRaender(Gefaltet(text));
    if (!wort.empty()) {
        worte.push_back(std::move(wort));
    }
}

// Takes one word off the front: to the next blank, or to the next quotation mark where one stands in front.
std::string_view Wort(std::string_view& rest) {
    const std::size_t fuss = Gaensefuss(rest);
    rest.remove_prefix(fuss);
    std::size_t laenge = 0;
    while (laenge < rest.size() &&
           (fuss > 0 ? Gaensefuss(rest.substr(laenge)) == 0 : !IstBlank(rest[laenge]))) {
        ++laenge;
    }
    const std::string_view wort = rest.substr(0, laenge);
    rest.remove_prefix(laenge);
    if (fuss > 0) {
        rest.remove_prefix(Gaensefuss(rest));
    }
    return wort;
}

// All places of a word in a folded text, as places of the text that it comes from.
void Sammeln(const Faltung& faltung, const std::string& wort, std::vector<Textbereich>& bereiche) {
    const auto aufnehmen = [&](std::size_t von, std::size_t ende) {
        while (ende > 0 && ende + 1 < faltung.stellen.size() &&
               faltung.stellen[ende] == faltung.stellen[ende - 1]) {
            ++ende; // within a character that became two
        }
        bereiche.push_back({von, faltung.stellen[ende]});
    };
    for (std::size_t stelle = faltung.text.find(wort); stelle != std::string::npos;
         stelle = faltung.text.find(wort, stelle + 1)) {
        aufnehmen(faltung.stellen[stelle], stelle + wort.size());
    }
    const std::string_view rest = std::string_view(wort).substr(1);
    for (const Faltung::Luecke& luecke : faltung.luecken) {
        if (wort.front() == 'e' && faltung.text.compare(luecke.vor, rest.size(), rest) == 0) {
            aufnehmen(luecke.stelle, luecke.vor + rest.size());
        }
    }
}

} // namespace

Suchanfrage AnfrageAus(std::string_view eingabe) {
    Suchanfrage anfrage;
    while (!eingabe.empty()) {
        if (IstBlank(eingabe.front())) {
            eingabe.remove_prefix(1);
            continue;
        }
        const bool verboten = eingabe.front() == '-';
        eingabe.remove_prefix(verboten ? 1 : 0);
        Aufnehmen(verboten ? anfrage.verboten : anfrage.noetig, Wort(eingabe));
    }
    return anfrage;
}

std::vector<Textbereich> Fundstellen(std::string_view text, const Suchanfrage& anfrage) {
    std::vector<Textbereich> alle;
    const Faltung gefaltet = FaltungMitStellen(text);
    for (const std::string& wort : anfrage.noetig) {
        Sammeln(gefaltet, wort, alle);
    }
    std::sort(alle.begin(), alle.end(),
              [](const Textbereich& a, const Textbereich& b) { return a.von < b.von; });
    std::vector<Textbereich> bereiche;
    for (const Textbereich& bereich : alle) {
        if (!bereiche.empty() && bereich.von <= bereiche.back().bis) {
            bereiche.back().bis = std::max(bereiche.back().bis, bereich.bis);
        } else {
            bereiche.push_back(bereich);
        }
    }
    return bereiche;
}
