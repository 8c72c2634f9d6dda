// The sheets as values: which there are, what of the form stands on them and what is said of them.
#include "sheets/blaetter.h"

#include "printing/druckdaten.h"
#include "sheets/blatthinweis.h"
#include "sheets/spielbrett.h"
#include "tests/printing/probemass.h"
#include "tests/sheets/blattvorlagen.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr std::array alleArten{Blattart::Bogen,   Blattart::Antwortbogen, Blattart::BrettA4,
                               Blattart::BrettA3, Blattart::BrettA2,      Blattart::BrettA1,
                               Blattart::BrettA0, Blattart::Karten8,      Blattart::Karten16};

Blattsatz Blatt(const Blattvorlage& vorlage, Blattart art, bool ohneTitel = false,
                bool mitAntworten = false) {
    return BlattMachen(vorlage, {art, ohneTitel, mitAntworten}, {}, Probemass());
}

std::vector<std::string> Texte(const Blattsatz& blatt) {
    std::vector<std::string> texte;
    for (const Zeichnung& seite : blatt.seiten) {
        for (const Textstelle& text : Alle<Textstelle>(seite)) {
            texte.push_back(text.text);
        }
    }
    return texte;
}

bool Hat(const Blattsatz& blatt, const std::string& text) {
    return std::ranges::count(Texte(blatt), text) > 0;
}

} // namespace

TEST(Blattart, AQuizFormHasNineSheetsAndATestTwo) {
    std::vector<std::string_view> namen;
    for (const Blattart art : Blattarten(Formart::Quiz)) {
        namen.push_back(Blattname(art));
    }
    EXPECT_EQ(namen,
              (std::vector<std::string_view>{"Bogen", "Antwortbogen", "Brett A4", "Brett A3", "Brett A2",
                                             "Brett A1", "Brett A0", "8 Karten", "16 Karten"}));
    ASSERT_EQ(Blattarten(Formart::Test).size(), 2U);
    EXPECT_EQ(Blattarten(Formart::Test).back(), Blattart::Antwortbogen);
}

TEST(Blattart, AKindIsFoundByItsNameAndOnlyAmongTheFormsOwn) {
    for (const Blattart art : alleArten) {
        EXPECT_EQ(BlattartAus(Formart::Quiz, Blattname(art)), art);
    }
    EXPECT_EQ(BlattartAus(Formart::Quiz, ""), Blattart::Bogen);
    EXPECT_EQ(BlattartAus(Formart::Test, "8 Karten"), Blattart::Bogen);
}

TEST(Blaetter, TheBogenIsThePrintsOwnDrawing) {
    const Quizvorlage quiz = VollesQuiz();
    const Probemass mass;
    const Druckgeometrie g = GeometrieRechnen(Papier::A4Quer, 0_mm, 3_mm, 4_mm);
    for (const bool ohne : {false, true}) {
        const Zeichnung soll = FormularZeichnen(DruckdatenAus(quiz.form, quiz.spiel, ohne), g, mass);
        const Blattsatz ist = BlattMachen(quiz, {Blattart::Bogen, ohne, false}, {3_mm, 4_mm}, mass);
        ASSERT_EQ(ist.seiten.size(), 1U);
        const auto a = Alle<Textstelle>(soll);
        const auto b = Alle<Textstelle>(ist.seiten.front());
        ASSERT_EQ(a.size(), b.size());
        for (std::size_t i = 0; i < a.size(); ++i) {
            EXPECT_EQ(a.at(i).text, b.at(i).text);
            EXPECT_EQ(a.at(i).x, b.at(i).x);
            EXPECT_EQ(a.at(i).y, b.at(i).y);
        }
        EXPECT_EQ(soll.size(), ist.seiten.front().size());
        EXPECT_EQ(Hat(ist, "Natur"), !ohne);
    }
}

TEST(Blaetter, ThePaperLiesAsTheSheetWantsIt) {
    Quizvorlage quiz = VollesQuiz();
    for (const Blattart art : alleArten) {
        EXPECT_EQ(Blatt(quiz, art).quer, BlattQuer(quiz, art)) << Blattname(art);
    }
    EXPECT_TRUE(BlattQuer(quiz, Blattart::Bogen));
    quiz.spiel.Papierformat = "A5 quer"; // upright on A4
    EXPECT_FALSE(BlattQuer(quiz, Blattart::Bogen));
    EXPECT_FALSE(BlattQuer(KleinerTest(), Blattart::Bogen));
}

TEST(Blaetter, WithoutAPaperThereIsNoBogenButEverythingElse) {
    Quizvorlage quiz = VollesQuiz();
    quiz.spiel.Papierformat = "";
    EXPECT_TRUE(Blatt(quiz, Blattart::Bogen).seiten.empty());
    EXPECT_EQ(Blatthinweis(Blatt(quiz, Blattart::Bogen), Blattart::Bogen),
              "Mir fehlt die Angabe der Papiergröße. (Vorgaben, Darstellung)");
    for (const Blattart art : Blattarten(Formart::Quiz).subspan(1)) {
        EXPECT_FALSE(Blatt(quiz, art).seiten.empty()) << Blattname(art);
    }
}

TEST(Blaetter, ATestShowsItsAnswersOnlyWhenTheyAreWanted) {
    EXPECT_FALSE(Hat(Blatt(KleinerTest(), Blattart::Bogen), "Antwort2"));
    EXPECT_TRUE(Hat(Blatt(KleinerTest(), Blattart::Bogen, false, true), "Antwort2"));
}

TEST(Blaetter, WhatSticksOutOfTheBogenIsBoxedAndNamed) {
    Quizvorlage quiz = VollesQuiz();
    quiz.form.FrageText.at(8) = std::string(60, 'x');
    const Blattsatz blatt = Blatt(quiz, Blattart::Bogen);
    ASSERT_EQ(blatt.ueberhaenge.size(), 1U);
    const Ueberhang& ueberhang = blatt.ueberhaenge.front();
    EXPECT_EQ(ueberhang.satz.substr(0, 31), "Gebiet 2, Frage 3 : Auf dem Pap");
    EXPECT_EQ(Blatthinweis(blatt, Blattart::Bogen), ueberhang.satz);
    const auto texte = Alle<Textstelle>(blatt.seiten.front());
    const auto lang = std::ranges::find(texte, quiz.form.FrageText.at(8), &Textstelle::text);
    ASSERT_NE(lang, texte.end());
    EXPECT_EQ(ueberhang.kasten.x, lang->x);
    EXPECT_EQ(ueberhang.kasten.y, lang->y);
    EXPECT_NEAR(ueberhang.kasten.breite.zahl(), 60 * 0.8F, 0.001);
}

TEST(Blaetter, ATitleThatSticksOutIsNotNamedOnASheetWithoutTitles) {
    Quizvorlage quiz = VollesQuiz();
    quiz.form.WissenTitel.at(3) = std::string(60, 'x');
    EXPECT_EQ(Blatt(quiz, Blattart::Bogen).ueberhaenge.size(), 1U);
    EXPECT_TRUE(Blatt(quiz, Blattart::Bogen, true).ueberhaenge.empty());
}

TEST(Blaetter, TheBoxOfATestsRowStandsWhereTheRowDoes) {
    Testvorlage test = KleinerTest();
    test.form.HBFrageText.at(4) = test.druck.zeilen.at(4).frage = std::string(200, 'x');
    const Blattsatz blatt = BlattMachen(test, {Blattart::Bogen, false, false}, {5_mm, 8_mm}, Probemass());
    ASSERT_EQ(blatt.ueberhaenge.size(), 1U);
    const auto texte = Alle<Textstelle>(blatt.seiten.front());
    const auto lang = std::ranges::find(texte, std::string(200, 'x'), &Textstelle::text);
    ASSERT_NE(lang, texte.end());
    EXPECT_EQ(blatt.ueberhaenge.front().kasten.x, lang->x);
    EXPECT_NEAR(blatt.ueberhaenge.front().kasten.y.zahl(), lang->y.zahl(), 0.001);
}

TEST(Blaetter, AnAnswerInTheWayIsOnlyAMatterOfASheetWithAnswers) {
    Testvorlage test = KleinerTest();
    std::string lang;
    for (int i = 0; i < 9; ++i) {
        lang += "Zeile\r\n";
    }
    test.form.HBFrageText.at(2) = test.druck.zeilen.at(2).frage = lang;
    EXPECT_TRUE(Blatt(test, Blattart::Bogen).ueberhaenge.empty());
    ASSERT_EQ(Blatt(test, Blattart::Bogen, false, true).ueberhaenge.size(), 1U);
}

TEST(Blaetter, WhatHasNoRoomOnACardIsBoxedAndNamed) {
    Quizvorlage quiz = VollesQuiz();
    quiz.form.FrageText.at(3) = std::string(400, 'x');
    quiz.form.AntwortText.at(30) = std::string(400, 'x');
    quiz.form.WissenTitel.at(4) = std::string(400, 'x');
    for (const Blattart art : {Blattart::Karten8, Blattart::Karten16}) {
        const Blattsatz blatt = Blatt(quiz, art);
        std::vector<std::string> saetze;
        for (const Ueberhang& ueberhang : blatt.ueberhaenge) {
            saetze.push_back(ueberhang.satz);
            EXPECT_LT(ueberhang.seite, blatt.seiten.size());
            // The title is in front, and question and answer are behind.
            EXPECT_EQ(ueberhang.seite % 2, ueberhang.satz.starts_with("Gebiet 4 ") ? 0U : 1U);
        }
        const std::string ende = " : Der Text findet auf der Karte keinen Platz.";
        EXPECT_EQ(std::ranges::count(saetze, "Gebiet 1, Frage 3" + ende), 1);
        EXPECT_EQ(std::ranges::count(saetze, "Gebiet 6, Antwort 5" + ende), 1);
        EXPECT_EQ(std::ranges::count(saetze, "Gebiet 4" + ende), 5); // a card each
        EXPECT_EQ(saetze.size(), 7U);
    }
}

TEST(Blaetter, ATitleThatNoBoardHasRoomForIsBoxedOnThePageThatItBeginsOn) {
    Quizvorlage quiz = VollesQuiz();
    quiz.form.WissenTitel.at(5) = std::string(900, 'x');
    const Blattsatz blatt = Blatt(quiz, Blattart::BrettA3);
    ASSERT_EQ(blatt.ueberhaenge.size(), 1U);
    EXPECT_EQ(blatt.ueberhaenge.front().satz, "Gebiet 5 : Der Titel ist für das Brett zu lang.");
    EXPECT_EQ(blatt.ueberhaenge.front().seite, 1U);
    const double luecke = 380 * 0.012;
    const double spalte = (380 - 5 * luecke) / 6;
    EXPECT_NEAR(static_cast<double>(blatt.ueberhaenge.front().kasten.x.zahl()),
                10 + 4 * (spalte + luecke) - 190, 0.01);
}

TEST(Blaetter, CellsOutOfPlayHaveNoCardNoRowAndNoNumber) {
    Quizvorlage quiz = VollesQuiz();
    quiz.spiel.OptionMaxWissen = true;
    quiz.spiel.AnzahlWissen = 2;
    EXPECT_EQ(Blatt(quiz, Blattart::Karten8).seiten.size(), 4U); // ten cards
    EXPECT_EQ(Texte(Blatt(quiz, Blattart::BrettA4)).size(), 12U);
    EXPECT_TRUE(Hat(Blatt(quiz, Blattart::Antwortbogen), "Frage7"));
    EXPECT_FALSE(Hat(Blatt(quiz, Blattart::Antwortbogen), "Frage11"));
    EXPECT_FALSE(Hat(Blatt(quiz, Blattart::Antwortbogen), "Sport"));
}

TEST(Blaetter, AnAreaWithoutATitleIsCalledByItsNumberWhereATitleIsNeeded) {
    Quizvorlage quiz = VollesQuiz();
    quiz.form.WissenTitel.at(3) = "Wissen";
    EXPECT_TRUE(Hat(Blatt(quiz, Blattart::Antwortbogen), "Gebiet 3"));
    EXPECT_TRUE(Hat(Blatt(quiz, Blattart::Karten8), "Gebiet 3, 4"));
    EXPECT_FALSE(Hat(Blatt(quiz, Blattart::BrettA4), "Wissen"));
    EXPECT_FALSE(Hat(Blatt(quiz, Blattart::Karten16), "Wissen"));
}

TEST(Blaetter, TextsWhereThePrinterDoesNotReachAreBoxedAndNamed) {
    Quizvorlage quiz = VollesQuiz();
    const Probemass mass;
    const auto ueberhaenge = [&](Blattart art, const Flaeche& druckbar) {
        Blattsatz blatt = BlattMachen(quiz, {art, false, false}, {}, mass);
        blatt.ueberhaenge.clear();
        RandPruefen(blatt, druckbar, mass);
        return blatt.ueberhaenge;
    };
    EXPECT_TRUE(ueberhaenge(Blattart::Bogen, {0_mm, 0_mm, 297_mm, 210_mm}).empty());
    const auto abgeschnitten = ueberhaenge(Blattart::Bogen, {14_mm, 0_mm, 283_mm, 210_mm});
    ASSERT_EQ(abgeschnitten.size(), 6U); // the head and the numbers of the first column
    EXPECT_EQ(abgeschnitten.front().satz,
              "Der Drucker reicht nicht bis zum Rand und schneidet ab : FELDKRANZ!");
    EXPECT_TRUE(ueberhaenge(Blattart::BrettA2, {20_mm, 20_mm, 250_mm, 170_mm}).empty()); // goes on elsewhere
}

TEST(Blatthinweis, SaysWhatToDoWithThePaper) {
    const Quizvorlage quiz = VollesQuiz();
    const auto hinweis = [&quiz](Blattart art) { return Blatthinweis(Blatt(quiz, art), art); };
    EXPECT_EQ(hinweis(Blattart::Bogen), "Alles hat seinen Platz.");
    EXPECT_EQ(hinweis(Blattart::BrettA4), "Alles hat seinen Platz.");
    EXPECT_EQ(hinweis(Blattart::BrettA0),
              "16 Seiten : an den Marken zuschneiden und Reihe für Reihe aneinanderkleben.");
    EXPECT_EQ(hinweis(Blattart::Karten8),
              "8 Seiten, Vorderseiten und Rückseiten im Wechsel : beidseitig drucken, "
              "an der langen Kante wenden.");
    EXPECT_EQ(hinweis(Blattart::Karten16), "4 Seiten, Vorderseiten und Rückseiten im Wechsel : beidseitig "
                                           "drucken, an der kurzen Kante wenden.");
}

TEST(Blatthinweis, ThreeLinesAtMostTheLastOfThemCountsTheRest) {
    Blattsatz blatt;
    blatt.seiten.emplace_back();
    for (int i = 1; i <= 3; ++i) {
        blatt.ueberhaenge.push_back({0, {}, "Satz " + std::to_string(i)});
    }
    EXPECT_EQ(Blatthinweis(blatt, Blattart::Bogen), "Satz 1\r\nSatz 2\r\nSatz 3");
    blatt.ueberhaenge.push_back({0, {}, "Satz 4"});
    EXPECT_EQ(Blatthinweis(blatt, Blattart::Bogen), "Satz 1\r\nSatz 2\r\n... und noch 2 andere.");
}
