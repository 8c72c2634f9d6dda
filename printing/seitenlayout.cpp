#include "printing/seitenlayout.h"

#include "printing/feldlayout.h"
#include "printing/texte.h"

#include <cstddef>
#include <utility>

namespace {

constexpr Farbe kopfGrund{255, 255, 191};
constexpr Farbe gebietGrund{223, 223, 223};

void KopfZeichnen(Zeichnung& zeichnung, const FKDruckdaten& daten, const Druckgeometrie& g) {
    Rechteck rahmen{g.RandLinks,
                    g.RandOben,
                    6.0F * g.SpaltenRaster - g.LueckeX,
                    g.KopfHoehe,
                    {g.StrichKopf, farbeSchwarz},
                    {}};
    if (daten.titelGrau) {
        rahmen.fuellung = kopfGrund;
    }
    zeichnung.emplace_back(rahmen);

    const Druckschrift gross{Schriftart::Arial, 20_pt * g.Massstab, true};
    const Druckschrift klein{Schriftart::Arial, 11_pt * g.Massstab, true};
    const Millimeter hoehe = g.RandOben + 4.5_mm * g.Massstab;
    const auto setzen = [&](float spalte, std::string_view vorsatz, const std::string& wert) {
        zeichnung.emplace_back(
            Textstelle{g.RandLinks + spalte * g.SpaltenRaster, hoehe, klein, std::string(vorsatz) + wert});
    };
    zeichnung.emplace_back(Textstelle{g.RandLinks + 3_mm * g.Massstab, g.RandOben + 2_mm * g.Massstab, gross,
                                      std::string(drucktexte::kopf)});
    setzen(3.0F, drucktexte::datum, daten.datum);
    setzen(4.0F, drucktexte::zeit, daten.zeit);
    setzen(5.0F, drucktexte::nummer, daten.nummer);
}

void GebieteZeichnen(Blattlagen& lagen, const FKDruckdaten& daten, const Druckgeometrie& g,
                     const Schriftmass& mass) {
    const Druckschrift schrift{Schriftart::Arial, 14_pt * g.Massstab, true};
    const Millimeter y = g.RandOben + g.KopfHoehe + g.KopfLuecke;
    for (std::size_t a = 1; a < daten.gebiete.size(); ++a) {
        const Millimeter x = g.RandLinks + static_cast<float>(a - 1) * g.SpaltenRaster;
        Rechteck kopf{x, y, g.SpaltenBreite, g.GebietHoehe, {g.StrichFeld, farbeSchwarz}, {}};
        if (daten.gebieteGrau) {
            kopf.fuellung = gebietGrund;
        }
        lagen.grund.emplace_back(kopf);
        const FKDruckgebiet& gebiet = daten.gebiete[a];
        if (!daten.blanko && gebiet.benutzbar && gebiet.titel != drucktexte::keinTitel) {
            Zeichnung titel;
            TextZentriert(titel, mass, x + g.SpaltenBreite / 2.0F, y + g.GebietHoehe / 2.0F, schrift,
                          gebiet.titel);
            Einordnen(lagen.grund, lagen.texte[a - 1], std::move(titel), kopf, mass);
        }
    }
}

} // namespace

Zeichnung FormularZeichnen(const FKDruckdaten& daten, const Druckgeometrie& g, const Schriftmass& mass) {
    Blattlagen lagen;
    lagen.grund.reserve(300);
    KopfZeichnen(lagen.grund, daten, g);
    GebieteZeichnen(lagen, daten, g, mass);
    FelderZeichnen(lagen, daten, g, mass);
    return Uebereinander(std::move(lagen));
}
