#include "search/wortstamm.h"

#include "search/faltung.h"
#include "search/wortlisten.h"

#include <algorithm>
#include <array>
#include <bit>
#include <string>

namespace {

using Wort = Wortanfaenge::Wort;
using wortstamm::Gewicht;
using namespace std::string_view_literals;
using namespace wortlisten;

template <typename Tabelle>
bool Steht(const Tabelle& tabelle, std::string_view wort) {
    return std::ranges::binary_search(tabelle, wort);
}

std::string_view Gleichbedeutend(std::string_view wort) {
    const auto* const fund = std::ranges::lower_bound(gleichbedeutend, wort, {}, &Wortpaar::first);
    return fund != gleichbedeutend.end() && fund->first == wort ? fund->second : wort;
}

bool IstZiffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

// Without what a word gets as one of many, in another case, or as a participle.
std::string_view OhneEndung(std::string_view wort) {
    if (IstZiffer(wort.front())) {
        return wort;
    }
    if (wort.starts_with("ge") && wort.size() >= 6) {
        wort.remove_prefix(2);
    }
    while (wort.size() > 3) {
        const std::string_view zwei = wort.substr(wort.size() - 2);
        if (wort.size() > 5 && (zwei == "em" || zwei == "er" || zwei == "nd")) {
            wort.remove_suffix(2);
        } else if ("esnt"sv.find(wort.back()) != std::string_view::npos) {
            wort.remove_suffix(1);
        } else {
            break;
        }
    }
    return wort;
}

constexpr unsigned bitsJeZeichen = 6;
constexpr unsigned hoechstensZeichen = 10;

// 1 to 63: letters and digits each have their own, what else a word is made of shares some.
std::uint64_t Zeichenwert(char zeichen) {
    constexpr unsigned ersteZiffer = 27;
    constexpr unsigned erstesAndere = 37;
    if (zeichen >= 'a' && zeichen <= 'z') {
        return static_cast<std::uint64_t>(zeichen - 'a') + 1;
    }
    if (IstZiffer(zeichen)) {
        return static_cast<std::uint64_t>(zeichen - '0') + ersteZiffer;
    }
    return static_cast<unsigned char>(zeichen) % (64 - erstesAndere) + erstesAndere;
}

std::uint64_t Packen(std::string_view wort) {
    std::uint64_t gepackt = 0;
    unsigned platz = 64;
    for (const char zeichen : wort.substr(0, hoechstensZeichen)) {
        platz -= bitsJeZeichen;
        gepackt |= Zeichenwert(zeichen) << platz;
    }
    return gepackt;
}

std::uint64_t Zeichen(std::uint64_t stamm, unsigned stelle) {
    return stamm >> (64 - bitsJeZeichen * (stelle + 1)) & 63U;
}

// "größte", "meisten", "zweiter".
bool IstSteigerung(std::string_view wort) {
    constexpr std::array ordnungen{"zweit"sv, "dritt"sv, "viert"sv, "letzt"sv};
    const bool ordnung = std::ranges::any_of(ordnungen, [wort](std::string_view anfang) {
        return wort.starts_with(anfang) && wort.size() > anfang.size() && wort[anfang.size()] == 'e';
    });
    if (wort.size() > 4 && "rsnm"sv.find(wort.back()) != std::string_view::npos) {
        wort.remove_suffix(1);
    }
    return ordnung || wort.ends_with("ste");
}

// Goes through the words of a text; each is folded, and known is how it stands there.
class Wortleser {
public:
    explicit Wortleser(std::string_view text) : text_(text), faltung_(FaltungMitStellen(text)) {}

    bool Weiter() {
        const std::size_t davor = ende_;
        beginn_ = Stelle(davor, true);
        ende_ = Stelle(beginn_, false);
        satzbeginn_ = davor == 0 || EndetSatz(Original(davor, beginn_));
        return beginn_ < ende_;
    }
    [[nodiscard]] std::string_view wort() const {
        return std::string_view(faltung_.text).substr(beginn_, ende_ - beginn_);
    }
    [[nodiscard]] bool letztes() const { return Stelle(ende_, true) == faltung_.text.size(); }
    // A noun has a capital letter; so has whatever begins a sentence.
    [[nodiscard]] bool IstHauptwort() const { return !satzbeginn_ && IstGross(Original(beginn_, ende_)); }

private:
    // The first place from there on where a word begins, or ends.
    [[nodiscard]] std::size_t Stelle(std::size_t ab, bool beginnt) const {
        const auto von = faltung_.text.begin() + static_cast<std::ptrdiff_t>(ab);
        const auto fund = std::find_if(
            von, faltung_.text.end(), [beginnt](char zeichen) { return IstWortzeichen(zeichen) == beginnt; });
        return static_cast<std::size_t>(fund - faltung_.text.begin());
    }
    [[nodiscard]] std::string_view Original(std::size_t von, std::size_t bis) const {
        return text_.substr(faltung_.stellen[von], faltung_.stellen[bis] - faltung_.stellen[von]);
    }
    static bool EndetSatz(std::string_view zwischen) {
        return zwischen.find_first_of(".:?!\"") != std::string_view::npos ||
               zwischen.find("»") != std::string_view::npos || zwischen.find("„") != std::string_view::npos ||
               zwischen.find("…") != std::string_view::npos;
    }
    static bool IstGross(std::string_view wort) {
        const bool umlaut = wort.size() > 1 && wort[0] == '\xC3' && wort[1] <= '\x9E';
        return !wort.empty() && (umlaut || (wort[0] >= 'A' && wort[0] <= 'Z'));
    }

    std::string_view text_;
    Faltung faltung_;
    std::size_t beginn_ = 0, ende_ = 0;
    bool satzbeginn_ = true;
};

Wort Gewogen(std::string_view stamm, int gewicht) {
    const std::uint64_t gepackt = Packen(stamm);
    const bool verb = gewicht <= Gewicht::Wort && !IstZiffer(stamm.front());
    return {gepackt, verb ? wortstamm::Geruest(gepackt) : 0, gewicht};
}

int GewichtVon(std::string_view wort, std::string_view stamm, bool hauptwort) {
    if (IstZiffer(wort.front())) {
        return Gewicht::Hauptwort;
    }
    if (Steht(nebenworte, stamm)) {
        return Gewicht::Nebenwort;
    }
    if (hauptwort) {
        return Gewicht::Hauptwort;
    }
    return IstSteigerung(wort) ? Gewicht::Steigerung : Gewicht::Wort;
}

} // namespace

std::string wortstamm::OhneKlammern(std::string_view text) {
    std::string rest;
    int tiefe = 0;
    for (const char zeichen : text) {
        tiefe += zeichen == '(' ? 1 : 0;
        rest += tiefe == 0 ? zeichen : ' ';
        tiefe -= zeichen == ')' && tiefe > 0 ? 1 : 0;
    }
    return rest;
}

int wortstamm::Laenge(std::uint64_t stamm) {
    constexpr unsigned unbenutzt = 64 - bitsJeZeichen * hoechstensZeichen;
    const auto nullen = static_cast<unsigned>(std::countr_zero(stamm));
    return stamm == 0 ? 0 : static_cast<int>(hoechstensZeichen - (nullen - unbenutzt) / bitsJeZeichen);
}

std::uint64_t wortstamm::Geruest(std::uint64_t stamm) {
    constexpr std::array<std::uint64_t, 5> vokale{1, 5, 9, 15, 21}; // a, e, i, o, u as they are packed
    std::uint64_t geruest = Zeichen(stamm, 0) << (64 - bitsJeZeichen);
    unsigned anzahl = 1;
    for (unsigned i = 1; i < hoechstensZeichen; ++i) {
        const std::uint64_t wert = Zeichen(stamm, i);
        if (wert != 0 && std::ranges::find(vokale, wert) == vokale.end()) {
            ++anzahl;
            geruest |= wert << (64 - bitsJeZeichen * anzahl);
        }
    }
    return anzahl >= 3 ? geruest : stamm;
}

bool wortstamm::EinerBeginntDenAnderen(std::uint64_t a, std::uint64_t b) {
    const int laenge = std::min(Laenge(a), Laenge(b));
    const bool zahl = Zeichen(a, 0) > 26 && Zeichen(a, 0) < 37;
    const unsigned weg = 64 - bitsJeZeichen * static_cast<unsigned>(laenge);
    return laenge >= 4 && !zahl && (a ^ b) >> weg == 0;
}

std::vector<Wort> wortstamm::Worte(std::string_view frage) {
    std::string text = OhneKlammern(frage);
    if (Fragenschluessel(text).empty()) {
        text = frage;
    }
    std::vector<Wort> worte;
    std::vector<Wort> alle;
    for (Wortleser leser(text); leser.Weiter();) {
        const std::string_view wort = Gleichbedeutend(leser.wort());
        const std::string_view stamm = OhneEndung(wort);
        alle.push_back(Gewogen(stamm, Gewicht::Wort));
        if (leser.letztes() && Steht(verbteile, wort)) {
            worte.push_back(Gewogen(wort, Gewicht::Wort));
        } else if (!Steht(allerwelt, wort)) {
            worte.push_back(Gewogen(stamm, GewichtVon(wort, stamm, leser.IstHauptwort())));
        }
    }
    return worte.empty() ? alle : worte;
}
