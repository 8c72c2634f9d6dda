// The command line: what is a call of the program, and what is said about one that isn't.
#include "start/aufruf.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Zeile {
    std::vector<std::string> argumente;
    Programmaufruf aufruf;
};

const std::vector<Zeile> zeilen{
    {{}, {Aufrufart::Programm}},
    {{"Abend.FKR"}, {Aufrufart::Programm, 0}},
    {{"/home/ä b/Übung 1.fkr"}, {Aufrufart::Programm, 0}},
    {{"./-x.FKR"}, {Aufrufart::Programm, 0}},
    {{"help"}, {Aufrufart::Programm, 0}},
    {{"--help"}, {Aufrufart::Hilfe}},
    {{"--version"}, {Aufrufart::Version}},
    {{""}, {Aufrufart::Falsch}},
    {{"-"}, {Aufrufart::Falsch}},
    {{"--"}, {Aufrufart::Falsch}},
    {{"-h"}, {Aufrufart::Falsch}},
    {{"--Help"}, {Aufrufart::Falsch}},
    {{"--help=1"}, {Aufrufart::Falsch}},
    {{"--platform"}, {Aufrufart::Falsch}},
    {{"A.FKR", "B.FKR"}, {Aufrufart::Falsch}},
    {{"--help", "--version"}, {Aufrufart::Falsch}},
    {{"--help", "A.FKR"}, {Aufrufart::Falsch}},
};

TEST(Befehlszeile, OneFileOrOneOfTheTwoSwitchesAndNothingElse) {
    for (const Zeile& zeile : zeilen) {
        EXPECT_EQ(AufrufLesen(zeile.argumente), zeile.aufruf) << ::testing::PrintToString(zeile.argumente);
    }
}

TEST(Befehlszeile, TheProgramThatStartsSaysNothing) {
    EXPECT_EQ(Aufruftext(Aufrufart::Programm), "");
}

TEST(Befehlszeile, TheVersionIsOneLineThatAPackageIsNamedBy) {
    EXPECT_EQ(Aufruftext(Aufrufart::Version), Versionszeile() + "\n");
    EXPECT_TRUE(Versionszeile().starts_with("feldkranz 8."));
}

TEST(Befehlszeile, HelpNamesEverySwitchAndTheUsageIsShort) {
    const std::string hilfe = Aufruftext(Aufrufart::Hilfe);
    for (const char* was :
         {"feldkranz [--help | --version | Formulardatei]", "--help ", "--version ", "http"}) {
        EXPECT_NE(hilfe.find(was), std::string::npos) << was;
    }
    EXPECT_EQ(hilfe.find("{}"), std::string::npos);
    EXPECT_EQ(Aufruftext(Aufrufart::Falsch), "feldkranz: Damit kann ich nichts anfangen.\n"
                                             "Aufruf: feldkranz [--help | --version | Formulardatei]\n");
}

} // namespace
