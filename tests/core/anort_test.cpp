// The same where the folder takes no new file, so that the file is overwritten in place beside a copy.
#include "tests/core/spur.h"

#include <gtest/gtest.h>

namespace {

// Copies that a save in place has left for a file.
std::vector<std::string> Kopien(const std::string& name) {
    std::vector<std::string> kopien;
    for (const char* ablage : {"/var/tmp", "/tmp"}) {
        for (const auto& eintrag : std::filesystem::directory_iterator(ablage)) {
            if (eintrag.path().filename().string().starts_with("Feldkranz-" + name)) {
                kopien.push_back(eintrag.path().string());
            }
        }
    }
    return kopien;
}

std::string KopieLesen(const std::string& pfad) {
    std::ostringstream bytes;
    bytes << std::ifstream(pfad, std::ios::binary).rdbuf();
    return bytes.str();
}

// A folder that takes no new file, with a file in it that may be written.
class AnOrt : public ::testing::Test {
protected:
    void SetUp() override {
        if (const std::string hindernis = SpurHindernis(); !hindernis.empty()) {
            GTEST_SKIP() << hindernis;
        }
        if (!AlsRoot()) {
            GTEST_SKIP() << "needs root to make a file of somebody else's: not tested";
        }
        std::filesystem::copy_file(SPEICHERN_PROBE, ordner.nativ("probe"));
        name = "ort" + std::to_string(::getpid()) + ".fkr";
        Vorbereiten();
    }
    void TearDown() override { KopienEntfernen(); }
    void Vorbereiten() const {
        KopienEntfernen();
        ordner.schreiben("form/" + name, alt);
        std::filesystem::permissions(ordner.nativ("form/" + name), std::filesystem::perms(0666));
        std::filesystem::permissions(ordner.nativ("form"), std::filesystem::perms(0755));
    }
    void KopienEntfernen() const {
        for (const std::string& kopie : Kopien(name)) {
            std::filesystem::remove(kopie);
        }
    }
    [[nodiscard]] Spur Speichere(const std::string& eingriff) const {
        return Speichern(ordner, ordner.nativ("form/" + name), 'n', laengeNeu, eingriff, true);
    }
    Probeordner ordner;
    std::string name;
};

TEST_F(AnOrt, KilledAtAnySystemCallTheFileOrItsCopyIsWhole) {
    const Spur ganz = Speichere("");
    ASSERT_EQ(ganz.ergebnis, 0);
    EXPECT_TRUE(ordner.lesen("form/" + name) == neu);
    EXPECT_TRUE(Kopien(name).empty());
    int zerrissen = 0;
    for (const Systemaufruf& aufruf : ganz.aufrufe) {
        Vorbereiten();
        const Spur spur = Speichere(Eingriff(aufruf, "signal=KILL"));
        ASSERT_TRUE(spur.getoetet && spur.marken == 1) << aufruf.zeile;
        const std::string bytes = ordner.lesen("form/" + name);
        if (bytes != alt && bytes != neu) {
            ++zerrissen;
            const std::vector<std::string> kopien = Kopien(name);
            ASSERT_EQ(kopien.size(), 1U) << aufruf.zeile;
            EXPECT_TRUE(KopieLesen(kopien.front()) == alt) << aufruf.zeile;
        }
    }
    EXPECT_GE(zerrissen, 1); // between writing and cutting off, so that the copy was really needed
}

TEST_F(AnOrt, AFailureOfTheDiskPutsTheOldFileBack) {
    const Spur ganz = Speichere("");
    bool kopieSteht = false;
    int schritte = 0;
    for (const Systemaufruf& aufruf : ganz.aufrufe) {
        kopieSteht = kopieSteht || aufruf.zeile.find("\"nnn") != std::string::npos;
        if (std::set<std::string>{"write", "fsync", "ftruncate"}.contains(aufruf.name)) {
            ++schritte;
            Vorbereiten();
            // A copy that fails in the first place goes to the second, and the save goes on.
            EXPECT_EQ(Speichere(Eingriff(aufruf, "error=ENOSPC")).ergebnis, kopieSteht ? 61 : 0)
                << aufruf.zeile;
            EXPECT_TRUE(ordner.lesen("form/" + name) == (kopieSteht ? alt : neu)) << aufruf.zeile;
            EXPECT_TRUE(Kopien(name).empty()) << aufruf.zeile;
        }
    }
    EXPECT_EQ(schritte, 6); // write and force the copy and its folder; write, cut off and force the file
}

TEST_F(AnOrt, TheCopyStaysWhereTheOldFileCouldNotBePutBack) {
    EXPECT_EQ(Speichere("ftruncate:error=EIO:when=1+").ergebnis, 57);
    const std::vector<std::string> kopien = Kopien(name);
    ASSERT_EQ(kopien.size(), 1U);
    EXPECT_TRUE(KopieLesen(kopien.front()) == alt);
}

TEST_F(AnOrt, WithoutRoomForACopyNothingIsOverwritten) {
    for (const Systemaufruf& aufruf : Speichere("").aufrufe) {
        if (aufruf.zeile.find("\"Feldkranz-") != std::string::npos &&
            aufruf.zeile.find("O_CREAT") != std::string::npos) {
            Vorbereiten();
            const Spur spur = Speichere(Eingriff(aufruf, "error=ENOSPC") + "+");
            EXPECT_EQ(spur.ergebnis, 61);
            EXPECT_TRUE(ordner.lesen("form/" + name) == alt);
        }
    }
}

} // namespace
