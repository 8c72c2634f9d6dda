// What the window says about a proposal.
#include "filling/befund.h"

#include "filling/brettfuellung.h"
#include "filling/testfuellung.h"
#include "tests/filling/fuellhilfe.h"

#include <gtest/gtest.h>

namespace {

Fuellauftrag Brett(Kunstkatalog& katalog, const Quizformular& form = {}) {
    return BrettauftragAus(katalog.vorrat(), form, {}, {});
}

// A form on which all cells but so many are filled.
Quizformular BisAuf(std::size_t leere) {
    Quizformular form;
    for (std::size_t n = leere + 1; n <= 30; ++n) {
        form.AntwortText.at(n) = "besetzt";
    }
    return form;
}

} // namespace

TEST(Befund, BeforeAProposalTheEmptyCellsAreCounted) {
    Kunstkatalog katalog;
    EXPECT_EQ(Leerbefund(Brett(katalog)), "30 Felder sind leer. Mit [Vorschlag] suche ich Fragen dafür aus.");
    EXPECT_EQ(Leerbefund(Brett(katalog, BisAuf(1))),
              "Ein Feld ist leer. Mit [Vorschlag] suche ich eine Frage dafür aus.");
    EXPECT_EQ(Leerbefund(Brett(katalog, BisAuf(0))), "Auf dem Formular ist kein Feld mehr leer.");
}

TEST(Befund, ABoardThatIsFilled) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 6);
    const Fuellauftrag auftrag = Brett(katalog);
    EXPECT_EQ(Brettbefund(auftrag, Brettvorschlag(auftrag, 1)), "Ich habe Fragen für alle 30 leeren Felder.");
    const Fuellauftrag eines = Brett(katalog, BisAuf(1));
    EXPECT_EQ(Brettbefund(eines, Brettvorschlag(eines, 1)), "Ich habe eine Frage für das leere Feld.");
    const Fuellauftrag keines = Brett(katalog, BisAuf(0));
    EXPECT_EQ(Brettbefund(keines, Brettvorschlag(keines, 1)), "Auf dem Formular ist kein Feld mehr leer.");
}

TEST(Befund, CellsWithoutAQuestionAreNamedByTheirPlace) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 6);
    const Fuellauftrag auftrag = Brett(katalog);
    Vorschlag vorschlag = Brettvorschlag(auftrag, 1);
    vorschlag[8].reset();
    vorschlag[10].reset();
    vorschlag[21].reset();
    EXPECT_EQ(Brettbefund(auftrag, vorschlag),
              "Ich habe Fragen für 27 von 30 leeren Feldern. "
              "Ohne Frage bleiben: Gebiet 2 (Frage 3, 5), Gebiet 5 (Frage 1).");
    Kunstkatalog leer;
    const Fuellauftrag ohne = Brett(leer);
    EXPECT_EQ(Brettbefund(ohne, Brettvorschlag(ohne, 1)),
              "Ich habe keine passende Frage für die 30 leeren Felder.");
}

TEST(Befund, ATestFormSaysItsTotal) {
    Kunstkatalog katalog;
    katalog.fragen("Häuptlingsbuch", "Knoten", 12);
    const Testwunsch wunsch{{{"Häuptlingsbuch", "Knoten"}}, true};
    const Fuellauftrag auftrag = TestauftragAus(katalog.vorrat(), {}, wunsch);
    EXPECT_EQ(Testbefund(auftrag, Testvorschlag(auftrag, 40, 1), 40),
              "Ich habe Fragen für alle 10 leeren Felder. Das Formular hat dann 40 Punkte.");
    EXPECT_EQ(Testbefund(auftrag, Testvorschlag(auftrag, 60, 1), 60),
              "Ich habe Fragen für alle 10 leeren Felder. 60 Punkte kann ich damit nicht erreichen, "
              "am nächsten kommen 50.");
    EXPECT_EQ(Testbefund(auftrag, Testvorschlag(auftrag, 3, 1), 3),
              "Ich habe Fragen für 3 von 10 leeren Feldern. Das Formular hat dann 3 Punkte.");
    const Fuellauftrag ohne = TestauftragAus(katalog.vorrat(), {}, {});
    EXPECT_EQ(Testbefund(ohne, Testvorschlag(ohne, 3, 1), 3),
              "Ich habe keine passende Frage für die 10 leeren Felder.");
}
