#include "printing/testseite.h"

#include "printing/testtexte.h"
#include "printing/zeilenumbruch.h"

#include <algorithm>

namespace {

constexpr Stift stift{5_dp, farbeSchwarz};
constexpr Druckschrift gross{Schriftart::ArialBlack, 20_pt, true};
constexpr Druckschrift mittel{Schriftart::Arial, 12_pt, false};
constexpr Druckschrift mittelFett{Schriftart::Arial, 12_pt, true};
constexpr Druckschrift klein{Schriftart::Arial, 10_pt, false};

void Waagerecht(Zeichnung& zeichnung, const Testgeometrie& g, Millimeter y) {
    zeichnung.emplace_back(Strich{g.TestRandLinks, y, g.TestRandLinks + g.TestBreite, y, stift});
}

void Senkrecht(Zeichnung& zeichnung, Millimeter x, Millimeter oben, Millimeter unten) {
    zeichnung.emplace_back(Strich{x, oben, x, unten, stift});
}

void Text(Zeichnung& zeichnung, Millimeter x, Millimeter y, const Druckschrift& schrift, std::string text) {
    if (!text.empty()) {
        zeichnung.emplace_back(Textstelle{x, y, schrift, std::move(text)});
    }
}

void RahmenZeichnen(Zeichnung& zeichnung, const Testgeometrie& g) {
    zeichnung.emplace_back(
        Rechteck{g.TestRandLinks, g.TestRandOben, g.TestBreite, g.TestFuss - g.TestRandOben, stift, {}});
    for (const Millimeter y : {10_mm, 20_mm, 30_mm}) {
        Waagerecht(zeichnung, g, g.TestRandOben + y);
    }
    Senkrecht(zeichnung, g.TestRandLinks + 140_mm, g.TestRandOben, g.TestRandOben + 20_mm);
}

void KopfZeichnen(Zeichnung& zeichnung, const Testdruckdaten& daten, const Testgeometrie& g) {
    const Millimeter x = g.TestRandLinks;
    const Millimeter y = g.TestRandOben;
    Text(zeichnung, x, y, gross, daten.titel);
    Text(zeichnung, x + 140_mm, y + 3_mm, mittel, "  " + daten.dateiname);
    Text(zeichnung, x, y + 10_mm, gross, daten.fach);
    Text(zeichnung, x + 140_mm, y + 13_mm, mittel, "  " + daten.gruppenwort);
    Text(zeichnung, x + 162_mm, y + 10_mm, gross, daten.gruppe);
    Text(zeichnung, x, y + 23_mm, mittel, daten.name);
}

// The texts run on when they are long: nothing is cut off.
void AbsatzZeichnen(Zeichnung& zeichnung, const Testgeometrie& g, const Schriftmass& mass, Millimeter y,
                    const std::string& text) {
    const auto messen = [&](std::string_view teil) {
        return mass.BreiteGegen(teil, klein, g.TestTextBreite);
    };
    const auto zeilen = Umbrechen(text, g.TestTextBreite, messen, Wortmass::JedesWort);
    TextZeilen(zeichnung, mass, g.TestRandLinks + g.TestNummerSpalte + g.TestTextEinzug, y, klein, zeilen);
}

void NummerZeichnen(Zeichnung& zeichnung, const Testgeometrie& g, const Schriftmass& mass, int i,
                    Millimeter y) {
    const std::string text = std::to_string(i + 1) + ".";
    const Millimeter rechts = g.TestRandLinks + g.TestNummerSpalte - 2_mm;
    Text(zeichnung, rechts - mass.Breite(text, klein), y, klein, text);
}

// The circle stands a little to the left of the number's middle.
void PunkteZeichnen(Zeichnung& zeichnung, const Testgeometrie& g, const Schriftmass& mass, Millimeter y,
                    const std::string& punkte) {
    if (punkte.empty()) {
        return;
    }
    const Millimeter rechts = g.TestRandLinks + g.TestBreite;
    Text(zeichnung, rechts - 3_mm - mass.Breite(punkte, klein) / 2.0F, y, klein, punkte);
    zeichnung.emplace_back(Kreis{rechts - 3.2_mm, y + mass.Hoehe(klein) / 2.0F, 2.5_mm, stift});
}

void FragenZeichnen(Zeichnung& zeichnung, const Testdruckdaten& daten, const Testgeometrie& g,
                    const Schriftmass& mass) {
    int i = 0;
    Millimeter y = g.TestFragenOben;
    for (const Testdruckzeile& zeile : daten.zeilen) {
        if (zeile.frage.empty()) {
            continue;
        }
        NummerZeichnen(zeichnung, g, mass, i, g.TestFragenOben + static_cast<float>(i) * g.TestRaster);
        AbsatzZeichnen(zeichnung, g, mass, y, zeile.frage);
        if (daten.mitAntworten) {
            AbsatzZeichnen(zeichnung, g, mass, y + g.TestZeile / 2.0F, zeile.antwort);
        }
        PunkteZeichnen(zeichnung, g, mass, y + 10_mm, zeile.punkte);
        ++i;
        y += g.TestRaster;
    }
    if (i == 0) { // the page of an empty test is laid out for one question, and its number stands there
        NummerZeichnen(zeichnung, g, mass, i, g.TestFragenOben);
    }
}

void FussZeichnen(Zeichnung& zeichnung, const Testdruckdaten& daten, const Testgeometrie& g) {
    const Millimeter oben = g.TestFuss - 10_mm;
    const Millimeter text = g.TestFuss - 7_mm;
    const Millimeter drittel = g.TestBreite / 3.0F;
    const Millimeter x = g.TestRandLinks;
    Waagerecht(zeichnung, g, oben);
    Senkrecht(zeichnung, x + drittel, oben, g.TestFuss);
    Senkrecht(zeichnung, x + 2.0F * drittel, oben, g.TestFuss);
    Text(zeichnung, x, text, mittelFett, std::string(testdrucktexte::punkte));
    Text(zeichnung, x + 40_mm, text, mittel, "/ " + std::to_string(daten.gesamtpunkte));
    Text(zeichnung, x + drittel, text, mittel, std::string(testdrucktexte::note));
    Text(zeichnung, x + 2.0F * drittel, text, mittel, std::string(testdrucktexte::bewertet));
}

} // namespace

int AnzahlTestfragen(const Testdruckdaten& daten) {
    return static_cast<int>(std::count_if(daten.zeilen.begin(), daten.zeilen.end(),
                                          [](const Testdruckzeile& zeile) { return !zeile.frage.empty(); }));
}

Testgeometrie TestGeometrieRechnen(int anzahl, Millimeter links, Millimeter oben) {
    Testgeometrie g{};
    g.TestRandLinks = 15_mm - links;
    g.TestRandOben = 10_mm - oben;
    g.TestBreite = 166_mm + 11_mm + 3_mm + 5_mm;
    g.TestTextBreite = 166_mm;
    g.TestNummerSpalte = 8_mm;
    g.TestTextEinzug = 3_mm;
    g.TestFragenOben = g.TestRandOben + 12_mm + 3_mm + 12_mm + 3_mm + 3_mm + 3_mm;
    g.TestFuss = g.TestRandOben + 277_mm;
    // Meant: the 265 count from the sheet and the top from the printable area, so that the height shifts a
    // little with the printer.
    g.TestZeile = (265_mm - g.TestFragenOben) / static_cast<float>(std::max(1, anzahl)) - 3_mm;
    g.TestRaster = g.TestZeile + 3_mm;
    return g;
}

Zeichnung TestZeichnen(const Testdruckdaten& daten, const Testgeometrie& g, const Schriftmass& mass) {
    Zeichnung zeichnung;
    zeichnung.reserve(80);
    RahmenZeichnen(zeichnung, g);
    KopfZeichnen(zeichnung, daten, g);
    FragenZeichnen(zeichnung, daten, g, mass);
    FussZeichnen(zeichnung, daten, g);
    return zeichnung;
}
