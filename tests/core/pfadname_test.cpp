#include "core/pfadname.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <vector>

namespace {

TEST(Pfadname, TheFileNameIsThePartBehindTheLastBackslash) {
    EXPECT_EQ(NurDateiname("C:\\KRANZ\\HERBST.FKR"), "HERBST.FKR");
    EXPECT_EQ(NurDateiname("HERBST.FKR"), "HERBST.FKR");
    EXPECT_EQ(NurDateiname("C:\\KRANZ\\"), "");
    EXPECT_EQ(NurDateiname("\\home\\jörg\\Übung.fkr"), "Übung.fkr");
    EXPECT_EQ(NurDateiname(""), "");
}

TEST(Pfadname, TheExtensionGoesFromTheLastPointToTheEnd) {
    EXPECT_EQ(Dateiendung("HERBST.FKR"), ".FKR");
    EXPECT_EQ(Dateiendung("A.B.C"), ".C");
    EXPECT_EQ(Dateiendung("OHNE"), "");
    EXPECT_EQ(Dateiendung("PUNKT."), ".");
}

TEST(PfadZerlegen, TakesEveryPathApartAsDescribed) {
    struct Zeile {
        std::string_view pfad, laufwerk, ordner, name, endung;
    };
    constexpr std::array<Zeile, 10> zeilen{{
        {"C:\\PROG\\KRANZ\\HERBST.FKR", "C:\\", "PROG\\KRANZ\\", "HERBST", ".FKR"},
        {"C:\\HERBST.FKR", "C:\\", "?", "?", "?"},
        {"C:\\PROG\\OHNE", "C:\\", "PROG\\", "?", "?"},
        {"\\home\\kranz\\herbst.fkr", "?", "\\home\\kranz\\", "herbst", ".fkr"},
        {"HERBST.FKR", "?", "?", "?", "?"},
        {"C:\\A\\B.C.D", "C:\\", "A\\", "B.C", ".D"},
        {"C:", "C:", "?", "?", "?"},
        {"", "?", "?", "?", "?"},
        {"C:\\A\\", "C:\\", "A\\", "?", "?"},
        {"Ä:\\A\\B.C", "Ä:\\", "A\\", "B", ".C"},
    }};
    for (const Zeile& zeile : zeilen) {
        const PfadTeile teile = PfadZerlegen(zeile.pfad);
        EXPECT_EQ(teile.laufwerk, zeile.laufwerk) << zeile.pfad;
        EXPECT_EQ(teile.ordner, zeile.ordner) << zeile.pfad;
        EXPECT_EQ(teile.name, zeile.name) << zeile.pfad;
        EXPECT_EQ(teile.endung, zeile.endung) << zeile.pfad;
    }
}

// True for texts of at most that many characters.
auto Hoechstens(std::size_t zeichen) {
    return [zeichen](std::string_view text) {
        return static_cast<std::size_t>(std::ranges::count_if(
                   text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; })) <= zeichen;
    };
}

TEST(Pfadkuerzung, KeepsBothEndsAndTheWholeLastFolder) {
    const std::string pfad = "\\home\\gruppe\\Übungen\\2026\\Sommerlager";
    EXPECT_EQ(PfadGekuerzt(pfad, Hoechstens(100)), pfad);
    EXPECT_EQ(PfadGekuerzt(pfad, Hoechstens(29)), "\\home\\gr…gen\\2026\\Sommerlager");
    EXPECT_EQ(PfadGekuerzt(pfad, Hoechstens(13)), "…\\Sommerlager");
    EXPECT_EQ(PfadGekuerzt("\\ä\\ö\\ü\\é\\LAGER", Hoechstens(11)), "\\ä…\\é\\LAGER");
}

TEST(Pfadkuerzung, ShortensALastFolderThatHasNoRoomItself) {
    EXPECT_EQ(PfadGekuerzt("\\home\\Sommerlager", Hoechstens(8)), "…\\So…ger");
    EXPECT_EQ(PfadGekuerzt("Sommerlager", Hoechstens(5)), "So…er");
    EXPECT_EQ(PfadGekuerzt("\\home\\Sommerlager", Hoechstens(0)), "……");
}

TEST(Schreibweise, LettersOfTheCodePageChangeTheirCase) {
    EXPECT_EQ(Grossschreiben("jörg àÿ šžœ þ.fkr"), "JÖRG ÀŸ ŠŽŒ Þ.FKR");
    EXPECT_EQ(Kleinschreiben("JÖRG ÀŸ ŠŽŒ Þ.FKR"), "jörg àÿ šžœ þ.fkr");
}

TEST(Schreibweise, WhatHasNoOtherCaseStays) {
    EXPECT_EQ(Grossschreiben("ß÷×µ12[]{}"), "ß÷×µ12[]{}");
    EXPECT_EQ(Kleinschreiben("ß÷×µ12[]{}"), "ß÷×µ12[]{}");
    EXPECT_EQ(Grossschreiben("€uro 日本x"), "€URO 日本X");
    EXPECT_EQ(Kleinschreiben("€URO 日本X"), "€uro 日本x");
}

TEST(Schreibweise, TrimmingTakesBlanksAtBothEndsOnly) {
    EXPECT_EQ(Getrimmt("  [FRAGEN] x "), "[FRAGEN] x");
    EXPECT_EQ(Getrimmt("   "), "");
    EXPECT_EQ(Getrimmt(""), "");
    EXPECT_EQ(Getrimmt("\tx"), "\tx");
}

TEST(Dateiname, IsUsableWhenTheListsShowItAndSomethingNamesIt) {
    for (const char* name : {"a", "ABEND.FKR", "Nr. 1", " vorn.FKR", "a.b.c", "Ü"}) {
        EXPECT_TRUE(NameBrauchbar(name)) << name;
    }
    for (const char* name : {"", " ", "   ", ".", "..", ".FKR", ".TXT", "  .FKR", ".abend.FKR", " .x"}) {
        EXPECT_FALSE(NameBrauchbar(name)) << name;
    }
}

TEST(Dateiname, ANumberGoesBeforeTheExtensionUntilAPlaceIsFree) {
    const auto ausser = [](std::initializer_list<std::string> besetzt) {
        return [liste = std::vector<std::string>(besetzt)](const std::string& pfad) {
            return std::ranges::find(liste, pfad) == liste.end();
        };
    };
    EXPECT_EQ(FreierPfad("C\\K\\A.pdf", ausser({})), "C\\K\\A.pdf");
    EXPECT_EQ(FreierPfad("C\\K.x\\A.b.pdf", ausser({"C\\K.x\\A.b.pdf"})), "C\\K.x\\A.b1.pdf");
    EXPECT_EQ(FreierPfad("A.pdf", ausser({"A.pdf", "A1.pdf", "A2.pdf"})), "A3.pdf");
}

} // namespace
