#include "printing/druckgeometrie.h"

#include <array>
#include <cstddef>

namespace {

// What differs between the two papers; the members stand in the order of Druckgeometrie.
struct Papierwerte {
    float randLinks, randOben;
    float massstab;
    float lueckenfaktor;
    float breiteNutz, hoeheNutz;
    float kopfHoehe, kopfLuecke, gebietHoehe;
    float textEinzug, textOben, antwortOben, rahmenEinzug;
    float frageAnteil, antwortAnteil;
    int strichKopf, strichFeld, strichDuenn;
};

constexpr std::array<Papierwerte, 2> papierwerte{{
    {10.0F, 25.0F, 1.0F, 1.0F, 277.0F, 175.0F, 12.0F, 3.0F, 9.0F, 8.5F, 1.5F, 1.5F, 1.0F, 0.65F, 0.35F, 11, 9,
     5},
    {6.0F, 20.0F, 0.7F, 0.7F, 198.0F, 122.0F, 8.4F, 2.1F, 6.3F, 5.95F, 0.875F, 0.875F, 0.35F, 0.7F, 0.3F, 9,
     7, 5},
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

Druckgeometrie GeometrieRechnen(Papier papier, float zwischenabstand, std::int32_t links, std::int32_t oben) {
    const Papierwerte& w = papierwerte[static_cast<std::size_t>(papier)];
    Druckgeometrie g{};
    Uebernehmen(g, w);
    g.RandLinks = w.randLinks - static_cast<float>(links);
    g.RandOben = w.randOben - static_cast<float>(oben);
    g.LueckeX = zwischenabstand * w.lueckenfaktor;
    g.LueckeY = zwischenabstand * w.lueckenfaktor;

    g.SpaltenBreite = (g.BreiteNutz - 5.0F * g.LueckeX) / 6.0F;
    g.ZeileGanz = (g.HoeheNutz - g.KopfHoehe - g.KopfLuecke - g.GebietHoehe - 5.0F * g.LueckeY) / 5.0F;
    g.FrageHoehe = g.ZeileGanz * g.FrageAnteil;
    g.AntwortHoehe = g.ZeileGanz * g.AntwortAnteil;
    // Every font shrinks a little as the gap grows.
    g.Massstab = w.massstab - zwischenabstand / 50.0F;
    g.SpaltenRaster = g.SpaltenBreite + g.LueckeX;
    g.ZeilenRaster = g.AntwortHoehe + g.FrageHoehe + g.LueckeY;
    g.NummerBreite = g.Massstab * 7.0F;
    g.NummerEinzug = 1.0F;
    g.TextBreite = g.SpaltenBreite - g.TextEinzug - 2.0F;
    g.ZeilenOben = g.RandOben + g.KopfHoehe + g.KopfLuecke + g.GebietHoehe + g.LueckeY;
    return g;
}
