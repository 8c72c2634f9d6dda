// Reading, saving and the small file operations, with the run-time errors they end in.
#include "core/datei.h"
#include "tests/core/probeordner.h"

#include <gtest/gtest.h>

#include <array>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/xattr.h>

namespace {

using namespace std::string_literals;

void SockelAnlegen(const std::string& pfad) {
    const int sockel = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    pfad.copy(&adresse.sun_path[0], sizeof adresse.sun_path - 1);
    ASSERT_EQ(::bind(sockel, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse), 0) << pfad;
    ::close(sockel);
}

// A folder with one of everything that is no file to read or to write.
class Ungeeignete : public ::testing::Test {
protected:
    void SetUp() override {
        ordner.schreiben("Datei.fkr", "x");
        std::filesystem::create_directory(ordner.nativ("Ordner.fkr"));
        ASSERT_EQ(::mkfifo(ordner.nativ("Rohr.fkr").c_str(), 0666), 0);
        SockelAnlegen(ordner.nativ("Sockel.fkr"));
        std::filesystem::create_symlink("Ring.fkr", ordner.nativ("Ring.fkr"));
        std::filesystem::create_symlink("Nirgends.fkr", ordner.nativ("Leer.fkr"));
        std::filesystem::create_symlink("/dev/zero", ordner.nativ("Null.fkr"));
    }
    Probeordner ordner;
};

TEST_F(Ungeeignete, ReadingTellsWhyByTheNumber) {
    const std::vector<std::pair<std::string, int>> tabelle{
        {"", 52}, // the folder itself
        {"Fehlt.fkr", 53},
        {"Fehlt\\Datei.fkr", 53},
        {"Datei.fkr\\Datei.fkr", 53},
        {"Leer.fkr", 53},
        {"Ordner.fkr", 52},
        {"Rohr.fkr", 52},
        {"Sockel.fkr", 52},
        {"Ring.fkr", 52},
        {"Null.fkr", 52},
        {std::string(300, 'x') + ".fkr", 52},
        {"a\0b.fkr"s, 52},
    };
    for (const auto& zeile : tabelle) {
        const std::string& name = zeile.first;
        EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiLesen(ordner.eigen("") + name)); }), zeile.second)
            << name;
    }
    EXPECT_EQ(FehlerVon([] { static_cast<void>(DateiLesen("")); }), 52);
    EXPECT_EQ(FehlerVon([] { static_cast<void>(DateiLesen("\\dev\\zero")); }), 52);
    EXPECT_EQ(FehlerVon([] { static_cast<void>(DateiLesen("\\dev\\stdin")); }), 52);
}

TEST_F(Ungeeignete, SavingTellsWhyByTheNumberAndTouchesNothing) {
    const std::set<std::string> vorher = ordner.namen();
    const std::vector<std::pair<std::string, int>> tabelle{
        {"", 75},           {"Fehlt\\Neu.fkr", 76}, {"Datei.fkr\\Neu.fkr", 76},
        {"Ordner.fkr", 75}, {"Rohr.fkr", 75},       {"Sockel.fkr", 75},
        {"Ring.fkr", 52},   {"Null.fkr", 75},       {std::string(300, 'x') + ".fkr", 52},
        {"a\0b.fkr"s, 52},
    };
    for (const auto& zeile : tabelle) {
        const std::string& name = zeile.first;
        EXPECT_EQ(FehlerVon([&] { DateiSchreiben(ordner.eigen("") + name, "neu"); }), zeile.second) << name;
    }
    EXPECT_EQ(FehlerVon([] { DateiSchreiben("", "neu"); }), 52);
    EXPECT_EQ(ordner.namen(), vorher);
}

TEST_F(Ungeeignete, OnlyFilesAndFoldersAreListed) {
    ordner.schreiben("Wirklich.fkr", "x");
    std::filesystem::create_symlink("Wirklich.fkr", ordner.nativ("Verweis.fkr"));
    ordner.schreiben(".versteckt.fkr", "x");
    EXPECT_EQ(DateienIn(ordner.eigen(""), "*.FKR"),
              (std::vector<std::string>{"Datei.fkr", "Verweis.fkr", "Wirklich.fkr"}));
    EXPECT_EQ(OrdnerIn(ordner.eigen("")), std::vector<std::string>{"Ordner.fkr"});
}

TEST_F(Ungeeignete, DateiDaIsTrueForEverythingThatASaveWouldMeetButAFolder) {
    EXPECT_TRUE(DateiDa(ordner.eigen("Datei.fkr")));
    EXPECT_TRUE(DateiDa(ordner.eigen("Rohr.fkr")));
    for (const char* name : {"Ordner.fkr", "Fehlt.fkr", "Leer.fkr", "Ring.fkr", ""}) {
        EXPECT_FALSE(DateiDa(ordner.eigen(name))) << name;
    }
    EXPECT_FALSE(DateiDa(""));
    EXPECT_FALSE(DateiDa("a\0b"s));
    EXPECT_TRUE(OrdnerDa(ordner.eigen("ORDNER.FKR")));
    EXPECT_FALSE(OrdnerDa(ordner.eigen("Datei.fkr")));
}

TEST(Lesen, FilesOfTheSystemsOwnNeitherHangNorFillTheMemory) {
    EXPECT_FALSE(DateiLesen("\\proc\\self\\status").empty()); // tells size 0 and has more
    for (const char* pfad : {"\\proc\\kmsg", "\\proc\\kcore", "\\proc\\self\\mem", "\\proc\\kpagecount"}) {
        // Which of them can be read at all is the system's affair; that the call comes back is ours.
        const int nummer = FehlerVon([&] { static_cast<void>(DateiLesen(pfad)); });
        EXPECT_TRUE((std::set<int>{0, 7, 52, 53, 57}.contains(nummer))) << pfad << ": " << nummer;
    }
}

TEST(Lesen, EveryByteComesBackWhateverTheLength) {
    const Probeordner ordner;
    for (const std::size_t laenge : {0U, 1U, 4095U, 4096U, 4097U, 8192U, 100000U, 3000000U}) {
        std::string bytes(laenge, '\0');
        for (std::size_t i = 0; i < laenge; ++i) {
            bytes[i] = static_cast<char>(i * 31U % 251U);
        }
        ordner.schreiben("a.fkr", bytes);
        EXPECT_TRUE(DateiLesen(ordner.eigen("A.FKR")) == bytes) << laenge;
    }
}

TEST(Lesen, AFileBeyondTheLimitIsError7AndNotTakenIntoTheMemory) {
    const Probeordner ordner;
    ordner.schreiben("gross.fkr", "x");
    std::filesystem::resize_file(ordner.nativ("gross.fkr"), std::uintmax_t{1} << 40U); // a hole, no bytes
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiLesen(ordner.eigen("gross.fkr"))); }), 7);
}

TEST(Lesen, AFileWithoutPermissionIsError52) {
    const Probeordner ordner;
    ordner.schreiben("zu.fkr", "x");
    ::chmod(ordner.nativ("zu.fkr").c_str(), 0);
    EXPECT_EQ(ImKind(OhneRechte, [&] { static_cast<void>(DateiLesen(ordner.eigen("zu.fkr"))); }), 52);
}

TEST(Schreiben, ANewFileHoldsTheBytesAndTheUsualPermissions) {
    const Probeordner ordner;
    const mode_t maske = ::umask(027);
    DateiSchreiben(ordner.eigen("Neu.fkr"), "a\r\n\0ä"s);
    ::umask(maske);
    EXPECT_EQ(ordner.lesen("Neu.fkr"), "a\r\n\0ä"s);
    struct stat zustand {};
    ASSERT_EQ(::stat(ordner.nativ("Neu.fkr").c_str(), &zustand), 0);
    EXPECT_EQ(zustand.st_mode & 0777U, 0640U);
    EXPECT_EQ(ordner.namen(), std::set<std::string>{"Neu.fkr"});
}

TEST(Schreiben, AnOldFileKeepsItsPermissionsOwnerAndAttributes) {
    const Probeordner ordner;
    ordner.schreiben("alt.fkr", "eine lange alte Fassung");
    const std::string pfad = ordner.nativ("alt.fkr");
    const uid_t besitzer = AlsRoot() ? 65534 : ::geteuid();
    ASSERT_EQ(::chown(pfad.c_str(), besitzer, static_cast<gid_t>(-1)), 0);
    ASSERT_EQ(::chmod(pfad.c_str(), 0604), 0);
    const bool attribute = ::setxattr(pfad.c_str(), "user.notiz", "x", 1, 0) == 0;
    DateiSchreiben(ordner.eigen("ALT.FKR"), "neu");
    struct stat zustand {};
    ASSERT_EQ(::stat(pfad.c_str(), &zustand), 0);
    EXPECT_EQ(zustand.st_mode & 0777U, 0604U);
    EXPECT_EQ(zustand.st_uid, besitzer);
    EXPECT_EQ(ordner.lesen("alt.fkr"), "neu");
    std::array<char, 4> wert{};
    EXPECT_EQ(::getxattr(pfad.c_str(), "user.notiz", wert.data(), wert.size()), attribute ? 1 : -1);
}

TEST(Schreiben, ALinkGoesOnPointingToTheFile) {
    const Probeordner ordner;
    ordner.schreiben("fern/echt.fkr", "alt");
    std::filesystem::create_symlink("fern/echt.fkr", ordner.nativ("eins.fkr"));
    std::filesystem::create_symlink(ordner.nativ("eins.fkr"), ordner.nativ("zwei.fkr"));
    std::filesystem::create_symlink("fern/spaeter.fkr", ordner.nativ("drei.fkr"));
    DateiSchreiben(ordner.eigen("ZWEI.FKR"), "neu");
    DateiSchreiben(ordner.eigen("drei.fkr"), "erst jetzt");
    EXPECT_EQ(ordner.lesen("fern/echt.fkr"), "neu");
    EXPECT_EQ(ordner.lesen("fern/spaeter.fkr"), "erst jetzt");
    for (const char* name : {"eins.fkr", "zwei.fkr", "drei.fkr"}) {
        EXPECT_TRUE(std::filesystem::is_symlink(ordner.nativ(name))) << name;
    }
    EXPECT_EQ(ordner.namen("fern"), (std::set<std::string>{"echt.fkr", "spaeter.fkr"}));
}

TEST(Schreiben, TheLongestNameAndPathCanBeSavedAgain) {
    const Probeordner ordner;
    const std::string name = std::string(251, 'n') + ".fkr";
    std::string tief;
    while (ordner.nativ(tief).size() + 256 + 202 < 4095) {
        tief += std::string(200, 'd') + "/";
    }
    ordner.schreiben(tief + name, "alt");
    DateiSchreiben(ordner.eigen(tief + name), "neu");
    EXPECT_EQ(DateiLesen(ordner.eigen(tief + name)), "neu");
}

TEST(Ablage, CopyingReplacesTheTargetAndKeepsTheSource) {
    const Probeordner ordner;
    ordner.schreiben("a.fkr", "neu");
    ordner.schreiben("a.BAK", "alt");
    DateiKopieren(ordner.eigen("A.FKR"), ordner.eigen("A.BAK"));
    EXPECT_EQ(ordner.lesen("a.BAK"), "neu");
    EXPECT_EQ(ordner.lesen("a.fkr"), "neu");
    DateiKopieren(ordner.eigen("a.fkr"), ordner.eigen("a.fkr"));
    EXPECT_EQ(ordner.lesen("a.fkr"), "neu");
    EXPECT_EQ(FehlerVon([&] { DateiKopieren(ordner.eigen("b.fkr"), ordner.eigen("a.fkr")); }), 53);
    EXPECT_EQ(ordner.lesen("a.fkr"), "neu");
}

TEST(Ablage, FilesAndFoldersComeAndGo) {
    const Probeordner ordner;
    OrdnerAnlegen(ordner.eigen("Übung"));
    EXPECT_TRUE(OrdnerDa(ordner.eigen("ÜBUNG")));
    EXPECT_EQ(FehlerVon([&] { OrdnerAnlegen(ordner.eigen("übung")); }), 75);
    EXPECT_EQ(FehlerVon([&] { OrdnerAnlegen(ordner.eigen("a/b")); }), 76);
    ordner.schreiben("Übung/a.fkr", "x");
    EXPECT_EQ(FehlerVon([&] { OrdnerLoeschen(ordner.eigen("Übung")); }), 75);
    EXPECT_EQ(FehlerVon([&] { DateiLoeschen(ordner.eigen("Übung")); }), 75);
    DateiLoeschen(ordner.eigen("ÜBUNG/A.FKR"));
    EXPECT_EQ(FehlerVon([&] { DateiLoeschen(ordner.eigen("ÜBUNG/A.FKR")); }), 53);
    OrdnerLoeschen(ordner.eigen("ÜBUNG"));
    EXPECT_EQ(FehlerVon([&] { OrdnerLoeschen(ordner.eigen("Übung")); }), 76);
    EXPECT_TRUE(ordner.namen().empty());
}

TEST(Ablage, AFolderTakesFilesWhereOneCanBeMade) {
    const Probeordner ordner;
    ordner.schreiben("zu/a.fkr", "x");
    EXPECT_TRUE(OrdnerBeschreibbar(ordner.eigen("")));
    EXPECT_FALSE(OrdnerBeschreibbar(ordner.eigen("fehlt")));
    EXPECT_FALSE(OrdnerBeschreibbar(ordner.eigen("zu/a.fkr")));
    EXPECT_FALSE(OrdnerBeschreibbar("\\proc")); // no rights help there
    EXPECT_EQ(ordner.namen("zu"), std::set<std::string>{"a.fkr"});
}

TEST(Ablage, SizeAndDateOfAFile) {
    const Probeordner ordner;
    ordner.schreiben("a.fkr", "12345");
    const std::array<timespec, 2> zeit{timespec{1000000000, 0}, timespec{1000000000, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, ordner.nativ("a.fkr").c_str(), zeit.data(), 0), 0);
    ASSERT_EQ(::setenv("TZ", "UTC", 1), 0);
    ::tzset();
    EXPECT_EQ(DateiDatum(ordner.eigen("a.fkr")), "09.09.2001 01:46:40");
    EXPECT_EQ(DateiGroesse(ordner.eigen("a.fkr")), 5);
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiDatum(ordner.eigen("b.fkr"))); }), 53);
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiGroesse(ordner.eigen("b.fkr"))); }), 53);
}

} // namespace
