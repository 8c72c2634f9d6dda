// In which size a form stands, and what lengths and fonts become at a size.
#include "core/massstab.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr Pixelflaeche gross{1229, 726};
constexpr Pixelflaeche klein{941, 574};
constexpr Pixelflaeche rand{8, 30};

struct Fall {
    const char* was = "";
    Pixelflaeche form;
    Pixelflaeche frei;
    Groessenwunsch wunsch;
    int prozent = 0;
};

constexpr Groessenwunsch angepasst{true, Massstab(150)};

constexpr std::array faelle{
    Fall{"fits exactly", gross, {1237, 756}, angepasst, 100},
    Fall{"one pixel too low", gross, {1237, 755}, angepasst, 99},
    Fall{"one pixel too narrow", gross, {1236, 2000}, angepasst, 99},
    Fall{"never larger than the original", gross, {4000, 3000}, angepasst, 100},
    Fall{"the common laptop", gross, {1366, 665}, angepasst, 87},
    Fall{"a netbook", klein, {1024, 500}, angepasst, 81},
    Fall{"the width decides", klein, {800, 600}, angepasst, 84},
    Fall{"fits at the smallest size", gross, {745, 466}, angepasst, 60},
    Fall{"never below the smallest size", gross, {300, 200}, angepasst, 60},
    Fall{"no room at all", gross, {0, 0}, angepasst, 60},
    Fall{"a size of the user's own needs no room", gross, {300, 200}, {false, Massstab(150)}, 150},
    Fall{"nor does a small one grow", gross, {4000, 3000}, {false, Massstab(70)}, 70},
    Fall{"the original size by wish", gross, {300, 200}, {false, Massstab()}, 100},
};

TEST(MassstabTest, ServesTheWishOrTheRoomThereIs) {
    for (const Fall& fall : faelle) {
        EXPECT_EQ(MassstabFuer(fall.wunsch, fall.form, rand, fall.frei).prozent(), fall.prozent) << fall.was;
    }
}

TEST(MassstabTest, TheSizeThatServesFitsAndTheNextOneDoesNot) {
    for (int hoehe = 470; hoehe < 756; ++hoehe) {
        const Massstab massstab = MassstabFuer(angepasst, gross, rand, {4000, hoehe});
        EXPECT_LE(massstab.Kante(gross.hoehe) + rand.hoehe, hoehe);
        EXPECT_GT(Massstab(massstab.prozent() + 1).Kante(gross.hoehe) + rand.hoehe, hoehe);
    }
}

TEST(MassstabTest, StepsAreFullTensAndEndAtTheLimits) {
    constexpr std::array<std::array<int, 3>, 7> stufen{{{60, 60, 70},
                                                        {61, 60, 70},
                                                        {87, 80, 90},
                                                        {99, 90, 100},
                                                        {100, 90, 110},
                                                        {195, 190, 200},
                                                        {200, 190, 200}}};
    for (const auto& [jetzt, darunter, darueber] : stufen) {
        EXPECT_EQ(NaechsteStufe(Massstab(jetzt), -1).prozent(), darunter) << jetzt;
        EXPECT_EQ(NaechsteStufe(Massstab(jetzt), 1).prozent(), darueber) << jetzt;
    }
}

TEST(MassstabTest, KeptTextsThatAreNoSizeMeanTheDefaults) {
    for (const char* groesse :
         {"", "x", "59", "201", "-80", "80 ", " 80", "80%", "1e2", "99999999999999999999"}) {
        EXPECT_EQ(WunschAus(groesse, ""), Groessenwunsch()) << groesse;
    }
    EXPECT_EQ(WunschAus("80", "0"), (Groessenwunsch{false, Massstab(80)}));
    EXPECT_EQ(WunschAus("60", "1"), (Groessenwunsch{true, Massstab(60)}));
    EXPECT_EQ(WunschAus("200", "nein"), (Groessenwunsch{true, Massstab(200)}));
    EXPECT_EQ(WunschAus("x", "0"), (Groessenwunsch{false, Massstab()}));
}

TEST(MassstabTest, TheOriginalSizeChangesNoMeasure) {
    constexpr Massstab original;
    for (int pixel = -20; pixel < 2000; ++pixel) {
        EXPECT_EQ(original.Kante(pixel), pixel);
    }
    for (int pixel = 1; pixel < 60; ++pixel) {
        EXPECT_EQ(original.Strich(pixel), pixel);
        EXPECT_EQ(original.Schriftgroesse(pixel), pixel);
        EXPECT_EQ(Twips(pixel) * original, Twips(pixel));
    }
}

TEST(MassstabTest, EdgesAreRoundedToTheNearestPixel) {
    EXPECT_EQ(Massstab(60).Kante(41), 25);  // 24.6
    EXPECT_EQ(Massstab(150).Kante(1), 2);   // 1.5
    EXPECT_EQ(Massstab(150).Kante(-1), -2); // the same on the other side
    EXPECT_EQ(Massstab(60).Kante(-41), -25);
    EXPECT_EQ(Massstab(80).Kante(0), 0);
    EXPECT_EQ(Twips(150.0) * Massstab(60), Twips(90.0));
}

TEST(MassstabTest, LinesNeverVanish) {
    EXPECT_EQ(Massstab(60).Strich(1), 1);
    EXPECT_EQ(Massstab(60).Strich(2), 1);
    EXPECT_EQ(Massstab(200).Strich(1), 2);
}

TEST(MassstabTest, FontsAreRoundedDownAndStayLegible) {
    EXPECT_EQ(Massstab(87).Schriftgroesse(13), 11); // 11.31
    EXPECT_EQ(Massstab(99).Schriftgroesse(13), 12); // 12.87
    EXPECT_EQ(Massstab(60).Schriftgroesse(11), 9);  // 6.6 can't be read
    EXPECT_EQ(Massstab(60).Schriftgroesse(7), 7);   // as small as it was, it isn't made larger
    EXPECT_EQ(Massstab(150).Schriftgroesse(13), 19);
}

TEST(MassstabTest, WhatFitsLiesInsideAndWhatDoesNotLeavesNothingFree) {
    EXPECT_EQ(Hineingerueckt(50, 100, 400), 50);
    EXPECT_EQ(Hineingerueckt(350, 100, 400), 300);
    EXPECT_EQ(Hineingerueckt(-10, 100, 400), 0);
    EXPECT_EQ(Hineingerueckt(50, 500, 400), 0);
    EXPECT_EQ(Hineingerueckt(-50, 500, 400), -50);
    EXPECT_EQ(Hineingerueckt(-250, 500, 400), -100);
}

TEST(MassstabTest, APartThatIsToBeSeenIsBroughtIn) {
    EXPECT_EQ(MitTeilZuSehen(-50, 100, 200, 400), -50);   // it is seen
    EXPECT_EQ(MitTeilZuSehen(-50, 500, 600, 400), -200);  // at the end
    EXPECT_EQ(MitTeilZuSehen(-300, 100, 200, 400), -100); // at the beginning
    EXPECT_EQ(MitTeilZuSehen(0, 100, 700, 400), -100);    // too long
}

} // namespace
