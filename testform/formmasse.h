// The measures of the test form's window in pixels, for its two size classes. Places nothing itself.
#pragma once

#include "core/laenge.h"

struct TestMasse {
    Schriftpunkte schrift;
    Schriftpunkte kopfSchrift;
    int kopfHoehe = 0;
    int nummerBreite = 0;
    int frageBreite = 0;
    int antwortBreite = 0;
    int punkteBreite = 0;
    int drehBreite = 0;
    int zeilenHoehe = 0;
    int zeilenAbstand = 0;

    static constexpr int rand = 6;
    static constexpr int luecke = 3;
    static constexpr int ueberschrift = 16; // height of the words above the columns

    [[nodiscard]] constexpr int FrageLinks() const { return rand + nummerBreite + luecke; }
    [[nodiscard]] constexpr int AntwortLinks() const { return FrageLinks() + frageBreite + luecke; }
    [[nodiscard]] constexpr int PunkteLinks() const { return AntwortLinks() + antwortBreite + luecke; }
    [[nodiscard]] constexpr int DrehLinks() const { return PunkteLinks() + punkteBreite; }
    [[nodiscard]] constexpr int Breite() const { return DrehLinks() + drehBreite + rand; }
    [[nodiscard]] constexpr int KopfOben(int zeile) const { return rand + zeile * (kopfHoehe + luecke); }
    [[nodiscard]] constexpr int ZeileOben(int n) const {
        return KopfOben(3) + ueberschrift + (n - 1) * (zeilenHoehe + zeilenAbstand);
    }
    [[nodiscard]] constexpr int FussOben() const { return ZeileOben(11); }
    [[nodiscard]] constexpr int Hoehe() const { return FussOben() + kopfHoehe + rand; }
};

inline constexpr TestMasse testmasseKlein{8_pt, 11_pt, 24, 26, 520, 312, 34, 20, 42, 4};
inline constexpr TestMasse testmasseGross{10_pt, 12_pt, 28, 32, 640, 400, 42, 22, 60, 5};

// Measures for a screen of that width: the large class from 1280 on.
[[nodiscard]] constexpr const TestMasse& TestMasseFuer(int schirmBreite) {
    return schirmBreite < 1280 ? testmasseKlein : testmasseGross;
}
