#include "core/fortschritt.h"

#include <gtest/gtest.h>

TEST(Fortschritt, AtThirtyNineThePercentageIsCutToAHundred) {
    EXPECT_FLOAT_EQ(FortschrittProzent(39.0F), 100.0F);
    EXPECT_FLOAT_EQ(FortschrittProzent(38.0F), 98.8F);
    EXPECT_FLOAT_EQ(FortschrittProzent(1.0F), 2.6F);
}

TEST(Fortschritt, AtExactlyFiftyTheColourIsRedAndAtExactlySeventyFiveGreen) {
    constexpr Farbe rot{223, 0, 0};
    constexpr Farbe gelb{223, 223, 0};
    constexpr Farbe gruen{0, 223, 0};
    EXPECT_EQ(FortschrittFarbe(0.0F), rot);
    EXPECT_EQ(FortschrittFarbe(50.0F), rot);
    EXPECT_EQ(FortschrittFarbe(50.1F), gelb);
    EXPECT_EQ(FortschrittFarbe(74.9F), gelb);
    EXPECT_EQ(FortschrittFarbe(75.0F), gruen);
    EXPECT_EQ(FortschrittFarbe(100.0F), gruen);
}
