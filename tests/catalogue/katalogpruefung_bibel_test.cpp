// Every Bible place of the shipped catalogue exists; before that, the measure itself on places of its own.
#include "tests/catalogue/katalogpruefung.h"
#include "tests/catalogue/katalogpruefung_art.h"
#include "tests/catalogue/katalogpruefung_bibel.h"

#include <gtest/gtest.h>

TEST(Bibelstellen, TheBooksHaveTheChaptersOfTheLutherBible) {
    EXPECT_EQ(Kapitelzahl("1. Mose"), 50);
    EXPECT_EQ(Kapitelzahl("Psalm"), 150);
    EXPECT_EQ(Kapitelzahl("Joel"), 4);
    EXPECT_EQ(Kapitelzahl("Maleachi"), 3);
    EXPECT_EQ(Kapitelzahl("Offenbarung"), 22);
    EXPECT_EQ(Kapitelzahl("Mose"), 0);
}

TEST(Bibelstellen, AChapterOfTheTableHasItsOwnVersesAndAnyOtherThoseOfTheLongest) {
    EXPECT_EQ(Verszahl("Psalm", 23), 6);
    EXPECT_EQ(Verszahl("Psalm", 24), 176);
    EXPECT_EQ(Verszahl("Johannes", 3), 36);
    EXPECT_EQ(Verszahl("Philemon", 1), 25);
}

TEST(Bibelstellen, PlacesThatExistAreRightInBracketsAndInASentence) {
    for (const char* text :
         {"Wo landete die Arche? (1. Mose 8)", "»Selig sind …« (Matthäus 5,3)", "Ein Hirte (Psalm 23)",
          "Wer brachte Brot? (1. Könige 17,4-6)", "Zehn (2. Mose 7 bis 12)", "(Lukas 15,11–32)",
          "Wer ist nach 1. Korinther 3 der Grund?", "Was heißt das f. in »Matthäus 5,3 f.«?",
          "Was steht in Lukas 15?", "(Matthäus 5,3 f.; Psalm 1,2.4)", "(2. Korinther 13,13)",
          "Eins (Johannes 17,21, die Losung)"}) {
        EXPECT_EQ(Bibelstellenfehler(text), "") << text;
    }
}

TEST(Bibelstellen, OtherBracketsAndCountsAreNoPlaces) {
    for (const char* text : {"Wie viele? (Stand 2024)", "193 (175 bis 210 zählt)", "36 (6 mal 6)",
                             "(Grundgesetz, Artikel 1)", "Warum saß Jona 3 Tage im Fisch?",
                             "Warum führte Mose 40 Jahre lang das Volk?", "Am Amazonas 7000"}) {
        EXPECT_EQ(Bibelstellenfehler(text), "") << text;
    }
}

TEST(Bibelstellen, AnotherBookChapterOrVerseIsNone) {
    EXPECT_EQ(Bibelstellenfehler("Wer? (Mose 8)"), "no book of the Bible: Mose");
    EXPECT_EQ(Bibelstellenfehler("Wer? (6. Mose 8)"), "no book of the Bible: 6. Mose");
    EXPECT_EQ(Bibelstellenfehler("Wer? (Jonas 2)"), "no book of the Bible: Jonas");
    EXPECT_EQ(Bibelstellenfehler("Wer? (1. Buch Mose 2)"), "no book of the Bible: 1. Buch Mose");
    EXPECT_EQ(Bibelstellenfehler("Wer? (Jona 5)"), "Jona has 4 chapters");
    EXPECT_EQ(Bibelstellenfehler("Wer? (2. Mose 39 bis 41)"), "2. Mose has 40 chapters");
    EXPECT_EQ(Bibelstellenfehler("Was steht in Lukas 25?"), "Lukas has 24 chapters");
    EXPECT_EQ(Bibelstellenfehler("Wer? (Psalm 23,7)"), "Psalm 23 has no more than 6 verses");
    EXPECT_EQ(Bibelstellenfehler("Wer? (Rut 1,20-24)"), "Rut 1 has no more than 23 verses");
    EXPECT_EQ(Bibelstellenfehler("Wer? (Lukas 15,32-11)"), "Lukas: the range runs backwards");
    EXPECT_EQ(Bibelstellenfehler("Wer? (Lukas 15 Vers 3)"), "no Bible place: Lukas 15 Vers 3");
}

// Among things one of which doesn't fit, a place that doesn't exist may be it: only what stands behind
// counts.
TEST(Kataloginhalt, EveryBiblePlaceExists) {
    for (const Katalogsatz& frage : Katalogfragen()) {
        const bool ausreisser = ArtVon(frage.frage) == Fragenart::Ausreisser;
        const std::size_t beginn = ausreisser ? frage.frage.find('?') : 0;
        EXPECT_EQ(Bibelstellenfehler(frage.frage.substr(beginn)), "") << Fundort(frage);
        EXPECT_EQ(ausreisser ? "" : Bibelstellenfehler(frage.antwort), "") << Fundort(frage);
    }
}
