#include "printing/testseite.h"

#include "printing/testtexte.h"
#include "printing/zeilenumbruch.h"

#include <algorithm>

namespace {

constexpr Stift stift{5, farbeSchwarz};
constexpr Schrift gross{Schriftart::ArialBlack, 20.0F, true};
constexpr Schrift mittel{Schriftart::Arial, 12.0F, false};
constexpr Schrift mittelFett{Schriftart::Arial, 12.0F, true};
constexpr Schrift klein{Schriftart::Arial, 10.0F, false};

void Waagerecht(Zeichnung& zeichnung, const Testgeometrie& g, float y) {
    zeichnung.emplace_back(Strich{g.TestRandLinks, y, g.TestRandLinks + g.TestBreite, y, stift});
}

void Senkrecht(Zeichnung& zeichnung, float x, float oben, float unten) {
    zeichnung.emplace_back(Strich{x, oben, x, unten, stift});
}

void Text(Zeichnung& zeichnung, float x, float y, const Schrift& schrift, std::string text) {
    if (!text.empty()) {
        zeichnung.emplace_back(Textstelle{x, y, schrift, std::move(text)});
    }
}

void RahmenZeichnen(Zeichnung& zeichnung, const Testgeometrie& g) {
    zeichnung.emplace_back(
        Rechteck{g.TestRandLinks, g.TestRandOben, g.TestBreite, g.TestFuss - g.TestRandOben, stift, {}});
    for (const float y : {10.0F, 20.0F, 30.0F}) {
        Waagerecht(zeichnung, g, g.TestRandOben + y);
    }
    Senkrecht(zeichnung, g.TestRandLinks + 140.0F, g.TestRandOben, g.TestRandOben + 20.0F);
}

void KopfZeichnen(Zeichnung& zeichnung, const Testdruckdaten& daten, const Testgeometrie& g) {
    const float x = g.TestRandLinks;
    const float y = g.TestRandOben;
    Text(zeichnung, x, y, gross, daten.titel);
    Text(zeichnung, x + 140.0F, y + 3.0F, mittel, "  " + daten.dateiname);
    Text(zeichnung, x, y + 10.0F, gross, daten.fach);
    Text(zeichnung, x + 140.0F, y + 13.0F, mittel, "  " + daten.gruppenwort);
    Text(zeichnung, x + 162.0F, y + 10.0F, gross, daten.gruppe);
    Text(zeichnung, x, y + 23.0F, mittel, daten.name);
}

// The texts run on when they are long: nothing is cut off.
void AbsatzZeichnen(Zeichnung& zeichnung, const Testgeometrie& g, const Schriftmass& mass, float y,
                    const std::string& text) {
    const auto messen = [&](std::string_view teil) {
        return mass.BreiteGegen(teil, klein, g.TestTextBreite);
    };
    const auto zeilen = Umbrechen(text, g.TestTextBreite, messen, Wortmass::JedesWort);
    TextZeilen(zeichnung, mass, g.TestRandLinks + g.TestNummerSpalte + g.TestTextEinzug, y, klein, zeilen);
}

void NummerZeichnen(Zeichnung& zeichnung, const Testgeometrie& g, const Schriftmass& mass, int i, float y) {
    const std::string text = std::to_string(i + 1) + ".";
    const float rechts = g.TestRandLinks + g.TestNummerSpalte - 2.0F;
    Text(zeichnung, rechts - mass.Breite(text, klein), y, klein, text);
}

// The circle stands a little to the left of the number's middle.
void PunkteZeichnen(Zeichnung& zeichnung, const Testgeometrie& g, const Schriftmass& mass, float y,
                    const std::string& punkte) {
    if (punkte.empty()) {
        return;
    }
    const float rechts = g.TestRandLinks + g.TestBreite;
    Text(zeichnung, rechts - 3.0F - mass.Breite(punkte, klein) / 2.0F, y, klein, punkte);
    zeichnung.emplace_back(Kreis{rechts - 3.2F, y + mass.Hoehe(klein) / 2.0F, 2.5F, stift});
}

void FragenZeichnen(Zeichnung& zeichnung, const Testdruckdaten& daten, const Testgeometrie& g,
                    const Schriftmass& mass) {
    // The page of an empty test is laid out for one question, and its number stands there.
    for (int i = 0; i < std::max(1, AnzahlTestfragen(daten)); ++i) {
        NummerZeichnen(zeichnung, g, mass, i, g.TestFragenOben + static_cast<float>(i) * g.TestRaster);
    }
    float y = g.TestFragenOben;
    for (const Testdruckzeile& zeile : daten.zeilen) {
        if (zeile.frage.empty()) {
            continue;
        }
        PunkteZeichnen(zeichnung, g, mass, y + 10.0F, zeile.punkte);
        AbsatzZeichnen(zeichnung, g, mass, y, zeile.frage);
        if (daten.mitAntworten) {
            AbsatzZeichnen(zeichnung, g, mass, y + g.TestZeile / 2.0F, zeile.antwort);
        }
        y += g.TestRaster;
    }
}

void FussZeichnen(Zeichnung& zeichnung, const Testdruckdaten& daten, const Testgeometrie& g) {
    const float oben = g.TestFuss - 10.0F;
    const float text = g.TestFuss - 7.0F;
    const float drittel = g.TestBreite / 3.0F;
    const float x = g.TestRandLinks;
    Waagerecht(zeichnung, g, oben);
    Senkrecht(zeichnung, x + drittel, oben, g.TestFuss);
    Senkrecht(zeichnung, x + 2.0F * drittel, oben, g.TestFuss);
    Text(zeichnung, x, text, mittelFett, std::string(testdrucktexte::punkte));
    Text(zeichnung, x + 40.0F, text, mittel, "/ " + std::to_string(daten.gesamtpunkte));
    Text(zeichnung, x + drittel, text, mittel, std::string(testdrucktexte::note));
    Text(zeichnung, x + 2.0F * drittel, text, mittel, std::string(testdrucktexte::bewertet));
}

} // namespace

int AnzahlTestfragen(const Testdruckdaten& daten) {
    return static_cast<int>(std::count_if(daten.zeilen.begin(), daten.zeilen.end(),
                                          [](const Testdruckzeile& zeile) { return !zeile.frage.empty(); }));
}

Testgeometrie TestGeometrieRechnen(int anzahl, std::int32_t links, std::int32_t oben) {
    Testgeometrie g{};
    g.TestRandLinks = 15.0F - static_cast<float>(links);
    g.TestRandOben = 10.0F - static_cast<float>(oben);
    g.TestBreite = 166.0F + 11.0F + 3.0F + 5.0F;
    g.TestTextBreite = 166.0F;
    g.TestNummerSpalte = 8.0F;
    g.TestTextEinzug = 3.0F;
    g.TestFragenOben = g.TestRandOben + 12.0F + 3.0F + 12.0F + 3.0F + 3.0F + 3.0F;
    g.TestFuss = g.TestRandOben + 277.0F;
    // Meant: the 265 count from the sheet and the top from the printable area, so that the height shifts a
    // little with the printer.
    g.TestZeile = (265.0F - g.TestFragenOben) / static_cast<float>(std::max(1, anzahl)) - 3.0F;
    g.TestRaster = g.TestZeile + 3.0F;
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
