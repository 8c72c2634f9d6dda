// Paths in the program's notation on a file system that tells upper and lower case apart.
#include "core/datei.h"
#include "core/pfad.h"
#include "core/plattform.h"
#include "tests/core/probeordner.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

struct Fall {
    const char* name;
    std::vector<std::string> dateien; // beneath the folder
    std::string gesucht;              // with backslashes
    std::string gefunden;             // with slashes
};

class Pfadsuche : public ::testing::TestWithParam<Fall> {};

TEST_P(Pfadsuche, FindsTheRightFile) {
    const Probeordner ordner;
    for (const std::string& datei : GetParam().dateien) {
        ordner.schreiben(datei, datei);
    }
    EXPECT_EQ(NativerPfad(ordner.eigen("") + GetParam().gesucht).toStdString(),
              ordner.nativ(GetParam().gefunden));
}

const std::vector<Fall> faelle{
    {"ExactName", {"KRANZ/a.FKR"}, "KRANZ\\a.FKR", "KRANZ/a.FKR"},
    {"SlashesPartAsWell", {"KRANZ/a.FKR"}, "KRANZ/a.FKR", "KRANZ/a.FKR"},
    {"TwoSeparatorsAreOne", {"KRANZ/a.FKR"}, "KRANZ\\\\/a.FKR", "KRANZ/a.FKR"},
    {"UpperCasedName", {"Kranz/Abend.fkr"}, "KRANZ\\ABEND.FKR", "Kranz/Abend.fkr"},
    {"LowerCasedName", {"KRANZ/ABEND.FKR"}, "kranz\\abend.fkr", "KRANZ/ABEND.FKR"},
    {"Umlauts", {"Häuptling/Übung.fkr"}, "HÄUPTLING\\ÜBUNG.FKR", "Häuptling/Übung.fkr"},
    {"SharpSStaysItself", {"straße.fkr", "strasse.fkr"}, "STRAßE.FKR", "straße.fkr"},
    {"GreekAndCyrillic", {"Ωμέγα/Вечер.fkr"}, "ΩΜΈΓΑ\\ВЕЧЕР.FKR", "Ωμέγα/Вечер.fkr"},
    {"BeyondTheBasicPlane", {"𐐨🎉.fkr"}, "𐐀🎉.FKR", "𐐨🎉.fkr"},
    {"ChineseAndBlanks", {"夏 令 营/a b.fkr"}, "夏 令 营\\A B.FKR", "夏 令 营/a b.fkr"},
    {"ExactBeforeOtherCase", {"a.fkr", "A.FKR", "A.fkr"}, "A.fkr", "A.fkr"},
    {"FixedOrderAmongOtherCases", {"aB.fkr", "Ab.fkr"}, "AB.FKR", "Ab.fkr"},
    {"ExactFolderFirst", {"KRANZ/a.fkr", "Kranz/a.fkr"}, "Kranz\\A.FKR", "Kranz/a.fkr"},
    {"OtherFolderWhereOnlyThatHoldsIt", {"KRANZ/b.fkr", "Kranz/a.fkr"}, "KRANZ\\A.FKR", "Kranz/a.fkr"},
    {"NewNameKeepsItsCase", {"Kranz/a.fkr"}, "KRANZ\\Neu.FKR", "Kranz/Neu.FKR"},
    {"NewNameInTheExactFolder", {"KRANZ/b.fkr", "Kranz/a.fkr"}, "KRANZ\\Neu.fkr", "KRANZ/Neu.fkr"},
    {"NewFolderKeepsItsCase", {"Kranz/a.fkr"}, "KRANZ\\Neu\\Neu.FKR", "Kranz/Neu/Neu.FKR"},
    {"DotsGoThrough", {"Kranz/a.fkr", "Test/b.fkr"}, "TEST\\..\\KRANZ\\.\\A.FKR", "Test/../Kranz/./a.fkr"},
    {"WideBackslashIsItself", {"a＼b.fkr", "a\\b.fkr"}, "a＼b.fkr", "a＼b.fkr"},
    {"WideBackslashStandsForABackslashInAName", {"a\\b.fkr"}, "A＼B.FKR", "a\\b.fkr"},
};

INSTANTIATE_TEST_SUITE_P(Tabelle, Pfadsuche, ::testing::ValuesIn(faelle),
                         [](const auto& fall) { return std::string(fall.param.name); });

TEST(Pfad, ANameThatIsNoUnicodeIsListedAndOpened) {
    const Probeordner ordner;
    ordner.schreiben("J\xE4ger.fkr", "alt");
    const std::vector<std::string> namen = DateienIn(ordner.eigen(""), "*.FKR");
    ASSERT_EQ(namen, std::vector<std::string>{"J\uFFFDger.fkr"});
    EXPECT_EQ(DateiLesen(PfadVerbinden(ordner.eigen(""), namen.front())), "alt");
    DateiSchreiben(PfadVerbinden(ordner.eigen(""), namen.front()), "neu");
    EXPECT_EQ(ordner.lesen("J\xE4ger.fkr"), "neu");
    EXPECT_EQ(ordner.namen().size(), 1U);
}

TEST(Pfad, OwnNotationHasBackslashesOnly) {
    EXPECT_EQ(EigenerPfad(QStringLiteral("/opt/Feldkranz/KRANZ")), "\\opt\\Feldkranz\\KRANZ");
    EXPECT_EQ(EigenerPfad(QStringLiteral("/")), "\\");
    EXPECT_EQ(EigenerPfad(QString()), "");
    EXPECT_EQ(EigenerPfad(QStringLiteral("/x/a\\b🎉")), "\\x\\a＼b🎉");
    EXPECT_EQ(NativerPfad("\\").toStdString(), "/");
    EXPECT_EQ(NativerPfad("").toStdString(), "");
}

TEST(Pfad, JoiningPutsExactlyOneBackslash) {
    EXPECT_EQ(PfadVerbinden("\\KRANZ", "a.fkr"), "\\KRANZ\\a.fkr");
    EXPECT_EQ(PfadVerbinden("\\KRANZ\\", "a.fkr"), "\\KRANZ\\a.fkr");
    EXPECT_EQ(PfadVerbinden("/KRANZ/", "a.fkr"), "/KRANZ/a.fkr");
}

TEST(Pfad, ARelativePathStartsInTheCurrentFolder) {
    const Probeordner ordner;
    ordner.schreiben("Kranz/a.fkr", "x");
    const std::filesystem::path vorher = std::filesystem::current_path();
    std::filesystem::current_path(ordner.nativ(""));
    EXPECT_EQ(NativerPfad("KRANZ\\A.FKR").toStdString(), "Kranz/a.fkr");
    EXPECT_EQ(DateiLesen("KRANZ\\A.FKR"), "x");
    std::filesystem::current_path(vorher);
}

TEST(Auswahl, OpensExactlyTheChosenFileAmongNamesThatDifferInCaseOnly) {
    const Probeordner ordner;
    for (const char* name : {"Abend.fkr", "ABEND.FKR", "abend.fkr"}) {
        ordner.schreiben(name, name);
    }
    const std::string gross = ordner.eigen("") + "ABEND.FKR";
    for (const char* name : {"abend.fkr", "ABEND.FKR", "Abend.fkr"}) {
        AuswahlMerken(gross, QString::fromStdString(ordner.nativ(name)));
        EXPECT_EQ(DateiLesen(gross), name);
        DateiSchreiben(gross, name + std::string(" neu"));
        EXPECT_EQ(ordner.lesen(name), name + std::string(" neu"));
        ordner.schreiben(name, name);
    }
    EXPECT_EQ(ordner.namen().size(), 3U);
}

TEST(Auswahl, AnEarlierChoiceStillHoldsAfterAnother) {
    const Probeordner ordner;
    for (const char* name : {"a.fkr", "A.FKR", "b.fkr", "B.FKR"}) {
        ordner.schreiben(name, name);
    }
    AuswahlMerken(ordner.eigen("") + "A.FKR", QString::fromStdString(ordner.nativ("a.fkr")));
    AuswahlMerken(ordner.eigen("") + "B.FKR", QString::fromStdString(ordner.nativ("b.fkr")));
    EXPECT_EQ(DateiLesen(ordner.eigen("") + "A.FKR"), "a.fkr");
    EXPECT_EQ(DateiLesen(ordner.eigen("") + "B.FKR"), "b.fkr");
}

TEST(Auswahl, ANewFileGoesIntoExactlyTheFolderShown) {
    const Probeordner ordner;
    ordner.schreiben("KRANZ/x", "");
    ordner.schreiben("Kranz/x", "");
    ordner.schreiben("kranz/x", "");
    std::string gross = ordner.eigen("KRANZ/NEU.FKR");
    std::ranges::transform(gross, gross.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? char(c - 32) : c; });
    AuswahlMerken(gross, QString::fromStdString(ordner.nativ("kranz/NEU.FKR")));
    DateiSchreiben(gross, "neu");
    EXPECT_EQ(ordner.namen("kranz"), (std::set<std::string>{"NEU.FKR", "x"}));
    // The extension that a save appends and the copy beside the form stay in that folder as well.
    DateiKopieren(gross, gross.substr(0, gross.size() - 4) + ".BAK");
    EXPECT_EQ(ordner.namen("kranz"), (std::set<std::string>{"NEU.BAK", "NEU.FKR", "x"}));
    EXPECT_EQ(ordner.namen("KRANZ"), std::set<std::string>{"x"});
    EXPECT_EQ(ordner.namen("Kranz"), std::set<std::string>{"x"});
}

TEST(Auswahl, AFolderThatWasNamedLeadsToItselfAndNotToItsParent) {
    for (const char* getippt : {"KRANZ/LAGER/", "KRANZ/LAGER//", "KRANZ/LAGER"}) {
        const Probeordner ordner;
        ordner.schreiben("KRANZ/LAGER/x", "");
        AuswahlMerken(ordner.eigen(getippt), NativerPfad(ordner.eigen(getippt)));
        DateiSchreiben(ordner.eigen("KRANZ/LAGER/NEU.FKR"), "neu");
        EXPECT_EQ(ordner.namen("KRANZ"), std::set<std::string>{"LAGER"}) << getippt;
        EXPECT_EQ(ordner.lesen("KRANZ/LAGER/NEU.FKR"), "neu") << getippt;
    }
}

TEST(Auswahl, AFolderThatWasNamedDoesntTakeThePlaceOfOneThatDiffersInCaseOnly) {
    const Probeordner ordner;
    ordner.schreiben("LAGER/gross", "");
    ordner.schreiben("Lager/klein", "");
    AuswahlMerken(ordner.eigen("LAGER"), QString::fromStdString(ordner.nativ("Lager")));
    EXPECT_EQ(NativerPfad(ordner.eigen("LAGER")).toStdString(), ordner.nativ("LAGER"));
}

TEST(Auswahl, AFolderThatIsShownIsMeantExactlyWhateverWasChosenBefore) {
    const Probeordner ordner;
    ordner.schreiben("LAGER/x", "");
    ordner.schreiben("Lager/A.FKR", "alt");
    AuswahlMerken(ordner.eigen("LAGER/A.FKR"), QString::fromStdString(ordner.nativ("Lager/A.FKR")));
    OrdnerMerken(ordner.eigen("LAGER"), QString::fromStdString(ordner.nativ("LAGER")));
    DateiSchreiben(ordner.eigen("LAGER/NEU.FKR"), "neu");
    EXPECT_EQ(ordner.namen("LAGER"), (std::set<std::string>{"NEU.FKR", "x"}));
    EXPECT_EQ(DateiLesen(ordner.eigen("LAGER/A.FKR")), "alt"); // the file chosen stays the one chosen
    OrdnerMerken(ordner.eigen("LAGER/"), QString::fromStdString(ordner.nativ("Lager/")));
    EXPECT_EQ(DateienIn(ordner.eigen("LAGER"), "*.*"), std::vector<std::string>{"A.FKR"});
}

TEST(Auswahl, TheNameOfANewFileMeansAnExistingOneOfOtherCase) {
    const Probeordner ordner;
    ordner.schreiben("Abend.fkr", "alt");
    AuswahlMerken(ordner.eigen("") + "ABEND.FKR", QString::fromStdString(ordner.nativ("ABEND.FKR")));
    EXPECT_TRUE(DateiDa(ordner.eigen("") + "ABEND.FKR"));
    DateiSchreiben(ordner.eigen("") + "ABEND.FKR", "neu");
    EXPECT_EQ(ordner.namen(), std::set<std::string>{"Abend.fkr"});
}

TEST(Auswahl, AChosenFileThatWasDeletedIsNotTakenForItsNeighbour) {
    const Probeordner ordner;
    ordner.schreiben("abend.fkr", "gewählt");
    ordner.schreiben("ABEND.FKR", "fremd");
    const std::string gross = ordner.eigen("") + "ABEND.FKR";
    AuswahlMerken(gross, QString::fromStdString(ordner.nativ("abend.fkr")));
    DateiLoeschen(gross);
    EXPECT_FALSE(DateiDa(gross));
    DateiSchreiben(gross, "neu");
    EXPECT_EQ(ordner.lesen("ABEND.FKR"), "fremd");
    EXPECT_EQ(ordner.lesen("abend.fkr"), "neu");
}

TEST(Laufwerke, TheRootComesFirstAndEveryVolumeIsAFolderWithAName) {
    const std::vector<Laufwerk> laufwerke = Laufwerke();
    ASSERT_FALSE(laufwerke.empty());
    EXPECT_EQ(laufwerke.front().wurzel, QStringLiteral("/"));
    EXPECT_EQ(laufwerke.front().name, QStringLiteral("/"));
    for (const Laufwerk& laufwerk : laufwerke) {
        EXPECT_FALSE(laufwerk.name.isEmpty());
        EXPECT_EQ(plattform::ArtVon(laufwerk.wurzel), plattform::Art::Ordner)
            << laufwerk.wurzel.toStdString();
    }
}

} // namespace
