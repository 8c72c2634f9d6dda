// All rules together: limits, quotation marks, order and names of the findings.
#include "checking/pruefung.h"

#include "checking/anfuehrungen.h"
#include "tests/checking/pruefhilfe.h"

#include <gtest/gtest.h>

namespace {

using Texte = std::vector<std::string>;

std::vector<std::string> Ersetzt(const Formularstand& stand, const std::optional<Befundort>& nur) {
    std::vector<std::string> zeilen;
    for (const Ersatztext& text : AnfuehrungenErsetzt(stand, nur)) {
        zeilen.push_back(Ortsname(text.ort) + " | " + text.text);
    }
    return zeilen;
}

Quizformular MitAnfuehrungen() {
    Quizformular form = GutesFormular();
    form.FormZeit = "\"20\" min";
    form.FrageText[2] = "Wer sagte \"Hier\"?";
    form.AntwortText[2] = "\"Ich\"";
    form.AntwortText[8] = "3\"";
    return form;
}

} // namespace

TEST(Pruefung, SpecialFieldsBeyondTheirLimitAreToldAtTheFirstTooMany) {
    Quizformular form = GutesFormular();
    for (const std::size_t n : {2U, 3U, 11U, 12U}) {
        form.FeldSpezial.at(n) = "A";
    }
    form.FeldSpezial[20] = "R";
    form.FeldSpezial[21] = "?"; // a file may hold any text
    Spielwerte spiel = VollesBrett();
    EXPECT_EQ(Geprueft(Stand(form, spiel)),
              Texte{"Hinweis | Gebiet 3, Feld 1 | Aktion habe ich 4-mal gezählt, vorgesehen ist es 2-mal."});
    spiel.Felder[Spezialart::Aktion] = 4;
    spiel.Felder[Spezialart::Risiko] = 0;
    EXPECT_EQ(Geprueft(Stand(form, spiel)),
              Texte{"Hinweis | Gebiet 4, Feld 5 | Risiko habe ich 1-mal gezählt, vorgesehen ist es 0-mal."});
}

TEST(Pruefung, EveryTextThatAQuotationMarkCutsIsAFehler) {
    const std::string text = "Was hinter dem Zeichen \" steht, finde ich beim nächsten Öffnen nicht wieder.";
    EXPECT_EQ(Geprueft(Stand(MitAnfuehrungen())),
              (Texte{"Fehler | Zeit | " + text, "Fehler | Gebiet 1, Frage 2 | " + text,
                     "Fehler | Gebiet 1, Antwort 2 | " + text, "Fehler | Gebiet 2, Antwort 3 | " + text}));
}

TEST(Pruefung, AllQuotationMarksAreReplacedOrThoseOfOnePlace) {
    const Formularstand stand = Stand(MitAnfuehrungen());
    const Texte alle{"Zeit | „20“ min", "Gebiet 1, Frage 2 | Wer sagte „Hier“?",
                     "Gebiet 1, Antwort 2 | „Ich“", "Gebiet 2, Antwort 3 | 3“"};
    EXPECT_EQ(Ersetzt(stand, std::nullopt), alle);
    // A place without one stands for none.
    EXPECT_EQ(Ersetzt(stand, Befundort{Formart::Quiz, Teil::Frage, 5}), alle);
    EXPECT_EQ(Ersetzt(stand, Befundort{Formart::Quiz, Teil::Antwort, 2}), (Texte{alle[1], alle[2]}));
    EXPECT_EQ(Ersetzt(stand, Befundort{Formart::Quiz, Teil::Zeit, 0}), Texte{alle[0]});
    EXPECT_TRUE(HatAnfuehrung(stand, {Formart::Quiz, Teil::Spezialfeld, 2}));
    EXPECT_FALSE(HatAnfuehrung(stand, {Formart::Quiz, Teil::Gebiet, 2})); // the area is another place
}

TEST(Pruefung, AMarkOpensBehindABlankAndClosesBehindAWord) {
    struct Fall {
        const char* vorher;
        const char* nachher;
    };
    for (const Fall& fall : std::vector<Fall>{{"\"a\" und \"b\"", "„a“ und „b“"},
                                              {"(\"a\")", "(„a“)"},
                                              {"eins\r\n\"zwei\"", "eins\r\n„zwei“"},
                                              {"\" a \"", "„ a “"},
                                              {"3\" breit", "3“ breit"},
                                              {"\"", "„"},
                                              {"ohne „alles“", "ohne „alles“"},
                                              {"", ""}}) {
        EXPECT_EQ(MitDeutschenAnfuehrungen(fall.vorher), fall.nachher);
    }
}

TEST(Pruefung, ATestsTextsAreReplacedToo) {
    Testformular form;
    form.HBFrageText[4] = "Was heißt \"Amen\"?";
    form.HBAntwortText[10] = "\"So sei es\"";
    const Formularstand stand{Teststand{form, form, {}}, Spielwerte()};
    EXPECT_EQ(Ersetzt(stand, std::nullopt),
              (Texte{"Frage 4 | Was heißt „Amen“?", "Antwort 10 | „So sei es“"}));
    EXPECT_EQ(Ersetzt(stand, Befundort{Formart::Test, Teil::Punkte, 4}),
              Texte{"Frage 4 | Was heißt „Amen“?"});
}

TEST(Pruefung, FehlerStandBeforeHinweiseAndBothInTheOrderOfTheForm) {
    Quizformular form = GutesFormular();
    form.FrageText[1].clear();
    form.AntwortText[30].clear();
    form.FrageText[29] += '"';
    form.FormNr = "\"";
    form.AntwortText[5] = "\"";
    std::vector<std::string> orte;
    for (const Befund& befund : FormularPruefen(Stand(form), {Pruefmass(), {}})) {
        orte.push_back(std::string(Schwerewort(befund.schwere)) + " " + Ortsname(befund.ort));
    }
    EXPECT_EQ(orte, (Texte{"Fehler Nr.", "Fehler Gebiet 1, Antwort 5", "Fehler Gebiet 6, Frage 4",
                           "Hinweis Gebiet 1, Frage 1", "Hinweis Gebiet 6, Antwort 5"}));
}

TEST(Pruefung, EachPlaceHasItsNameAndItsControl) {
    struct Fall {
        Befundort ort;
        const char* name;
        const char* element;
    };
    for (const Fall& fall :
         std::vector<Fall>{{{Formart::Quiz, Teil::Frage, 8}, "Gebiet 2, Frage 3", "txtFrage(8)"},
                           {{Formart::Quiz, Teil::Antwort, 30}, "Gebiet 6, Antwort 5", "txtAntwort(30)"},
                           {{Formart::Quiz, Teil::Spezialfeld, 1}, "Gebiet 1, Feld 1", "pnlSpezial(1)"},
                           {{Formart::Quiz, Teil::Gebiet, 4}, "Gebiet 4", "pnlWissen(4)"},
                           {{Formart::Quiz, Teil::Nr, 0}, "Nr.", "txtNr"},
                           {{Formart::Quiz, Teil::Datum, 0}, "Datum", "txtDatum"},
                           {{Formart::Quiz, Teil::Zeit, 0}, "Zeit", "txtZeit"},
                           {{Formart::Test, Teil::Frage, 8}, "Frage 8", "txtFrage(8)"},
                           {{Formart::Test, Teil::Antwort, 10}, "Antwort 10", "txtAntwort(10)"},
                           {{Formart::Test, Teil::Punkte, 2}, "Punkte 2", "spnPunkte(2)"},
                           {{Formart::Test, Teil::Titel, 0}, "Titel", "cmdTitel"},
                           {{Formart::Test, Teil::Fach, 0}, "Fach", "cmdFach"},
                           {{Formart::Test, Teil::Gruppe, 0}, "Gruppe", "cmdGruppe"}}) {
        EXPECT_EQ(Ortsname(fall.ort), fall.name);
        EXPECT_EQ(Ortselement(fall.ort), fall.element);
    }
}

TEST(Pruefung, TheNumberOfFindingsIsASentence) {
    const Befund fehler{Schwere::Fehler, Anlass::Ueberstand, {}, ""};
    const Befund hinweis;
    EXPECT_EQ(Befundzahl({}), "Ich habe nichts gefunden, das Formular ist in Ordnung.");
    EXPECT_EQ(Befundzahl({fehler}), "Ich habe einen Fehler gefunden.");
    EXPECT_EQ(Befundzahl({hinweis}), "Ich habe einen Hinweis gefunden.");
    EXPECT_EQ(Befundzahl({fehler, hinweis, hinweis, hinweis}),
              "Ich habe einen Fehler und 3 Hinweise gefunden.");
    EXPECT_EQ(Befundzahl({fehler, fehler, hinweis}), "Ich habe 2 Fehler und einen Hinweis gefunden.");
}
