// Which questions count as nearly the same, and which don't: pairs of both kinds.
#include "search/aehnlich.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using Fragenpaare = std::vector<std::pair<const char*, const char*>>;

// Reworded, turned round, inflected, with a word more.
// clang-format off
const Fragenpaare gleiche{
    {"Wie heißt die Hauptstadt von Spanien?", "Wie lautet der Name der Hauptstadt von Spanien?"},
    {"Wie heißt die Hauptstadt von Spanien?", "Welche Stadt ist die Hauptstadt Spaniens?"},
    {"Wie heißt die Hauptstadt von Spanien?", "wie heisst die hauptstadt von spanien"},
    {"Wer erfand den Buchdruck?", "Wer hat den Buchdruck erfunden?"},
    {"Welcher Fluss fließt durch London?", "Wie heißt der Fluss, der durch London fließt?"},
    {"Welcher Fluss fließt mitten durch Paris?", "Welcher Fluss fließt durch Paris?"},
    {"Wer schrieb die Bücher über Harry Potter?",
     "Von wem wurden die Bücher über Harry Potter geschrieben?"},
    {"Wer schrieb die Romane über Winnetou?", "Wer hat die Winnetou-Romane geschrieben?"},
    {"In welchem Jahr fiel die Berliner Mauer?", "Wann fiel die Berliner Mauer?"},
    {"Welche Blume nennt man die Königin der Blumen?", "Welche Blume wird Königin der Blumen genannt?"},
    {"Wie viele Evangelien stehen in der Bibel?", "Wie viele Evangelien gibt es in der Bibel?"},
    {"Wie heißt das Junge eines Pferdes?", "Wie nennt man das Junge vom Pferd?"},
    {"Was ist das größte Säugetier der Welt?", "Welches ist das größte Säugetier auf der Welt?"},
    {"In welcher Himmelsrichtung geht die Sonne auf?",
     "In welcher Himmelsrichtung geht morgens die Sonne auf?"},
    {"Wer war der erste König von Israel? (1. Samuel 10)", "Wie hieß der erste König Israels?"},
    {"Was ließ Salomo in Jerusalem für Gott bauen? (1. Könige 6)",
     "Was hat Salomo in Jerusalem für Gott gebaut?"},
    {"Wofür steht die Abkürzung DDR?", "Wofür stand die Abkürzung DDR?"},
    {"Wofür steht die Abkürzung THW?", "Was bedeutet die Abkürzung THW?"},
    {"Wie heißt der höchste Berg Deutschlands?", "Welcher ist der höchste Berg in Deutschland?"},
    {"Wie viele Beine hat eine Spinne?", "Wie viele Beine haben Spinnen?"},
    {"Rätsel: Ich habe Henkel wie eine Tasse, aber nur Sieger trinken aus mir.",
     "Ich habe Henkel wie eine Tasse, doch nur Sieger trinken aus mir. Was bin ich?"},
    {"Was passt nicht dazu: Mars, Saturn, Mond oder Jupiter?",
     "Was passt nicht dazu: Jupiter, Mond, Mars oder Saturn?"},
    {"Ergänze: »Hunde, die bellen, …«", "Wie geht das Sprichwort weiter: Hunde, die bellen, ...?"},
    {"Wie nennt man einen Baum, der keine Blätter, sondern Nadeln hat?",
     "Wie heißt ein Baum, der Nadeln statt Blätter hat?"},
    {"Wie heißen die vier Evangelisten?", "Nenne die vier Evangelisten!"},
    {"Welches Zeichen trennt in der E-Mail-Adresse den Namen vom Anbieter?",
     "Welches Zeichen trennt bei einer E-Mail-Adresse Name und Anbieter?"},
    {"Wie heißt das Hemd eines Sportlers in einer Mannschaft?",
     "Wie nennt man das Hemd der Sportler einer Mannschaft?"},
    {"Welche Stadt nennt man auch die »Ewige Stadt«?", "Welche Stadt wird die Ewige Stadt genannt?"},
    {"Wie viele Spieler stehen beim Fußball in einer Mannschaft auf dem Feld?",
     "Wie viele Spieler hat eine Mannschaft beim Fußball auf dem Feld?"},
    {"Aus welchem Land kommt die Pizza?", "Aus welchem Land stammt die Pizza ursprünglich?"},
    {"Wer baute die Arche?", "Wer hat die Arche gebaut?"},
    {"Wie hieß der Bruder von Mose?", "Wie heißt Moses Bruder?"},
    {"Wer verriet Jesus für dreißig Silberstücke?", "Welcher Jünger verriet Jesus für 30 Silberstücke?"},
    {"Welches Tier ist das Wappentier von Berlin?", "Welches Tier ist auf dem Wappen von Berlin?"},
    {"Wie heißt der längste Fluss der Erde?", "Welcher Fluss ist der längste der Erde?"},
    {"Was feiern Christen an Ostern?", "Was feiern die Christen zu Ostern?"},
    {"Wie viele Bundesländer hat Deutschland?", "Aus wie vielen Bundesländern besteht Deutschland?"},
    {"Wer malte die Mona Lisa?", "Von wem stammt das Bild der Mona Lisa?"},
    {"Mit welchem Gerät bringt man einen Text vom Computer auf Papier?",
     "Mit welchem Gerät kommt ein Text vom Computer aufs Papier?"},
    {"Wie heißt der Vogel, der seine Eier in fremde Nester legt?",
     "Welcher Vogel legt seine Eier in die Nester fremder Vögel?"},
    {"Wie viele Minuten dauert ein Fußballspiel ohne Verlängerung?",
     "Wie viele Minuten dauert ein Fußballspiel (ohne Verlängerung)?"},
    {"Richtig oder falsch: Der Mond leuchtet von selbst?", "Leuchtet der Mond von selbst?"},
    {"Wie nennt man die Angst vor Spinnen?", "Wie heißt die Angst vor Spinnen mit dem Fachwort?"},
    {"Welche Farben hat die deutsche Flagge?", "Welche Farben hat die Flagge von Deutschland?"},
    {"Wie heißt das Gebirge, in dem die Zugspitze liegt?", "In welchem Gebirge liegt die Zugspitze?"},
    {"Welche Sprache spricht man in Brasilien?", "Welche Sprache wird in Brasilien gesprochen?"},
    {"Wann wurde Martin Luther geboren?", "In welchem Jahr wurde Martin Luther geboren?"},
    {"Wie viele Zähne hat ein erwachsener Mensch?",
     "Wie viele Zähne hat ein Mensch, wenn er erwachsen ist?"},
    {"Welcher Planet ist der Sonne am nächsten?", "Wie heißt der Planet, der der Sonne am nächsten ist?"},
    {"Auf welchem Kontinent liegt Ägypten?", "Zu welchem Kontinent gehört Ägypten?"},
    {"Wer führte das Volk Israel aus Ägypten?", "Wer hat das Volk Israel aus Ägypten geführt?"},
    {"Welcher Prophet wurde von einem großen Fisch verschluckt?",
     "Welchen Propheten verschluckte ein großer Fisch?"},
    {"Wie viele Tage war Jona im Bauch des Fisches?",
     "Wie viele Tage verbrachte Jona im Bauch eines Fisches?"},
    {"Wie heißt der Knoten, mit dem man zwei Seile verbindet?",
     "Mit welchem Knoten verbindet man zwei Seile?"},
    {"Wie heißt der kleinste Staat der Welt?", "Welches ist der kleinste Staat der Erde?"},
    {"Welche Hunderasse rettet Menschen aus Lawinen?",
     "Welcher Hund hilft bei Lawinen, Menschen zu retten?"},
    {"Wer war der erste Mensch auf dem Mond?", "Wer betrat als erster Mensch den Mond?"},
};

// The same pattern, another subject.
const Fragenpaare verschiedene{
    {"Wie heißt die Hauptstadt von Spanien?", "Wie heißt die Hauptstadt von Portugal?"},
    {"Welcher Fluss fließt durch London?", "Welcher Fluss fließt mitten durch Paris?"},
    {"Welcher Fluss fließt durch London?", "Durch welches Land fließt die Donau?"},
    {"Wer schrieb die Romane über Winnetou?", "Wer schrieb die Bücher über Harry Potter?"},
    {"In welchem Jahr fiel die Berliner Mauer?", "In welchem Jahr wurde die Berliner Mauer gebaut?"},
    {"Wie heißt das Junge eines Pferdes?", "Wie heißt das Junge eines Schafes?"},
    {"Wie viele Beine hat eine Spinne?", "Wie viele Beine hat eine Ameise?"},
    {"Wie viele Beine hat eine Spinne?", "Wie viele Augen hat eine Spinne?"},
    {"Was ist das größte Säugetier der Welt?", "Was ist das kleinste Säugetier der Welt?"},
    {"In welcher Himmelsrichtung geht die Sonne auf?", "In welcher Himmelsrichtung geht die Sonne unter?"},
    {"Wer war der erste König von Israel?", "Wer war der zweite König von Israel?"},
    {"Wofür steht die Abkürzung DDR?", "Wofür steht die Abkürzung BRD?"},
    {"Wofür steht die Abkürzung THW?", "Wofür steht die Abkürzung DRK?"},
    {"Wie heißt der höchste Berg Deutschlands?", "Wie heißt der höchste Berg Österreichs?"},
    {"Wie heißt der höchste Berg?", "Wie heißt der höchste Berg Afrikas?"},
    {"Was passt nicht dazu: Mars, Saturn, Mond oder Jupiter?",
     "Was passt nicht dazu: Gold, Silber, Blech oder Bronze?"},
    {"Ergänze: »Hunde, die bellen, …«", "Ergänze: »Ein blindes Huhn …«"},
    {"Richtig oder falsch: Der Mond leuchtet von selbst?", "Richtig oder falsch: Die Sonne ist ein Stern?"},
    {"Rätsel: Ich habe Henkel wie eine Tasse, aber nur Sieger trinken aus mir.",
     "Rätsel: Ich habe Zähne und kann doch nicht beißen."},
    {"Wer bin ich? Ich hüte Schafe, dichte Lieder und fürchte keinen Riesen.",
     "Wer bin ich? Ich baue ein großes Schiff, mitten auf dem Land."},
    {"Wie heißt der längste Fluss der Erde?", "Wie heißt der längste Fluss Deutschlands?"},
    {"Wie heißt der längste Fluss Europas?", "Wie heißt der höchste Berg Europas?"},
    {"Wer malte die Mona Lisa?", "Wer malte die Sonnenblumen?"},
    {"Wer baute die Arche?", "Wer baute den Tempel?"},
    {"Wie hieß der Bruder von Mose?", "Wie hieß die Schwester von Mose?"},
    {"Wie hieß der Bruder von Mose?", "Wie hieß der Bruder von Jakob?"},
    {"Welches Instrument hat 88 Tasten?", "Welches Instrument hat vier Saiten?"},
    {"Wie viele Spieler stehen beim Fußball in einer Mannschaft auf dem Feld?",
     "Wie viele Spieler stehen beim Handball in einer Mannschaft auf dem Feld?"},
    {"Wie viele Minuten dauert ein Fußballspiel?", "Wie viele Minuten dauert ein Handballspiel?"},
    {"Aus welchem Land kommt die Pizza?", "Aus welchem Land kommt das Sushi?"},
    {"Was geschah am Karfreitag?", "Was geschah am Ostermorgen?"},
    {"Was feiern Christen an Ostern?", "Was feiern Christen an Pfingsten?"},
    {"Wie nennt man die Angst vor Spinnen?", "Wie nennt man die Angst vor der Höhe?"},
    {"Wer war der erste Bundeskanzler?", "Wer war der erste Bundespräsident?"},
    {"In welchem Jahr begann der Erste Weltkrieg?", "In welchem Jahr begann der Zweite Weltkrieg?"},
    {"In welchem Jahr begann der Zweite Weltkrieg?", "In welchem Jahr endete der Zweite Weltkrieg?"},
    {"Was fand 1954 in der Schweiz statt?", "Was fand 1974 in der Schweiz statt?"},
    {"Wie viele Bundesländer hat Deutschland?", "Wie viele Bundesländer hat Österreich?"},
    {"Welche Farben hat die deutsche Flagge?", "Welche Farben hat die französische Flagge?"},
    {"Wie heißt der Fußballverein aus Dortmund?", "Wie heißt der Fußballspieler aus Dortmund?"},
    {"Aufgabe: Macht 10 Liegestütze!", "Aufgabe: Macht 10 Kniebeugen!"},
    {"Welches Tier hat den längsten Hals?", "Welches Tier hat den längsten Rüssel?"},
    {"Welche Taste ist die breiteste auf der Tastatur?",
     "Welche Taste löscht auf der Tastatur ein Zeichen?"},
    {"Welches Gewürz ist das teuerste der Welt?", "Welches Land ist das größte der Welt?"},
    {"Wer ist das?", "Was ist das?"},
    {"Wie heißt das längste Buch der Bibel?", "Wie heißt das letzte Buch der Bibel?"},
    {"Wie viele Sekunden hat eine Minute?", "Wie viele Minuten hat eine Stunde?"},
    {"In welchem Land liegt der Berg Sinai?", "In welchem Land liegt der Berg Olymp?"},
};
// clang-format on

bool Fastgleich(std::string_view a, std::string_view b) {
    return Fastgleich(WortanfaengeVon(a), WortanfaengeVon(b));
}

} // namespace

TEST(Aehnlich, QuestionsInOtherWordsAreNearlyTheSame) {
    ASSERT_GE(gleiche.size(), 40U);
    for (const auto& [a, b] : gleiche) {
        EXPECT_TRUE(Fastgleich(a, b)) << a << '\n' << b;
    }
}

TEST(Aehnlich, QuestionsOfOnePatternWithAnotherSubjectArent) {
    ASSERT_GE(verschiedene.size(), 40U);
    for (const auto& [a, b] : verschiedene) {
        EXPECT_FALSE(Fastgleich(a, b)) << a << '\n' << b;
    }
}

TEST(Aehnlich, WhichOfTheTwoComesFirstDoesntMatter) {
    for (const Fragenpaare& paare : {gleiche, verschiedene}) {
        for (const auto& [a, b] : paare) {
            EXPECT_EQ(Fastgleich(a, b), Fastgleich(b, a)) << a << '\n' << b;
        }
    }
}

TEST(Aehnlich, EveryQuestionIsNearlyTheSameAsItself) {
    for (const Fragenpaare& paare : {gleiche, verschiedene}) {
        for (const auto& [a, b] : paare) {
            EXPECT_TRUE(Fastgleich(a, a)) << a;
            EXPECT_TRUE(Fastgleich(b, b)) << b;
        }
    }
    EXPECT_TRUE(Fastgleich("Was ist das?", "was ist das")); // nothing but words that all questions have
    EXPECT_TRUE(Fastgleich("(1. Mose 3)", "(1. Mose 3)"));
}

TEST(Aehnlich, WhatHasNoWordResemblesNothing) {
    for (const char* leer : {"", "   ", "???", "»…«"}) {
        EXPECT_FALSE(Fastgleich(leer, leer)) << leer;
        EXPECT_FALSE(Fastgleich(leer, "Wer baute die Arche?")) << leer;
    }
}

TEST(Aehnlich, NeitherCaseNorMarksNorBracketsMakeAQuestionAnother) {
    EXPECT_TRUE(Fastgleich("WER BAUTE DIE ARCHE", "wer baute die arche?"));
    EXPECT_TRUE(
        Fastgleich("Wie heißt die größte Straße Münchens?", "Wie heisst die groesste Strasse Muenchens"));
    EXPECT_TRUE(Fastgleich("Wer baute die Arche? (1. Mose 6)", "Wer baute die Arche? (Genesis)"));
}

TEST(Aehnlich, AQuestionOfAnyLengthIsCompared) {
    std::string lang;
    for (int i = 0; i < 5000; ++i) {
        lang += "Wort" + std::to_string(i) + ' ';
    }
    EXPECT_TRUE(Fastgleich(lang, lang));
    EXPECT_FALSE(Fastgleich(lang, "Wer baute die Arche?"));
}
