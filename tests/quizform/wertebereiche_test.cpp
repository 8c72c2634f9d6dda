// Numbers from outside their range, as a damaged file may bring them.
#include "rules/wertebereiche.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

Spielwerte Brett(int gesamt, int fragen, int wissen) {
    Spielwerte spiel;
    spiel.FelderGesamt = static_cast<std::int16_t>(gesamt);
    spiel.FragenProWissen = static_cast<std::int16_t>(fragen);
    spiel.AnzahlWissen = static_cast<std::int16_t>(wissen);
    return spiel;
}

TEST(Wertebereiche, WhatIsInItsRangeStaysAsItIs) {
    Spielwerte spiel = Brett(24, 4, 6);
    spiel.Punkte = {5, 20, 0, 6, 3};
    spiel.Felder = {0, 5, 3, 4, 1};
    spiel.FarbeHintergrund = 15;
    spiel.Zwischenabstand = 2.5F;
    const Spielwerte vorher = spiel;
    BereicheEinhalten(spiel);
    EXPECT_EQ(spiel, vorher);
}

TEST(Wertebereiche, ABoardWithoutAShapeIsLeftToTheMode) {
    Spielwerte spiel = Brett(0, 0, 0);
    BereicheEinhalten(spiel);
    EXPECT_EQ(spiel, Brett(0, 0, 0));
}

TEST(Wertebereiche, ANegativeShapeCountsAsNoneAndTheTotalAsThatOfTheFullBoard) {
    Spielwerte spiel = Brett(1, -1, -1);
    BereicheEinhalten(spiel);
    EXPECT_EQ(spiel, Brett(30, 0, 0));
    spiel = Brett(-32768, 2, -7);
    BereicheEinhalten(spiel);
    EXPECT_EQ(spiel, Brett(12, 2, 0));
}

TEST(Wertebereiche, AShapeTooLargeIsTheLargest) {
    Spielwerte spiel = Brett(81, 9, 9);
    BereicheEinhalten(spiel);
    EXPECT_EQ(spiel, Brett(30, 5, 6));
    spiel = Brett(32767, 3, 4);
    BereicheEinhalten(spiel);
    EXPECT_EQ(spiel, Brett(12, 3, 4));
}

TEST(Wertebereiche, AShapeThatFitsNoCounterIsLeftToWhoeverShowsIt) {
    Spielwerte spiel = Brett(30, 200, 200);
    BrettEinhalten(spiel);
    EXPECT_EQ(spiel, Brett(30, 200, 200));
}

TEST(Wertebereiche, AnOpenFormKeepsTheNumbersOfItsFileButTheShape) {
    Spielwerte spiel = Brett(9, -3, 3);
    spiel.Punkte = {21, 0, 0, 0, -3};
    spiel.Felder = {6, -1, 0, 0, 0};
    spiel.FarbeHintergrund = 99;
    Spielwerte soll = spiel;
    soll.FragenProWissen = 0;
    soll.FelderGesamt = 15;
    BrettEinhalten(spiel);
    EXPECT_EQ(spiel, soll);
}

TEST(Wertebereiche, PointsAndLimitsEndWhereTheStepsEnd) {
    Spielwerte spiel;
    spiel.Punkte = {21, 32767, -1, -32768, 20};
    spiel.Felder = {6, 32767, -1, -32768, 5};
    BereicheEinhalten(spiel);
    EXPECT_EQ(spiel.Punkte, (Artwerte{20, 20, 0, 0, 20}));
    EXPECT_EQ(spiel.Felder, (Artwerte{5, 5, 0, 0, 5}));
}

TEST(Wertebereiche, AColourOutsideThePaletteIsTheOneThatTheFormShows) {
    for (const int farbe : {-1, 16, -32768, 32767}) {
        Spielwerte spiel;
        spiel.FarbeHintergrund = static_cast<std::int16_t>(farbe);
        BereicheEinhalten(spiel);
        EXPECT_EQ(spiel.FarbeHintergrund, 7) << farbe;
    }
}

TEST(Wertebereiche, AGapThatIsNoneIsNothing) {
    for (const auto& [abstand, soll] : {std::pair{-1.0F, 0.0F},
                                        {1e30F, 2.5F},
                                        {std::numeric_limits<float>::quiet_NaN(), 0.0F},
                                        {std::numeric_limits<float>::infinity(), 2.5F},
                                        {1.2F, 1.2F}}) {
        Spielwerte spiel;
        spiel.Zwischenabstand = abstand;
        BereicheEinhalten(spiel);
        EXPECT_EQ(spiel.Zwischenabstand, soll) << abstand;
    }
}

} // namespace
