#include "search/suche.h"

#include "search/faltung.h"
#include "search/stellensuche.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <numeric>
#include <optional>
#include <span>

namespace {

// Rank of a word at one place: how it stands there times three, plus where. Ranks of several words add up.
using Rang = std::uint8_t;
constexpr Rang keiner = 255;
constexpr Rang hoechster = 254;
constexpr Rang imThema = 2;
constexpr Rang mittendrin = 6;

Rang Stellung(std::string_view text, std::size_t stelle, std::size_t laenge) {
    if (stelle > 0 && IstWortzeichen(text[stelle - 1])) {
        return mittendrin;
    }
    const std::size_t dahinter = stelle + laenge;
    return dahinter < text.size() && IstWortzeichen(text[dahinter]) ? 3 : 0;
}

// A word with all that its search needs.
struct Gesuchtes {
    explicit Gesuchtes(const std::string& gefaltet) : wort(gefaltet), nadel(gefaltet) {
        if (wort.front() == 'e') {
            ohneE = wort.substr(1);
        }
    }

    std::string wort;
    Nadel nadel;
    // Its e may have fallen out of the text, behind an a, o or u: then the rest stands there.
    std::optional<std::string> ohneE;
};

// Of a theme's or a sub-theme's name.
Rang Namensrang(const std::string& name, const Gesuchtes& gesucht) {
    Rang bester = keiner;
    std::string text;
    std::vector<std::uint32_t> luecken;
    GefaltetAnhaengen(text, name, &luecken);
    gesucht.nadel.Suchen(text, 0, text.size(), [&](std::size_t stelle) {
        bester = std::min<Rang>(bester, Stellung(text, stelle, gesucht.nadel.laenge()) + imThema);
        return stelle + 1;
    });
    for (const std::uint32_t luecke : luecken) {
        if (gesucht.ohneE && text.compare(luecke, gesucht.ohneE->size(), *gesucht.ohneE) == 0) {
            bester = std::min<Rang>(bester, mittendrin + imThema);
        }
    }
    return bester;
}

Rang Themenrang(const Bestandsdatei& datei, const Gesuchtes& gesucht) {
    return std::min(Namensrang(datei.thema, gesucht), Namensrang(datei.unterthema, gesucht));
}

// The question that a place belongs to, as places come in rising order.
class Fragenzeiger {
public:
    Fragenzeiger(const Bestandsdatei& datei, std::size_t ab) : datei_(datei), frage_(ab) {}

    std::size_t Fuer(std::size_t stelle) {
        while (datei_.enden[frage_].antwort < stelle) {
            ++frage_;
        }
        return frage_;
    }
    // Behind the question.
    [[nodiscard]] std::size_t danach() const { return datei_.enden[frage_].antwort + std::size_t{1}; }
    [[nodiscard]] Rang ort(std::size_t stelle) const { return stelle < datei_.enden[frage_].frage ? 0 : 1; }

private:
    const Bestandsdatei& datei_;
    std::size_t frage_;
};

struct Spanne {
    std::size_t von, bis; // questions of one file
};

std::size_t Textanfang(const Bestandsdatei& datei, std::size_t frage) {
    return frage == 0 ? 0 : datei.enden[frage - 1].antwort + std::size_t{1};
}

// The places where the e of the word has fallen out and the rest follows.
void OhneE(const Bestandsdatei& datei, const Gesuchtes& gesucht, Spanne spanne, std::span<Rang> raenge) {
    const std::size_t von = Textanfang(datei, spanne.von);
    const std::size_t bis = Textanfang(datei, spanne.bis);
    auto ausgelassen = std::lower_bound(datei.ausgelassen.begin(), datei.ausgelassen.end(), von);
    Fragenzeiger zeiger(datei, spanne.von);
    for (; ausgelassen != datei.ausgelassen.end() && *ausgelassen < bis; ++ausgelassen) {
        if (datei.text.compare(*ausgelassen, gesucht.ohneE->size(), *gesucht.ohneE) == 0) {
            Rang& rang = raenge[zeiger.Fuer(*ausgelassen) - spanne.von];
            rang = std::min<Rang>(rang, mittendrin + zeiger.ort(*ausgelassen));
        }
    }
}

// Best rank of the word in each question of the span; those without it keep what they have.
void Durchsuchen(const Bestandsdatei& datei, const Gesuchtes& gesucht, Spanne spanne,
                 std::span<Rang> raenge) {
    if (spanne.von == spanne.bis) {
        return;
    }
    Fragenzeiger zeiger(datei, spanne.von);
    const std::string_view text = datei.text;
    gesucht.nadel.Suchen(
        text, Textanfang(datei, spanne.von), Textanfang(datei, spanne.bis), [&](std::size_t stelle) {
            Rang& rang = raenge[zeiger.Fuer(stelle) - spanne.von];
            const Rang ort = zeiger.ort(stelle);
            rang = std::min<Rang>(rang, Stellung(text, stelle, gesucht.nadel.laenge()) + ort);
            // Nothing better can come behind it.
            return rang <= ort ? zeiger.danach() : stelle + 1;
        });
    if (gesucht.ohneE) {
        OhneE(datei, gesucht, spanne, raenge);
    }
}

Rang Summe(Rang a, Rang b) {
    return a == keiner || b == keiner ? keiner : static_cast<Rang>(std::min(a + b, int{hoechster}));
}

// Ranks of all questions of one file.
class Dateisuche {
public:
    Dateisuche(const std::vector<Gesuchtes>& noetig, const std::vector<Gesuchtes>& verboten)
        : noetig_(noetig), verboten_(verboten) {}

    std::span<const Rang> Raenge(const Bestandsdatei& datei) {
        raenge_.assign(datei.enden.size(), noetig_.empty() ? 0 : keiner);
        bool erstes = true;
        for (const Gesuchtes& wort : noetig_) {
            const Rang thema = Themenrang(datei, wort);
            if (erstes) {
                std::fill(raenge_.begin(), raenge_.end(), thema);
                Durchsuchen(datei, wort, {0, raenge_.size()}, raenge_);
            } else {
                Einschraenken(datei, wort, thema);
            }
            erstes = false;
        }
        for (const Gesuchtes& wort : verboten_) {
            Ausschliessen(datei, wort);
        }
        return raenge_;
    }

private:
    void Einschraenken(const Bestandsdatei& datei, const Gesuchtes& wort, Rang thema) {
        for (std::size_t i = 0; i < raenge_.size(); ++i) {
            if (raenge_[i] != keiner) {
                Rang rang = thema;
                Durchsuchen(datei, wort, {i, i + 1}, std::span(&rang, 1));
                raenge_[i] = Summe(raenge_[i], rang);
            }
        }
    }

    void Ausschliessen(const Bestandsdatei& datei, const Gesuchtes& wort) {
        gefunden_.assign(raenge_.size(), Themenrang(datei, wort));
        Durchsuchen(datei, wort, {0, gefunden_.size()}, gefunden_);
        for (std::size_t i = 0; i < raenge_.size(); ++i) {
            raenge_[i] = gefunden_[i] == keiner ? raenge_[i] : keiner;
        }
    }

    const std::vector<Gesuchtes>& noetig_;
    const std::vector<Gesuchtes>& verboten_;
    std::vector<Rang> raenge_, gefunden_;
};

// The rarest is looked for first: the longest.
std::vector<Gesuchtes> Geordnet(std::vector<std::string> worte) {
    std::ranges::stable_sort(worte, std::ranges::greater(), &std::string::size);
    return {worte.begin(), worte.end()};
}

bool Behalten(const Bestandsdatei& datei, std::size_t frage, const Suchfilter& filter) {
    return (filter.punkte.empty() || datei.fragen.wert(frage, Spalte::Punkte) == filter.punkte) &&
           (!filter.behalten || filter.behalten(datei.abdruecke[frage]));
}

struct Treffer {
    std::uint32_t nr;
    Rang rang;
};

// Stable, and in two passes over however many there are.
std::vector<std::uint32_t> NachRang(const std::vector<Treffer>& treffer) {
    std::array<std::size_t, std::size_t{keiner} + 1> stelle{};
    for (const Treffer& einer : treffer) {
        ++stelle[einer.rang + std::size_t{1}];
    }
    std::partial_sum(stelle.begin(), stelle.end(), stelle.begin());
    std::vector<std::uint32_t> nummern(treffer.size());
    for (const Treffer& einer : treffer) {
        nummern[stelle[einer.rang]++] = einer.nr;
    }
    return nummern;
}

} // namespace

std::vector<std::uint32_t> Suchen(const Fragenbestand& bestand, const Suchanfrage& anfrage,
                                  const Suchfilter& filter) {
    const std::vector<Gesuchtes> noetig = Geordnet(anfrage.noetig);
    const std::vector<Gesuchtes> verboten = Geordnet(anfrage.verboten);
    Dateisuche suche(noetig, verboten);
    std::vector<Treffer> treffer;
    for (std::size_t d = 0; d < bestand.dateien().size(); ++d) {
        const Bestandsdatei& datei = *bestand.dateien()[d];
        if (!filter.thema.empty() && datei.thema != filter.thema) {
            continue;
        }
        const std::span<const Rang> raenge = suche.Raenge(datei);
        const auto anfang = static_cast<std::uint32_t>(bestand.anfang(d));
        for (std::uint32_t i = 0; i < raenge.size(); ++i) {
            if (raenge[i] != keiner && Behalten(datei, i, filter)) {
                treffer.push_back({anfang + i, raenge[i]});
            }
        }
    }
    return NachRang(treffer);
}
