#include "persistence/dateiliste.h"
#include "vorgaben.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<std::string> Liste() {
    return {Datei1, Datei2, Datei3, Datei4};
}

TEST(Dateiliste, TheFifthFilePushesTheOldestOut) {
    AllesLeeren();
    for (const char* datei : {"A.FKR", "B.FKR", "C.FKR", "D.FKR", "E.FKR"}) {
        DateilisteErgaenzen(datei);
    }
    EXPECT_EQ(Liste(), (std::vector<std::string>{"E.FKR", "D.FKR", "C.FKR", "B.FKR"}));
}

TEST(Dateiliste, AListedFileKeepsItsPlace) {
    AllesLeeren();
    for (const char* datei : {"A.FKR", "B.FKR", "C.FKR", "D.FKR"}) {
        DateilisteErgaenzen(datei);
    }
    const auto vorher = Liste();
    for (const std::string& datei : vorher) {
        DateilisteErgaenzen(datei);
        EXPECT_EQ(Liste(), vorher);
    }
}

TEST(Dateiliste, APathInAnotherCaseIsAnotherPath) {
    AllesLeeren();
    DateilisteErgaenzen("A.FKR");
    DateilisteErgaenzen("a.fkr");
    EXPECT_EQ(Liste(), (std::vector<std::string>{"a.fkr", "A.FKR", "", ""}));
}

} // namespace
