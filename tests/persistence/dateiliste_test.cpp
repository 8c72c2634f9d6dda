#include "persistence/dateiliste.h"

#include "core/pfad.h"
#include "tests/core/probeordner.h"

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

TEST(Dateiliste, APathInAnotherCaseIsAnotherPathWhereNoFileTellsOtherwise) {
    Liste liste;
    DateilisteErgaenzen(liste, "A.FKR");
    DateilisteErgaenzen(liste, "a.fkr");
    EXPECT_EQ(liste, (Liste{"a.fkr", "A.FKR", "", ""}));
}

TEST(Dateiliste, AFileThatIsListedInCapitalsKeepsItsPlace) {
    const Probeordner ordner;
    ordner.schreiben("Abend.fkr", "");
    Liste liste;
    DateilisteErgaenzen(liste, ordner.eigen("ABEND.FKR"));
    DateilisteErgaenzen(liste, "X.FKR");
    DateilisteErgaenzen(liste, ordner.eigen("Abend.fkr"));
    EXPECT_EQ(liste, (Liste{"X.FKR", ordner.eigen("ABEND.FKR"), "", ""}));
}

TEST(Dateiliste, FilesThatDifferInCaseOnlyAreTwoEntries) {
    const Probeordner ordner;
    ordner.schreiben("Abend.fkr", "");
    ordner.schreiben("abend.fkr", "");
    Liste liste;
    AuswahlMerken(ordner.eigen("ABEND.FKR"), QString::fromStdString(ordner.nativ("abend.fkr")));
    DateilisteErgaenzen(liste, ordner.eigen("ABEND.FKR"));
    DateilisteErgaenzen(liste, ordner.eigen("Abend.fkr"));
    EXPECT_EQ(liste, (Liste{ordner.eigen("Abend.fkr"), ordner.eigen("ABEND.FKR"), "", ""}));
}

} // namespace
