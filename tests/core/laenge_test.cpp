// Lengths and what becomes of them on their way into another unit. That a length doesn't turn into a number,
// or into another length, by itself is a matter of the compiler, and is asked for as such.
#include "core/laenge.h"

#include "tests/hilfe/laengenausgabe.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

static_assert(!std::is_convertible_v<double, Twips> && !std::is_convertible_v<Twips, double>);
static_assert(!std::is_convertible_v<int, Twips> && !std::is_convertible_v<Twips, int>);
static_assert(!std::is_convertible_v<float, Millimeter> && !std::is_convertible_v<Millimeter, float>);
static_assert(!std::is_constructible_v<Twips, Millimeter> && !std::is_constructible_v<Millimeter, Twips>);
static_assert(!std::is_constructible_v<Schriftpunkte, Millimeter>);
static_assert(!std::is_constructible_v<Druckpunkte, Schriftpunkte>);

template <typename A, typename B>
concept Addierbar = requires(A a, B b) {
    a + b;
};
template <typename A, typename B>
concept Vergleichbar = requires(A a, B b) {
    a < b;
};
template <typename A>
concept Quadrierbar = requires(A a) {
    a* a;
};
static_assert(Addierbar<Twips, Twips> && !Addierbar<Twips, int> && !Addierbar<Twips, Millimeter>);
static_assert(Vergleichbar<Twips, Twips> && !Vergleichbar<Twips, int> && !Vergleichbar<Twips, Millimeter>);
static_assert(!Quadrierbar<Twips> && !Quadrierbar<Millimeter>);

// Nothing comes with the unit but its name.
static_assert(sizeof(Twips) == sizeof(double) && sizeof(Millimeter) == sizeof(float));

} // namespace

TEST(Laenge, TwipsToTheNearestPixelWithHalvesAwayFromZero) {
    struct Zeile {
        Twips twips;
        int pixel = 0;
    };
    for (const Zeile& zeile :
         {Zeile{0_tw, 0}, Zeile{7_tw, 0}, Zeile{Twips(7.5), 1}, Zeile{8_tw, 1}, Zeile{15_tw, 1},
          Zeile{22_tw, 1}, Zeile{Twips(22.5), 2}, Zeile{23_tw, 2}, Zeile{100_tw, 7}, Zeile{5605_tw, 374},
          Zeile{18435_tw, 1229}, Zeile{-7_tw, 0}, Zeile{-Twips(7.5), -1}, Zeile{-8_tw, -1}, Zeile{-15_tw, -1},
          Zeile{-23_tw, -2}}) {
        EXPECT_EQ(Pixel(zeile.twips), zeile.pixel) << zeile.twips.zahl();
    }
}

TEST(Laenge, APixelIsFifteenTwipsAndComesBackWhole) {
    EXPECT_EQ(TwipsAus(1), 15_tw);
    EXPECT_EQ(TwipsAus(-3), -45_tw);
    for (int pixel = -50; pixel <= 5000; ++pixel) {
        EXPECT_EQ(Pixel(TwipsAus(pixel)), pixel);
    }
}

TEST(Laenge, SizesOfFontsToTheNearestPixelAt96ToTheInch) {
    struct Zeile {
        Schriftpunkte groesse;
        int pixel = 0;
    };
    for (const Zeile& zeile :
         {Zeile{7_pt, 9}, Zeile{7.5_pt, 10}, Zeile{8_pt, 11}, Zeile{8.25_pt, 11}, Zeile{8.5_pt, 11},
          Zeile{9_pt, 12}, Zeile{9.5_pt, 13}, Zeile{10_pt, 13}, Zeile{11_pt, 15}, Zeile{12_pt, 16}}) {
        EXPECT_EQ(Pixel(zeile.groesse), zeile.pixel) << zeile.groesse.zahl();
    }
    EXPECT_EQ(pixelJeSchriftpunkt, 96.0 / 72.0);
}

TEST(Laenge, WholeMillimetresAreTheNearest) {
    struct Zeile {
        double mm = 0.0;
        Millimeter ganze;
        long zahl = 0;
    };
    for (const Zeile& zeile : {Zeile{0.0, 0_mm, 0}, Zeile{4.2, 4_mm, 4}, Zeile{4.23333, 4_mm, 4},
                               Zeile{4.6, 5_mm, 5}, Zeile{209.9, 210_mm, 210}, Zeile{296.97, 297_mm, 297},
                               Zeile{-0.4, 0_mm, 0}, Zeile{-1.6, -2_mm, -2}}) {
        EXPECT_EQ(GanzeMillimeter(zeile.mm), zeile.ganze) << zeile.mm;
        EXPECT_EQ(GanzeZahl(GanzeMillimeter(zeile.mm)), zeile.zahl) << zeile.mm;
    }
}

TEST(Laenge, ADevicesPixelsAtItsResolution) {
    const Aufloesung zoll(254); // ten to the millimetre
    EXPECT_DOUBLE_EQ(zoll.Geraetepixel(2_mm), 20.0);
    EXPECT_DOUBLE_EQ(zoll.Geraetepixel(2_mm, 3_mm), 50.0);
    EXPECT_DOUBLE_EQ(zoll.Geraetepixel(600_dp), 254.0);
    EXPECT_DOUBLE_EQ(Aufloesung(1200).Geraetepixel(5_dp), 10.0);
    EXPECT_EQ(zoll.MillimeterAus(15.0), 1.5_mm);
    EXPECT_EQ(Aufloesung(72).MillimeterAus(72.0), 25.4_mm);
}

TEST(Laenge, APlaceOnTheSheetIsAddedInDoublePrecision) {
    // In single precision a ten millionth of a millimetre is lost beside 20 mm.
    const Aufloesung zoll(254);
    EXPECT_GT(zoll.Geraetepixel(Millimeter(1e-7F), 20_mm), zoll.Geraetepixel(20_mm));
    EXPECT_EQ(Millimeter(1e-7F) + 20_mm, 20_mm);
}

TEST(Laenge, ArithmeticIsThatOfTheBareNumbersBitByBit) {
    for (const float a : {0.1F, 0.7F, 5.95F, 46.1667F}) {
        for (const float b : {0.3F, 1.75F, 277.0F}) {
            EXPECT_EQ((Millimeter(a) + Millimeter(b)).zahl(), a + b);
            EXPECT_EQ((Millimeter(a) - Millimeter(b)).zahl(), a - b);
            EXPECT_EQ((Millimeter(a) * b).zahl(), a * b);
            EXPECT_EQ((b * Millimeter(a)).zahl(), b * a);
            EXPECT_EQ((Millimeter(a) / b).zahl(), a / b);
            EXPECT_EQ(Millimeter(a) / Millimeter(b), a / b);
            EXPECT_EQ(Millimeter(a) < Millimeter(b), a < b);
        }
    }
    Millimeter summe;
    summe += 1.5_mm;
    summe += 2_mm;
    EXPECT_EQ(summe, 3.5_mm);
    EXPECT_EQ((2 * 45_tw - 60_tw) / 2, 15_tw);
    EXPECT_EQ(-(30_tw), Twips(-30.0));
}

TEST(Laenge, LiteralsAreTheNearestNumbersOfTheirUnit) {
    EXPECT_EQ(8.4_mm, Millimeter(8.4F));
    EXPECT_EQ(2.1_mm, Millimeter(2.1F));
    EXPECT_EQ(6.3_mm, Millimeter(6.3F));
    EXPECT_EQ(5.95_mm, Millimeter(5.95F));
    EXPECT_EQ(0.1_mm, Millimeter(0.1F));
    EXPECT_EQ(0.35_mm, Millimeter(0.35F));
    EXPECT_EQ(3.2_mm, Millimeter(3.2F));
    EXPECT_EQ(45_tw, Twips(45.0));
    EXPECT_EQ(8.25_pt, Schriftpunkte(8.25F));
    EXPECT_EQ(11_dp, Druckpunkte(11));
}
