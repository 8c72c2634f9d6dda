#include "filetools/kopiername.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

using enum Namensfehler;

struct Namensfall {
    const char* name;
    std::vector<Namensfehler> fehler;
};

void PrintTo(const Namensfall& fall, std::ostream* ziel) {
    *ziel << '"' << fall.name << '"';
}

class Kopiername : public ::testing::TestWithParam<Namensfall> {};

TEST_P(Kopiername, HasTheseFaults) {
    EXPECT_EQ(KopiernamePruefen(GetParam().name), GetParam().fehler);
}

INSTANTIATE_TEST_SUITE_P(Good, Kopiername,
                         ::testing::Values(Namensfall{"A", {}}, Namensfall{"EXACTLY8", {}},
                                           Namensfall{"ÄÖÜäöüßé", {}}, Namensfall{"a-b_c", {}}));
INSTANTIATE_TEST_SUITE_P(Bad, Kopiername,
                         ::testing::Values(Namensfall{"", {Leer}}, Namensfall{"NINECHARS", {ZuLang}},
                                           Namensfall{"ÄÖÜäöüßéà", {ZuLang}}, Namensfall{"AB.FKR", {Punkt}},
                                           Namensfall{".", {Punkt}}, Namensfall{" ", {Leerzeichen}},
                                           Namensfall{"A B", {Leerzeichen}}, Namensfall{"   ", {Leerzeichen}},
                                           Namensfall{".FKR", {Punkt}}, Namensfall{"A*B", {Zeichen}},
                                           Namensfall{"*", {Zeichen}}, Namensfall{"x\\NEU", {Zeichen}},
                                           Namensfall{"x/NEU", {Zeichen}},
                                           Namensfall{"A B.C", {Leerzeichen, Punkt}},
                                           Namensfall{"MEIN NEUER.FKR", {Leerzeichen, Punkt, ZuLang}},
                                           Namensfall{"MEIN *.FKR", {Leerzeichen, Punkt, ZuLang, Zeichen}}));

TEST(Ordnername, IsUsableWhenItStaysInItsFolderAndTheListsShowIt) {
    EXPECT_TRUE(OrdnernameBrauchbar("Sommer 2008"));
    EXPECT_TRUE(OrdnernameBrauchbar("Nr. 1"));
    for (const char* name : {"", "   ", ".", "..", ".Lager", "..\\LAGER", "../LAGER", "x/y"}) {
        EXPECT_FALSE(OrdnernameBrauchbar(name)) << name;
    }
}

TEST(Namensfeld, NamesNoFileWhileItShowsAPattern) {
    EXPECT_TRUE(NichtsGewaehlt(""));
    EXPECT_TRUE(NichtsGewaehlt("*.FKR"));
    EXPECT_FALSE(NichtsGewaehlt("ABEND.FKR"));
}

TEST(Dateifilter, TakesThePatternBetweenTheParentheses) {
    EXPECT_EQ(MusterAus("Feldkranz-Formular (*.FKR)"), "*.FKR");
    EXPECT_EQ(MusterAus("Alle Dateien (*.*)"), "*.*");
    EXPECT_EQ(MusterAus("Bilder (*.bmp;*.png) neu"), "*.bmp;*.png");
    EXPECT_EQ(MusterAus("ohne"), "");
    EXPECT_EQ(MusterAus("(offen"), "");
    EXPECT_EQ(MusterAus("zu) (*.X)"), "*.X");
}

TEST(Ordnerpfad, GoesUpToTheRootAndNoFurther) {
    EXPECT_EQ(Oberordner("\\home\\lager\\KRANZ"), "\\home\\lager");
    EXPECT_EQ(Oberordner("\\home\\"), "\\");
    EXPECT_EQ(Oberordner("\\home"), "\\");
    EXPECT_EQ(Oberordner("\\"), "\\");
    EXPECT_EQ(Oberordner("C:\\KRANZ"), "C:\\");
    EXPECT_EQ(Oberordner("C:\\"), "C:\\");
    EXPECT_EQ(Ordnername("\\home\\lager"), "lager");
    EXPECT_EQ(Ordnername("\\home\\lager\\"), "lager");
    EXPECT_EQ(Ordnername("\\"), "\\");
    EXPECT_EQ(Ordnername("C:\\"), "C:\\");
}

} // namespace
