// What stands on the disk when a save is killed, or fails, at any of its system calls.
#include "core/datei.h"
#include "tests/core/spur.h"

#include <gtest/gtest.h>

namespace {

class Absturz : public ::testing::Test {
protected:
    void SetUp() override {
        if (const std::string hindernis = SpurHindernis(); !hindernis.empty()) {
            GTEST_SKIP() << hindernis;
        }
        ordner.schreiben("form/A.fkr", alt);
    }
    [[nodiscard]] Spur Speichere(const std::string& eingriff) const {
        return Speichern(ordner, ordner.nativ("form/A.FKR"), 'n', laengeNeu, eingriff);
    }
    // The calls of a save that nothing disturbs.
    [[nodiscard]] std::vector<Systemaufruf> Aufrufe() const {
        const Spur spur = Speichere("");
        EXPECT_EQ(spur.ergebnis, 0);
        EXPECT_EQ(spur.marken, 2);
        EXPECT_TRUE(ordner.lesen("form/A.fkr") == neu);
        return spur.aufrufe;
    }
    void Zuruecksetzen() const {
        std::filesystem::remove_all(ordner.nativ("form"));
        ordner.schreiben("form/A.fkr", alt);
    }
    Probeordner ordner;
};

TEST_F(Absturz, KilledAtAnySystemCallTheOldOrTheNewFileIsWhole) {
    int alte = 0;
    int neue = 0;
    for (const Systemaufruf& aufruf : Aufrufe()) {
        Zuruecksetzen();
        const Spur spur = Speichere(Eingriff(aufruf, "signal=KILL"));
        ASSERT_TRUE(spur.getoetet && spur.marken == 1) << aufruf.zeile;
        const std::string bytes = ordner.lesen("form/A.fkr");
        EXPECT_TRUE(bytes == alt || bytes == neu) << aufruf.zeile;
        alte += bytes == alt ? 1 : 0;
        neue += bytes == neu ? 1 : 0;
        ResteEntfernen(ordner.eigen("form")); // as the next start does
        EXPECT_EQ(ordner.namen("form"), std::set<std::string>{"A.fkr"}) << aufruf.zeile;
        // The next save is none the worse for the killed one.
        EXPECT_EQ(Speichere("").ergebnis, 0) << aufruf.zeile;
        EXPECT_TRUE(ordner.lesen("form/A.fkr") == neu) << aufruf.zeile;
    }
    EXPECT_GE(alte, 10);
    EXPECT_GE(neue, 2);
}

TEST_F(Absturz, ANewFileIsThereWholeOrNotAtAll) {
    const std::string pfad = ordner.nativ("form/B.fkr");
    for (const Systemaufruf& aufruf : Speichern(ordner, pfad, 'n', laengeNeu, "").aufrufe) {
        Zuruecksetzen();
        const Spur spur = Speichern(ordner, pfad, 'n', laengeNeu, Eingriff(aufruf, "signal=KILL"));
        ASSERT_TRUE(spur.getoetet && spur.marken == 1) << aufruf.zeile;
        EXPECT_TRUE(!ordner.namen("form").contains("B.fkr") || ordner.lesen("form/B.fkr") == neu)
            << aufruf.zeile;
        EXPECT_TRUE(ordner.lesen("form/A.fkr") == alt) << aufruf.zeile;
    }
}

TEST_F(Absturz, AFailureOfTheDiskIsReportedAndLeavesTheOldFileAndNoScrap) {
    const std::map<std::string, int> fehler{{"ENOSPC", 61}, {"EDQUOT", 61}, {"EFBIG", 61}, {"EIO", 57},
                                            {"ENODEV", 68}, {"ENXIO", 68},  {"ENOMEM", 7}, {"EUCLEAN", 72}};
    bool umbenannt = false;
    int schritte = 0;
    for (const Systemaufruf& aufruf : Aufrufe()) {
        const bool anlegen = aufruf.zeile.find("O_CREAT") != std::string::npos;
        if (!anlegen && !std::set<std::string>{"write", "fsync", "renameat"}.contains(aufruf.name)) {
            continue;
        }
        ++schritte;
        for (const auto& [name, nummer] : fehler) {
            Zuruecksetzen();
            EXPECT_EQ(Speichere(Eingriff(aufruf, "error=" + name)).ergebnis, nummer) << name << aufruf.zeile;
            // Once it is renamed, only forcing the folder to the disk can fail: the new file is whole then.
            EXPECT_TRUE(ordner.lesen("form/A.fkr") == (umbenannt ? neu : alt)) << name << aufruf.zeile;
            EXPECT_EQ(ordner.namen("form"), std::set<std::string>{"A.fkr"}) << name << aufruf.zeile;
        }
        umbenannt = umbenannt || aufruf.name == "renameat";
    }
    EXPECT_EQ(schritte, 5); // make, write, force, rename, force the folder
    EXPECT_TRUE(umbenannt);
}

TEST_F(Absturz, WhateverCallFailsNothingIsClaimedAndNothingIsTorn) {
    for (const char* fehler : {"EIO", "EACCES", "ENOENT"}) {
        for (const Systemaufruf& aufruf : Aufrufe()) {
            Zuruecksetzen();
            const Spur spur = Speichere(Eingriff(aufruf, std::string("error=") + fehler));
            EXPECT_LT(spur.ergebnis, 100) << fehler << aufruf.zeile;
            std::set<std::string> namen = ordner.namen("form");
            // Where looking for the name fails, a save may make a file under the very name it was given.
            const std::string bytes = ordner.lesen(namen.contains("A.FKR") ? "form/A.FKR" : "form/A.fkr");
            EXPECT_TRUE(bytes == neu || (bytes == alt && spur.ergebnis != 0)) << fehler << aufruf.zeile;
            namen.erase("A.fkr");
            namen.erase("A.FKR");
            EXPECT_TRUE(namen.empty()) << fehler << aufruf.zeile;
        }
    }
}

TEST_F(Absturz, ACallThatASignalInterruptedIsRepeated) {
    for (const Systemaufruf& aufruf : Aufrufe()) {
        if (std::set<std::string>{"write", "fsync", "close"}.contains(aufruf.name) ||
            aufruf.zeile.find("O_CREAT") != std::string::npos) {
            Zuruecksetzen();
            EXPECT_EQ(Speichere(Eingriff(aufruf, "error=EINTR")).ergebnis, 0) << aufruf.zeile;
            EXPECT_TRUE(ordner.lesen("form/A.fkr") == neu) << aufruf.zeile;
        }
    }
}

TEST_F(Absturz, AFileSystemThatForcesNothingToTheDiskIsSavedOn) {
    for (const Systemaufruf& aufruf : Aufrufe()) {
        if (aufruf.name == "fsync") {
            Zuruecksetzen();
            EXPECT_EQ(Speichere(Eingriff(aufruf, "error=EINVAL")).ergebnis, 0) << aufruf.zeile;
            EXPECT_TRUE(ordner.lesen("form/A.fkr") == neu) << aufruf.zeile;
        }
    }
}

} // namespace
