// Texts made to fit, with a measure of text that can be reckoned in the head: a letter is a tenth of the
// font's size wide, a line half of it high.
#include "sheets/textsatz.h"

#include "tests/printing/probemass.h"

#include <gtest/gtest.h>

namespace {

constexpr Druckschrift zwanzig{Schriftart::Arial, 20_pt, true};

Textsatz Satz(std::string_view text, Millimeter breite, Millimeter hoehe) {
    return Einpassen(text, breite, hoehe, zwanzig, 4_pt, Probemass());
}

} // namespace

TEST(Textsatz, AShortTextGetsTheLargestSize) {
    const Textsatz satz = Satz("Natur", 10_mm, 10_mm);
    EXPECT_TRUE(satz.passt);
    EXPECT_EQ(satz.schrift, zwanzig);
    EXPECT_EQ(satz.zeilen, (std::vector<std::string_view>{"Natur"}));
}

TEST(Textsatz, ALongerOneGetsTheLargestHalfPointThatFits) {
    // Ten letters in 13 mm: 13 points. One line of them is 6.5 mm high.
    EXPECT_EQ(Satz("abcdefghij", 13_mm, 10_mm).schrift.groesse, 13_pt);
    EXPECT_EQ(Satz("abcdefghij", 13.4_mm, 10_mm).schrift.groesse, 13_pt);
    EXPECT_EQ(Satz("abcdefghij", 13.6_mm, 10_mm).schrift.groesse, 13.5_pt);
    EXPECT_EQ(Satz("abcdefghij", 13_mm, 5_mm).schrift.groesse, 10_pt);
}

TEST(Textsatz, WordsGoToTheNextLineWhereTheHeightAllowsIt) {
    const Textsatz satz = Satz("abcd efgh", 8_mm, 20_mm);
    EXPECT_EQ(satz.schrift.groesse, 20_pt);
    EXPECT_EQ(satz.zeilen, (std::vector<std::string_view>{"abcd", "efgh"}));
}

TEST(Textsatz, WhatFitsInNoSizeStandsInTheSmallestAndSaysSo) {
    const Textsatz breit = Satz("abcdefghijabcdefghij", 7_mm, 50_mm);
    EXPECT_FALSE(breit.passt);
    EXPECT_EQ(breit.schrift.groesse, 4_pt);
    EXPECT_FALSE(Satz("a\r\nb\r\nc", 50_mm, 5_mm).passt);
    EXPECT_TRUE(Satz("a\r\nb\r\nc", 50_mm, 6_mm).passt);
}

TEST(Textsatz, BlanksAndLineEndsBehindTheTextTakeNoRoom) {
    for (const char* text : {"abcdefghij", "abcdefghij ", "abcdefghij    \r\n", "abcdefghij\r\n\r\n"}) {
        const Textsatz satz = Satz(text, 4_mm, 2_mm);
        EXPECT_TRUE(satz.passt) << text;
        EXPECT_EQ(satz.zeilen, (std::vector<std::string_view>{"abcdefghij"})) << text;
    }
}

TEST(Textsatz, AnEmptyTextFitsEverywhere) {
    EXPECT_TRUE(Satz("", 1_mm, 10_mm).passt);
    EXPECT_TRUE(Satz("  \r\n", 1_mm, 10_mm).passt);
}

TEST(Textsatz, LinesAreCentredInTheirBoxInBothDirections) {
    Zeichnung zeichnung;
    const Probemass mass;
    MittigSetzen(zeichnung, {zwanzig, {"ab", "abcd"}, true}, {10_mm, 20_mm, 30_mm, 40_mm}, mass);
    const auto texte = Alle<Textstelle>(zeichnung);
    ASSERT_EQ(texte.size(), 2U);
    EXPECT_EQ(texte.at(0).x, 23_mm); // 4 mm wide
    EXPECT_EQ(texte.at(1).x, 21_mm);
    EXPECT_EQ(texte.at(0).y, 30_mm); // two lines of 10 mm in 40
    EXPECT_EQ(texte.at(1).y, 40_mm);
}
