#include "settings/regelschritte.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

const std::string mitte = "\r\nDa Du die Spielregeln einhalten willst, muß ich\r\n";
const std::string verstaendnis = "Dafür habe ich vollstes Verständnis.";
const std::string nachtragen = "Dann trage ich es in der Spielregel noch schnell nach.";

void ErwarteAbsage(const Regelschritt& schritt, const std::string& text, const std::string& nummer,
                   const std::string& taste, int wert) {
    ASSERT_NE(schritt.absage, nullptr);
    EXPECT_EQ(schritt.absage->bild, 4);
    EXPECT_EQ(schritt.absage->text, text);
    EXPECT_EQ(schritt.absage->nummer, nummer);
    EXPECT_EQ(schritt.absage->taste, taste);
    EXPECT_FALSE(schritt.frage.has_value());
    EXPECT_EQ(schritt.neu, wert);
}

void ErwarteFrage(const Regelschritt& schritt, const std::string& titel, const std::string& text, int wert) {
    EXPECT_EQ(schritt.absage, nullptr);
    ASSERT_TRUE(schritt.frage.has_value());
    EXPECT_EQ(schritt.frage->titel, titel);
    EXPECT_EQ(schritt.frage->text, text);
    EXPECT_EQ(schritt.neu, wert);
}

struct Zeile {
    std::int16_t von;
    std::string erste;
    std::string dritte;
};

} // namespace

TEST(FragenSchritt, DownwardsWithTheRuleAsksInTheWordsOfEachNumber) {
    const std::vector<Zeile> zeilen{
        {2, "Ich soll nur eine Frage pro Wissensgebiet anlegen.", "die Felder 1, 2, 4 und 5 jetzt löschen!"},
        {3, "Ich soll zwei Fragen pro Wissensgebiet anlegen.", "die Felder 1, 3 und 5 jetzt löschen!"},
        {4, "Ich soll drei Fragen pro Wissensgebiet anlegen.", "die Felder 2 und 4 jetzt löschen!"},
        {5, "Ich soll vier Fragen pro Wissensgebiet anlegen.", "die Felder 3 jetzt löschen!"}};
    for (const Zeile& zeile : zeilen) {
        ErwarteFrage(FragenSchritt(Richtung::Runter, zeile.von, true), "Fragen pro Wissensgebiet",
                     zeile.erste + mitte + zeile.dritte, zeile.von - 1);
    }
}

TEST(FragenSchritt, UpwardsAsksWhateverTheRuleSays) {
    const std::vector<Zeile> zeilen{
        {1, "Ich soll zwei Fragen pro Wissensgebiet anlegen.", "die Felder 1, 3 und 5 jetzt löschen!"},
        {2, "Ich soll drei Fragen pro Wissensgebiet anlegen.", "die Felder 2 und 4 jetzt löschen!"},
        {3, "Ich soll vier Fragen pro Wissensgebiet anlegen.", "die Felder 3 jetzt löschen!"},
        {4, "Ich soll fünf Fragen pro Wissensgebiet anlegen.", "diesmal keine Felder löschen!"}};
    for (const Zeile& zeile : zeilen) {
        for (const bool regel : {false, true}) {
            ErwarteFrage(FragenSchritt(Richtung::Hoch, zeile.von, regel), "Fragen pro Wissensgebiet",
                         zeile.erste + mitte + zeile.dritte, zeile.von + 1);
        }
    }
}

TEST(FragenSchritt, AtTheBoundsItIsRefusedWithOrWithoutTheRule) {
    for (const bool regel : {false, true}) {
        ErwarteAbsage(FragenSchritt(Richtung::Runter, 1, regel),
                      "Die Minimalanzahl der Fragen ist bereits erreicht.\r\nIch kann leider nicht weniger!?",
                      "23", verstaendnis, 1);
        ErwarteAbsage(FragenSchritt(Richtung::Hoch, 5, regel),
                      "Die Maximalanzahl der Fragen ist bereits erreicht.\r\nIch kann leider nicht mehr!?",
                      "23", verstaendnis, 5);
    }
}

TEST(FragenSchritt, WithoutTheRuleTheCountCantBeLowered) {
    for (std::int16_t fragen = 2; fragen <= 5; ++fragen) {
        ErwarteAbsage(FragenSchritt(Richtung::Runter, fragen, false),
                      "Ich lösche keine Fragen,\nweil es in der Spielregel nicht gefordert ist!", "22",
                      nachtragen, fragen);
    }
}

TEST(FragenSchritt, ACountThatOnlyAFileCanBringComesDownWithoutWords) {
    const Regelschritt schritt = FragenSchritt(Richtung::Runter, 9, true);
    EXPECT_EQ(schritt.absage, nullptr);
    EXPECT_FALSE(schritt.frage.has_value());
    EXPECT_EQ(schritt.neu, 8);
    EXPECT_EQ(FragenSchritt(Richtung::Hoch, 9, true).neu, 9);
    EXPECT_EQ(FragenSchritt(Richtung::Runter, -3, true).neu, -3);
}

TEST(WissenSchritt, DownwardsWithTheRuleAsksInTheWordsOfEachNumber) {
    const std::vector<Zeile> zeilen{
        {2, "Ich soll nur ein Wissensgebiet anlegen.", "das zweite Wissensgebiet jetzt löschen!"},
        {3, "Ich soll zwei Wissensgebiete anlegen.", "das dritte Wissensgebiet jetzt löschen!"},
        {4, "Ich soll drei Wissensgebiete anlegen.", "das vierte Wissensgebiet jetzt löschen!"},
        {5, "Ich soll vier Wissensgebiete anlegen.", "das fünfte Wissensgebiet jetzt löschen!"},
        {6, "Ich soll fünf Wissensgebiete anlegen.", "das sechste Wissensgebiet jetzt löschen!"}};
    for (const Zeile& zeile : zeilen) {
        ErwarteFrage(WissenSchritt(Richtung::Runter, zeile.von, 5, true), "Wissensgebiete",
                     zeile.erste + mitte + zeile.dritte, zeile.von - 1);
    }
}

TEST(WissenSchritt, AtTheBoundsItIsRefusedWithOrWithoutTheRule) {
    for (const bool regel : {false, true}) {
        ErwarteAbsage(
            WissenSchritt(Richtung::Runter, 1, 5, regel),
            "Die Minimalanzahl der Wissensgebiete ist bereits erreicht.\r\nIch kann leider nicht weniger!?",
            "23", verstaendnis, 1);
        ErwarteAbsage(
            WissenSchritt(Richtung::Hoch, 6, 1, regel),
            "Die Maximalanzahl von 6 Wissensgebieten ist bereits erreicht.\r\nIch kann leider nicht mehr!?",
            "23", verstaendnis, 6);
    }
}

TEST(WissenSchritt, WithoutTheRuleTheCountCantBeLowered) {
    for (std::int16_t wissen = 2; wissen <= 6; ++wissen) {
        ErwarteAbsage(WissenSchritt(Richtung::Runter, wissen, 5, false),
                      "Ich lösche keine Wissensgebiete,\nweil es in der Spielregel nicht gefordert ist!",
                      "22", nachtragen, wissen);
    }
}

TEST(WissenSchritt, UpwardsWithOneQuestionItAlwaysNamesTwoAreasWithLineFeedsAlone) {
    for (std::int16_t wissen = 1; wissen <= 5; ++wissen) {
        for (const bool regel : {false, true}) {
            ErwarteFrage(WissenSchritt(Richtung::Hoch, wissen, 1, regel), "Wissensgebiete",
                         "Ich soll zwei Wissensgebiete anlegen.\n"
                         "Da Du die Spielregeln einhalten willst, muß ich\n"
                         "diesmal keine Felder löschen!",
                         wissen + 1);
        }
    }
}

TEST(WissenSchritt, UpwardsFromOneAreaWithMoreQuestionsAsksNothing) {
    for (std::int16_t fragen = 2; fragen <= 5; ++fragen) {
        const Regelschritt schritt = WissenSchritt(Richtung::Hoch, 1, fragen, true);
        EXPECT_EQ(schritt.absage, nullptr);
        EXPECT_FALSE(schritt.frage.has_value());
        EXPECT_EQ(schritt.neu, 2);
    }
}

TEST(WissenSchritt, UpwardsWithMoreQuestionsItNamesTheNewNumber) {
    const std::vector<Zeile> zeilen{{2, "Ich soll drei Wissensgebiete anlegen.", ""},
                                    {3, "Ich soll vier Wissensgebiete anlegen.", ""},
                                    {4, "Ich soll fünf Wissensgebiete anlegen.", ""},
                                    {5, "Ich soll sechs Wissensgebiete anlegen.", ""}};
    for (const Zeile& zeile : zeilen) {
        for (std::int16_t fragen = 2; fragen <= 5; ++fragen) {
            for (const bool regel : {false, true}) {
                ErwarteFrage(WissenSchritt(Richtung::Hoch, zeile.von, fragen, regel), "Wissensgebiete",
                             zeile.erste + mitte + "diesmal keine Felder löschen!", zeile.von + 1);
            }
        }
    }
}

TEST(Begrenzung, TickingTheRuleOfQuestionsAsksBelowFive) {
    for (std::int16_t fragen = 1; fragen <= 4; ++fragen) {
        const auto frage = FragenBegrenzung(fragen);
        ASSERT_TRUE(frage.has_value());
        EXPECT_EQ(frage->titel, "Spielregeln einhalten");
        EXPECT_EQ(frage->text, "Du hast die Anzahl der Fragen pro Wissensgebiet auf  [ " +
                                   std::to_string(fragen) +
                                   " ]  begrenzt.\nWenn Du die Spielregeln einhalten willst, muß ich\r\n"
                                   "die restlichen Felder jetzt löschen!");
    }
    EXPECT_FALSE(FragenBegrenzung(5).has_value());
}

TEST(Begrenzung, TickingTheRuleOfAreasAsksBelowSix) {
    for (std::int16_t wissen = 1; wissen <= 5; ++wissen) {
        const auto frage = WissenBegrenzung(wissen);
        ASSERT_TRUE(frage.has_value());
        EXPECT_EQ(frage->titel, "Spielregeln einhalten");
        EXPECT_EQ(frage->text, "Du hast die Anzahl der Wissensgebiete auf  [ " + std::to_string(wissen) +
                                   " ]  begrenzt.\nWenn Du die Spielregeln einhalten willst, muß ich\r\n"
                                   "die restlichen Felder jetzt löschen!");
    }
    EXPECT_FALSE(WissenBegrenzung(6).has_value());
}
