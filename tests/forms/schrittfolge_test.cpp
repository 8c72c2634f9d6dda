// The history of a form as values, without a window.
#include "core/schritt.h"
#include "forms/schrittfolge.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// A quiz form with a text in its first cell, on the screen and in the stored copy.
Formularstand Quiz(const std::string& frage, const std::string& gemerkt) {
    Quizstand form;
    form.gezeigt.FrageText[1] = frage;
    form.gemerkt.FrageText[1] = gemerkt;
    return {form, {}};
}

Formularstand Quiz(const std::string& frage) {
    return Quiz(frage, frage);
}

Formularstand Pruefung(const std::string& punkte, bool summe = true) {
    Teststand form;
    form.punkte.punkte[1] = punkte;
    form.punkte.summe = summe;
    return {form, {}};
}

std::string Frage(const Formularstand& stand) {
    return std::get<Quizstand>(stand.form).gezeigt.FrageText[1];
}

std::string Gemerkt(const Formularstand& stand) {
    return std::get<Quizstand>(stand.form).gemerkt.FrageText[1];
}

Schrittfolge DreiSchritte() {
    Schrittfolge folge;
    folge.Beginnen(Quiz(""));
    folge.Merken("eins", Quiz("a"));
    folge.Merken("zwei", Quiz("b"));
    folge.Merken("drei", Quiz("c"));
    return folge;
}

} // namespace

TEST(Schrittfolge, ANewFormHasNothingToGoBackTo) {
    Schrittfolge folge;
    EXPECT_TRUE(folge.leer());
    EXPECT_EQ(folge.Zurueck(), nullptr);
    EXPECT_EQ(folge.Vor(), nullptr);
    EXPECT_FALSE(folge.Merken("eins", Quiz("a")));
    folge.Beginnen(Quiz(""));
    EXPECT_FALSE(folge.leer());
    EXPECT_EQ(folge.rueckname(), "");
    EXPECT_EQ(folge.vorname(), "");
    EXPECT_EQ(folge.Zurueck(), nullptr);
}

TEST(Schrittfolge, StepsGoBackAndForthUnderTheirNames) {
    Schrittfolge folge = DreiSchritte();
    EXPECT_EQ(folge.rueckname(), "drei");
    EXPECT_EQ(Frage(*folge.Zurueck()), "b");
    EXPECT_EQ(folge.rueckname(), "zwei");
    EXPECT_EQ(folge.vorname(), "drei");
    EXPECT_EQ(Frage(*folge.Zurueck()), "a");
    EXPECT_EQ(Frage(*folge.Zurueck()), "");
    EXPECT_EQ(folge.Zurueck(), nullptr);
    EXPECT_EQ(Frage(*folge.Vor()), "a");
    EXPECT_EQ(folge.vorname(), "zwei");
    EXPECT_EQ(Frage(*folge.Vor()), "b");
    EXPECT_EQ(Frage(*folge.Vor()), "c");
    EXPECT_EQ(folge.Vor(), nullptr);
}

TEST(Schrittfolge, ANewStepEndsWhatCouldBeDoneAgain) {
    Schrittfolge folge = DreiSchritte();
    folge.Zurueck();
    folge.Zurueck();
    EXPECT_TRUE(folge.Merken("vier", Quiz("d")));
    EXPECT_EQ(folge.vorname(), "");
    EXPECT_EQ(Frage(*folge.Zurueck()), "a");
    EXPECT_EQ(folge.vorname(), "vier");
    EXPECT_EQ(folge.anzahl(), 3U);
}

TEST(Schrittfolge, WhatShowsTheSameIsNoStepButItsStoredCopyIsNoted) {
    Schrittfolge folge;
    folge.Beginnen(Quiz("a", "a"));
    folge.Merken("blanken", Quiz("", "a"));
    EXPECT_FALSE(folge.Merken("speichern", Quiz("", "")));
    EXPECT_EQ(folge.rueckname(), "blanken");
    EXPECT_EQ(Gemerkt(*folge.Zurueck()), "a");
    EXPECT_EQ(Gemerkt(*folge.Vor()), "");
}

TEST(Schrittfolge, BlankingAnEditAndASaveLeadBackToAllQuestions) {
    Schrittfolge folge;
    folge.Beginnen(Quiz("a", "a"));
    folge.Merken("Fragen löschen", Quiz("", "a"));
    folge.Merken("Frage eingeben", Quiz("b", "b"));
    folge.Merken("", Quiz("b", "b"));
    folge.Zurueck();
    const Formularstand* ganz = folge.Zurueck();
    ASSERT_NE(ganz, nullptr);
    EXPECT_EQ(Frage(*ganz), "a");
    EXPECT_EQ(Gemerkt(*ganz), "a");
}

TEST(Schrittfolge, StepsOfOneGroupAreOneStepUntilTheGroupEnds) {
    Schrittfolge folge;
    folge.Beginnen(Pruefung(""));
    for (const char* punkte : {"1", "2", "3"}) {
        EXPECT_TRUE(folge.Merken("Punkte ändern", Pruefung(punkte), 4));
    }
    EXPECT_EQ(folge.anzahl(), 2U);
    folge.Merken("Punkte ändern", Pruefung("4"), 5);
    EXPECT_EQ(folge.anzahl(), 3U);
    folge.GruppeBeenden();
    folge.Merken("Punkte ändern", Pruefung("5"), 5);
    EXPECT_EQ(folge.anzahl(), 4U);
    folge.Merken("Punkte löschen", Pruefung(""));
    folge.Merken("Punkte ändern", Pruefung("1"), 5);
    EXPECT_EQ(folge.anzahl(), 6U);
}

TEST(Schrittfolge, AStepThatWasUndoneIsNotContinued) {
    Schrittfolge folge;
    folge.Beginnen(Pruefung(""));
    folge.Merken("Punkte ändern", Pruefung("1"), 4);
    folge.Merken("Kopf wählen", Pruefung("1", false));
    folge.Zurueck();
    folge.Merken("Punkte ändern", Pruefung("2"), 4);
    EXPECT_EQ(folge.anzahl(), 3U);
}

TEST(Schrittfolge, TwoHundredStepsOfUsualTextsStayUnderTheLimit) {
    Schrittfolge folge;
    folge.Beginnen(Quiz(""));
    for (int i = 1; i <= 1000; ++i) {
        Formularstand stand = Quiz(std::to_string(i));
        auto& form = std::get<Quizstand>(stand.form);
        for (std::size_t n = 2; n <= anzahlFelder; ++n) {
            form.gezeigt.FrageText[n] = form.gemerkt.FrageText[n] = std::string(80, 'f');
            form.gezeigt.AntwortText[n] = form.gemerkt.AntwortText[n] = std::string(30, 'a');
        }
        folge.Merken("Frage eingeben", std::move(stand));
    }
    EXPECT_LE(folge.bytes(), groessterVerlauf);
    EXPECT_GT(folge.anzahl(), 200U);
}

TEST(Schrittfolge, BeyondTheLimitTheOldestGoFirst) {
    constexpr std::size_t grenze = 200'000;
    Schrittfolge folge(grenze);
    folge.Beginnen(Quiz(""));
    for (int i = 1; i <= 50; ++i) {
        folge.Merken("Frage eingeben", Quiz(std::string(10'000, static_cast<char>('a' + i % 26))));
        EXPECT_TRUE(folge.bytes() <= grenze || folge.anzahl() == 2) << i;
    }
    EXPECT_LT(folge.anzahl(), 50U);
    std::size_t schritte = 0;
    std::string letzte;
    while (const Formularstand* stand = folge.Zurueck()) {
        letzte = Frage(*stand);
        ++schritte;
    }
    EXPECT_EQ(schritte + 1, folge.anzahl());
    EXPECT_EQ(letzte.size(), 10'000U); // the empty beginning has gone
}

TEST(Schrittfolge, OneStepBackThereIsHoweverLargeTheForm) {
    Schrittfolge folge(1000);
    folge.Beginnen(Quiz(std::string(5000, 'a')));
    folge.Merken("Frage eingeben", Quiz(std::string(5000, 'b')));
    folge.Merken("Frage eingeben", Quiz(std::string(5000, 'c')));
    EXPECT_EQ(folge.anzahl(), 2U);
    EXPECT_EQ(Frage(*folge.Zurueck()), std::string(5000, 'b'));
}

TEST(Formularstand, WhatBelongsToTheProgramIsNoChangeOfTheForm) {
    Formularstand vorher = Quiz("a");
    Formularstand nachher = vorher;
    nachher.spiel.OptionDatei = true;
    nachher.spiel.Datei[0] = "C:\\X.FKR";
    nachher.spiel.PunkteV[Spezialart::Joker] = 9;
    nachher.spiel.FelderGesamt = 30;
    EXPECT_TRUE(Gleichgespeichert(vorher, nachher));
    EXPECT_TRUE(Gleichgezeigt(vorher, nachher));
    nachher.spiel.Punkte[Spezialart::Joker] = 7;
    EXPECT_FALSE(Gleichgespeichert(vorher, nachher));
    const Spielwerte werte = MitProgrammwerten(nachher.spiel, vorher.spiel);
    EXPECT_EQ(werte.Punkte[Spezialart::Joker], 7);
    EXPECT_FALSE(werte.OptionDatei);
    EXPECT_EQ(werte.Datei[0], "");
}

TEST(Formularstand, BlankedPointsShowButAreNoOtherFormWhereTheyWereNone) {
    EXPECT_TRUE(Gleichgespeichert(Pruefung("0"), Pruefung("")));
    EXPECT_FALSE(Gleichgezeigt(Pruefung("0"), Pruefung("")));
    EXPECT_FALSE(Gleichgezeigt(Pruefung("0"), Pruefung("0", false)));
    EXPECT_FALSE(Gleichgespeichert(Pruefung("0"), Quiz("")));
}

TEST(Formularstand, BlankedTextsThatWereNeverSavedAreUnsavedThoughTheFormShowsWhatWas) {
    EXPECT_TRUE(Ungesichert(Quiz(""), Quiz("", "getippt")));
    EXPECT_FALSE(Ungesichert(Quiz(""), Quiz("", "")));
    EXPECT_FALSE(Ungesichert(Quiz("a"), Quiz("a", "b"))); // what shows is saved
    EXPECT_TRUE(Ungesichert(Quiz("a"), Quiz("")));
    Formularstand punkte = Pruefung("");
    std::get<Teststand>(punkte.form).gemerkt.HBPunkte[1] = 5;
    EXPECT_TRUE(Ungesichert(Pruefung(""), punkte));
}

TEST(Formularstand, AFormIsBlankedWhenNothingOfAKindIsLeftAndLessIsThere) {
    const auto mit = [](std::vector<std::string> fragen) {
        Quizstand form;
        for (std::size_t n = 0; n < fragen.size(); ++n) {
            form.gezeigt.FrageText.at(n + 1) = fragen.at(n);
        }
        return Formularstand{form, {}};
    };
    EXPECT_TRUE(Leergeraeumt(mit({"a", "b"}), mit({})));
    EXPECT_TRUE(Leergeraeumt(mit({"a", "b"}), mit({"", "", "neu"})));
    EXPECT_FALSE(Leergeraeumt(mit({"a", "b"}), mit({"a"})));
    EXPECT_FALSE(Leergeraeumt(mit({"a", "b"}), mit({"c", "d"}))); // filled anew
    EXPECT_FALSE(Leergeraeumt(mit({}), mit({})));
    EXPECT_FALSE(Leergeraeumt(mit({"a"}), Pruefung("")));
    Formularstand letter = mit({"a"});
    std::get<Quizstand>(letter.form).gezeigt.FeldSpezial[4] = "J";
    EXPECT_TRUE(Leergeraeumt(letter, mit({"a"})));
}

TEST(Formularstand, WhatWasTypedHasAName) {
    struct Zeile {
        void (*tippen)(Quizformular& form);
        std::string_view name;
    };
    const std::vector<Zeile> zeilen{{[](Quizformular&) {}, ""},
                                    {[](Quizformular& f) { f.FrageText[7] = "x"; }, "Frage eingeben"},
                                    {[](Quizformular& f) { f.AntwortText[30] = "x"; }, "Antwort eingeben"},
                                    {[](Quizformular& f) { f.FormDatum = "x"; }, "Kopf ausfüllen"}};
    for (const Zeile& zeile : zeilen) {
        const Formularstand vorher = Quiz("a");
        Formularstand nachher = vorher;
        zeile.tippen(std::get<Quizstand>(nachher.form).gezeigt);
        EXPECT_EQ(Eingabename(vorher, nachher), zeile.name);
    }
    Formularstand test = Pruefung("1");
    std::get<Teststand>(test.form).gezeigt.HBAntwortText[3] = "x";
    EXPECT_EQ(Eingabename(Pruefung("1"), test), "Antwort eingeben");
}

TEST(Schritt, AStepWithinAStepIsAPartOfIt) {
    std::vector<std::string> folge;
    SchritteBeobachten({[&folge] { folge.emplace_back("beginnt"); },
                        [&folge](std::string_view name, int gruppe) {
                            folge.push_back(std::string(name) + ' ' + std::to_string(gruppe));
                        }});
    {
        const Schritt aussen("außen", 3);
        EXPECT_TRUE(SchrittLaeuft());
        const Schritt innen("innen");
    }
    EXPECT_FALSE(SchrittLaeuft());
    EXPECT_EQ(folge, (std::vector<std::string>{"beginnt", "außen 3"}));
    SchritteBeobachten({});
    const Schritt ungesehen("ungesehen");
    EXPECT_EQ(folge.size(), 2U);
}
