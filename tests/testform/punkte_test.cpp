// Points of the test form: values of captions, steps with their wrap, totals.
#include "core/laufzeitfehler.h"
#include "testform/punkte.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

TEST(Punkte, TheValueIsTheNumberAtTheHeadOfTheCaption) {
    struct Zeile {
        const char* aufschrift;
        int wert;
    };
    for (const auto& [aufschrift, wert] :
         {Zeile{"", 0}, Zeile{"0", 0}, Zeile{"7", 7}, Zeile{"20", 20}, Zeile{" 12", 12}, Zeile{"   ", 0},
          Zeile{"3 Punkte", 3}, Zeile{"Punkte", 0}, Zeile{"-5", -5}, Zeile{"+5", 5}, Zeile{"-", 0},
          Zeile{"1,5", 1}, Zeile{"32767", 32767}, Zeile{"-32768", -32768}}) {
        EXPECT_EQ(PunkteWert(aufschrift), wert) << aufschrift;
    }
}

TEST(Punkte, AValueBeyondSixteenBitsIsAnOverflow) {
    for (const char* aufschrift : {"32768", "-32769", "99999999999999999999"}) {
        try {
            static_cast<void>(PunkteWert(aufschrift));
            ADD_FAILURE() << aufschrift;
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_EQ(fehler.nummer(), 6);
        }
    }
}

TEST(Punkte, ARowCyclesFrom0To20GoingUp) {
    std::string aufschrift;
    for (int n = 1; n <= 20; ++n) {
        aufschrift = PunkteNachSchritt(aufschrift, 1);
        EXPECT_EQ(aufschrift, std::to_string(n));
    }
    EXPECT_EQ(PunkteNachSchritt(aufschrift, 1), "0");
}

TEST(Punkte, ARowCyclesFrom20To0GoingDown) {
    std::string aufschrift = PunkteNachSchritt("0", -1);
    EXPECT_EQ(aufschrift, "20");
    for (int n = 19; n >= 0; --n) {
        aufschrift = PunkteNachSchritt(aufschrift, -1);
        EXPECT_EQ(aufschrift, std::to_string(n));
    }
}

TEST(Punkte, AnEmptyCaptionCountsAs0) {
    EXPECT_EQ(PunkteNachSchritt("", 1), "1");
    EXPECT_EQ(PunkteNachSchritt("", -1), "20");
}

TEST(Punkte, ANumberOutsideTheRangeWrapsOnlyInItsDirection) {
    EXPECT_EQ(PunkteNachSchritt("50", 1), "0");
    EXPECT_EQ(PunkteNachSchritt("50", -1), "49");
    EXPECT_EQ(PunkteNachSchritt("-5", 1), "-4");
    EXPECT_EQ(PunkteNachSchritt("-5", -1), "20");
    EXPECT_EQ(PunkteNachSchritt("32767", 1), "0");
    EXPECT_EQ(PunkteNachSchritt("-32768", -1), "20");
    EXPECT_THROW(static_cast<void>(PunkteNachSchritt("32768", -1)), Laufzeitfehler);
}

TEST(Punkte, TenRowsAt20Are200) {
    const std::vector<std::string> zeilen(10, "20");
    EXPECT_EQ(PunkteSumme(zeilen), 200);
}

TEST(Punkte, EmptyCaptionsCount0) {
    const std::array<std::string, 4> zeilen{"", "1", "", "19"};
    EXPECT_EQ(PunkteSumme(zeilen), 20);
    EXPECT_EQ(PunkteSumme({}), 0);
}

TEST(Punkte, ARowThatWouldOverflowTheTotalIsLeftOut) {
    const std::array<std::string, 3> zeilen{"32767", "5", "-7"};
    EXPECT_EQ(PunkteSumme(zeilen), 32760);
}
