// The language of the shipped catalogue as far as lists can tell; before that, the measures themselves on
// questions of their own.
#include "tests/catalogue/katalogpruefung.h"
#include "tests/catalogue/katalogpruefung_art.h"
#include "tests/catalogue/katalogpruefung_sprache.h"

#include <gtest/gtest.h>

#include <array>

namespace {

bool Standard(const Katalogsatz& frage) {
    return frage.datei->unterthema.starts_with("Standard");
}

struct Paar {
    const char *frage, *antwort;
};

} // namespace

TEST(Wandelbares, WhatIsDifferentInSomeYearsNeedsAYear) {
    for (const char* frage :
         {"Wer ist derzeit Trainer der Mannschaft?", "Wer ist Bundeskanzler?",
          "Wie heißt der Bundespräsident?", "Wer hält den Weltrekord im Weitsprung?",
          "Wer regiert heute in Schweden?", "Welches Land ist amtierender Weltmeister?",
          "Schätze: Wie viele Menschen leben in Peru?", "In wie vielen Ländern gibt es Pfadfinder?",
          "Ab welchem Alter darf man Mofa fahren?", "Wie heißt das höchste Gebäude der Welt?",
          "Welcher ist der längste Eisenbahntunnel der Erde?"}) {
        EXPECT_TRUE(OhneJahr(frage)) << frage;
        EXPECT_FALSE(OhneJahr(std::string(frage) + " (Stand 2024)")) << frage;
    }
}

TEST(Wandelbares, WhatLastsNeedsNone) {
    for (const char* frage :
         {"Wer wählt den Bundeskanzler?", "Wie heißt der Sitz des Bundespräsidenten?",
          "Wer war der erste Bundeskanzler?", "Welcher Deutsche wurde Weltmeister?",
          "Wie heißt das Amt des Chefs der Regierung?", "Welche Tiere stammen heute von Sauriern ab?",
          "Wie viele Länder grenzen an Deutschland?", "Zur Zeit der Römer: Wer baute Straßen?",
          "Wie heißt der höchste Berg der Welt?", "Wie viele Menschen waren an Bord?"}) {
        EXPECT_FALSE(OhneJahr(frage)) << frage;
    }
}

TEST(Satzzeichen, ATidyTextHasNothingWrong) {
    for (const char* text :
         {"Ergänze: »Wer …, wird … ernten.« (Psalm 126)", "Für welches Land steht die Endung .at?", "z. B.",
          "Er ruft: »Heureka!« (Ich hab’s!)", "2, 4, 6, …?", "3:2 (nach 1,5 Stunden)", "»… da«",
          "Ober- und Unterarm", "Er sagt: »Ja.« Warum?", "Abendrot – Gutwetterbot", "(das ist »er«)",
          "Die (Kleider-)Motte"}) {
        EXPECT_EQ(Zeichenfehler(text), "") << text;
    }
}

TEST(Satzzeichen, SlipsAreFound) {
    const std::array<Paar, 12> faelle{{{"Wer ist das ?", "a blank before a sign"},
                                       {"Ende .", "a blank before a sign"},
                                       {"Das ( hier)", "a blank behind an opening sign"},
                                       {"Eins,zwei", "no blank behind a sign"},
                                       {"Ende.Neuer Satz", "no blank behind a sign"},
                                       {"Das(hier)", "no blank beside a bracket"},
                                       {"Wer nun??", "two signs in a row"},
                                       {"Und so weiter...", "two signs in a row"},
                                       {"Ich hab's", "another program's quote or apostrophe"},
                                       {"„Ja“", "another program's quote or apostrophe"},
                                       {"Das (hier", "brackets or »« without their other half"},
                                       {"»Das (hier«)", "brackets or »« without their other half"}}};
    for (const Paar& fall : faelle) {
        EXPECT_EQ(Zeichenfehler(fall.frage), fall.antwort) << fall.frage;
    }
}

TEST(Satzzeichen, AQuestionHasAnEndAndAnAnswerNone) {
    EXPECT_EQ(Randfehler("Wer war das? ", "Elisabeth II."), "");
    EXPECT_EQ(Randfehler("Wie kürzt man »Jahrhundert« ab?", "Jh."), "");
    EXPECT_EQ(Randfehler("Wer war das?", "Heinrich VIII. "), "");
    EXPECT_EQ(Randfehler("Ergänze: »Alle Vögel …«", "»… sind schon da«"), "");
    EXPECT_EQ(Randfehler("Wer war das", "Er"), "the question has no end");
    EXPECT_EQ(Randfehler("Wer war das?", "Er, "), "the answer begins or ends with a sign");
    EXPECT_EQ(Randfehler("Wer war das?", "- Er"), "the answer begins or ends with a sign");
    EXPECT_EQ(Randfehler("Wer war das?", "Das Horn."), "the answer ends with a full stop");
}

TEST(Fall, AnAnswerInTheCaseThatIsAskedForIsRight) {
    const std::array<Paar, 16> faelle{{{"Auf welchem Berg?", "Auf dem Sinai"},
                                       {"In welchen Ländern?", "In der Schweiz und in Italien"},
                                       {"In welchem Land?", "In der Schweiz"},
                                       {"In welchem Gebirge?", "In den Alpen"},
                                       {"In welche Stadt?", "Nach Rom"},
                                       {"In welches Meer?", "In die Nordsee"},
                                       {"Mit welcher Waffe?", "Mit der Schleuder"},
                                       {"Auf was für einen Baum?", "Auf einen Ahorn"},
                                       {"Wen traf er?", "Den König"},
                                       {"Welchen Planeten?", "Die Venus"},
                                       {"Wem gehörte es?", "Der Königin"},
                                       {"Wessen Bild?", "Das des Kaisers"},
                                       {"Wessen Bild?", "Der Königin"},
                                       {"Welches Auto fuhr man?", "Den Trabant"},
                                       {"Wie heißt der Berg?", "Ararat"},
                                       {"Wie nennt man ihn?", "Einen Wallach"}}};
    for (const Paar& fall : faelle) {
        EXPECT_EQ(Fallfehler(fall.frage, fall.antwort), "") << fall.frage << " " << fall.antwort;
    }
}

TEST(Fall, AnotherCaseIsFound) {
    const std::array<Paar, 19> faelle{{{"Auf welchem Berg?", "Auf einen Hügel"},
                                       {"Auf welchem Berg?", "Auf das Horn"},
                                       {"Auf welchem Berg?", "Der Sinai"},
                                       {"In welchem Land?", "Ins Heilige Land"},
                                       {"In welche Stadt?", "In der Hauptstadt"},
                                       {"In welches Meer?", "Im Mittelmeer"},
                                       {"Womit?", "Mit das Messer"},
                                       {"Wofür?", "Für dem König"},
                                       {"Von wem?", "Das Volk"},
                                       {"Gegen wen?", "Dem Drachen"},
                                       {"Für welchen König?", "Der König"},
                                       {"Wen traf er?", "Der König"},
                                       {"Wem gehörte es?", "Die Königin"},
                                       {"Welchem König?", "Einen Riesen"},
                                       {"Wessen Bild?", "Die Königin"},
                                       {"Wer kam?", "Den König"},
                                       {"Welcher Baum?", "Einen Ahorn"},
                                       {"Wie heißt der Berg?", "Der Ararat"},
                                       {"Wie nennt man ihn?", "Der Wallach"}}};
    for (const Paar& fall : faelle) {
        EXPECT_NE(Fallfehler(fall.frage, fall.antwort), "") << fall.frage << " " << fall.antwort;
    }
}

TEST(Kataloginhalt, QuestionsAboutWhatChangesNameAYear) {
    for (const Katalogsatz& frage : Katalogfragen()) {
        EXPECT_FALSE(OhneJahr(frage.frage)) << Fundort(frage);
    }
}

TEST(Kataloginhalt, PunctuationStandsWhereItBelongsAndBracketsInPairs) {
    for (const Katalogsatz& frage : Katalogfragen()) {
        EXPECT_EQ(Zeichenfehler(frage.frage), "") << Fundort(frage);
        EXPECT_EQ(Zeichenfehler(frage.antwort), "") << Fundort(frage);
    }
}

// What stands as the answer of a task or an event is a sentence.
TEST(Kataloginhalt, QuestionsHaveAnEndAndAnswersNoFullStop) {
    for (const Katalogsatz& frage : Katalogfragen()) {
        EXPECT_EQ(Standard(frage) ? "" : Randfehler(frage.frage, frage.antwort), "") << Fundort(frage);
    }
}

TEST(Kataloginhalt, AnswersStandInTheCaseTheirQuestionAsksFor) {
    for (const Katalogsatz& frage : Katalogfragen()) {
        EXPECT_EQ(Fallfehler(OhneArt(frage.frage), frage.antwort), "") << Fundort(frage);
    }
}
