#include "search/suche.h"

#include "search/faltung.h"
#include "search/stellensuche.h"

#include <algorithm>
#include <array>
#include <functional>
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

// The best of the hits of a block that mask names.
Rang Stellung(const Stellenblock& block, std::uint64_t maske) {
    const std::uint64_t anfaenge = block.treffer & block.wortanfang & maske;
    return (anfaenge & block.wortende) != 0 ? 0 : anfaenge != 0 ? 3 : mittendrin;
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
    std::vector<std::uint32_t> luecken;
    std::string gefaltet;
    GefaltetAnhaengen(gefaltet, name, &luecken);
    const Suchtext text = SuchtextAus(std::move(gefaltet));
    gesucht.nadel.Suchen(text, 0, text.text.size(), [&](const Stellenblock& block) {
        bester = std::min<Rang>(bester, Stellung(block, block.treffer) + imThema);
    });
    for (const std::uint32_t luecke : luecken) {
        if (gesucht.ohneE && text.text.compare(luecke, gesucht.ohneE->size(), *gesucht.ohneE) == 0) {
            bester = std::min<Rang>(bester, mittendrin + imThema);
        }
    }
    return bester;
}

Rang Themenrang(const Bestandsdatei& datei, const Gesuchtes& gesucht) {
    return std::min(Namensrang(datei.thema, gesucht), Namensrang(datei.unterthema, gesucht));
}

// The question or answer that a place belongs to, as places come in rising order.
class Textzeiger {
public:
    explicit Textzeiger(const Bestandsdatei& datei) : datei_(datei) {}

    void Gehen(std::size_t stelle) {
        while (datei_.enden[frage_].antwort < stelle) {
            ++frage_;
        }
        ort_ = stelle < datei_.enden[frage_].frage ? 0 : 1;
    }
    [[nodiscard]] std::size_t frage() const { return frage_; }
    [[nodiscard]] Rang ort() const { return ort_; }
    // Where the text ends.
    [[nodiscard]] std::size_t ende() const {
        return ort_ == 0 ? datei_.enden[frage_].frage : datei_.enden[frage_].antwort;
    }

private:
    const Bestandsdatei& datei_;
    std::size_t frage_ = 0;
    Rang ort_ = 0;
};

// The places where the e of the word has fallen out and the rest follows.
void OhneE(const Bestandsdatei& datei, const Gesuchtes& gesucht, std::span<Rang> raenge) {
    Textzeiger zeiger(datei);
    for (const std::uint32_t luecke : datei.ausgelassen) {
        if (datei.text.text.compare(luecke, gesucht.ohneE->size(), *gesucht.ohneE) == 0) {
            zeiger.Gehen(luecke);
            Rang& rang = raenge[zeiger.frage()];
            rang = std::min<Rang>(rang, mittendrin + zeiger.ort());
        }
    }
}

// Rank of the word in each question of a file.
void Durchsuchen(const Bestandsdatei& datei, const Gesuchtes& gesucht, std::span<Rang> raenge) {
    std::fill(raenge.begin(), raenge.end(), Themenrang(datei, gesucht));
    Textzeiger zeiger(datei);
    gesucht.nadel.Suchen(datei.text, 0, datei.text.text.size(), [&](Stellenblock block) {
        while (block.treffer != 0) {
            zeiger.Gehen(block.erste());
            const std::uint64_t hier = block.vor(zeiger.ende());
            Rang& rang = raenge[zeiger.frage()];
            rang = std::min<Rang>(rang, Stellung(block, hier) + zeiger.ort());
            block.treffer &= ~hier;
        }
    });
    if (gesucht.ohneE) {
        OhneE(datei, gesucht, raenge);
    }
}

// Ranks of two words, or of more, together.
void Verbinden(std::span<Rang> raenge, std::span<const Rang> weitere) {
    for (std::size_t i = 0; i < raenge.size(); ++i) {
        const int summe = std::min(raenge[i] + weitere[i], int{hoechster});
        raenge[i] = raenge[i] == keiner || weitere[i] == keiner ? keiner : static_cast<Rang>(summe);
    }
}

void Ausschliessen(std::span<Rang> raenge, std::span<const Rang> verbotene) {
    for (std::size_t i = 0; i < raenge.size(); ++i) {
        raenge[i] = verbotene[i] == keiner ? raenge[i] : keiner;
    }
}

void Filtern(const Bestandsdatei& datei, const Suchfilter& filter, std::span<Rang> raenge) {
    if (!filter.thema.empty() && datei.thema != filter.thema) {
        std::fill(raenge.begin(), raenge.end(), keiner);
    }
    if (filter.punkte.empty() && !filter.behalten) {
        return;
    }
    for (std::size_t i = 0; i < raenge.size(); ++i) {
        if (raenge[i] != keiner &&
            ((!filter.punkte.empty() && datei.fragen.wert(i, Spalte::Punkte) != filter.punkte) ||
             (filter.behalten && !filter.behalten(datei.abdruecke[i])))) {
            raenge[i] = keiner;
        }
    }
}

// The numbers of all that have a rank, the best first; two passes over however many there are.
std::vector<std::uint32_t> NachRang(std::span<const Rang> raenge) {
    std::array<std::size_t, std::size_t{keiner} + 2> stelle{};
    for (const Rang rang : raenge) {
        if (rang != keiner) {
            ++stelle[rang + std::size_t{1}];
        }
    }
    std::partial_sum(stelle.begin(), stelle.end(), stelle.begin());
    std::vector<std::uint32_t> nummern(stelle[keiner]);
    for (std::uint32_t nr = 0; nr < raenge.size(); ++nr) {
        if (raenge[nr] != keiner) {
            nummern[stelle[raenge[nr]]++] = nr;
        }
    }
    return nummern;
}

} // namespace

const std::vector<std::uint8_t>& Suchlauf::Wortraenge(const std::string& wort) {
    const auto [platz, neu] = raenge_.try_emplace(wort);
    if (neu) {
        platz->second.resize(bestand_->anzahl());
        const Gesuchtes gesucht(wort);
        for (std::size_t d = 0; d < bestand_->dateien().size(); ++d) {
            const Bestandsdatei& datei = *bestand_->dateien()[d];
            Durchsuchen(datei, gesucht,
                        std::span(platz->second).subspan(bestand_->anfang(d), datei.enden.size()));
        }
    }
    return platz->second;
}

void Suchlauf::Vergessen(const Suchanfrage& anfrage) {
    std::erase_if(raenge_, [&anfrage](const auto& eintrag) {
        return std::ranges::find(anfrage.noetig, eintrag.first) == anfrage.noetig.end() &&
               std::ranges::find(anfrage.verboten, eintrag.first) == anfrage.verboten.end();
    });
}

std::vector<std::uint32_t> Suchlauf::Suchen(const std::shared_ptr<const Fragenbestand>& bestand,
                                            const Suchanfrage& anfrage, const Suchfilter& filter) {
    if (bestand_ != bestand) {
        bestand_ = bestand;
        raenge_.clear();
    }
    Vergessen(anfrage);
    std::vector<Rang> raenge;
    for (const std::string& wort : anfrage.noetig) {
        if (const std::vector<Rang>& weitere = Wortraenge(wort); raenge.empty()) {
            raenge = weitere;
        } else {
            Verbinden(raenge, weitere);
        }
    }
    raenge.resize(bestand->anzahl(), 0); // all, where no word is asked for
    for (const std::string& wort : anfrage.verboten) {
        Ausschliessen(raenge, Wortraenge(wort));
    }
    for (std::size_t d = 0; d < bestand->dateien().size(); ++d) {
        const Bestandsdatei& datei = *bestand->dateien()[d];
        Filtern(datei, filter, std::span(raenge).subspan(bestand->anfang(d), datei.enden.size()));
    }
    return NachRang(raenge);
}
