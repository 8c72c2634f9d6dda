#include "printing/druckgeometrie.h"

#include "tests/hilfe/laengenausgabe.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

// The sizes of the two papers, written down once more in double precision.
struct Blatt {
    Papier papier;
    double links, oben, massstab, faktor, breite, hoehe, kopf, luecke, gebiet, einzug, frageAnteil,
        antwortAnteil;
};
constexpr std::array<Blatt, 2> blaetter{{
    {Papier::A4Quer, 10, 25, 1.0, 1.0, 277, 175, 12, 3, 9, 8.5, 0.65, 0.35},
    {Papier::A5Quer, 6, 20, 0.7, 0.7, 198, 122, 8.4, 2.1, 6.3, 5.95, 0.7, 0.3},
}};
constexpr std::array<Millimeter, 5> abstaende{0_mm, 1_mm, 1.5_mm, 2_mm, 2.5_mm};
constexpr double genau = 0.0001;

double D(float wert) {
    return static_cast<double>(wert);
}
double D(Millimeter laenge) {
    return D(laenge.zahl());
}

} // namespace

TEST(Druckgeometrie, WorkedValuesOfA4WithoutAGap) {
    const Druckgeometrie g = GeometrieRechnen(Papier::A4Quer, 0_mm, 0_mm, 0_mm);
    EXPECT_NEAR(D(g.SpaltenBreite), 46.1667, genau);
    EXPECT_NEAR(D(g.ZeileGanz), 30.2, genau);
    EXPECT_NEAR(D(g.FrageHoehe), 19.63, genau);
    EXPECT_NEAR(D(g.AntwortHoehe), 10.57, genau);
    EXPECT_NEAR(D(g.SpaltenRaster), 46.1667, genau);
    EXPECT_NEAR(D(g.ZeilenRaster), 30.2, genau);
    EXPECT_NEAR(D(g.TextBreite), 35.6667, genau);
    EXPECT_EQ(g.Massstab, 1.0F);
    EXPECT_EQ(g.NummerBreite, 7_mm);
    EXPECT_EQ(g.NummerEinzug, 1_mm);
}

TEST(Druckgeometrie, WorkedValuesOfA5WithoutAGap) {
    const Druckgeometrie g = GeometrieRechnen(Papier::A5Quer, 0_mm, 0_mm, 0_mm);
    EXPECT_NEAR(D(g.SpaltenBreite), 33.0, genau);
    EXPECT_NEAR(D(g.ZeileGanz), 21.04, genau);
    EXPECT_NEAR(D(g.FrageHoehe), 14.728, genau);
    EXPECT_NEAR(D(g.AntwortHoehe), 6.312, genau);
    EXPECT_NEAR(D(g.TextBreite), 25.05, genau);
}

TEST(Druckgeometrie, TheWidestGapOnA5) {
    const Druckgeometrie g = GeometrieRechnen(Papier::A5Quer, 2.5_mm, 0_mm, 0_mm);
    EXPECT_EQ(g.LueckeX, 1.75_mm);
    EXPECT_EQ(g.LueckeY, 1.75_mm);
    EXPECT_NEAR(D(g.SpaltenBreite), 31.5417, genau);
    EXPECT_NEAR(D(g.Massstab), 0.65, genau);
}

TEST(Druckgeometrie, FontsShrinkToNineteenTwentiethsAtTheWidestGapOnA4) {
    EXPECT_NEAR(D(GeometrieRechnen(Papier::A4Quer, 2.5_mm, 0_mm, 0_mm).Massstab), 0.95, genau);
}

TEST(Druckgeometrie, WithoutAGapColumnsTouchAndTheHeadStripEndsWithTheLastColumn) {
    const Druckgeometrie g = GeometrieRechnen(Papier::A4Quer, 0_mm, 0_mm, 0_mm);
    EXPECT_EQ(g.SpaltenRaster, g.SpaltenBreite);
    EXPECT_EQ(g.ZeilenRaster, g.FrageHoehe + g.AntwortHoehe);
    const Millimeter kopfRechts = g.RandLinks + 6.0F * g.SpaltenRaster - g.LueckeX;
    EXPECT_NEAR(D(kopfRechts), D(g.RandLinks + 5.0F * g.SpaltenRaster + g.SpaltenBreite), genau);
}

TEST(Druckgeometrie, EveryValueOnBothPapersAtEveryGap) {
    for (const Blatt& b : blaetter) {
        for (const Millimeter abstand : abstaende) {
            const Druckgeometrie g = GeometrieRechnen(b.papier, abstand, 0_mm, 0_mm);
            const double l = D(abstand) * b.faktor;
            const double spalte = (b.breite - 5 * l) / 6;
            const double zeile = (b.hoehe - b.kopf - b.luecke - b.gebiet - 5 * l) / 5;
            const double massstab = b.massstab - D(abstand) / 50;
            SCOPED_TRACE(testing::Message() << "breite " << b.breite << " abstand " << abstand.zahl());
            EXPECT_NEAR(D(g.RandLinks), b.links, genau);
            EXPECT_NEAR(D(g.RandOben), b.oben, genau);
            EXPECT_NEAR(D(g.LueckeX), l, genau);
            EXPECT_NEAR(D(g.LueckeY), l, genau);
            EXPECT_NEAR(D(g.SpaltenBreite), spalte, genau);
            EXPECT_NEAR(D(g.ZeileGanz), zeile, genau);
            EXPECT_NEAR(D(g.FrageHoehe), zeile * b.frageAnteil, genau);
            EXPECT_NEAR(D(g.AntwortHoehe), zeile * b.antwortAnteil, genau);
            EXPECT_NEAR(D(g.Massstab), massstab, genau);
            EXPECT_NEAR(D(g.SpaltenRaster), spalte + l, genau);
            EXPECT_NEAR(D(g.ZeilenRaster), zeile + l, genau);
            EXPECT_NEAR(D(g.NummerBreite), massstab * 7, genau);
            EXPECT_NEAR(D(g.TextBreite), spalte - b.einzug - 2, genau);
            EXPECT_NEAR(D(g.ZeilenOben), b.oben + b.kopf + b.luecke + b.gebiet + l, genau);
        }
    }
}

TEST(Druckgeometrie, FixedMeasuresOfBothPapers) {
    const Druckgeometrie a4 = GeometrieRechnen(Papier::A4Quer, 1_mm, 0_mm, 0_mm);
    EXPECT_EQ(std::vector<Millimeter>({a4.TextEinzug, a4.TextOben, a4.AntwortOben, a4.RahmenEinzug}),
              std::vector<Millimeter>({8.5_mm, 1.5_mm, 1.5_mm, 1_mm}));
    EXPECT_EQ(std::vector<Druckpunkte>({a4.StrichKopf, a4.StrichFeld, a4.StrichDuenn}),
              std::vector<Druckpunkte>({11_dp, 9_dp, 5_dp}));
    const Druckgeometrie a5 = GeometrieRechnen(Papier::A5Quer, 1_mm, 0_mm, 0_mm);
    EXPECT_EQ(std::vector<Millimeter>({a5.TextEinzug, a5.TextOben, a5.AntwortOben, a5.RahmenEinzug}),
              std::vector<Millimeter>({5.95_mm, 0.875_mm, 0.875_mm, 0.35_mm}));
    EXPECT_EQ(std::vector<Druckpunkte>({a5.StrichKopf, a5.StrichFeld, a5.StrichDuenn}),
              std::vector<Druckpunkte>({9_dp, 7_dp, 5_dp}));
}

TEST(Druckgeometrie, ThePrintersOffsetsMoveTheFrameOnly) {
    const Druckgeometrie ohne = GeometrieRechnen(Papier::A4Quer, 1.5_mm, 0_mm, 0_mm);
    const Druckgeometrie mit = GeometrieRechnen(Papier::A4Quer, 1.5_mm, 4_mm, 6_mm);
    EXPECT_EQ(mit.RandLinks, 6_mm);
    EXPECT_EQ(mit.RandOben, 19_mm);
    EXPECT_EQ(mit.SpaltenBreite, ohne.SpaltenBreite);
    EXPECT_NEAR(D(ohne.ZeilenOben - mit.ZeilenOben), 6.0, genau);
}

TEST(Druckgeometrie, OnlyTheTwoPapersHaveAGeometry) {
    EXPECT_EQ(PapierAus("A4 quer"), Papier::A4Quer);
    EXPECT_EQ(PapierAus("A5 quer"), Papier::A5Quer);
    for (const char* const anderes : {"", "A4", "A4 hoch", "a4 quer", "A4 quer ", "A3 quer"}) {
        EXPECT_FALSE(PapierAus(anderes).has_value()) << anderes;
    }
}
