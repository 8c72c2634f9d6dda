#include "persistence/dateiliste.h"

#include <gtest/gtest.h>

namespace {

using Liste = std::array<std::string, 4>;

TEST(Dateiliste, TheFifthFilePushesTheOldestOut) {
    Liste liste;
    for (const char* datei : {"A.FKR", "B.FKR", "C.FKR", "D.FKR", "E.FKR"}) {
        DateilisteErgaenzen(liste, datei);
    }
    EXPECT_EQ(liste, (Liste{"E.FKR", "D.FKR", "C.FKR", "B.FKR"}));
}

TEST(Dateiliste, AListedFileKeepsItsPlace) {
    Liste liste;
    for (const char* datei : {"A.FKR", "B.FKR", "C.FKR", "D.FKR"}) {
        DateilisteErgaenzen(liste, datei);
    }
    const Liste vorher = liste;
    for (const std::string& datei : vorher) {
        DateilisteErgaenzen(liste, datei);
        EXPECT_EQ(liste, vorher);
    }
}

TEST(Dateiliste, APathInAnotherCaseIsAnotherPath) {
    Liste liste;
    DateilisteErgaenzen(liste, "A.FKR");
    DateilisteErgaenzen(liste, "a.fkr");
    EXPECT_EQ(liste, (Liste{"a.fkr", "A.FKR", "", ""}));
}

} // namespace
