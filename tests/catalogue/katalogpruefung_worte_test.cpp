// No question twice in the shipped catalogue, and none that tells its own answer; before that, the measure
// itself on questions of its own.
#include "tests/catalogue/katalogpruefung.h"
#include "tests/catalogue/katalogpruefung_art.h"
#include "tests/catalogue/katalogpruefung_worte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

// From here on two questions are the same one, whatever their answers.
constexpr double gleicheFrage = 0.8;
// From here on they are if the answer is the same as well: "Wie viele Spieler hat eine Mannschaft beim ..."
// may ask for eleven twice.
constexpr double gleicheFrageUndAntwort = 0.6;

std::set<std::string> Kern(const std::string& antwort, const std::string& frage) {
    const auto worte = Kernworte(antwort, frage);
    return {worte.begin(), worte.end()};
}

double Gemeinsam(std::string_view eine, std::string_view andere) {
    // Others beside them, so that the common words of questions weigh little.
    const auto paare =
        AehnlichePaare({eine, andere, "Wie heißt die Hauptstadt von Peru?", "Wie heißt der Fluss in Wien?",
                        "Welches Tier ist das größte der Welt?", "Wer malte das Bild der Mona Lisa?"},
                       0.0);
    for (const Textpaar& paar : paare) {
        if (paar.erster == 0 && paar.zweiter == 1) {
            return paar.gemeinsam;
        }
    }
    return 0.0;
}

} // namespace

TEST(Fragenvergleich, CasePunctuationOrderAndEndingsMakeNoOtherQuestion) {
    EXPECT_DOUBLE_EQ(Gemeinsam("Wie heißt der höchste Berg Deutschlands?",
                               "»DEUTSCHLANDS höchster Berg«: wie heisst der ..."),
                     1.0);
    EXPECT_DOUBLE_EQ(Gemeinsam("Mäuse fängt wer?", "Wer faengt Mäuse"), 1.0);
}

TEST(Fragenvergleich, OneMoreWordIsNearlyTheSameQuestion) {
    EXPECT_GE(Gemeinsam("Welcher Planet des Sonnensystems hat besonders breite Ringe aus Eis?",
                        "Welcher Planet des Sonnensystems hat besonders breite, helle Ringe aus Eis?"),
              gleicheFrage);
}

TEST(Fragenvergleich, AnotherNameInTheSameWordsIsAnotherQuestion) {
    EXPECT_LT(Gemeinsam("Wie heißt die Hauptstadt von Spanien?", "Wie heißt die Hauptstadt von Portugal?"),
              gleicheFrageUndAntwort);
}

TEST(VerrateneAntwort, ItsWordStandsInTheQuestion) {
    EXPECT_TRUE(Verraten("Welches Tier ist der Esel?", "Ein Esel"));
    EXPECT_TRUE(Verraten("Mit welchem Tier ist das Wildschwein verwandt?", "Mit dem Schwein"));
    EXPECT_TRUE(Verraten("Wie heißt die Burg auf dem Berg der Stadt Burgberg?", "Burgberg (bei Füssen)"));
    EXPECT_TRUE(Verraten("Wie heißt der Sohn des Königs?", "Königssohn"));
}

TEST(VerrateneAntwort, ItsWordOnlySaysWhatKindOfThingIsAsked) {
    EXPECT_FALSE(Verraten("Wie heißt der höchste Berg im Schwarzwald?", "Feldberg"));
    EXPECT_FALSE(Verraten("In welches Meer mündet die Donau?", "In das Schwarze Meer"));
    EXPECT_FALSE(Verraten("Wie viel Grad hat ein rechter Winkel?", "90 Grad"));
    EXPECT_FALSE(Verraten("Wie viele Zentimeter sind zehn Millimeter?", "Ein Zentimeter"));
}

TEST(VerrateneAntwort, AChoiceNamesItsAnswerOnPurpose) {
    EXPECT_FALSE(Verraten("Was ist schneller, Schall oder Licht?", "Das Licht"));
}

TEST(Kataloginhalt, NoQuestionStandsTwiceInNearlyTheSameWords) {
    const auto& fragen = Katalogfragen();
    std::vector<std::string_view> texte;
    for (const Katalogsatz& frage : fragen) {
        texte.emplace_back(frage.frage);
    }
    for (const Textpaar& paar : AehnlichePaare(texte, gleicheFrageUndAntwort)) {
        const Katalogsatz& eine = fragen[paar.erster];
        const Katalogsatz& andere = fragen[paar.zweiter];
        const bool gleicheAntwort = Kern(eine.antwort, eine.frage) == Kern(andere.antwort, andere.frage);
        EXPECT_FALSE(gleicheAntwort || paar.gemeinsam >= gleicheFrage)
            << Fundort(eine) << "\n"
            << Fundort(andere) << "\nshare " << paar.gemeinsam;
    }
}

// What stands as the answer of a task is when it counts as done, that of an event what it does. A riddle
// plays with the word it is after, and a saying may hold a word twice.
TEST(Kataloginhalt, NoQuestionTellsItsAnswer) {
    for (const Katalogsatz& frage : Katalogfragen()) {
        const Fragenart art = ArtVon(frage.frage);
        if (!frage.datei->unterthema.starts_with("Standard") && art != Fragenart::Raetsel &&
            art != Fragenart::Ergaenzung) {
            EXPECT_FALSE(Verraten(OhneArt(frage.frage), frage.antwort)) << Fundort(frage);
        }
    }
}
