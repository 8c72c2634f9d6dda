#include "printing/zeilenumbruch.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Every character is a millimetre wide.
std::vector<std::string> Zeilen(std::string_view text, float breite,
                                Wortmass wortmass = Wortmass::AmLeerzeichen) {
    const auto zeilen = Umbrechen(
        text, Millimeter(breite),
        [](std::string_view teil) { return Millimeter(static_cast<float>(teil.size())); }, wortmass);
    return {zeilen.begin(), zeilen.end()};
}

std::vector<std::string> WortFuerWort(std::string_view text, float breite) {
    return Zeilen(text, breite, Wortmass::JedesWort);
}

using Liste = std::vector<std::string>;

} // namespace

TEST(Zeilenumbruch, AnEmptyTextIsOneEmptyLine) {
    EXPECT_EQ(Zeilen("", 10), Liste({""}));
}

TEST(Zeilenumbruch, AShortTextIsOneLine) {
    EXPECT_EQ(Zeilen("Wo liegt Rom ?", 20), Liste({"Wo liegt Rom ?"}));
}

TEST(Zeilenumbruch, ALineEndsAtTheBlankBeforeTheOneWhereItGotTooWide) {
    // At the blank behind "cc" the buffer measures 9.
    EXPECT_EQ(Zeilen("aa bb cc dd", 8), Liste({"aa bb", "cc dd"}));
}

TEST(Zeilenumbruch, TheBlankIsMeasuredWithTheBuffer) {
    EXPECT_EQ(Zeilen("aa bb cc", 6), Liste({"aa bb cc"})); // "aa bb " is 6, and the end isn't measured
    EXPECT_EQ(Zeilen("aa bb cc", 5.5F), Liste({"aa", "bb cc"}));
}

TEST(Zeilenumbruch, TheWidthItselfIsNotTooWide) {
    EXPECT_EQ(Zeilen("aaa bbb ccc", 8), Liste({"aaa bbb ccc"}));
    EXPECT_EQ(Zeilen("aaa bbb ccc", 7.9F), Liste({"aaa", "bbb ccc"}));
}

TEST(Zeilenumbruch, TheLastWordIsNotMeasuredAndMayStandOut) {
    EXPECT_EQ(Zeilen("aa bb cccccccccccc", 6), Liste({"aa bb cccccccccccc"}));
}

TEST(Zeilenumbruch, AOneWordTextWiderThanTheColumnIsOneLine) {
    EXPECT_EQ(Zeilen("Donaudampfschifffahrt", 5), Liste({"Donaudampfschifffahrt"}));
}

TEST(Zeilenumbruch, AWideWordStandsAloneAndIsNeverBroken) {
    EXPECT_EQ(Zeilen("Donaudampfschifffahrt mit Musik an Bord", 8),
              Liste({"Donaudampfschifffahrt", "mit", "Musik", "an Bord"}));
}

TEST(Zeilenumbruch, TheRestIsMeasuredAtItsNextBlankOnly) {
    EXPECT_EQ(Zeilen("a wwwwwwwwww b c", 4), Liste({"a", "wwwwwwwwww", "b c"}));
}

TEST(Zeilenumbruch, SeveralBlanksStayInsideALine) {
    EXPECT_EQ(Zeilen("aa  bb", 10), Liste({"aa  bb"}));
    EXPECT_EQ(Zeilen("aa  bbbb cc", 6), Liste({"aa ", "bbbb cc"}));
}

TEST(Zeilenumbruch, ABlankAtTheEndBelongsToTheLastLine) {
    EXPECT_EQ(Zeilen("aa bb ", 10), Liste({"aa bb "}));
    EXPECT_EQ(Zeilen("aa bb ", 5), Liste({"aa", "bb "}));
}

TEST(Zeilenumbruch, ALineEndOfTheTextEndsTheLine) {
    EXPECT_EQ(Zeilen("aa bb\r\ncc", 20), Liste({"aa bb", "cc"}));
    EXPECT_EQ(Zeilen("aa\ncc", 20), Liste({"aa", "cc"}));
    EXPECT_EQ(Zeilen("aa\rcc", 20), Liste({"aa", "cc"}));
    EXPECT_EQ(Zeilen("aa\r\n\r\nbb", 20), Liste({"aa", "", "bb"}));
    EXPECT_EQ(Zeilen("aa\r\n", 20), Liste({"aa", ""}));
}

TEST(Zeilenumbruch, ALineEndMeasuresAsABlankDoes) {
    EXPECT_EQ(Zeilen("aa bbbbb\r\ncc", 6), Liste({"aa", "bbbbb", "cc"}));
}

TEST(Zeilenumbruch, NoCharacterButBlanksAndLineEndsIsLost) {
    const std::string text = "Nenne die  sechs Erdteile, und\r\nwelcher davon ist der kleinste ?";
    for (const Wortmass wortmass : {Wortmass::AmLeerzeichen, Wortmass::JedesWort}) {
        for (float breite = 1; breite < 70; breite += 1) {
            std::string beisammen;
            for (const std::string& zeile : Zeilen(text, breite, wortmass)) {
                beisammen += zeile;
            }
            std::erase_if(beisammen, [](char c) { return c == ' '; });
            EXPECT_EQ(beisammen, "NennediesechsErdteile,undwelcherdavonistderkleinste?");
        }
    }
}

TEST(Zeilenumbruch, MeasuresOnlyAtBlanks) {
    int gemessen = 0;
    const auto zeilen = Umbrechen("äöü ßé abc de", 100_mm, [&](std::string_view) {
        ++gemessen;
        return 1_mm;
    });
    EXPECT_EQ(zeilen.size(), 1U);
    EXPECT_LE(gemessen, 3);
}

TEST(ZeilenumbruchWortFuerWort, ALineTakesEveryWordThatStillFits) {
    EXPECT_EQ(WortFuerWort("aa bb cc dd", 8), Liste({"aa bb cc", "dd"}));
    EXPECT_EQ(WortFuerWort("aa bb cc dd", 7.9F), Liste({"aa bb", "cc dd"}));
    EXPECT_EQ(WortFuerWort("aa bb cc dd", 11), Liste({"aa bb cc dd"}));
    EXPECT_EQ(WortFuerWort("", 5), Liste({""}));
}

TEST(ZeilenumbruchWortFuerWort, TheLastWordIsMeasuredAsTheOthersAre) {
    EXPECT_EQ(WortFuerWort("aa bb cccc", 9), Liste({"aa bb", "cccc"}));
    EXPECT_EQ(WortFuerWort("aa bb cccc\r\ndd", 9), Liste({"aa bb", "cccc", "dd"}));
}

TEST(ZeilenumbruchWortFuerWort, NoLineIsWiderThanTheLimitButASingleWord) {
    const std::string text = "Nenne die sechs Erdteile und sage welcher davon der kleinste ist ";
    for (float breite = 1; breite < 70; breite += 1) {
        for (const std::string& zeile : WortFuerWort(text, breite)) {
            const std::string ohneEnde = zeile.substr(0, zeile.find_last_not_of(' ') + 1);
            EXPECT_TRUE(static_cast<float>(ohneEnde.size()) <= breite ||
                        ohneEnde.find(' ') == std::string::npos)
                << zeile << " at " << breite;
        }
    }
}

TEST(ZeilenumbruchWortFuerWort, AWideWordStandsAloneAndIsNeverBroken) {
    EXPECT_EQ(WortFuerWort("Donaudampfschifffahrt", 5), Liste({"Donaudampfschifffahrt"}));
    EXPECT_EQ(WortFuerWort("an Bord Donaudampfschifffahrt an", 8),
              Liste({"an Bord", "Donaudampfschifffahrt", "an"}));
}

TEST(ZeilenumbruchWortFuerWort, BlanksAtTheEndOfALineMakeNoLineOfTheirOwn) {
    EXPECT_EQ(WortFuerWort("aa bb ", 5), Liste({"aa bb "}));
    EXPECT_EQ(WortFuerWort("aa bb   ", 5), Liste({"aa bb   "}));
    EXPECT_EQ(WortFuerWort("aa  bb", 4), Liste({"aa ", "bb"}));
}
