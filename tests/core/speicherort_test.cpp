// Saving where the disk is full or somebody has closed the folder or the file.
#include "core/datei.h"
#include "tests/core/probeordner.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

// A file of root's in a folder of root's, for a process that has given up root's rights.
class Verschlossen : public ::testing::Test {
protected:
    void SetUp() override {
        if (!AlsRoot()) {
            GTEST_SKIP() << "needs root to make a file of somebody else's: not tested";
        }
        ordner.schreiben("form/A.fkr", "alt");
    }
    void Rechte(const std::string& name, unsigned rechte) const {
        ASSERT_EQ(::chmod(ordner.nativ(name).c_str(), rechte), 0);
    }
    [[nodiscard]] int Speichere(const std::string& name) const {
        return ImKind(OhneRechte, [&] { DateiSchreiben(ordner.eigen("form/" + name), "die neue Fassung"); });
    }
    Probeordner ordner;
};

TEST_F(Verschlossen, AReadOnlyFolderTakesNothing) {
    Rechte("form", 0555);
    EXPECT_EQ(Speichere("A.FKR"), 70);
    EXPECT_EQ(Speichere("Neu.FKR"), 70);
    EXPECT_EQ(ordner.lesen("form/A.fkr"), "alt");
    EXPECT_EQ(ordner.namen("form"), std::set<std::string>{"A.fkr"});
}

TEST_F(Verschlossen, AWriteProtectedFileIsNotReplacedInAnOpenFolder) {
    Rechte("form", 0777);
    Rechte("form/A.fkr", 0444);
    EXPECT_EQ(Speichere("A.FKR"), 70);
    EXPECT_EQ(Speichere("Neu.FKR"), 0);
    EXPECT_EQ(ordner.lesen("form/A.fkr"), "alt");
    EXPECT_EQ(ordner.namen("form"), (std::set<std::string>{"A.fkr", "Neu.FKR"}));
}

TEST_F(Verschlossen, AnOpenFileInAClosedFolderIsWrittenInPlace) {
    Rechte("form", 0555);
    Rechte("form/A.fkr", 0666);
    struct stat vorher {};
    ASSERT_EQ(::stat(ordner.nativ("form/A.fkr").c_str(), &vorher), 0);
    EXPECT_EQ(Speichere("A.FKR"), 0);
    struct stat nachher {};
    ASSERT_EQ(::stat(ordner.nativ("form/A.fkr").c_str(), &nachher), 0);
    EXPECT_EQ(ordner.lesen("form/A.fkr"), "die neue Fassung");
    EXPECT_EQ(nachher.st_ino, vorher.st_ino);
}

TEST_F(Verschlossen, SomebodyElsesFileInAStickyFolderIsWrittenInPlace) {
    Rechte("form", 01777);
    Rechte("form/A.fkr", 0666);
    EXPECT_EQ(Speichere("A.FKR"), 0);
    EXPECT_EQ(ordner.lesen("form/A.fkr"), "die neue Fassung");
    EXPECT_EQ(ordner.namen("form"), std::set<std::string>{"A.fkr"});
}

TEST_F(Verschlossen, AFolderThatCanBeEnteredButNotListedTakesASave) {
    Rechte("form", 0333);
    Rechte("form/A.fkr", 0666);
    EXPECT_EQ(Speichere("A.fkr"), 0);
    EXPECT_EQ(ordner.lesen("form/A.fkr"), "die neue Fassung");
}

TEST_F(Verschlossen, AnotherGroupGainsNothingByASave) {
    // The file's group can't be given on, so its rights must not go to the group that the new file gets.
    Rechte("form", 0777);
    Rechte("form/A.fkr", 0676);
    EXPECT_EQ(Speichere("A.fkr"), 0);
    struct stat zustand {};
    ASSERT_EQ(::stat(ordner.nativ("form/A.fkr").c_str(), &zustand), 0);
    EXPECT_EQ(zustand.st_mode & 0777U, 0666U);
}

TEST(Voll, AFullDiskIsError61AndTheOldFileIsWhole) {
    const Probeordner ordner;
    std::filesystem::create_directory(ordner.nativ("platte"));
    const std::string alt(20000, 'a');
    const std::string gross(300000, 'n');
    const auto kleinePlatte = [&] {
        return ::unshare(CLONE_NEWNS) == 0 &&
               ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               ::mount("none", ordner.nativ("platte").c_str(), "tmpfs", 0, "size=128k") == 0;
    };
    const int nummer = ImKind(kleinePlatte, [&] {
        DateiSchreiben(ordner.eigen("platte/A.fkr"), alt);
        const int fehler = FehlerVon([&] { DateiSchreiben(ordner.eigen("platte/A.fkr"), gross); });
        const bool heil = ordner.lesen("platte/A.fkr") == alt && ordner.namen("platte").size() == 1;
        const int neuer = FehlerVon([&] { DateiSchreiben(ordner.eigen("platte/B.fkr"), gross); });
        if (!heil || neuer != fehler || ordner.namen("platte").size() != 1) {
            throw Laufzeitfehler(Fehler::TeilungDurchNull); // stands for "not whole"
        }
        throw Laufzeitfehler(static_cast<Fehler>(fehler));
    });
    if (nummer == keinUnterschied) {
        GTEST_SKIP() << "no small disk can be mounted here: not tested";
    }
    EXPECT_EQ(nummer, 61);
}

TEST(Voll, ALimitOnTheSizeOfFilesIsError61AndNotTheEndOfTheProgram) {
    const Probeordner ordner;
    const std::string alt(5000, 'a');
    ordner.schreiben("A.fkr", alt);
    const auto begrenzt = [] {
        const rlimit grenze{10000, 10000};
        return std::signal(SIGXFSZ, SIG_DFL) != SIG_ERR && ::setrlimit(RLIMIT_FSIZE, &grenze) == 0;
    };
    EXPECT_EQ(ImKind(begrenzt, [&] { DateiSchreiben(ordner.eigen("A.fkr"), std::string(50000, 'n')); }), 61);
    EXPECT_TRUE(ordner.lesen("A.fkr") == alt);
    EXPECT_EQ(ordner.namen(), std::set<std::string>{"A.fkr"});
}

} // namespace
