#include "persistence/extrasdatei.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "persistence/extraswerte.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace {

TEST(ExtraswerteTest, WhatIsWrittenIsReadAsTheSame) {
    const Extraswerte werte{{"Suche.Text", "Bär = Tier"}, {"leer", ""}, {"Zahl", "12"}};
    EXPECT_EQ(ExtraswerteBytes(werte), "Suche.Text=Bär = Tier\r\nZahl=12\r\nleer=\r\n");
    EXPECT_EQ(ExtraswerteAusBytes(ExtraswerteBytes(werte)), werte);
    EXPECT_EQ(ExtraswerteBytes({{"a", "b\r\nc"}}), "a=b  c\r\n");
}

TEST(ExtraswerteTest, DamagedLinesArePassedOver) {
    EXPECT_EQ(ExtraswerteAusBytes("ohne\n=wert\na=1\r\nb=\xFF\nc=\xC3\nd=x\na=2"),
              (Extraswerte{{"a", "2"}, {"d", "x"}}));
    EXPECT_EQ(ExtraswerteAusBytes(""), Extraswerte());
}

class ExtrasdateiTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(ordner.isValid());
        Stand.AppPfad = EigenerPfad(ordner.path());
    }
    void TearDown() override { Stand.AppPfad.clear(); }

    QTemporaryDir ordner;
};

TEST_F(ExtrasdateiTest, AMissingFolderCostsNothingButTheEntry) {
    EXPECT_EQ(ExtraWert("a"), "");
    ExtraSetzen("a", "1");
    EXPECT_EQ(ExtraWert("a"), "1");
    EXPECT_FALSE(DateiDa(Stand.AppPfad + "\\CONFIG\\EXTRAS.INI"));
}

TEST_F(ExtrasdateiTest, WhatAWindowKeepsStandsInTheFile) {
    OrdnerAnlegen(Stand.AppPfad + "\\CONFIG");
    ExtraSetzen("Suche.Text", "Bär");
    ExtraSetzen("Suche.Unbenutzt", "1");
    EXPECT_EQ(DateiLesen(Stand.AppPfad + "\\CONFIG\\EXTRAS.INI"), "Suche.Text=Bär\r\nSuche.Unbenutzt=1\r\n");
}

TEST_F(ExtrasdateiTest, AnotherProgramFolderHasItsOwn) {
    OrdnerAnlegen(Stand.AppPfad + "\\CONFIG");
    ExtraSetzen("a", "1");
    const QTemporaryDir anderer;
    const std::string hier = Stand.AppPfad;
    Stand.AppPfad = EigenerPfad(anderer.path());
    EXPECT_EQ(ExtraWert("a"), "");
    Stand.AppPfad = hier;
    EXPECT_EQ(ExtraWert("a"), "1");
}

} // namespace
