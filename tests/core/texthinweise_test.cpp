// What is said about characters that a form file can't hold and about those that cut a text.
#include "core/anfuehrung.h"
#include "core/cp1252.h"
#include "core/zeichenbefund.h"

#include <gtest/gtest.h>

namespace {

Zeichenbefund Befund(std::u32string_view text) {
    Zeichenbefund befund;
    for (const char32_t zeichen : text) {
        if (!InCp1252(zeichen)) {
            befund.Notieren(zeichen, Ersatzzeichen(zeichen));
        }
    }
    return befund;
}

TEST(Zeichenhinweis, NothingIsSaidWhereEverythingFits) {
    EXPECT_TRUE(Befund(U"Grüße für 5 €").leer());
    EXPECT_EQ(ZeichenHinweis({}), "");
}

TEST(Zeichenhinweis, OneCharacterIsNamedAsLeftOutsideOrAsReplaced) {
    EXPECT_EQ(ZeichenHinweis(Befund(U"你")),
              " Das Zeichen  你  kann ich nicht speichern, es musste draußen bleiben.");
    EXPECT_EQ(ZeichenHinweis(Befund(U"Ł")),
              " Das Zeichen  Ł  kann ich nicht speichern, ich habe  L  daraus gemacht.");
}

TEST(Zeichenhinweis, BothKindsAreNamedEachCharacterOnce) {
    EXPECT_EQ(ZeichenHinweis(Befund(U"Łódź 你")),
              " Nicht speichern kann ich  你 . Ersetzt habe ich  Ł durch L, ź durch z .");
}

TEST(Zeichenhinweis, ManyAreCounted) {
    EXPECT_EQ(ZeichenHinweis(Befund(U"你你你Ł好Ł")),
              " Nicht speichern kann ich  你 (3-mal), 好 . Ersetzt habe ich  Ł durch L (2-mal) .");
    EXPECT_EQ(ZeichenHinweis(Befund(U"一二三四五六七")),
              " Nicht speichern kann ich  一, 二, 三 und 4 andere .");
}

TEST(Zeichenhinweis, ACharacterThatNobodySeesHasItsNumber) {
    EXPECT_EQ(ZeichenHinweis(Befund(U"\u200B")),
              " Das Zeichen  U+200B  kann ich nicht speichern, es musste draußen bleiben.");
    EXPECT_EQ(ZeichenHinweis(Befund(U"\U0001F600")),
              " Das Zeichen  😀  kann ich nicht speichern, es musste draußen bleiben.");
}

TEST(Anfuehrung, OnlyTheStraightMarkCutsAText) {
    EXPECT_TRUE(HatAnfuehrung("Wer sagte \"Ja\"?"));
    EXPECT_FALSE(HatAnfuehrung("Wer sagte „Ja“ und 'Nein'?"));
    EXPECT_FALSE(HatAnfuehrung(""));
}

TEST(Anfuehrung, TheFirstPlaceIsNamedTheOthersAreCounted) {
    const std::string rest = ": Was hinter \" steht, geht verloren. Nimm „ und “.";
    const std::vector<std::string> orte{"Frage 1", "Antwort 1", "Datum"};
    EXPECT_EQ(AnfuehrungHinweis({}), "");
    EXPECT_EQ(AnfuehrungHinweis(std::span(orte).first(1)), " Frage 1" + rest);
    EXPECT_EQ(AnfuehrungHinweis(std::span(orte).first(2)), " Frage 1 und Antwort 1" + rest);
    EXPECT_EQ(AnfuehrungHinweis(orte), " Frage 1 und 2 weitere" + rest);
}

} // namespace
