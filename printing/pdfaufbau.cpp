#include "printing/pdfaufbau.h"

#include "printing/pdfmarken.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <string>
#include <utility>

namespace {

using Art = PdfMarke::Art;

constexpr auto nirgends = std::string_view::npos;

// A file that isn't understood. Stays inside this unit.
struct Unverstanden : std::exception {};

void Verlange(bool wahr) {
    if (!wahr) {
        throw Unverstanden();
    }
}

int Ganzzahl(PdfMarken& marken) {
    const PdfMarke marke = marken.Naechste();
    Verlange(marke.art == Art::Ganzzahl);
    return marke.zahl;
}

// The number of the object that a value names; 0 if it names none.
int Verweis(std::string_view wert) {
    PdfMarken marken(wert, 0);
    const PdfMarke nummer = marken.Naechste();
    const PdfMarke stand = marken.Naechste();
    return stand.art == Art::Ganzzahl && marken.Naechste().ist("R") ? nummer.zahl : 0;
}

// Reads an object's words from the first one on and gathers what it holds.
class Objektleser {
public:
    // anzahl: how many numbers the file has.
    Objektleser(std::string_view bytes, int anzahl, PdfObjekt& objekt)
        : bytes_(bytes.substr(0, objekt.ende)),
          anzahl_(anzahl),
          objekt_(objekt),
          marken_(bytes_, objekt.anfang) {}

    // "7 0 obj", by which an object begins.
    void Anfang(int nummer) {
        const PdfMarke erste = marken_.Naechste();
        Verlange(erste.anfang == objekt_.anfang && erste.art == Art::Ganzzahl && erste.zahl == nummer);
        objekt_.stellen.push_back({erste.anfang, erste.text.size(), nummer});
        Verlange(Ganzzahl(marken_) == 0 && marken_.Naechste().ist("obj"));
    }

    // What it holds, up to the word behind it, which is returned: "endobj", "stream", or the end.
    PdfMarke Inhalt() {
        while (true) {
            const PdfMarke marke = marken_.Naechste();
            if (marke.art == Art::Ende || marke.ist("endobj") || marke.ist("stream")) {
                Verlange(klammern_.empty());
                return marke;
            }
            Verlange(marke.art != Art::Fremd && !marke.ist("obj") && !marke.ist("endstream"));
            Aufnehmen(marke);
            vorletzte_ = std::exchange(letzte_, marke);
        }
    }

private:
    void Aufnehmen(const PdfMarke& marke) {
        Verlange(objekt_.listenende == 0); // nothing stands behind the list
        const bool obenauf = klammern_ == "<";
        if (marke.art == Art::Zu) {
            Schliessen(marke);
        } else if (marke.art == Art::Name && obenauf && !WertErwartet()) {
            objekt_.eintraege.push_back({marke.text, {}});
        } else {
            KennungMerken(marke, obenauf);
            WertVerlaengern(marke);
        }
        if (marke.art == Art::Auf) {
            klammern_ += marke.text.front();
        } else if (marke.ist("R")) {
            VerweisMerken();
        }
    }

    // True behind an entry's name, where its value has yet to come.
    [[nodiscard]] bool WertErwartet() const {
        return !objekt_.eintraege.empty() && objekt_.eintraege.back().wert.empty();
    }

    void WertVerlaengern(const PdfMarke& marke) {
        if (klammern_.empty() || objekt_.eintraege.empty()) {
            return;
        }
        std::string_view& wert = objekt_.eintraege.back().wert;
        const std::size_t anfang =
            wert.empty() ? marke.anfang : static_cast<std::size_t>(wert.data() - bytes_.data());
        wert = bytes_.substr(anfang, marke.ende() - anfang);
    }

    void Schliessen(const PdfMarke& marke) {
        Verlange(!klammern_.empty() && klammern_.back() == (marke.text == ">>" ? '<' : '['));
        klammern_.pop_back();
        if (!klammern_.empty()) {
            WertVerlaengern(marke);
        } else if (marke.text == ">>") {
            objekt_.listenende = marke.anfang;
        }
    }

    void VerweisMerken() {
        Verlange(vorletzte_.art == Art::Ganzzahl && letzte_.art == Art::Ganzzahl && letzte_.zahl == 0);
        Verlange(vorletzte_.zahl > 0 && vorletzte_.zahl < anzahl_);
        objekt_.stellen.push_back({vorletzte_.anfang, vorletzte_.text.size(), vorletzte_.zahl});
    }

    // "/QNAAAA+LiberationSans" as the name of a font.
    void KennungMerken(const PdfMarke& marke, bool obenauf) {
        constexpr std::size_t laenge = 6;
        constexpr std::string_view grossbuchstaben = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
        if (!obenauf || marke.art != Art::Name || !WertErwartet()) {
            return;
        }
        const std::string_view name = objekt_.eintraege.back().name;
        if ((name == "/FontName" || name == "/BaseFont") &&
            marke.text.find_first_not_of(grossbuchstaben, 1) == laenge + 1 && marke.text[laenge + 1] == '+') {
            objekt_.stellen.push_back({marke.anfang + 1, laenge, 0});
        }
    }

    std::string_view bytes_;
    int anzahl_;
    PdfObjekt& objekt_;
    PdfMarken marken_;
    PdfMarke letzte_, vorletzte_;
    std::string klammern_; // the open ones, each as its first character
};

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
        Verlange(bytes_.starts_with("%PDF-") && ende != nirgends);
        Verlange(std::ranges::all_of(bytes_.substr(ende + marke.size()), PdfLeer));
        abschlussEnde_ = bytes_.substr(0, ende).rfind("startxref");
        Verlange(abschlussEnde_ != nirgends);
        PdfMarken marken(bytes_.substr(0, ende), abschlussEnde_);
        Verlange(marken.Naechste().ist("startxref"));
        tabelle_ = static_cast<std::size_t>(Ganzzahl(marken));
        Verlange(tabelle_ < abschlussEnde_ && marken.Naechste().art == Art::Ende);
    }

    void TabelleLesen() {
        PdfMarken marken(bytes_.substr(0, abschlussEnde_), tabelle_);
        Verlange(bytes_.substr(tabelle_).starts_with("xref") && marken.Naechste().ist("xref"));
        Verlange(Ganzzahl(marken) == 0);
        const PdfMarke anzahl = marken.Naechste();
        Verlange(anzahl.art == Art::Ganzzahl && anzahl.zahl > 0);
        std::size_t stelle = anzahl.ende();
        while (stelle < abschlussEnde_ && PdfLeer(bytes_[stelle])) {
            ++stelle;
        }
        const auto zeilen = static_cast<std::size_t>(anzahl.zahl);
        Verlange(zeilen <= (abschlussEnde_ - stelle) / zeilenlaenge);
        aufbau_.objekte.reserve(zeilen);
        for (std::size_t n = 0; n < zeilen; ++n, stelle += zeilenlaenge) {
            ZeileLesen(bytes_.substr(stelle, zeilenlaenge));
        }
        Verlange(aufbau_.objekte.front().frei);
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
        Verlange(lesen(zeile.substr(0, bisStand - 1), objekt.anfang) &&
                 lesen(zeile.substr(bisStand, bisArt - bisStand - 1), objekt.stand) && objekt.stand >= 0);
        Verlange(zeile[bisStand - 1] == ' ' && zeile[bisArt - 1] == ' ');
        Verlange(PdfLeer(zeile[bisArt + 1]) && PdfLeer(zeile[bisArt + 2]));
        objekt.frei = zeile[bisArt] == 'f';
        Verlange(objekt.frei || (zeile[bisArt] == 'n' && objekt.stand == 0));
        aufbau_.objekte.push_back(std::move(objekt));
    }

    void AbschlussLesen() {
        PdfObjekt& abschluss = aufbau_.abschluss;
        PdfMarken marken(bytes_.substr(0, abschlussEnde_), abschluss.anfang);
        Verlange(marken.Naechste().ist("trailer"));
        const PdfMarke liste = marken.Naechste();
        Verlange(liste.text == "<<");
        abschluss.anfang = liste.anfang;
        abschluss.ende = abschlussEnde_;
        Objektleser leser(bytes_, Anzahl(), abschluss);
        Verlange(leser.Inhalt().art == Art::Ende && abschluss.listenende != 0);
        abschluss.ende = abschluss.listenende + 2;
        for (const char* const fremd : {"/Prev", "/XRefStm", "/Encrypt"}) {
            Verlange(!abschluss.wert(fremd));
        }
        Verlange(abschluss.wert("/Size") == std::to_string(Anzahl()));
    }

    // Each object reaches up to the next one in the file, the last one up to the table.
    void GrenzenZiehen() {
        std::vector<PdfObjekt*> folge;
        for (PdfObjekt& objekt : aufbau_.objekte) {
            if (!objekt.frei) {
                folge.push_back(&objekt);
            }
        }
        Verlange(!folge.empty());
        std::ranges::sort(folge, {}, &PdfObjekt::anfang);
        for (std::size_t i = 0; i < folge.size(); ++i) {
            folge[i]->ende = i + 1 < folge.size() ? folge[i + 1]->anfang : tabelle_;
            Verlange(folge[i]->anfang < folge[i]->ende && folge[i]->ende <= tabelle_);
        }
        aufbau_.kopf = bytes_.substr(0, folge.front()->anfang);
        Verlange(aufbau_.kopf.starts_with("%PDF-") && aufbau_.kopf.ends_with('\n'));
    }

    void ObjektLesen(std::size_t nummer) {
        PdfObjekt& objekt = aufbau_.objekte[nummer];
        if (objekt.frei) {
            return;
        }
        Objektleser leser(bytes_, Anzahl(), objekt);
        leser.Anfang(static_cast<int>(nummer));
        const PdfMarke ende = leser.Inhalt();
        const auto art = objekt.wert("/Type");
        Verlange(ende.art != Art::Ende && art != "/ObjStm" && art != "/XRef");
        if (ende.ist("stream")) {
            stroeme_.emplace_back(nummer, ende.ende());
        } else {
            Verlange(PdfMarken(bytes_.substr(0, objekt.ende), ende.ende()).Naechste().art == Art::Ende);
        }
    }

    // The length of a stream, which may stand in an object of its own.
    [[nodiscard]] std::size_t Laenge(const PdfObjekt& strom) const {
        const std::string_view wert = strom.wert("/Length").value_or("");
        const int verweis = Verweis(wert);
        if (verweis == 0) {
            PdfMarken marken(wert, 0);
            return static_cast<std::size_t>(Ganzzahl(marken));
        }
        const PdfObjekt& laenge = aufbau_.objekte.at(static_cast<std::size_t>(verweis));
        Verlange(!laenge.frei);
        PdfMarken marken(bytes_.substr(0, laenge.ende), laenge.stellen.front().anfang);
        for (int wort = 0; wort < 3; ++wort) { // "7 0 obj"
            static_cast<void>(marken.Naechste());
        }
        const int zahl = Ganzzahl(marken);
        Verlange(marken.Naechste().ist("endobj"));
        return static_cast<std::size_t>(zahl);
    }

    void StromPruefen(const PdfObjekt& strom, std::size_t stelle) const {
        const std::string_view bis = bytes_.substr(0, strom.ende);
        stelle += bis.substr(stelle).starts_with("\r\n") ? 2U : 1U;
        Verlange(stelle <= bis.size() && bis[stelle - 1] == '\n');
        const std::size_t laenge = Laenge(strom);
        Verlange(laenge <= bis.size() - stelle);
        PdfMarken marken(bis, stelle + laenge);
        Verlange(marken.Naechste().ist("endstream") && marken.Naechste().ist("endobj") &&
                 marken.Naechste().art == Art::Ende);
    }

    void KatalogFinden() {
        aufbau_.katalog = Verweis(aufbau_.abschluss.wert("/Root").value_or(""));
        Verlange(aufbau_.katalog != 0);
        const PdfObjekt& katalog = aufbau_.objekte.at(static_cast<std::size_t>(aufbau_.katalog));
        Verlange(!katalog.frei && katalog.listenende != 0 && katalog.wert("/Type") == "/Catalog");
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

std::optional<std::string_view> PdfObjekt::wert(std::string_view name) const {
    const auto stelle = std::ranges::find(eintraege, name, &PdfEintrag::name);
    return stelle == eintraege.end() ? std::nullopt : std::optional(stelle->wert);
}

std::optional<PdfAufbau> PdfAufbauLesen(std::string_view bytes) {
    try {
        return Dateileser(bytes).Lesen();
    } catch (const Unverstanden&) {
        return std::nullopt;
    }
}
