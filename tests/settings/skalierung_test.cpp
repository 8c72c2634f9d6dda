#include "core/laufzeitfehler.h"
#include "rules/skalierung.h"
#include "rules/spezialarten.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <set>

namespace {

// Half to even over whole numbers alone: zaehler / nenner for values from 0 on.
int RationalGerundet(int zaehler, int nenner) {
    const int ganz = zaehler / nenner;
    const int rest = zaehler % nenner;
    if (2 * rest == nenner) {
        return ganz % 2 == 0 ? ganz : ganz + 1;
    }
    return 2 * rest > nenner ? ganz + 1 : ganz;
}

// The floating-point unit's own rounding of the quotient taken first, step by step through memory.
int Gleitend(int standard, double teiler, double faktor) {
    volatile double wert = standard;
    wert = wert / teiler;
    wert = wert * faktor;
    return static_cast<int>(std::nearbyint(wert));
}

Artwerte Fuenfmal(int wert) {
    Artwerte werte{};
    werte.fill(static_cast<std::int16_t>(wert));
    return werte;
}

// Every total that the counters reach.
std::set<int> Gesamtzahlen() {
    std::set<int> zahlen;
    for (int fragen = 1; fragen <= 5; ++fragen) {
        for (int wissen = 1; wissen <= 6; ++wissen) {
            zahlen.insert(fragen * wissen);
        }
    }
    return zahlen;
}

} // namespace

TEST(Runden, AValueExactlyHalfwayGoesToTheEvenNeighbour) {
    EXPECT_EQ(Runden(0.5), 0);
    EXPECT_EQ(Runden(1.5), 2);
    EXPECT_EQ(Runden(2.5), 2);
    EXPECT_EQ(Runden(3.5), 4);
    EXPECT_EQ(Runden(-0.5), 0);
    EXPECT_EQ(Runden(-1.5), -2);
    EXPECT_EQ(Runden(-2.5), -2);
}

TEST(Runden, AnyOtherValueGoesToTheNearest) {
    EXPECT_EQ(Runden(0.0), 0);
    EXPECT_EQ(Runden(0.49999999999999994), 0);
    EXPECT_EQ(Runden(0.5000000000000001), 1);
    EXPECT_EQ(Runden(2.67), 3);
    EXPECT_EQ(Runden(1.33), 1);
    EXPECT_EQ(Runden(-0.3), 0);
    EXPECT_EQ(Runden(-0.7), -1);
}

TEST(Runden, AgreesWithTheUnitsDefaultModeEverywhere) {
    ASSERT_EQ(std::fegetround(), FE_TONEAREST);
    for (int i = -4000; i <= 4000; ++i) {
        const double wert = i / 16.0;
        EXPECT_EQ(Runden(wert), static_cast<int>(std::nearbyint(wert))) << wert;
    }
}

TEST(Runden, AResultBeyondSixteenBitsIsRunTimeErrorSix) {
    EXPECT_EQ(Runden(32767.5 - 0.25), 32767);
    for (const double wert : {32767.5, 32768.0, -32769.0, 1.0e30, std::nan("")}) {
        try {
            static_cast<void>(Runden(wert));
            ADD_FAILURE() << wert;
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_EQ(fehler.nummer(), 6);
        }
    }
}

TEST(Skalierung, TheFactoryValuesAreThoseOfTheRules) {
    EXPECT_EQ(werkPunkte, (Artwerte{5, 10, 10, 5, 0}));
    EXPECT_EQ(werkFelder, (Artwerte{2, 2, 2, 4, 2}));
}

TEST(Skalierung, TheFactoryFieldsForEachExampleTotal) {
    struct Zeile {
        int gesamt;
        std::int16_t zwei;
        std::int16_t joker;
    };
    for (const Zeile& zeile : {Zeile{30, 2, 4}, Zeile{24, 2, 3}, Zeile{20, 1, 3}, Zeile{18, 1, 2},
                               Zeile{15, 1, 2}, Zeile{12, 1, 2}, Zeile{5, 0, 1}}) {
        EXPECT_EQ(FelderUmrechnen(werkFelder, zeile.gesamt),
                  (Artwerte{zeile.zwei, zeile.zwei, zeile.zwei, zeile.joker, zeile.zwei}))
            << zeile.gesamt;
    }
}

// Exact fractions and the order of the steps in double precision can differ only where the exact value lies
// halfway between two whole numbers.
TEST(Skalierung, FieldsForEveryTotalAndEveryStandardValue) {
    for (const int gesamt : Gesamtzahlen()) {
        for (int standard = 0; standard <= 5; ++standard) {
            const int ist = FelderUmrechnen(Fuenfmal(standard), gesamt)[Spezialart::Glueck];
            const int produkt = standard * gesamt;
            EXPECT_EQ(ist, Gleitend(standard, 30.0, gesamt)) << standard << " of " << gesamt;
            if (2 * (produkt % 30) != 30) {
                EXPECT_EQ(ist, RationalGerundet(produkt, 30)) << standard << " of " << gesamt;
            }
        }
    }
}

TEST(Skalierung, PointsForEveryNumberOfQuestionsAndEveryStandardValue) {
    for (int standard = 0; standard <= 20; ++standard) {
        for (int fragen = 3; fragen <= 5; ++fragen) {
            EXPECT_EQ(PunkteUmrechnen(Fuenfmal(standard), fragen), Fuenfmal(standard));
        }
        // A fifth never lies halfway, so the exact fraction decides.
        EXPECT_EQ(PunkteUmrechnen(Fuenfmal(standard), 2)[Spezialart::Aktion],
                  RationalGerundet(4 * standard, 5))
            << standard;
        EXPECT_EQ(PunkteUmrechnen(Fuenfmal(standard), 1)[Spezialart::Risiko],
                  RationalGerundet(3 * standard, 5))
            << standard;
        EXPECT_EQ(PunkteUmrechnen(Fuenfmal(standard), 2)[Spezialart::Ereignis], Gleitend(standard, 5.0, 4.0))
            << standard;
        EXPECT_EQ(PunkteUmrechnen(Fuenfmal(standard), 1)[Spezialart::Ereignis], Gleitend(standard, 5.0, 3.0))
            << standard;
    }
}

TEST(Skalierung, NoScaledValueIsLargerThanItsStandard) {
    for (const int gesamt : Gesamtzahlen()) {
        for (int standard = 0; standard <= 5; ++standard) {
            EXPECT_LE(FelderUmrechnen(Fuenfmal(standard), gesamt)[Spezialart::Aktion], standard);
        }
    }
}

TEST(Skalierung, ThreeQuestionsInFiveAreasScaleTheFactoryFieldsAndLeaveThePoints) {
    EXPECT_EQ(FelderUmrechnen(werkFelder, 15), (Artwerte{1, 1, 1, 2, 1}));
    EXPECT_EQ(PunkteUmrechnen(werkPunkte, 3), werkPunkte);
}

TEST(Skalierung, OneQuestionInSixAreasScalesFieldsAndPoints) {
    EXPECT_EQ(FelderUmrechnen(werkFelder, 6), (Artwerte{0, 0, 0, 1, 0}));
    EXPECT_EQ(PunkteUmrechnen(werkPunkte, 1), (Artwerte{3, 6, 6, 3, 0}));
}

TEST(Skalierung, FiveFieldsAreTwoAtNineQuestionsAndTwoAtFifteen) {
    EXPECT_EQ(FelderUmrechnen(Fuenfmal(5), 9), Fuenfmal(2));  // 1.5
    EXPECT_EQ(FelderUmrechnen(Fuenfmal(5), 15), Fuenfmal(2)); // 2.5
}

TEST(Skalierung, TenPointsAreEightAndSixAndFivePointsFourAndThree) {
    EXPECT_EQ(PunkteUmrechnen(Fuenfmal(10), 2), Fuenfmal(8));
    EXPECT_EQ(PunkteUmrechnen(Fuenfmal(10), 1), Fuenfmal(6));
    EXPECT_EQ(PunkteUmrechnen(Fuenfmal(5), 2), Fuenfmal(4));
    EXPECT_EQ(PunkteUmrechnen(Fuenfmal(5), 1), Fuenfmal(3));
}

TEST(Skalierung, AFullBoardChangesNoFields) {
    EXPECT_EQ(FelderUmrechnen(werkFelder, 30), werkFelder);
    EXPECT_EQ(PunkteUmrechnen(werkPunkte, 5), werkPunkte);
}

TEST(Skalierung, AWildFileNumberIsAnOverflowNotAWrap) {
    EXPECT_THROW(static_cast<void>(FelderUmrechnen(Fuenfmal(32767), 32767)), Laufzeitfehler);
}
