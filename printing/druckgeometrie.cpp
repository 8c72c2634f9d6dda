#include "printing/druckgeometrie.h"

#include <array>
#include <cstddef>

namespace {

// What differs between the two papers; the members stand in the order of Druckgeometrie.
struct Papierwerte {
    Millimeter randLinks, randOben;
    float massstab = 1.0F;
    float lueckenfaktor = 1.0F;
    Millimeter breiteNutz, hoeheNutz;
    Millimeter kopfHoehe, kopfLuecke, gebietHoehe;
    Millimeter textEinzug, textOben, antwortOben, rahmenEinzug;
    float frageAnteil = 0.0F, antwortAnteil = 0.0F;
    Druckpunkte strichKopf, strichFeld, strichDuenn;
};

constexpr std::array<Papierwerte, 2> papierwerte{{
    {10_mm, 25_mm, 1.0F, 1.0F, 277_mm, 175_mm, 12_mm, 3_mm, 9_mm, 8.5_mm, 1.5_mm, 1.5_mm, 1_mm, 0.65F, 0.35F,
     11_dp, 9_dp, 5_dp},
    {6_mm, 20_mm, 0.7F, 0.7F, 198_mm, 122_mm, 8.4_mm, 2.1_mm, 6.3_mm, 5.95_mm, 0.875_mm, 0.875_mm, 0.35_mm,
     0.7F, 0.3F, 9_dp, 7_dp, 5_dp},
}};

void Uebernehmen(Druckgeometrie& g, const Papierwerte& w) {
    g.BreiteNutz = w.breiteNutz;
    g.HoeheNutz = w.hoeheNutz;
    g.KopfHoehe = w.kopfHoehe;
    g.KopfLuecke = w.kopfLuecke;
    g.GebietHoehe = w.gebietHoehe;
    g.TextEinzug = w.textEinzug;
    g.TextOben = w.textOben;
    g.AntwortOben = w.antwortOben;
    g.RahmenEinzug = w.rahmenEinzug;
    g.FrageAnteil = w.frageAnteil;
    g.AntwortAnteil = w.antwortAnteil;
    g.StrichKopf = w.strichKopf;
    g.StrichFeld = w.strichFeld;
    g.StrichDuenn = w.strichDuenn;
}

} // namespace

std::optional<Papier> PapierAus(std::string_view papierformat) {
    if (papierformat == "A4 quer") {
        return Papier::A4Quer;
    }
    if (papierformat == "A5 quer") {
        return Papier::A5Quer;
    }
    return std::nullopt;
}

Druckgeometrie GeometrieRechnen(Papier papier, Millimeter zwischenabstand, Millimeter links,
                                Millimeter oben) {
    const Papierwerte& w = papierwerte[static_cast<std::size_t>(papier)];
    Druckgeometrie g{};
    Uebernehmen(g, w);
    g.RandLinks = w.randLinks - links;
    g.RandOben = w.randOben - oben;
    g.LueckeX = zwischenabstand * w.lueckenfaktor;
    g.LueckeY = zwischenabstand * w.lueckenfaktor;

    g.SpaltenBreite = (g.BreiteNutz - 5.0F * g.LueckeX) / 6.0F;
    g.ZeileGanz = (g.HoeheNutz - g.KopfHoehe - g.KopfLuecke - g.GebietHoehe - 5.0F * g.LueckeY) / 5.0F;
    g.FrageHoehe = g.ZeileGanz * g.FrageAnteil;
    g.AntwortHoehe = g.ZeileGanz * g.AntwortAnteil;
    // Every font shrinks a little as the gap grows.
    g.Massstab = w.massstab - zwischenabstand / 50_mm;
    g.SpaltenRaster = g.SpaltenBreite + g.LueckeX;
    g.ZeilenRaster = g.AntwortHoehe + g.FrageHoehe + g.LueckeY;
    g.NummerBreite = g.Massstab * 7_mm;
    g.NummerEinzug = 1_mm;
    g.TextBreite = g.SpaltenBreite - g.TextEinzug - 2_mm;
    g.ZeilenOben = g.RandOben + g.KopfHoehe + g.KopfLuecke + g.GebietHoehe + g.LueckeY;
    return g;
}
