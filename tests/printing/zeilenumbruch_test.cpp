#include "printing/zeilenumbruch.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Every character is one wide.
std::vector<std::string> Zeilen(std::string_view text, float breite) {
    std::vector<std::string> ergebnis;
    for (const std::string_view zeile :
         Umbrechen(text, breite, [](std::string_view teil) { return static_cast<float>(teil.size()); })) {
        ergebnis.emplace_back(zeile);
    }
    return ergebnis;
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
    for (float breite = 1; breite < 70; breite += 1) {
        std::string beisammen;
        for (const std::string& zeile : Zeilen(text, breite)) {
            beisammen += zeile;
        }
        std::erase_if(beisammen, [](char c) { return c == ' '; });
        EXPECT_EQ(beisammen, "NennediesechsErdteile,undwelcherdavonistderkleinste?");
    }
}

TEST(Zeilenumbruch, MeasuresOnlyAtBlanks) {
    int gemessen = 0;
    const auto zeilen = Umbrechen("äöü ßé abc de", 100, [&](std::string_view) {
        ++gemessen;
        return 1.0F;
    });
    EXPECT_EQ(zeilen.size(), 1U);
    EXPECT_LE(gemessen, 3);
}
