// The measures of the quiz form's window in twips, for its two size classes. Places nothing itself.
#pragma once

struct FormMasse {
    int schrift; // points
    int kopfHoehe;
    int titelAbstand; // above and below the titles
    int titelHoehe;
    int punkteBreite;
    int textAbstand; // between points column and text
    int frageBreite;
    int frageHoehe;
    int antwortHoehe;
    int spaltenAbstand;
    int zeilenAbstand;

    static constexpr int links = 45;
    static constexpr int kopfOben = 60;

    [[nodiscard]] constexpr int SpaltenRaster() const {
        return punkteBreite + textAbstand + frageBreite + spaltenAbstand;
    }
    [[nodiscard]] constexpr int ZeilenRaster() const { return frageHoehe + antwortHoehe + zeilenAbstand; }
    [[nodiscard]] constexpr int RasterOben() const {
        return 45 + kopfHoehe + titelAbstand + titelHoehe + titelAbstand;
    }
    [[nodiscard]] constexpr int TitelOben() const { return 60 + kopfHoehe + titelAbstand; }
    [[nodiscard]] constexpr int TitelBreite() const { return SpaltenRaster() - spaltenAbstand; }
    [[nodiscard]] constexpr int InnenBreite() const { return 6 * SpaltenRaster() + 75; }
    [[nodiscard]] constexpr int InnenHoehe() const { return 5 * ZeilenRaster() + RasterOben() + 30; }
};

inline constexpr FormMasse masseKlein{8, 375, 60, 315, 375, 30, 1860, 1035, 465, 75, 45};
inline constexpr FormMasse masseGross{10, 375, 90, 360, 390, 30, 2550, 1320, 600, 90, 60};

// Measures for a screen of that width in pixels: the large class from 1280 on.
[[nodiscard]] constexpr const FormMasse& FormMasseFuer(int schirmBreite) {
    return schirmBreite < 1280 ? masseKlein : masseGross;
}
