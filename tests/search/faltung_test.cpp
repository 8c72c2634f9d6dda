#include "search/faltung.h"

#include <gtest/gtest.h>

namespace {

struct Paar {
    const char* text;
    const char* gefaltet;
};

class FaltungTest : public testing::TestWithParam<Paar> {};

TEST_P(FaltungTest, ATextBecomesWhatIsCompared) {
    EXPECT_EQ(Gefaltet(GetParam().text), GetParam().gefaltet);
}

INSTANTIATE_TEST_SUITE_P(Texte, FaltungTest,
                         testing::Values(Paar{"", ""}, Paar{"Hund", "hund"}, Paar{"BÄR", "bar"},
                                         Paar{"Bär", "bar"}, Paar{"Baer", "bar"}, Paar{"Bar", "bar"},
                                         Paar{"Größe", "grosse"}, Paar{"Groesse", "grosse"},
                                         Paar{"GROSSE", "grosse"}, Paar{"Quelle", "qulle"},
                                         Paar{"neue", "neu"}, Paar{"Säen", "saen"}, Paar{"See", "see"},
                                         Paar{"Café", "cafe"}, Paar{"Œuvre", "ouvre"}, Paar{"Æon", "aon"},
                                         Paar{"Ærö", "aro"}, Paar{"a  \r\n\t b", "a b"},
                                         Paar{"a\xC2\xA0\xC2\xA0"
                                              "b",
                                              "a b"},
                                         Paar{"Zucker\xC2\xAD"
                                              "rohr",
                                              "zuckerrohr"},
                                         Paar{"„Ach“ – ‚so‘ …", "\"ach\" - 'so' ."}, Paar{"3,5 %", "3,5 %"},
                                         Paar{"\xFFx", "\xFFx"}, Paar{"€ ½", "€ ½"}, Paar{"ẞ", "ss"}));

TEST(FaltungTest, MarksBehindTheDigitsLieBelowThemAndDifferFromEachOther) {
    std::string gesehen;
    for (const char zeichen : std::string(":;<=>?@[\\]^_`{|}~")) {
        const std::string gefaltet = Gefaltet(std::string(1, zeichen));
        ASSERT_EQ(gefaltet.size(), 1U) << zeichen;
        EXPECT_FALSE(IstWortzeichen(gefaltet.front())) << zeichen;
        EXPECT_NE(gefaltet.front(), '\x1E') << zeichen;
        EXPECT_NE(gefaltet.front(), '\x1F') << zeichen;
        EXPECT_EQ(gesehen.find(gefaltet), std::string::npos) << zeichen;
        gesehen += gefaltet;
    }
}

TEST(FaltungTest, EachByteKnowsWhereItComesFrom) {
    const Faltung faltung = FaltungMitStellen("Öl  ß!");
    EXPECT_EQ(faltung.text, "ol ss!");
    EXPECT_EQ(faltung.stellen, (std::vector<std::size_t>{0, 2, 3, 5, 5, 7, 8}));
    const Faltung quelle = FaltungMitStellen("Quelle");
    ASSERT_EQ(quelle.luecken.size(), 1U);
    EXPECT_EQ(quelle.luecken.front().vor, 2U);
    EXPECT_EQ(quelle.luecken.front().stelle, 2U);
}

TEST(FaltungTest, TheSameWordsWithOtherBlanksMarksAndCaseAreTheSameQuestion) {
    EXPECT_EQ(Fragenschluessel("Wie heißt das  Tier ?"), Fragenschluessel("wie heisst „das Tier“?"));
    EXPECT_NE(Fragenschluessel("Wie heißt das Tier?"), Fragenschluessel("Wie heißt der Tiger?"));
    EXPECT_EQ(Fragenschluessel(" ?! "), "");
    EXPECT_EQ(Fragenabdruck(Gefaltet(" ?! ")), 0U);
    EXPECT_EQ(Fragenabdruck(Gefaltet("Tier ?")), Fragenabdruck(Gefaltet("T I E R")));
    EXPECT_NE(Fragenabdruck(Gefaltet("Tier")), Fragenabdruck(Gefaltet("Tiere")));
}

} // namespace
