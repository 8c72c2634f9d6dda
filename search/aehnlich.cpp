#include "search/aehnlich.h"

#include "search/wortstamm.h"

#include <algorithm>
#include <bitset>

namespace {

using Wort = Wortanfaenge::Wort;
using Gewicht = wortstamm::Gewicht;

constexpr std::size_t hoechstensWorte = 64; // of a question; what comes behind them tells no more

// A bit for the first letter and the first consonant behind it, which neither ending nor vowels change.
std::uint64_t Bit(const Wort& wort) {
    const std::uint64_t geruest = wort.geruest != 0 ? wort.geruest : wortstamm::Geruest(wort.stamm);
    return std::uint64_t{1} << ((geruest >> 48U) * 0x9E3779B97F4A7C15U >> 58U);
}

// Which words of a question have found their partner in the other.
using Gefunden = std::bitset<hoechstensWorte>;

// What two questions have in common, and what each has for itself.
class Vergleich {
public:
    Vergleich(const Wortanfaenge& a, const Wortanfaenge& b) : a_(a.woerter), b_(b.woerter) {}

    bool Fastgleich() {
        Paaren([](const Wort& a, const Wort& b) {
            return a.stamm == b.stamm || (a.geruest != 0 && a.geruest == b.geruest);
        });
        if (schwere_ > 0) { // a part of a word alone says nothing
            Paaren([](const Wort& a, const Wort& b) {
                return wortstamm::EinerBeginntDenAnderen(a.stamm, b.stamm);
            });
        }
        const Rest vonA = Uebrig(a_, gefundenA_);
        const Rest vonB = Uebrig(b_, gefundenB_);
        const int rest = vonA.summe + vonB.summe;
        if (rest == 0) {
            return gemeinsam_ > 0;
        }
        // Each asks for something that the other doesn't ask for.
        if (vonA.wichtig && vonB.wichtig) {
            return false;
        }
        return (schwere_ >= 2 || rest <= Gewicht::Nebenwort) && 2 * rest <= gemeinsam_;
    }

private:
    struct Rest {
        int summe = 0;
        bool wichtig = false;
    };

    template <typename Passt>
    void Paaren(Passt passt) {
        for (std::size_t i = 0; i < a_.size(); ++i) {
            for (std::size_t j = 0; j < b_.size() && !gefundenA_[i]; ++j) {
                if (!gefundenB_[j] && passt(a_[i], b_[j])) {
                    Zaehlen(a_[i], std::max(a_[i].gewicht, b_[j].gewicht));
                    gefundenA_.set(i);
                    gefundenB_.set(j);
                }
            }
        }
    }
    void Zaehlen(const Wort& wort, int gewicht) {
        gemeinsam_ += gewicht;
        schwere_ += gewicht >= Gewicht::Steigerung ? 1 : 0;
        // A long noun is rare enough to count twice.
        schwere_ += gewicht >= Gewicht::Hauptwort && wortstamm::Laenge(wort.stamm) >= 7 ? 1 : 0;
    }
    [[nodiscard]] static Rest Uebrig(const std::vector<Wort>& woerter, const Gefunden& gefunden) {
        Rest rest;
        for (std::size_t i = 0; i < woerter.size(); ++i) {
            if (!gefunden[i]) {
                rest.summe += woerter[i].gewicht;
                rest.wichtig = rest.wichtig || woerter[i].gewicht > Gewicht::Nebenwort;
            }
        }
        return rest;
    }

    const std::vector<Wort>& a_;
    const std::vector<Wort>& b_;
    Gefunden gefundenA_, gefundenB_;
    int gemeinsam_ = 0;
    int schwere_ = 0; // words in common that are rare
};

// Which of two questions is looked through first decides which words become partners: always the same one.
bool Kleiner(const Wortanfaenge& a, const Wortanfaenge& b) {
    return std::ranges::lexicographical_compare(a.woerter, b.woerter, {}, &Wort::stamm, &Wort::stamm);
}

} // namespace

Wortanfaenge WortanfaengeVon(std::string_view frage) {
    Wortanfaenge ergebnis;
    ergebnis.woerter = wortstamm::Worte(frage);
    std::vector<Wort>& woerter = ergebnis.woerter;
    // Of one word that comes twice the heavier stays.
    std::ranges::stable_sort(woerter, std::ranges::greater{}, &Wort::gewicht);
    std::ranges::stable_sort(woerter, {}, &Wort::stamm);
    const auto gleich = [](const Wort& a, const Wort& b) { return a.stamm == b.stamm; };
    woerter.erase(std::unique(woerter.begin(), woerter.end(), gleich), woerter.end());
    woerter.resize(std::min(woerter.size(), hoechstensWorte));
    for (const Wort& wort : woerter) {
        ergebnis.alle |= Bit(wort);
        ergebnis.wichtige |= wort.gewicht > Gewicht::Nebenwort ? Bit(wort) : 0;
    }
    return ergebnis;
}

bool Fastgleich(const Wortanfaenge& a, const Wortanfaenge& b) {
    const bool fremdes = (a.wichtige & ~b.alle) != 0 && (b.wichtige & ~a.alle) != 0;
    if (fremdes || (a.alle & b.alle) == 0) {
        return false;
    }
    return Kleiner(b, a) ? Vergleich(b, a).Fastgleich() : Vergleich(a, b).Fastgleich();
}
