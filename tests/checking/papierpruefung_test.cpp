// What sticks out on paper, with a measure of text that can be reckoned in the head.
#include "checking/papierpruefung.h"

#include "printing/druckgeometrie.h"
#include "printing/testseite.h"
#include "tests/checking/pruefhilfe.h"

#include <gtest/gtest.h>

namespace {

using Texte = std::vector<std::string>;

// On A4 without a gap a letter of a cell is 0.8 mm wide and a line 4 mm high, the text column 35.66 mm wide.
const Druckgeometrie a4 = GeometrieRechnen(Papier::A4Quer, 0_mm, 0_mm, 0_mm);

Texte Papier4(const Quizformular& form, const Spielwerte& spiel = VollesBrett()) {
    return Zeilen(PapierPruefen(form, spiel, Pruefmass()));
}

// Lines of one word each.
std::string ZeilenVon(int anzahl) {
    std::string text = "Wort";
    for (int i = 1; i < anzahl; ++i) {
        text += "\r\nWort";
    }
    return text;
}

// The height of that many lines less the room for them.
std::string ZuHoch(int zeilen, Millimeter platz) {
    return Millimetertext(4_mm * static_cast<float>(zeilen) - platz);
}

} // namespace

TEST(Papierpruefung, AFormThatFitsHasNothingAmiss) {
    EXPECT_EQ(Papier4(GutesFormular()), Texte());
    EXPECT_EQ(Papier4(Quizformular()), Texte());
    EXPECT_EQ(Zeilen(PapierPruefen(Testformular(), Pruefmass())), Texte());
}

TEST(Papierpruefung, LinesBelowTheirPartOfTheCellAreToldWithTheirMillimetres) {
    Quizformular form;
    const int frage = static_cast<int>((a4.FrageHoehe - a4.TextOben).zahl() / 4.0F);
    const int antwort = static_cast<int>((a4.AntwortHoehe - a4.AntwortOben).zahl() / 4.0F);
    form.FrageText[8] = ZeilenVon(frage);
    form.AntwortText[8] = ZeilenVon(antwort);
    EXPECT_EQ(Papier4(form), Texte());
    form.FrageText[8] = ZeilenVon(frage + 1);
    form.AntwortText[8] = ZeilenVon(antwort + 2);
    EXPECT_EQ(
        Papier4(form),
        (Texte{"Fehler | Gebiet 2, Frage 3 | Auf dem Papier ragt der Text unten " +
                   ZuHoch(frage + 1, a4.FrageHoehe - a4.TextOben) + " mm über das Feld hinaus.",
               "Fehler | Gebiet 2, Antwort 3 | Auf dem Papier ragt der Text unten " +
                   ZuHoch(antwort + 2, a4.AntwortHoehe - a4.AntwortOben) + " mm über das Feld hinaus."}));
}

TEST(Papierpruefung, AWordWiderThanTheCellIsTold) {
    Quizformular form;
    // From the text's left edge to the cell's right one.
    const Millimeter platz = a4.SpaltenBreite - a4.TextEinzug;
    const auto passt = static_cast<std::size_t>(platz.zahl() / 0.8F);
    form.FrageText[30] = std::string(passt, 'x') + "     "; // blanks can't be seen
    EXPECT_EQ(Papier4(form), Texte());
    form.FrageText[30] = std::string(passt + 4, 'x');
    const Millimeter breite(static_cast<float>(passt + 4) * 0.8F);
    EXPECT_EQ(Papier4(form), Texte{"Fehler | Gebiet 6, Frage 5 | Auf dem Papier ragt der Text rechts " +
                                   Millimetertext(breite - platz) + " mm über das Feld hinaus."});
}

TEST(Papierpruefung, OnlyWhatIsPrintedIsMeasured) {
    Quizformular form;
    form.FrageText[30] = ZeilenVon(50);
    form.FrageText[1] = ZeilenVon(50);
    form.FeldSpezial[1] = "J"; // prints its word alone
    form.WissenTitel[6] = std::string(80, 'x');
    EXPECT_EQ(Papier4(form).size(), 2U);
    Spielwerte spiel = VollesBrett();
    spiel.OptionMaxWissen = true;
    spiel.AnzahlWissen = 5;
    EXPECT_EQ(Papier4(form, spiel), Texte());
    spiel = VollesBrett();
    spiel.Papierformat = "";
    EXPECT_EQ(Papier4(form, spiel), Texte()); // no paper, no opinion
}

TEST(Papierpruefung, ATitleIsHeldAgainstItsColumn) {
    Quizformular form;
    const auto passt = static_cast<std::size_t>(a4.SpaltenBreite.zahl() / 1.4F);
    form.WissenTitel[2] = std::string(passt, 'x');
    EXPECT_EQ(Papier4(form), Texte());
    form.WissenTitel[2] = std::string(passt + 2, 'x');
    const Millimeter zuBreit = Millimeter(static_cast<float>(passt + 2) * 1.4F) - a4.SpaltenBreite;
    EXPECT_EQ(Papier4(form), Texte{"Fehler | Gebiet 2 | Auf dem Papier ragt der Titel links und rechts je " +
                                   Millimetertext(zuBreit / 2.0F) + " mm über die Spalte hinaus."});
}

TEST(Papierpruefung, TheTextsOfTheHeadMayNotReachIntoOneAnother) {
    Quizformular form;
    const auto passt = static_cast<std::size_t>(a4.SpaltenRaster.zahl() / 1.1F);
    const auto wert = [passt](std::string_view vorsatz, std::size_t mehr) {
        return std::string(passt + mehr - vorsatz.size(), 'x');
    };
    form.FormDatum = wert("Datum :  ", 0);
    form.FormZeit = wert("Zeit :  ", 0);
    form.FormNr = wert("Nr :  ", 0);
    EXPECT_EQ(Papier4(form), Texte());
    form.FormDatum = wert("Datum :  ", 3);
    form.FormZeit = wert("Zeit :  ", 3);
    form.FormNr = wert("Nr :  ", 3);
    const std::string mm =
        Millimetertext(Millimeter(static_cast<float>(passt + 3) * 1.1F) - a4.SpaltenRaster);
    const std::string text =
        "Auf dem Papier ragt der Text rechts " + mm + " mm über seinen Platz im Kopf hinaus.";
    EXPECT_EQ(Papier4(form),
              (Texte{"Fehler | Datum | " + text, "Fehler | Zeit | " + text, "Fehler | Nr. | " + text}));
}

TEST(Papierpruefung, TheSmallerPaperAndTheGapLeaveLessRoom) {
    Quizformular form;
    form.FrageText[8] = ZeilenVon(4);
    Spielwerte spiel = VollesBrett();
    EXPECT_EQ(Papier4(form, spiel), Texte());
    spiel.Zwischenabstand = 20.0F;
    EXPECT_EQ(Papier4(form, spiel).size(), 1U);
    spiel = VollesBrett();
    spiel.Papierformat = "A5 quer";
    form.FrageText[8] = ZeilenVon(5);
    EXPECT_EQ(Papier4(form, spiel).size(), 1U);
}

TEST(Papierpruefung, ATestsQuestionMayNotReachIntoItsAnswer) {
    // A line is 5 mm high, and nine questions share the page.
    Testformular form;
    form.HBFrageText.fill("Wort");
    form.HBFrageText[0].clear();
    form.HBFrageText[10].clear();
    const Testgeometrie g = TestGeometrieRechnen(9, 0_mm, 0_mm);
    const int ganz = static_cast<int>(g.TestZeile.zahl() / 5.0F);
    form.HBFrageText[3] = ZeilenVon(ganz);
    EXPECT_EQ(Zeilen(PapierPruefen(form, Pruefmass())), Texte());
    form.HBAntwortText[3] = "Wort"; // now it has half of the room
    const std::string hinein = Millimetertext(5_mm * static_cast<float>(ganz) - g.TestZeile / 2.0F);
    EXPECT_EQ(Zeilen(PapierPruefen(form, Pruefmass())),
              Texte{"Fehler | Frage 3 | Mit Antworten gedruckt ragt die Frage " + hinein +
                    " mm in die Antwort hinein."});
    form.HBFrageText[3] = "Wort";
    form.HBAntwortText[3] = ZeilenVon(ganz);
    EXPECT_EQ(Zeilen(PapierPruefen(form, Pruefmass())),
              Texte{"Fehler | Antwort 3 | Auf dem Papier ragt der Text unten " + hinein +
                    " mm über das Feld hinaus."});
}

TEST(Papierpruefung, FewerQuestionsHaveMoreRoom) {
    Testformular form;
    form.HBFrageText[1] = ZeilenVon(10);
    EXPECT_EQ(Zeilen(PapierPruefen(form, Pruefmass())), Texte());
    form.HBFrageText.fill(ZeilenVon(10));
    form.HBFrageText[0].clear();
    EXPECT_EQ(Zeilen(PapierPruefen(form, Pruefmass())).size(), 10U);
}

TEST(Papierpruefung, ATestsHeadAndItsWideWordsAreTold) {
    Testformular form;
    form.HBFrageText[1] = std::string(167, 'x'); // a millimetre each, for 166
    form.HBKopf1 = std::string(71, 'x');         // two each, for 140
    form.HBKopf2 = std::string(70, 'y');
    form.HBKopf3 = std::string(13, 'z'); // from 162 to 185
    EXPECT_EQ(
        Zeilen(PapierPruefen(form, Pruefmass())),
        (Texte{
            "Fehler | Titel | Auf dem Papier ragt der Text rechts 2,0 mm über seinen Platz im Kopf hinaus.",
            "Fehler | Gruppe | Auf dem Papier ragt der Text rechts 3,0 mm über seinen Platz im Kopf hinaus.",
            "Fehler | Frage 1 | Auf dem Papier ragt der Text rechts 1,0 mm über das Feld hinaus."}));
}

TEST(Papierpruefung, MillimetresHaveOneTenthAndAComma) {
    EXPECT_EQ(Millimetertext(3.2_mm), "3,2");
    EXPECT_EQ(Millimetertext(0.06_mm), "0,1");
    EXPECT_EQ(Millimetertext(12_mm), "12,0");
}
