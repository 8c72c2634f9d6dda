// The rules about questions, each by a form that breaks it and nothing else.
#include "checking/fragenpruefung.h"

#include "tests/checking/pruefhilfe.h"

#include <gtest/gtest.h>

namespace {

using Texte = std::vector<std::string>;

Formularstand Testblattstand(const Testformular& form, const Punktanzeige& punkte) {
    return {Teststand{form, form, punkte}, Spielwerte()};
}

// Two rows with questions, answers and points.
Testformular KleinerTest() {
    Testformular form;
    form.HBFrageText[1] = "Wer baute die Arche?";
    form.HBAntwortText[1] = "Noah";
    form.HBFrageText[2] = "Wie heißt die Hauptstadt von Spanien?";
    form.HBAntwortText[2] = "Madrid";
    return form;
}

Punktanzeige KleinePunkte() {
    Punktanzeige punkte;
    punkte.punkte.fill("0");
    punkte.punkte[1] = "3";
    punkte.punkte[2] = "10";
    return punkte;
}

} // namespace

TEST(Fragenpruefung, AFullFormOfDifferentQuestionsHasNothingAmiss) {
    EXPECT_EQ(Geprueft(Stand(GutesFormular())), Texte());
    EXPECT_EQ(Geprueft(Testblattstand(KleinerTest(), KleinePunkte())), Texte());
}

TEST(Fragenpruefung, ACellInPlayWithoutQuestionOrAnswerIsTold) {
    Quizformular form = GutesFormular();
    form.FrageText[3].clear();
    form.AntwortText[3].clear();
    form.AntwortText[7] = "  \r\n ";
    form.FrageText[30] = " ";
    EXPECT_EQ(Geprueft(Stand(form)), (Texte{"Hinweis | Gebiet 1, Frage 3 | Hier steht noch nichts.",
                                            "Hinweis | Gebiet 2, Antwort 2 | Hier fehlt noch die Antwort.",
                                            "Hinweis | Gebiet 6, Frage 5 | Hier fehlt noch die Frage."}));
}

TEST(Fragenpruefung, ACellThatTheRulesHaveClosedMayBeEmpty) {
    Quizformular form = GutesFormular();
    Spielwerte spiel = VollesBrett();
    spiel.OptionMaxWissen = true;
    spiel.AnzahlWissen = 5;
    for (std::size_t n = 26; n <= 30; ++n) {
        form.FrageText.at(n).clear();
        form.AntwortText.at(n).clear();
    }
    EXPECT_EQ(Geprueft(Stand(form, spiel)), Texte());
    spiel.OptionMaxWissen = false;
    EXPECT_EQ(Geprueft(Stand(form, spiel)).size(), 5U);
}

TEST(Fragenpruefung, AJokerAndAnEreignisNeedNoQuestion) {
    Quizformular form = GutesFormular();
    for (const std::size_t n : {4U, 5U}) {
        form.FrageText.at(n) = "----- Joker ! -----";
        form.AntwortText.at(n) = "----- Joker ! -----";
    }
    form.FeldSpezial[4] = "J";
    form.FeldSpezial[5] = "E";
    EXPECT_EQ(Geprueft(Stand(form)), Texte());
    form.FeldSpezial[5] = "G"; // a lucky question has one
    EXPECT_EQ(Geprueft(Stand(form)),
              Texte{"Hinweis | Gebiet 1, Antwort 5 | Die Antwort steht schon in der Frage."});
}

TEST(Fragenpruefung, AQuestionThatIsThereTwiceIsToldAtItsSecondPlace) {
    Quizformular form = GutesFormular();
    form.FrageText[9] = "WELCHER  BERG AUS PERU";
    form.FrageText[12] = "Wie heißt der Berg in Peru?";
    EXPECT_EQ(
        Geprueft(Stand(form)),
        (Texte{"Hinweis | Gebiet 2, Frage 4 | Dieselbe Frage steht schon in [ Gebiet 1, Frage 1 ].",
               "Hinweis | Gebiet 3, Frage 2 | Fast dieselbe Frage steht schon in [ Gebiet 1, Frage 1 ]."}));
}

TEST(Fragenpruefung, AQuestionFromAnotherFormIsToldWithItsName) {
    const Benutzungstext benutzt = [](std::string_view frage) {
        return frage == "Welcher Turm aus Togo?" ? std::string("schon benutzt in ABEND.FKR (20.11.2026)")
                                                 : std::string();
    };
    EXPECT_EQ(Geprueft(Stand(GutesFormular()), benutzt),
              Texte{"Hinweis | Gebiet 3, Frage 5 | Schon benutzt in ABEND.FKR (20.11.2026)."});
}

TEST(Fragenpruefung, AnAnswerInItsQuestionCountsAsWholeWords) {
    struct Fall {
        const char* frage;
        const char* antwort;
        bool verraten;
    };
    const std::vector<Fall> faelle{
        {"Wie heißt der Rhein?", "Rhein", true},
        {"Wie heißt der RHEIN?", "der Rhein", true},
        {"Wo stand die Arche auf dem Berg Ararat?", "Auf dem Berg Ararat", true},
        {"Was frisst die Maus gern: Käse, nicht wahr?", "kaese", true},
        {"Wer war vor der Arche da?", "Die Arche (Noah)", true},
        {"Wie viele sind 3 mal 1?", "3", true},
        {"Wer A sagt, muss auch was sagen?", "A", true},
        {"Wie viele sind 13 mal 1?", "3", false},
        {"Wie heißt das Rheinland?", "Rhein", false},
        {"Wer baute die Arche? (1. Mose 6)", "6", false},
        {"Was ist schwerer: Gold oder Silber?", "Gold", false},
        {"Richtig oder falsch: Der Mond leuchtet?", "Richtig", false},
        {"Wer baute die Arche?", "Noah", false},
        {"Wer baute die Arche?", "", false},
        {"Wer baute die Arche?", "...", false},
        {"", "Noah", false},
    };
    for (const Fall& fall : faelle) {
        EXPECT_EQ(AntwortInFrage(fall.frage, fall.antwort), fall.verraten)
            << fall.frage << " - " << fall.antwort;
    }
}

TEST(Fragenpruefung, ATestRowWithoutPointsIsTold) {
    Punktanzeige punkte = KleinePunkte();
    punkte.punkte[1] = "0";
    punkte.punkte[2] = "";
    EXPECT_EQ(Geprueft(Testblattstand(KleinerTest(), punkte)),
              (Texte{"Hinweis | Punkte 1 | Für diese Frage gibt es noch keine Punkte.",
                     "Hinweis | Punkte 2 | Für diese Frage gibt es noch keine Punkte."}));
}

TEST(Fragenpruefung, ATestTellsOnlyOfRowsThatWereBegun) {
    Testformular form = KleinerTest();
    form.HBAntwortText[2].clear();
    form.HBAntwortText[9] = "Eine Antwort";
    EXPECT_EQ(Geprueft(Testblattstand(form, KleinePunkte())),
              (Texte{"Fehler | Antwort 9 | Diese Antwort drucke ich nicht, denn ihre Frage fehlt.",
                     "Hinweis | Antwort 2 | Hier fehlt noch die Antwort."}));
    form.HBAntwortText.fill(""); // a test without answers is one
    EXPECT_EQ(Geprueft(Testblattstand(form, KleinePunkte())), Texte());
    EXPECT_EQ(Geprueft(Testblattstand(Testformular(), Punktanzeige())),
              Texte{"Hinweis | Frage 1 | Hier steht noch keine einzige Frage."});
}
