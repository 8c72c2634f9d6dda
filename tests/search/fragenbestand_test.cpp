#include "search/fragenbestand.h"

#include "search/faltung.h"

#include <gtest/gtest.h>

namespace {

Fragenliste Liste(int von, int bis) {
    Fragenliste liste;
    for (int i = von; i < bis; ++i) {
        const std::string nr = std::to_string(i);
        liste.Anhaengen({nr, "Frage " + nr, "Antwort " + nr, nr});
    }
    return liste;
}

TEST(FragenbestandTest, QuestionsCountThroughAllFilesAlsoEmptyOnes) {
    const Fragenbestand bestand({BestandsdateiAus("A", "a", Liste(0, 3)), BestandsdateiAus("B", "b", {}),
                                 BestandsdateiAus("C", "c", Liste(3, 5))});
    ASSERT_EQ(bestand.anzahl(), 5U);
    for (std::size_t nr = 0; nr < 5; ++nr) {
        const std::string zahl = std::to_string(nr);
        EXPECT_EQ(bestand.frage(nr).frage, "Frage " + zahl);
        EXPECT_EQ(bestand.frage(nr).antwort, "Antwort " + zahl);
        EXPECT_EQ(bestand.frage(nr).punkte, zahl);
        EXPECT_EQ(bestand.frage(nr).thema, nr < 3 ? "A" : "C");
        EXPECT_EQ(bestand.frage(nr).unterthema, nr < 3 ? "a" : "c");
    }
    EXPECT_EQ(bestand.ort(3).datei, 2U);
    EXPECT_EQ(bestand.ort(3).frage, 0U);
    EXPECT_EQ(Fragenbestand().anzahl(), 0U);
}

TEST(FragenbestandTest, TheFoldedTextsStandEndToEnd) {
    Fragenliste liste;
    liste.Anhaengen({"1", "Wo?", "Da\xDF", "1"}); // ß in code page 1252
    liste.Anhaengen({"2", "", "", ""});
    const auto datei = BestandsdateiAus("T", "U", std::move(liste));
    EXPECT_EQ(datei->text.text, "wo" + Gefaltet("?") +
                                    "\x1F"
                                    "dass\x1E\x1F\x1E");
    EXPECT_EQ(datei->enden[0].frage, 3U);
    EXPECT_EQ(datei->enden[0].antwort, 8U);
    EXPECT_EQ(datei->enden[1].frage, 9U);
    EXPECT_EQ(datei->abdruecke[1], 0U);
}

} // namespace
