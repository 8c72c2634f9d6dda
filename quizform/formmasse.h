// The measures of the quiz form's window, for its two size classes. Places nothing itself.
#pragma once

#include "core/laenge.h"

struct FormMasse {
    Schriftpunkte schrift;
    Twips kopfHoehe;
    Twips titelAbstand; // above and below the titles
    Twips titelHoehe;
    Twips punkteBreite;
    Twips textAbstand; // between points column and text
    Twips frageBreite;
    Twips frageHoehe;
    Twips antwortHoehe;
    Twips spaltenAbstand;
    Twips zeilenAbstand;

    static constexpr Twips links = 45_tw;
    static constexpr Twips kopfOben = 60_tw;
    static constexpr Twips ueberRaster = 45_tw; // counts for the cells in place of kopfOben
    static constexpr Twips saumRechts = 75_tw;
    static constexpr Twips saumUnten = 30_tw;

    [[nodiscard]] constexpr Twips SpaltenRaster() const {
        return punkteBreite + textAbstand + frageBreite + spaltenAbstand;
    }
    [[nodiscard]] constexpr Twips ZeilenRaster() const { return frageHoehe + antwortHoehe + zeilenAbstand; }
    [[nodiscard]] constexpr Twips RasterOben() const {
        return ueberRaster + kopfHoehe + titelAbstand + titelHoehe + titelAbstand;
    }
    [[nodiscard]] constexpr Twips TitelOben() const { return kopfOben + kopfHoehe + titelAbstand; }
    [[nodiscard]] constexpr Twips TitelBreite() const { return SpaltenRaster() - spaltenAbstand; }
    [[nodiscard]] constexpr Twips InnenBreite() const { return 6 * SpaltenRaster() + saumRechts; }
    [[nodiscard]] constexpr Twips InnenHoehe() const { return 5 * ZeilenRaster() + RasterOben() + saumUnten; }
};

inline constexpr FormMasse masseKlein{8_pt,    375_tw,  60_tw,  315_tw, 375_tw, 30_tw,
                                      1860_tw, 1035_tw, 465_tw, 75_tw,  45_tw};
inline constexpr FormMasse masseGross{10_pt,   375_tw,  90_tw,  360_tw, 390_tw, 30_tw,
                                      2550_tw, 1320_tw, 600_tw, 90_tw,  60_tw};

// Measures for a screen of that width in pixels: the large class from 1280 on.
[[nodiscard]] constexpr const FormMasse& FormMasseFuer(int schirmBreite) {
    return schirmBreite < 1280 ? masseKlein : masseGross;
}
