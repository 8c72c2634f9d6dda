#include "printing/feldlayout.h"

#include "printing/feldwert.h"
#include "printing/zeilenumbruch.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace {

// A cell with its place on the page and everything that drawing it needs.
struct Feldplatz {
    const FKDruckdaten& daten;
    const Druckgeometrie& g;
    const Schriftmass& mass;
    const FKDruckfeld& feld;
    const Artzeile* art = nullptr;
    int zeile = 0; // 1 to 5, the worth of a plain cell
    Millimeter x, y;
};

void RahmenZeichnen(Zeichnung& zeichnung, const Feldplatz& s) {
    const Druckgeometrie& g = s.g;
    const Millimeter hoehe = g.FrageHoehe + g.AntwortHoehe;
    const Rechteck aussen{s.x, s.y, g.SpaltenBreite, hoehe, {g.StrichDuenn, farbeSchwarz}, {}};
    zeichnung.emplace_back(aussen);
    if (s.art == nullptr) {
        return;
    }
    // The bottom edge stands 0.1 mm higher than the inset asks for.
    Rechteck innen{s.x + g.RahmenEinzug,
                   s.y + g.RahmenEinzug,
                   g.SpaltenBreite - 2.0F * g.RahmenEinzug,
                   hoehe - 2.0F * g.RahmenEinzug - 0.1_mm,
                   {g.StrichFeld, farbeSchwarz},
                   {}};
    if (s.daten.rahmenFarbig) {
        innen.stift.farbe = s.art->druckLinie;
    }
    if (s.daten.spezialFarbig) {
        innen.fuellung = s.art->druckGrund;
    }
    zeichnung.emplace_back(innen);
    if (!HatWort(s.art)) {
        zeichnung.emplace_back(aussen); // again, so that it stays on top
    }
}

void TeilerZeichnen(Zeichnung& zeichnung, const Feldplatz& s) {
    const Druckgeometrie& g = s.g;
    const Stift stift{g.StrichDuenn, farbeSchwarz};
    const Millimeter links = s.x + g.NummerBreite;
    const Millimeter mitte = s.y + g.FrageHoehe;
    zeichnung.emplace_back(Strich{links, mitte, s.x + g.SpaltenBreite, mitte, stift});
    zeichnung.emplace_back(Strich{links, s.y, links, mitte + g.AntwortHoehe, stift});
}

// Lines run on below the cell when there are many: nothing is cut off, and that is meant.
void FeldtextZeichnen(Zeichnung& zeichnung, const Feldplatz& s, const std::string& text, Millimeter y,
                      bool fett) {
    const Druckschrift schrift{Schriftart::Arial, 8_pt * s.g.Massstab, fett};
    const auto zeilen = Umbrechen(text, s.g.TextBreite, [&](std::string_view teil) {
        return s.mass.BreiteGegen(teil, schrift, s.g.TextBreite);
    });
    TextZeilen(zeichnung, s.mass, s.x + s.g.TextEinzug, y, schrift, zeilen);
}

// The question, or the kind's word over the whole cell.
void FrageZeichnen(Zeichnung& zeichnung, const Feldplatz& s) {
    if (HatWort(s.art)) {
        const Druckschrift schrift{Schriftart::Arial, 18_pt * s.g.Massstab, true};
        TextZentriert(zeichnung, s.mass, s.x + s.g.SpaltenBreite / 2.0F,
                      s.y + (s.g.FrageHoehe + s.g.AntwortHoehe) / 2.0F, schrift, s.art->druckWort);
    } else if (s.feld.frageSichtbar) {
        FeldtextZeichnen(zeichnung, s, s.feld.frage, s.y + s.g.TextOben, false);
    }
}

void AntwortZeichnen(Zeichnung& zeichnung, const Feldplatz& s) {
    if (!HatWort(s.art) && s.feld.antwortSichtbar) {
        FeldtextZeichnen(zeichnung, s, s.feld.antwort, s.y + s.g.AntwortOben + s.g.FrageHoehe, true);
    }
}

void NummerZeichnen(Zeichnung& zeichnung, const Feldplatz& s) {
    if (!s.feld.frageSichtbar) {
        return; // not in play
    }
    const Druckschrift schrift{Schriftart::Arial, 12_pt * s.g.Massstab, true};
    const Millimeter x = s.x + s.g.NummerBreite / 2.0F;
    TextZentriert(zeichnung, s.mass, x, s.y + s.g.FrageHoehe / 2.0F, schrift,
                  Feldwert(s.art, s.daten.punkte, s.zeile));
    if (s.art != nullptr && !HatWort(s.art)) {
        TextZentriert(zeichnung, s.mass, x, s.y + s.g.FrageHoehe + s.g.AntwortHoehe / 2.0F, schrift,
                      s.feld.spezial);
    }
}

void FeldZeichnen(Blattlagen& lagen, Zeichnung& texte, const Feldplatz& s) {
    RahmenZeichnen(lagen.grund, s);
    if (!HatWort(s.art)) {
        TeilerZeichnen(lagen.grund, s);
    }
    NummerZeichnen(texte, s);
    Zeichnung frage;
    FrageZeichnen(frage, s);
    const Rechteck feld{s.x, s.y, s.g.SpaltenBreite, s.g.FrageHoehe + s.g.AntwortHoehe, {}, {}};
    Einordnen(lagen.grund, texte, std::move(frage), feld, s.mass);
    AntwortZeichnen(texte, s); // wherever it ends, no frame covers an answer
}

bool Innerhalb(const Textstelle& text, const Rechteck& platz, const Schriftmass& mass) {
    const Millimeter breite = platz.x + platz.breite - text.x;
    return text.x >= platz.x && text.y >= platz.y &&
           text.y + mass.Hoehe(text.schrift) <= platz.y + platz.hoehe &&
           mass.BreiteGegen(text.text, text.schrift, breite) <= breite;
}

void Anhaengen(Zeichnung& zeichnung, Zeichnung teile) {
    zeichnung.insert(zeichnung.end(), std::make_move_iterator(teile.begin()),
                     std::make_move_iterator(teile.end()));
}

} // namespace

void Einordnen(Zeichnung& grund, Zeichnung& texte, Zeichnung zeilen, const Rechteck& platz,
               const Schriftmass& mass) {
    const bool innerhalb = std::ranges::all_of(zeilen, [&](const Element& element) {
        return Innerhalb(std::get<Textstelle>(element), platz, mass);
    });
    Anhaengen(innerhalb ? texte : grund, std::move(zeilen));
}

Zeichnung Uebereinander(Blattlagen lagen) {
    for (Zeichnung& texte : lagen.texte) {
        Anhaengen(lagen.grund, std::move(texte));
    }
    return std::move(lagen.grund);
}

void FelderZeichnen(Blattlagen& lagen, const FKDruckdaten& daten, const Druckgeometrie& g,
                    const Schriftmass& mass) {
    for (std::size_t n = 1; n < daten.felder.size(); ++n) {
        const std::size_t spalte = (n - 1) / 5;
        const std::size_t zeile = (n - 1) % 5;
        const FKDruckfeld& feld = daten.felder[n];
        FeldZeichnen(lagen, lagen.texte[spalte],
                     Feldplatz{daten, g, mass, feld, Feldart(feld), static_cast<int>(zeile) + 1,
                               g.RandLinks + static_cast<float>(spalte) * g.SpaltenRaster,
                               g.ZeilenOben + static_cast<float>(zeile) * g.ZeilenRaster});
    }
}

void FelderZeichnen(Zeichnung& zeichnung, const FKDruckdaten& daten, const Druckgeometrie& g,
                    const Schriftmass& mass) {
    Blattlagen lagen{std::move(zeichnung), {}};
    FelderZeichnen(lagen, daten, g, mass);
    zeichnung = Uebereinander(std::move(lagen));
}
