#include "quizform/feldregeln.h"
#include "quizform/formmasse.h"
#include "tests/hilfe/laengenausgabe.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<int> Bleibend(const Feldsichten& sichten) {
    std::vector<int> felder;
    for (int n = 1; n <= anzahlFelder; ++n) {
        if (sichten.at(static_cast<std::size_t>(n)).frage) {
            felder.push_back(n);
        }
    }
    return felder;
}

std::vector<int> NachFragenRegel(int fragenProWissen) {
    Feldsichten sichten;
    FragenRegelAnwenden(sichten, fragenProWissen);
    return Bleibend(sichten);
}

} // namespace

TEST(Feldregeln, CellNumbersRunAreaByArea) {
    EXPECT_EQ(Feldnummer(1, 1), 1);
    EXPECT_EQ(Feldnummer(1, 5), 5);
    EXPECT_EQ(Feldnummer(6, 1), 26);
    EXPECT_EQ(Feldnummer(6, 5), 30);
    for (int n = 1; n <= anzahlFelder; ++n) {
        EXPECT_EQ(Feldnummer(GebietVon(n), ZeileVon(n)), n);
    }
}

TEST(Feldregeln, WithTwoQuestionsOnlyRowsTwoAndFourRemain) {
    EXPECT_EQ(NachFragenRegel(2), (std::vector<int>{2, 4, 7, 9, 12, 14, 17, 19, 22, 24, 27, 29}));
}

TEST(Feldregeln, WithOneQuestionTheMiddleRowRemainsAndShowsNoPointsPanel) {
    Feldsichten sichten;
    FragenRegelAnwenden(sichten, 1);
    EXPECT_EQ(Bleibend(sichten), (std::vector<int>{3, 8, 13, 18, 23, 28}));
    for (const int n : Bleibend(sichten)) {
        const FeldSicht& sicht = sichten.at(static_cast<std::size_t>(n));
        EXPECT_FALSE(sicht.punkte) << n;
        EXPECT_TRUE(sicht.antwort) << n;
        EXPECT_TRUE(sicht.spezial) << n;
    }
}

TEST(Feldregeln, WithTwoQuestionsAllFourControlsComeBack) {
    Feldsichten sichten;
    FragenRegelAnwenden(sichten, 2);
    EXPECT_EQ(sichten.at(2), (FeldSicht{true, true, true, true}));
    EXPECT_EQ(sichten.at(1), (FeldSicht{false, false, false, false}));
}

TEST(Feldregeln, RowsThatStayForEachNumberOfQuestions) {
    struct Reihe {
        int fragen;
        std::vector<int> zeilen;
    };
    for (const auto& [fragen, zeilen] : std::vector<Reihe>{{1, {3}},
                                                           {2, {2, 4}},
                                                           {3, {1, 3, 5}},
                                                           {4, {1, 2, 4, 5}},
                                                           {5, {1, 2, 3, 4, 5}},
                                                           {0, {1, 2, 3, 4, 5}},
                                                           {17, {1, 2, 3, 4, 5}},
                                                           {-1, {1, 2, 3, 4, 5}}}) {
        std::vector<int> bleibend;
        for (int zeile = 1; zeile <= fragenJeGebiet; ++zeile) {
            if (ZeileBleibt(zeile, fragen)) {
                bleibend.push_back(zeile);
            }
        }
        EXPECT_EQ(bleibend, zeilen) << fragen;
    }
}

TEST(Feldregeln, FourAreasHideTheCellsFrom21On) {
    Feldsichten sichten;
    WissenRegelAnwenden(sichten, 4);
    const std::vector<int> bleibend = Bleibend(sichten);
    EXPECT_EQ(bleibend.size(), 20U);
    EXPECT_EQ(bleibend.back(), 20);
    EXPECT_TRUE(GebietGeschlossen(5, 4));
    EXPECT_FALSE(GebietGeschlossen(4, 4));
}

TEST(Feldregeln, BothRulesTogetherLeaveFourQuestionsInTwoAreas) {
    Feldsichten sichten;
    FragenRegelAnwenden(sichten, 4);
    WissenRegelAnwenden(sichten, 2);
    EXPECT_EQ(Bleibend(sichten), (std::vector<int>{1, 2, 4, 5, 6, 7, 9, 10}));
}

TEST(Feldregeln, NumbersOutsideTheTableHideNoArea) {
    for (const int anzahl : {0, 6, 7, -3}) {
        Feldsichten sichten;
        WissenRegelAnwenden(sichten, anzahl);
        EXPECT_EQ(Bleibend(sichten).size(), 30U) << anzahl;
    }
}

TEST(Formmasse, BothSizeClassesGiveTheMeasuresOfTheWindow) {
    EXPECT_EQ(masseKlein.SpaltenRaster(), 2340_tw);
    EXPECT_EQ(masseGross.SpaltenRaster(), 3060_tw);
    EXPECT_EQ(masseKlein.ZeilenRaster(), 1545_tw);
    EXPECT_EQ(masseGross.ZeilenRaster(), 1980_tw);
    EXPECT_EQ(masseKlein.RasterOben(), 855_tw);
    EXPECT_EQ(masseGross.RasterOben(), 960_tw);
    EXPECT_EQ(masseKlein.InnenBreite(), 14115_tw);
    EXPECT_EQ(masseKlein.InnenHoehe(), 8610_tw);
    EXPECT_EQ(masseGross.InnenBreite(), 18435_tw);
    EXPECT_EQ(masseGross.InnenHoehe(), 10890_tw);
}

TEST(Formmasse, TheLargeClassBeginsAt1280Pixels) {
    EXPECT_EQ(FormMasseFuer(1279).schrift, 8_pt);
    EXPECT_EQ(FormMasseFuer(1280).schrift, 10_pt);
}
