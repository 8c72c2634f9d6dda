// Totals made of pieces of some points: which are possible, and that chance is fair among the ways.
#include "filling/punktziel.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {

// Single pieces of these points, numbered from 0.
std::vector<Stueckgruppe> Einzeln(const std::vector<int>& punkte) {
    std::vector<Stueckgruppe> gruppen;
    for (std::size_t i = 0; i < punkte.size(); ++i) {
        gruppen.push_back({{i, punkte[i]}});
    }
    return gruppen;
}

} // namespace

TEST(Punktziel, KnowsWhichTotalsArePossible) {
    const Punktziel ziel(Einzeln({1, 2, 5}), 2);
    EXPECT_TRUE(ziel.moeglich(0, 0));
    EXPECT_TRUE(ziel.moeglich(1, 5));
    EXPECT_TRUE(ziel.moeglich(2, 3));
    EXPECT_TRUE(ziel.moeglich(2, 7));
    EXPECT_FALSE(ziel.moeglich(2, 5));
    EXPECT_FALSE(ziel.moeglich(1, 3));
    EXPECT_FALSE(ziel.moeglich(3, 8)); // more pieces than asked for
    EXPECT_FALSE(ziel.moeglich(2, -1));
    EXPECT_FALSE(ziel.moeglich(2, 1000));
}

TEST(Punktziel, DrawsSoManyPiecesWorthSoMuch) {
    const std::vector<int> punkte{1, 1, 2, 3, 3, 4, 5, 5, 5};
    const Punktziel ziel(Einzeln(punkte), 6);
    for (int anzahl = 0; anzahl <= 6; ++anzahl) {
        for (int summe = 0; summe <= ziel.hoechstePunkte(); ++summe) {
            Wuerfel wuerfel(static_cast<std::uint64_t>(anzahl * 100 + summe));
            const auto gezogen = ziel.ziehen(anzahl, summe, wuerfel);
            if (!ziel.moeglich(anzahl, summe)) {
                EXPECT_TRUE(gezogen.empty());
                continue;
            }
            int ist = 0;
            for (const std::size_t nr : gezogen) {
                ist += punkte.at(nr);
            }
            EXPECT_EQ(ist, summe);
            EXPECT_EQ(std::set<std::size_t>(gezogen.begin(), gezogen.end()).size(),
                      static_cast<std::size_t>(anzahl));
        }
    }
}

TEST(Punktziel, OfAGroupOnePieceAtMostIsTaken) {
    const Punktziel ziel({{{0, 2}, {1, 3}}, {{2, 2}}}, 2);
    EXPECT_TRUE(ziel.moeglich(2, 4));
    EXPECT_TRUE(ziel.moeglich(2, 5));
    EXPECT_FALSE(ziel.moeglich(2, 6));
    Wuerfel wuerfel(1);
    EXPECT_EQ(ziel.ziehen(2, 5, wuerfel), (std::vector<std::size_t>{2, 1}));
}

TEST(Punktziel, EveryWayIsAsLikelyAsTheOthers) {
    const Punktziel ziel({{{0, 1}, {4, 3}}, {{1, 3}}, {{2, 2}}, {{3, 2}, {5, 1}}}, 2);
    std::map<std::set<std::size_t>, int> wege;
    Wuerfel wuerfel(5);
    for (int i = 0; i < 6000; ++i) {
        const auto gezogen = ziel.ziehen(2, 4, wuerfel);
        ++wege[std::set<std::size_t>(gezogen.begin(), gezogen.end())];
    }
    // 1+3: pieces 0 and 1, 4 and 5, 1 and 5; 2+2: pieces 2 and 3.
    ASSERT_EQ(wege.size(), 4U);
    for (const auto& [weg, anzahl] : wege) {
        EXPECT_NEAR(anzahl, 1500, 200);
    }
}

TEST(Punktziel, WithoutAWantedTotalAnyPossibleOneComes) {
    const Punktziel ziel(Einzeln({1, 1, 4}), 2);
    std::map<int, int> summen;
    Wuerfel wuerfel(2);
    for (int i = 0; i < 3000; ++i) {
        const auto summe = ziel.irgendwelche(2, wuerfel);
        ASSERT_TRUE(summe);
        ++summen[*summe];
    }
    ASSERT_EQ(summen.size(), 2U);
    EXPECT_NEAR(summen[2], 1000, 150); // one way
    EXPECT_NEAR(summen[5], 2000, 150); // two ways
    EXPECT_FALSE(Punktziel(Einzeln({1}), 2).irgendwelche(2, wuerfel));
}
