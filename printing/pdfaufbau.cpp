#include "printing/pdfaufbau.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <utility>

namespace {

using Art = PdfMarke::Art;

constexpr auto nirgends = std::string_view::npos;

// The number of the object that a value names; 0 if it names none.
int Verweis(std::string_view wert) {
    PdfMarken marken(wert, 0);
    const PdfMarke nummer = marken.Naechste();
    const PdfMarke stand = marken.Naechste();
    return stand.art == Art::Ganzzahl && marken.Naechste().ist("R") ? nummer.zahl : 0;
}

class Dateileser {
public:
    explicit Dateileser(std::string_view bytes) : bytes_(bytes) {}

    PdfAufbau Lesen() {
        EndeLesen();
        TabelleLesen();
        AbschlussLesen();
        GrenzenZiehen();
        for (std::size_t n = 1; n < aufbau_.objekte.size(); ++n) {
            ObjektLesen(n);
        }
        for (const auto& [nummer, stelle] : stroeme_) {
            StromPruefen(aufbau_.objekte[nummer], stelle);
        }
        KatalogFinden();
        return std::move(aufbau_);
    }

private:
    // From behind: the end's mark, which stands once, and the place of the table.
    void EndeLesen() {
        constexpr std::string_view marke = "%%EOF";
        const std::size_t ende = bytes_.find(marke);
        PdfVerlange(bytes_.starts_with("%PDF-") && ende != nirgends);
        PdfVerlange(std::ranges::all_of(bytes_.substr(ende + marke.size()), PdfLeer));
        abschlussEnde_ = bytes_.substr(0, ende).rfind("startxref");
        PdfVerlange(abschlussEnde_ != nirgends);
        PdfMarken marken(bytes_.substr(0, ende), abschlussEnde_);
        PdfVerlange(marken.Naechste().ist("startxref"));
        tabelle_ = static_cast<std::size_t>(PdfGanzzahl(marken));
        PdfVerlange(tabelle_ < abschlussEnde_ && marken.Naechste().art == Art::Ende);
    }

    void TabelleLesen() {
        PdfMarken marken(bytes_.substr(0, abschlussEnde_), tabelle_);
        PdfVerlange(bytes_.substr(tabelle_).starts_with("xref") && marken.Naechste().ist("xref"));
        PdfVerlange(PdfGanzzahl(marken) == 0);
        const PdfMarke anzahl = marken.Naechste();
        PdfVerlange(anzahl.art == Art::Ganzzahl && anzahl.zahl > 0);
        std::size_t stelle = anzahl.ende();
        while (stelle < abschlussEnde_ && PdfLeer(bytes_[stelle])) {
            ++stelle;
        }
        const auto zeilen = static_cast<std::size_t>(anzahl.zahl);
        PdfVerlange(zeilen <= (abschlussEnde_ - stelle) / zeilenlaenge);
        aufbau_.objekte.reserve(zeilen);
        for (std::size_t n = 0; n < zeilen; ++n, stelle += zeilenlaenge) {
            ZeileLesen(bytes_.substr(stelle, zeilenlaenge));
        }
        PdfVerlange(aufbau_.objekte.front().frei);
        aufbau_.abschluss.anfang = stelle;
    }

    // "0000000015 00000 n", with two characters of a line's end.
    void ZeileLesen(std::string_view zeile) {
        constexpr std::size_t bisStand = 11;
        constexpr std::size_t bisArt = 17;
        PdfObjekt objekt;
        const auto lesen = [](std::string_view ziffern, auto& zahl) {
            const auto gelesen = std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl);
            return gelesen.ec == std::errc() && gelesen.ptr == ziffern.data() + ziffern.size();
        };
        PdfVerlange(lesen(zeile.substr(0, bisStand - 1), objekt.anfang) &&
                    lesen(zeile.substr(bisStand, bisArt - bisStand - 1), objekt.stand) && objekt.stand >= 0);
        PdfVerlange(zeile[bisStand - 1] == ' ' && zeile[bisArt - 1] == ' ');
        PdfVerlange(PdfLeer(zeile[bisArt + 1]) && PdfLeer(zeile[bisArt + 2]));
        objekt.frei = zeile[bisArt] == 'f';
        PdfVerlange(objekt.frei || (zeile[bisArt] == 'n' && objekt.stand == 0));
        aufbau_.objekte.push_back(std::move(objekt));
    }

    void AbschlussLesen() {
        PdfObjekt& abschluss = aufbau_.abschluss;
        PdfMarken marken(bytes_.substr(0, abschlussEnde_), abschluss.anfang);
        PdfVerlange(marken.Naechste().ist("trailer"));
        const PdfMarke liste = marken.Naechste();
        PdfVerlange(liste.text == "<<");
        abschluss.anfang = liste.anfang;
        abschluss.ende = abschlussEnde_;
        PdfObjektleser leser(bytes_, Anzahl(), abschluss);
        PdfVerlange(leser.Inhalt().art == Art::Ende && abschluss.listenende != 0);
        abschluss.ende = abschluss.listenende + 2;
        for (const char* const fremd : {"/Prev", "/XRefStm", "/Encrypt"}) {
            PdfVerlange(!abschluss.wert(fremd));
        }
        PdfVerlange(abschluss.wert("/Size") == std::to_string(Anzahl()));
    }

    // Each object reaches up to the next one in the file, the last one up to the table.
    void GrenzenZiehen() {
        std::vector<PdfObjekt*> folge;
        for (PdfObjekt& objekt : aufbau_.objekte) {
            if (!objekt.frei) {
                folge.push_back(&objekt);
            }
        }
        PdfVerlange(!folge.empty());
        std::ranges::sort(folge, {}, &PdfObjekt::anfang);
        for (std::size_t i = 0; i < folge.size(); ++i) {
            folge[i]->ende = i + 1 < folge.size() ? folge[i + 1]->anfang : tabelle_;
            PdfVerlange(folge[i]->anfang < folge[i]->ende && folge[i]->ende <= tabelle_);
        }
        aufbau_.kopf = bytes_.substr(0, folge.front()->anfang);
        PdfVerlange(aufbau_.kopf.starts_with("%PDF-") && aufbau_.kopf.ends_with('\n'));
    }

    void ObjektLesen(std::size_t nummer) {
        PdfObjekt& objekt = aufbau_.objekte[nummer];
        if (objekt.frei) {
            return;
        }
        PdfObjektleser leser(bytes_, Anzahl(), objekt);
        leser.Anfang(static_cast<int>(nummer));
        const PdfMarke ende = leser.Inhalt();
        const auto art = objekt.wert("/Type");
        PdfVerlange(ende.art != Art::Ende && art != "/ObjStm" && art != "/XRef");
        if (ende.ist("stream")) {
            stroeme_.emplace_back(nummer, ende.ende());
        } else {
            PdfVerlange(PdfMarken(bytes_.substr(0, objekt.ende), ende.ende()).Naechste().art == Art::Ende);
        }
    }

    // The length of a stream, which may stand in an object of its own.
    [[nodiscard]] std::size_t Laenge(const PdfObjekt& strom) const {
        const std::string_view wert = strom.wert("/Length").value_or("");
        const int verweis = Verweis(wert);
        if (verweis == 0) {
            PdfMarken marken(wert, 0);
            return static_cast<std::size_t>(PdfGanzzahl(marken));
        }
        const PdfObjekt& laenge = aufbau_.objekte.at(static_cast<std::size_t>(verweis));
        PdfVerlange(!laenge.frei);
        PdfMarken marken(bytes_.substr(0, laenge.ende), laenge.anfang);
        for (int wort = 0; wort < 3; ++wort) { // "7 0 obj"
            static_cast<void>(marken.Naechste());
        }
        const int zahl = PdfGanzzahl(marken);
        PdfVerlange(marken.Naechste().ist("endobj"));
        return static_cast<std::size_t>(zahl);
    }

    void StromPruefen(const PdfObjekt& strom, std::size_t stelle) const {
        const std::string_view bis = bytes_.substr(0, strom.ende);
        stelle += bis.substr(stelle).starts_with("\r\n") ? 2U : 1U;
        PdfVerlange(stelle <= bis.size() && bis[stelle - 1] == '\n');
        const std::size_t laenge = Laenge(strom);
        PdfVerlange(laenge <= bis.size() - stelle);
        PdfMarken marken(bis, stelle + laenge);
        PdfVerlange(marken.Naechste().ist("endstream") && marken.Naechste().ist("endobj") &&
                    marken.Naechste().art == Art::Ende);
    }

    void KatalogFinden() {
        aufbau_.katalog = Verweis(aufbau_.abschluss.wert("/Root").value_or(""));
        PdfVerlange(aufbau_.katalog != 0);
        const PdfObjekt& katalog = aufbau_.objekte.at(static_cast<std::size_t>(aufbau_.katalog));
        PdfVerlange(!katalog.frei && katalog.listenende != 0 && katalog.wert("/Type") == "/Catalog");
    }

    [[nodiscard]] int Anzahl() const { return static_cast<int>(aufbau_.objekte.size()); }

    static constexpr std::size_t zeilenlaenge = 20;

    std::string_view bytes_;
    std::size_t tabelle_ = 0;                                  // where the table begins
    std::size_t abschlussEnde_ = 0;                            // where the trailer ends
    std::vector<std::pair<std::size_t, std::size_t>> stroeme_; // number, and behind the word "stream"
    PdfAufbau aufbau_;
};

} // namespace

std::optional<PdfAufbau> PdfAufbauLesen(std::string_view bytes) {
    try {
        return Dateileser(bytes).Lesen();
    } catch (const PdfUnverstanden&) {
        return std::nullopt;
    }
}
