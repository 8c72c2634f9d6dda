// The layout of the printed test: its measures and what stands on the page, with a measure of text that can
// be reckoned in the head.
#include "printing/testseite.h"
#include "tests/printing/probemass.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

Testdruckdaten Blatt(int anzahl) {
    Testdruckdaten daten;
    daten.titel = " TEST  HFZ";
    daten.fach = " Knoten";
    daten.gruppenwort = " Gruppe :";
    daten.gruppe = " II";
    daten.name = " Name :";
    daten.dateiname = "A.FKR";
    daten.gesamtpunkte = 5 * anzahl;
    for (int n = 1; n <= anzahl; ++n) {
        daten.zeilen[static_cast<std::size_t>(n)] = {"Frage" + std::to_string(n),
                                                     "Antwort" + std::to_string(n), "5"};
    }
    return daten;
}

Zeichnung Zeichnen(const Testdruckdaten& daten) {
    return TestZeichnen(daten, TestGeometrieRechnen(AnzahlTestfragen(daten), 0_mm, 0_mm), Probemass());
}

// The text's places on the page.
std::vector<Textstelle> Stellen(const Zeichnung& zeichnung, const std::string& text) {
    std::vector<Textstelle> gefunden;
    for (const Textstelle& stelle : Alle<Textstelle>(zeichnung)) {
        if (stelle.text == text) {
            gefunden.push_back(stelle);
        }
    }
    return gefunden;
}

} // namespace

TEST(Testseite, MeasuresOfThePageAndTheOffsetsOfThePrinter) {
    const Testgeometrie g = TestGeometrieRechnen(3, 4_mm, 6_mm);
    EXPECT_EQ(g.TestRandLinks, 11_mm);
    EXPECT_EQ(g.TestRandOben, 4_mm);
    EXPECT_EQ(g.TestBreite, 185_mm);
    EXPECT_EQ(g.TestTextBreite, 166_mm);
    EXPECT_EQ(g.TestNummerSpalte, 8_mm);
    EXPECT_EQ(g.TestTextEinzug, 3_mm);
    EXPECT_EQ(g.TestFragenOben, 40_mm);
    EXPECT_EQ(g.TestFuss, 281_mm);
    EXPECT_EQ(g.TestZeile, (265_mm - 40_mm) / 3.0F - 3_mm); // the 265 don't shift with the printer
    EXPECT_EQ(g.TestRaster, g.TestZeile + 3_mm);
}

TEST(Testseite, ThreeQuestionsShareThePageInThirds) {
    EXPECT_EQ(TestGeometrieRechnen(3, 0_mm, 0_mm).TestRaster, 73_mm);
    EXPECT_EQ(TestGeometrieRechnen(1, 0_mm, 0_mm).TestRaster, 219_mm);
    EXPECT_FLOAT_EQ(TestGeometrieRechnen(10, 0_mm, 0_mm).TestRaster.zahl(), 21.9F);
}

TEST(Testseite, AnEmptyTestIsLaidOutForOneQuestion) {
    EXPECT_EQ(TestGeometrieRechnen(0, 0_mm, 0_mm).TestRaster, 219_mm);
    const Zeichnung zeichnung = Zeichnen(Blatt(0));
    EXPECT_EQ(Stellen(zeichnung, "1.").size(), 1U);
    EXPECT_TRUE(Stellen(zeichnung, "2.").empty());
    EXPECT_TRUE(Alle<Kreis>(zeichnung).empty());
    EXPECT_EQ(Stellen(zeichnung, "/ 0").size(), 1U);
}

TEST(Testseite, TheHeadStandsInItsFourBoxes) {
    struct Soll {
        const char* text = "";
        Millimeter x, y;
        Schriftpunkte groesse;
        Schriftart art = Schriftart::Arial;
    };
    const Zeichnung zeichnung = Zeichnen(Blatt(2));
    for (const Soll& soll : {Soll{" TEST  HFZ", 15_mm, 10_mm, 20_pt, Schriftart::ArialBlack},
                             Soll{"  A.FKR", 155_mm, 13_mm, 12_pt, Schriftart::Arial},
                             Soll{" Knoten", 15_mm, 20_mm, 20_pt, Schriftart::ArialBlack},
                             Soll{"   Gruppe :", 155_mm, 23_mm, 12_pt, Schriftart::Arial},
                             Soll{" II", 177_mm, 20_mm, 20_pt, Schriftart::ArialBlack},
                             Soll{" Name :", 15_mm, 33_mm, 12_pt, Schriftart::Arial}}) {
        const auto stellen = Stellen(zeichnung, soll.text);
        ASSERT_EQ(stellen.size(), 1U) << soll.text;
        EXPECT_EQ(stellen[0].x, soll.x) << soll.text;
        EXPECT_EQ(stellen[0].y, soll.y) << soll.text;
        EXPECT_EQ(stellen[0].schrift,
                  (Druckschrift{soll.art, soll.groesse, soll.art == Schriftart::ArialBlack}))
            << soll.text;
    }
}

TEST(Testseite, NumbersEndTwoMillimetresBeforeTheirColumn) {
    const Zeichnung zeichnung = Zeichnen(Blatt(10));
    const auto eins = Stellen(zeichnung, "1.").at(0);
    EXPECT_FLOAT_EQ(eins.x.zahl(), 15.0F + 8.0F - 2.0F - 2.0F); // two letters of 1 mm
    EXPECT_FLOAT_EQ(eins.y.zahl(), 46.0F);
    const auto zehn = Stellen(zeichnung, "10.").at(0);
    EXPECT_FLOAT_EQ(zehn.x.zahl(), 15.0F + 8.0F - 2.0F - 3.0F);
    EXPECT_FLOAT_EQ(zehn.y.zahl(), 46.0F + 9.0F * 21.9F);
}

TEST(Testseite, ACircleStandsAroundThePoints) {
    const Zeichnung zeichnung = Zeichnen(Blatt(2));
    const auto punkte = Stellen(zeichnung, "5");
    ASSERT_EQ(punkte.size(), 2U);
    EXPECT_FLOAT_EQ(punkte[1].x.zahl(), 200.0F - 3.0F - 0.5F);
    EXPECT_FLOAT_EQ(punkte[1].y.zahl(), 46.0F + 109.5F + 10.0F);
    const auto kreise = Alle<Kreis>(zeichnung);
    ASSERT_EQ(kreise.size(), 2U);
    EXPECT_FLOAT_EQ(kreise[1].x.zahl(), 200.0F - 3.2F);
    EXPECT_FLOAT_EQ(kreise[1].y.zahl(), 46.0F + 109.5F + 10.0F + 2.5F);
    EXPECT_FLOAT_EQ(kreise[1].radius.zahl(), 2.5F);
}

TEST(Testseite, ARowWithoutPointsHasNoCircle) {
    Testdruckdaten daten = Blatt(3);
    daten.zeilen[2].punkte.clear();
    EXPECT_EQ(Alle<Kreis>(Zeichnen(daten)).size(), 2U);
}

TEST(Testseite, ARowWithoutAQuestionIsNotPrintedAtAll) {
    Testdruckdaten daten = Blatt(3);
    daten.zeilen[2] = {"", "verwaist", "17"};
    daten.mitAntworten = true;
    EXPECT_EQ(AnzahlTestfragen(daten), 2);
    const Zeichnung zeichnung = Zeichnen(daten);
    EXPECT_TRUE(Stellen(zeichnung, "17").empty());
    EXPECT_TRUE(Stellen(zeichnung, "verwaist").empty());
    EXPECT_TRUE(Stellen(zeichnung, "3.").empty()); // the numbers follow the questions
    EXPECT_FLOAT_EQ(Stellen(zeichnung, "Frage3").at(0).y.zahl(), 46.0F + 109.5F);
}

TEST(Testseite, AnswersStandHalfARowBelowTheirQuestion) {
    Testdruckdaten daten = Blatt(3);
    EXPECT_TRUE(Stellen(Zeichnen(daten), "Antwort1").empty());
    daten.mitAntworten = true;
    const auto antwort = Stellen(Zeichnen(daten), "Antwort2").at(0);
    EXPECT_FLOAT_EQ(antwort.x.zahl(), 15.0F + 8.0F + 3.0F);
    EXPECT_FLOAT_EQ(antwort.y.zahl(), 46.0F + 73.0F + 35.0F);
}

TEST(Testseite, ALongQuestionBreaksBeforeTheWordThatWouldPassTheTextWidth) {
    Testdruckdaten daten = Blatt(1);
    const std::string anfang = std::string(100, 'a') + " " + std::string(60, 'b'); // a letter is 1 mm wide
    daten.zeilen[1].frage = anfang + " " + std::string(9, 'c');
    const auto zweiZeilen = Zeichnen(daten); // a line is 5 mm high
    ASSERT_EQ(Stellen(zweiZeilen, anfang).size(), 1U);
    EXPECT_FLOAT_EQ(Stellen(zweiZeilen, anfang)[0].y.zahl(), 46.0F);
    ASSERT_EQ(Stellen(zweiZeilen, std::string(9, 'c')).size(), 1U); // the last word is measured as well
    EXPECT_FLOAT_EQ(Stellen(zweiZeilen, std::string(9, 'c'))[0].y.zahl(), 51.0F);
    EXPECT_FLOAT_EQ(Stellen(zweiZeilen, std::string(9, 'c'))[0].x.zahl(), 26.0F);

    daten.zeilen[1].frage = anfang + " cccc"; // 166 letters, the longest line
    EXPECT_EQ(Stellen(Zeichnen(daten), daten.zeilen[1].frage).size(), 1U);
    daten.zeilen[1].frage += " d";
    EXPECT_FLOAT_EQ(Stellen(Zeichnen(daten), "d").at(0).y.zahl(), 51.0F);
}

TEST(Testseite, AnAnswerBreaksAsAQuestionDoes) {
    Testdruckdaten daten = Blatt(3);
    daten.mitAntworten = true;
    daten.zeilen[2].antwort = std::string(160, 'a') + " " + std::string(7, 'b');
    const auto zeichnung = Zeichnen(daten);
    EXPECT_FLOAT_EQ(Stellen(zeichnung, std::string(160, 'a')).at(0).y.zahl(), 46.0F + 73.0F + 35.0F);
    EXPECT_FLOAT_EQ(Stellen(zeichnung, std::string(7, 'b')).at(0).y.zahl(), 46.0F + 73.0F + 40.0F);
}

TEST(Testseite, AWordWiderThanTheTextWidthIsOneLine) {
    Testdruckdaten daten = Blatt(1);
    daten.zeilen[1].frage = std::string(200, 'w');
    EXPECT_FLOAT_EQ(Stellen(Zeichnen(daten), daten.zeilen[1].frage).at(0).y.zahl(), 46.0F);
}
