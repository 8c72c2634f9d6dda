#include "catalogue/themen.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(Themen, TheTableHas16ThemesAnd138SubThemes) {
    std::size_t unterthemen = 0;
    for (const Thema& thema : Themen()) {
        unterthemen += thema.unterthemen.size();
    }
    EXPECT_EQ(Themen().size(), 16U);
    EXPECT_EQ(unterthemen, 138U);
}

TEST(Themen, FourThemesHaveCommentLines) {
    std::set<std::string_view> mit;
    for (const Thema& thema : Themen()) {
        if (thema.kommentarzeilen) {
            mit.insert(thema.name);
        }
    }
    EXPECT_EQ(mit,
              (std::set<std::string_view>{"Aktuelles", "- Aufgaben -", "- Ereignisse -", "Häuptlingsbuch"}));
}

TEST(Themen, EveryPairHasAFileOfItsOwnWithACapitalName) {
    std::set<std::string> pfade;
    for (const Thema& thema : Themen()) {
        EXPECT_TRUE(pfade.insert(std::string(thema.ordner) + "\\" + std::string(thema.listendatei)).second);
        EXPECT_TRUE(thema.listendatei.starts_with("W_"));
        for (const Unterthema& unterthema : thema.unterthemen) {
            EXPECT_TRUE(unterthema.datei.ends_with(".TXT")) << unterthema.datei;
            EXPECT_EQ(unterthema.datei.find_first_of("abcdefghijklmnopqrstuvwxyz"), std::string_view::npos);
            EXPECT_LE(unterthema.datei.size(), 12U) << unterthema.datei;
            EXPECT_TRUE(
                pfade.insert(std::string(thema.ordner) + "\\" + std::string(unterthema.datei)).second);
            EXPECT_EQ(UnterthemaDatei(thema, unterthema.name), unterthema.datei);
        }
    }
    EXPECT_EQ(pfade.size(), 16U + 138U);
}

TEST(Themen, TheMessageNamesTheWrongFolderForTwelveThemes) {
    int falsch = 0;
    for (const Thema& thema : Themen()) {
        if (thema.meldungsordner == "\\WISSEN\\Aktuell" && thema.name != "Aktuelles") {
            ++falsch;
        }
    }
    EXPECT_EQ(falsch, 12);
    EXPECT_EQ(ThemaSuchen("- Aufgaben -")->meldungsordner, "\\WISSEN\\Aufgaben");
    EXPECT_EQ(ThemaSuchen("- Ereignisse -")->meldungsordner, "\\WISSEN\\Ereignis");
    EXPECT_EQ(ThemaSuchen("Häuptlingsbuch")->meldungsordner, "\\WISSEN\\HB");
}

TEST(Themen, EssenIsAnotherFileUnderAnotherTheme) {
    EXPECT_EQ(UnterthemaDatei(*ThemaSuchen("A-Z"), "Essen"), "A_ESSEN.TXT");
    EXPECT_EQ(UnterthemaDatei(*ThemaSuchen("Geschichte"), "Essen"), "G_ESSEN.TXT");
}

TEST(Themen, TiereIsAThemeAndASubThemeOfThree) {
    EXPECT_EQ(ThemaSuchen("Tiere")->listendatei, "W_TIERE.TXT");
    EXPECT_EQ(UnterthemaDatei(*ThemaSuchen("Altes Testament"), "Tiere"), "AT_TIER.TXT");
    EXPECT_EQ(UnterthemaDatei(*ThemaSuchen("Neues Testament"), "Tiere"), "NT_TIER.TXT");
    EXPECT_EQ(UnterthemaDatei(*ThemaSuchen("Sprüche"), "Tiere"), "SPR_TIER.TXT");
    EXPECT_EQ(UnterthemaDatei(*ThemaSuchen("Tiere"), "Tiere"), "");
}

TEST(Themen, BothComparisonsAreExact) {
    for (const char* name : {"land", "Land ", "Aufgaben", "Haeuptlingsbuch", ""}) {
        EXPECT_EQ(ThemaSuchen(name), nullptr) << name;
    }
    EXPECT_EQ(UnterthemaDatei(*ThemaSuchen("Technik"), "KFZ"), "");
    EXPECT_EQ(UnterthemaDatei(*ThemaSuchen("Technik"), "Kfz"), "TE_KFZ.TXT");
}

TEST(Themen, SubThemesStandInTheOrderOfTheLookup) {
    const auto& nt = ThemaSuchen("Neues Testament")->unterthemen;
    EXPECT_EQ(nt.front().name, "Bibelstellen");
    EXPECT_EQ(nt[2].name, "Apostelgeschichte");
    EXPECT_EQ(nt.back().name, "Zahlen");
}

} // namespace
