#include "printing/pdfordnung.h"

#include "printing/pdfaufbau.h"

#include <array>
#include <cstdio>
#include <map>
#include <string_view>
#include <vector>

namespace {

// The numbers of the objects, old and new.
class Nummern {
public:
    explicit Nummern(const PdfAufbau& aufbau) : aufbau_(aufbau), neu_(aufbau.objekte.size(), 0) {
        folge_.reserve(neu_.size());
        Nennen(aufbau.abschluss);
        NachfolgendeNennen();
        for (std::size_t alt = 1; alt < neu_.size(); ++alt) { // what nothing leads to comes last
            Nennen(static_cast<int>(alt));
            NachfolgendeNennen();
        }
    }

    // The old numbers in the order of the new ones, which count from 1.
    [[nodiscard]] const std::vector<int>& folge() const { return folge_; }
    [[nodiscard]] int neu(int alt) const { return neu_[static_cast<std::size_t>(alt)]; }

private:
    void Nennen(int alt) {
        int& nummer = neu_[static_cast<std::size_t>(alt)];
        if (nummer == 0) {
            folge_.push_back(alt);
            nummer = static_cast<int>(folge_.size());
        }
    }
    void Nennen(const PdfObjekt& objekt) {
        for (const PdfStelle& stelle : objekt.stellen) {
            if (stelle.nummer != 0) {
                Nennen(stelle.nummer);
            }
        }
    }
    void NachfolgendeNennen() {
        for (; genannt_ < folge_.size(); ++genannt_) {
            Nennen(aufbau_.objekte[static_cast<std::size_t>(folge_[genannt_])]);
        }
    }

    const PdfAufbau& aufbau_;
    std::vector<int> neu_;
    std::vector<int> folge_;
    std::size_t genannt_ = 0; // of the order, whose own places have been followed
};

// Six letters, the first one as the toolkit's.
std::string Kennung(std::size_t nummer) {
    std::string kennung = "Q";
    for (int i = 0; i < 5; ++i) {
        kennung += static_cast<char>('A' + nummer % 26);
        nummer /= 26;
    }
    return kennung;
}

// What the catalogue lacks.
std::string Zusatz(const PdfObjekt& katalog) {
    std::string zusatz;
    if (!katalog.wert("/Lang")) {
        zusatz += "/Lang (de-DE)\n";
    }
    if (!katalog.wert("/ViewerPreferences")) {
        zusatz += "/ViewerPreferences << /DisplayDocTitle true >>\n";
    }
    return zusatz;
}

class Schreiber {
public:
    Schreiber(std::string_view bytes, const PdfAufbau& aufbau)
        : bytes_(bytes), aufbau_(aufbau), nummern_(aufbau) {}

    std::string Schreiben() {
        neu_.reserve(bytes_.size() + 128);
        neu_ = aufbau_.kopf;
        std::vector<std::size_t> orte;
        for (const int alt : nummern_.folge()) {
            orte.push_back(neu_.size());
            const PdfObjekt& objekt = aufbau_.objekte[static_cast<std::size_t>(alt)];
            if (!objekt.frei) {
                Uebertragen(objekt, alt == aufbau_.katalog ? Zusatz(objekt) : "");
                neu_ += neu_.ends_with('\n') ? "" : "\n";
            }
        }
        const std::string tabelle = std::to_string(neu_.size());
        TabelleSchreiben(orte);
        neu_ += "trailer\n";
        Uebertragen(aufbau_.abschluss, "");
        neu_ += "\nstartxref\n" + tabelle + "\n%%EOF\n";
        return std::move(neu_);
    }

private:
    // An object with its new numbers, and with more at the end of its list.
    void Uebertragen(const PdfObjekt& objekt, std::string_view zusatz) {
        std::size_t stelle = objekt.anfang;
        const auto bis = [&](std::size_t ende) {
            neu_ += bytes_.substr(stelle, ende - stelle);
            stelle = ende;
        };
        for (const PdfStelle& s : objekt.stellen) {
            bis(s.anfang);
            neu_ += s.nummer != 0 ? std::to_string(nummern_.neu(s.nummer))
                                  : NeueKennung(bytes_.substr(s.anfang, s.laenge));
            stelle += s.laenge;
        }
        if (!zusatz.empty()) {
            bis(objekt.listenende);
            neu_ += zusatz;
        }
        bis(objekt.ende);
    }

    const std::string& NeueKennung(std::string_view alt) {
        const auto [ort, fehlte] = kennungen_.try_emplace(alt);
        if (fehlte) {
            ort->second = Kennung(kennungen_.size() - 1);
        }
        return ort->second;
    }

    void Zeile(std::size_t ort, int stand, char art) {
        std::array<char, 21> zeile{};
        static_cast<void>(std::snprintf(zeile.data(), zeile.size(), "%010zu %05d %c \n", ort, stand, art));
        neu_ += zeile.data();
    }

    // Numbers that aren't in use lead each to the next one, and the last one to the first line.
    void TabelleSchreiben(const std::vector<std::size_t>& orte) {
        const auto objekt = [this](std::size_t neu) -> const PdfObjekt& {
            return neu == 0 ? aufbau_.objekte.front()
                            : aufbau_.objekte[static_cast<std::size_t>(nummern_.folge()[neu - 1])];
        };
        std::vector<std::size_t> naechste(orte.size() + 1, 0);
        std::size_t letzte = 0;
        for (std::size_t neu = 1; neu <= orte.size(); ++neu) {
            if (objekt(neu).frei) {
                letzte = naechste[letzte] = neu;
            }
        }
        neu_ += "xref\n0 " + std::to_string(orte.size() + 1) + "\n";
        for (std::size_t neu = 0; neu <= orte.size(); ++neu) {
            const PdfObjekt& o = objekt(neu);
            Zeile(o.frei ? naechste[neu] : orte[neu - 1], o.stand, o.frei ? 'f' : 'n');
        }
    }

    std::string_view bytes_;
    const PdfAufbau& aufbau_;
    Nummern nummern_;
    std::map<std::string_view, std::string> kennungen_;
    std::string neu_;
};

} // namespace

std::string PdfOrdnen(std::string bytes) {
    const auto aufbau = PdfAufbauLesen(bytes);
    return aufbau ? Schreiber(bytes, *aufbau).Schreiben() : std::move(bytes);
}
