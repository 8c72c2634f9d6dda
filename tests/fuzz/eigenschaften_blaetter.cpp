// The properties of the sheets beside the form's own, and of the order that PDF files are put in.
#include "tests/fuzz/eigenschaften.h"

#include "printing/druckdaten.h"
#include "printing/feldwert.h"
#include "printing/pdfordnung.h"
#include "sheets/blaetter.h"
#include "tests/fuzz/zeichnungspruefung.h"

#include <cstdio>
#include <vector>

namespace fuzz {

namespace {

std::string Alles(const Blattsatz& blatt) {
    std::string alles;
    for (const Zeichnung& seite : blatt.seiten) {
        for (const Element& element : seite) {
            if (const auto* text = std::get_if<Textstelle>(&element); text != nullptr) {
                alles += text->text;
            }
        }
    }
    return OhneLeeres(alles);
}

// Where a box says that a text has no room it stands on a page that is there.
void BlattPruefen(const Blattsatz& blatt) {
    Verlange(!blatt.seiten.empty(), "a sheet has a page");
    for (const Zeichnung& seite : blatt.seiten) {
        LinienPruefen(seite);
    }
    for (const Ueberhang& ueberhang : blatt.ueberhaenge) {
        Verlange(ueberhang.seite < blatt.seiten.size(), "a box stands on a page");
        Verlange(std::isfinite(ueberhang.kasten.x.zahl() + ueberhang.kasten.hoehe.zahl()),
                 "a box has a place");
    }
}

// A file as the toolkit would write it, of objects with these contents.
std::string PdfAus(const std::vector<std::string_view>& inhalte) {
    std::string datei = "%PDF-1.4\n";
    std::string tabelle = "xref\n0 " + std::to_string(inhalte.size() + 1) + "\n0000000000 65535 f \n";
    for (std::size_t i = 0; i < inhalte.size(); ++i) {
        std::array<char, 24> zeile{};
        static_cast<void>(std::snprintf(zeile.data(), zeile.size(), "%010zu 00000 n \n", datei.size()));
        tabelle += zeile.data();
        datei += std::to_string(i + 1) + " 0 obj\n" + std::string(inhalte.at(i)) + "\nendobj\n";
    }
    const std::size_t stelle = datei.size();
    return datei + tabelle + "trailer\n<<\n/Size " + std::to_string(inhalte.size() + 1) +
           "\n/Info 1 0 R\n/Root 2 0 R\n>>\nstartxref\n" + std::to_string(stelle) + "\n%%EOF\n";
}

void OrdnungPruefen(const std::string& datei) {
    const std::string einmal = PdfOrdnen(datei);
    Verlange(PdfOrdnen(einmal) == einmal, "a file in order stays as it is");
    Verlange(einmal.size() <= 2 * datei.size() + 200, "order adds next to nothing");
}

} // namespace

// One kind of sheet an input: all seven take seven times as long and show nothing more.
void Blaetter(std::string_view bytes) {
    Eingabe eingabe{bytes};
    const auto arten = Blattarten(Formart::Quiz);
    const Blattart art = arten[static_cast<std::size_t>(eingabe.Wahl(static_cast<int>(arten.size())))];
    Zufallsform form = FormAus(eingabe);
    form.spiel.Papierformat = "A4 quer";
    const Quizvorlage vorlage{form.quiz, form.spiel};
    const Blattsatz blatt = BlattMachen(vorlage, {art, false, false}, {4_mm, 4_mm}, Gleichbreit());
    Verlange(art >= Blattart::Karten8 || !blatt.seiten.empty(), "a sheet has a page");
    if (!blatt.seiten.empty()) {
        BlattPruefen(blatt);
    }
    if (art == Blattart::Antwortbogen) {
        const FKDruckdaten daten = DruckdatenAus(form.quiz, form.spiel, false);
        std::size_t laenge = 0;
        for (std::size_t n = 1; n < daten.felder.size(); ++n) {
            const FKDruckfeld& feld = daten.felder.at(n);
            laenge += feld.frageSichtbar && !HatWort(Feldart(feld)) ? OhneLeeres(feld.frage).size() : 0;
        }
        Verlange(Alles(blatt).size() >= laenge, "no letter of a question is lost");
    }
}

void Pdf(std::string_view bytes) {
    OrdnungPruefen(std::string(bytes));
    Eingabe eingabe{bytes};
    std::vector<std::string_view> inhalte;
    while (!eingabe.rest.empty() && inhalte.size() < 40) {
        inhalte.push_back(eingabe.Stueck());
    }
    OrdnungPruefen(PdfAus(inhalte));
}

} // namespace fuzz
