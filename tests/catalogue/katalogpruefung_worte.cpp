#include "tests/catalogue/katalogpruefung_worte.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <unordered_map>

namespace {

using Menge = std::set<std::string>;

// What stands for the letters U+00C0 to U+00FF.
constexpr std::array<std::string_view, 64> buchstaben{
    "a", "a", "a", "a", "ae", "a", "ae", "c", "e", "e", "e", "e", "i",  "i", "i",  "i",
    "d", "n", "o", "o", "o",  "o", "oe", "",  "o", "u", "u", "u", "ue", "y", "th", "ss",
    "a", "a", "a", "a", "ae", "a", "ae", "c", "e", "e", "e", "e", "i",  "i", "i",  "i",
    "d", "n", "o", "o", "o",  "o", "oe", "",  "o", "u", "u", "u", "ue", "y", "th", "y"};

constexpr std::array endungen{std::string_view("ern"), std::string_view("en"), std::string_view("er"),
                              std::string_view("es"),  std::string_view("em"), std::string_view("e"),
                              std::string_view("s"),   std::string_view("n")};

const Menge& Fuellworte() {
    static const Menge worte{
        "ab",   "als",  "am",    "an",    "ans",   "auch",   "auf",  "aus",   "bei",  "beim",    "bis",
        "das",  "dass", "dem",   "den",   "der",   "des",    "die",  "durch", "er",   "es",      "etwa",
        "fuer", "hat",  "gegen", "haben", "im",    "in",     "ins",  "ist",   "ihr",  "ihre",    "ihrem",
        "man",  "mit",  "nach",  "nicht", "nur",   "oder",   "ohne", "seit",  "sein", "seine",   "seinem",
        "sich", "sie",  "sind",  "so",    "ueber", "um",     "und",  "unter", "vom",  "von",     "vor",
        "was",  "wenn", "wer",   "wie",   "wird",  "werden", "zu",   "zum",   "zur",  "zwischen"};
    return worte;
}

bool IstArtikelEin(std::string_view wort) {
    return wort.starts_with("ein") && wort.size() <= 5;
}

std::string OhneKlammern(std::string_view text) {
    std::string ohne;
    int tiefe = 0;
    for (const char zeichen : text) {
        tiefe += zeichen == '(' ? 1 : 0;
        if (tiefe == 0) {
            ohne += zeichen;
        }
        tiefe -= zeichen == ')' && tiefe > 0 ? 1 : 0;
    }
    return ohne;
}

Menge Stammmenge(std::string_view text) {
    Menge staemme;
    for (const std::string& wort : Worte(text)) {
        staemme.insert(Stamm(wort));
    }
    return staemme;
}

bool Darin(const Menge& worte, const std::string& kern) {
    return worte.contains(kern) ||
           (kern.size() >= 4 && std::any_of(worte.begin(), worte.end(), [&](const std::string& wort) {
                return wort.find(kern) != std::string::npos;
            }));
}

// The first or the last part of a compound as a word of the question, or as the end of one; nullptr for none.
const std::string* Wortteil(const Menge& worte, const std::string& teil, bool vorn) {
    for (const std::string& wort : worte) {
        if (wort == teil || (vorn && wort.starts_with(teil)) || (teil.size() >= 4 && wort.ends_with(teil))) {
            return &wort;
        }
    }
    return nullptr;
}

// A word like "Königssohn" of "König" and "Sohn", with or without what joins the two.
bool Zusammengesetzt(const Menge& worte, const std::string& wort) {
    for (std::size_t schnitt = 3; schnitt + 3 <= wort.size(); ++schnitt) {
        const std::string* hinten = Wortteil(worte, Stamm(wort.substr(schnitt)), false);
        for (const std::string_view fuge : {"", "s", "n", "en", "er", "e"}) {
            const std::string vorn = wort.substr(0, schnitt);
            if (hinten == nullptr || !vorn.ends_with(fuge) || vorn.size() < fuge.size() + 3) {
                continue;
            }
            const std::string* anfang = Wortteil(worte, vorn.substr(0, vorn.size() - fuge.size()), true);
            if (anfang != nullptr && anfang != hinten) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

std::vector<std::string> Worte(std::string_view utf8) {
    std::vector<std::string> worte(1);
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if ((byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z')) {
            worte.back() += utf8[i];
        } else if (byte >= 'A' && byte <= 'Z') {
            worte.back() += static_cast<char>(byte - 'A' + 'a');
        } else if (byte == 0xC3 && i + 1 < utf8.size()) {
            worte.back() += buchstaben[static_cast<unsigned char>(utf8[++i]) & 0x3FU];
        } else if (!worte.back().empty()) {
            worte.emplace_back();
        }
    }
    if (worte.back().empty()) {
        worte.pop_back();
    }
    return worte;
}

std::string Stamm(std::string_view wort) {
    for (const std::string_view endung : endungen) {
        if (wort.ends_with(endung) && wort.size() >= endung.size() + 4) {
            wort.remove_suffix(endung.size());
            break;
        }
    }
    return std::string(wort);
}

std::vector<std::string> Kernworte(std::string_view antwort, std::string_view frage) {
    // Where the question asks for a number, "ein" is one.
    const bool zahl = frage.starts_with("Wie viel");
    std::vector<std::string> kern;
    std::vector<std::string> alle;
    for (const std::string& wort : Worte(OhneKlammern(antwort))) {
        alle.push_back(Stamm(wort));
        if (!Fuellworte().contains(wort) && (zahl || !IstArtikelEin(wort))) {
            kern.push_back(alle.back());
        }
    }
    return kern.empty() ? alle : kern;
}

std::vector<Textpaar> AehnlichePaare(const std::vector<std::string_view>& texte, double mindestens) {
    std::unordered_map<std::string, std::vector<std::size_t>> fundstellen;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        for (const std::string& stamm : Stammmenge(texte[i])) {
            fundstellen[stamm].push_back(i);
        }
    }
    const auto gewicht = [&](const std::vector<std::size_t>& stellen) {
        return std::log((1.0 + static_cast<double>(texte.size())) / static_cast<double>(stellen.size()));
    };
    std::vector<double> ganz(texte.size());
    for (const auto& [stamm, stellen] : fundstellen) {
        for (const std::size_t i : stellen) {
            ganz[i] += gewicht(stellen);
        }
    }
    std::vector<Textpaar> paare;
    std::vector<double> gemeinsam(texte.size());
    for (std::size_t i = 0; i < texte.size(); ++i) {
        std::fill(gemeinsam.begin(), gemeinsam.end(), 0.0);
        for (const std::string& stamm : Stammmenge(texte[i])) {
            const std::vector<std::size_t>& stellen = fundstellen.at(stamm);
            const double w = gewicht(stellen);
            for (auto j = stellen.begin(); j != stellen.end() && *j < i; ++j) {
                gemeinsam[*j] += w;
            }
        }
        for (std::size_t j = 0; j < i; ++j) {
            const double anteil = gemeinsam[j] / (ganz[i] + ganz[j] - gemeinsam[j]);
            if (anteil >= mindestens) {
                paare.push_back({j, i, anteil});
            }
        }
    }
    return paare;
}

bool Verraten(std::string_view frage, std::string_view antwort) {
    Menge worte = Stammmenge(frage);
    if (worte.contains("oder")) {
        return false;
    }
    // Words that only ask, or an article where a number is asked for, give nothing away.
    std::erase_if(worte, [](const std::string& wort) { return wort == "welch" || IstArtikelEin(wort); });
    const std::vector<std::string> kern = Kernworte(antwort, frage);
    if (std::all_of(kern.begin(), kern.end(), [&](const std::string& wort) { return Darin(worte, wort); })) {
        return true;
    }
    const std::vector<std::string> ganz = Worte(OhneKlammern(antwort));
    const auto einziges = std::find_if(ganz.begin(), ganz.end(),
                                       [&](const std::string& wort) { return Stamm(wort) == kern.front(); });
    for (std::string& wort : Worte(frage)) {
        worte.insert(std::move(wort)); // a part of a compound may keep its ending
    }
    return kern.size() == 1 && Zusammengesetzt(worte, *einziges);
}
