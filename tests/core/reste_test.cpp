// What the saves of killed programs left beside their files.
#include "core/datei.h"
#include "tests/core/probeordner.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>

namespace {

TEST(Reste, GoFromTheFolderAndFromThoseBeneath) {
    const Probeordner ordner;
    for (const char* name : {".feldkranz-0.neu", ".feldkranz-1a2b3c4d5e6f7a8b.neu", "KRANZ/.feldkranz-2.neu",
                             "KRANZ/LAGER/2026/.feldkranz-3.neu"}) {
        ordner.schreiben(name, "halb");
    }
    ResteEntfernen(ordner.eigen(""));
    EXPECT_EQ(ordner.namen(), std::set<std::string>{"KRANZ"});
    EXPECT_EQ(ordner.namen("KRANZ"), std::set<std::string>{"LAGER"});
    EXPECT_TRUE(ordner.namen("KRANZ/LAGER/2026").empty());
}

TEST(Reste, AreToldByTheirWholeName) {
    const Probeordner ordner;
    std::set<std::string> namen{"A.FKR",
                                "UNGESICHERT.BAK",
                                "UNGESICHERT1.BAK",
                                ".feldkranz-.neu",
                                ".feldkranz-neu",
                                ".feldkranz-xy.neu",
                                ".feldkranz-1A.neu",
                                ".feldkranz-12345678901234567.neu",
                                ".feldkranz-1.neu.txt",
                                "feldkranz-1.neu",
                                ".Feldkranz-1.neu"};
    for (const std::string& name : namen) {
        ordner.schreiben(name, "bleibt");
    }
    ordner.schreiben(".feldkranz-2.neu/x", "a folder of that name");
    namen.insert(".feldkranz-2.neu");
    std::filesystem::create_symlink(ordner.nativ("A.FKR"), ordner.nativ(".feldkranz-3.neu"));
    namen.insert(".feldkranz-3.neu");
    ResteEntfernen(ordner.eigen(""));
    EXPECT_EQ(ordner.namen(), namen);
}

TEST(Reste, AFileThatAProgramIsWritingStaysUntilThatHasGone) {
    const Probeordner ordner;
    ordner.schreiben(".feldkranz-1.neu", "halb");
    const int datei = ::open(ordner.nativ(".feldkranz-1.neu").c_str(), O_WRONLY);
    ASSERT_EQ(::flock(datei, LOCK_EX), 0);
    ResteEntfernen(ordner.eigen(""));
    EXPECT_EQ(ordner.namen(), std::set<std::string>{".feldkranz-1.neu"});
    ::close(datei); // as the end of its program does
    ResteEntfernen(ordner.eigen(""));
    EXPECT_TRUE(ordner.namen().empty());
}

TEST(Reste, AStartTakesNoSaveOfAnotherProgramItsFileAway) {
    const Probeordner ordner;
    std::atomic<bool> fertig = false;
    std::thread start([&] {
        while (!fertig) {
            ResteEntfernen(ordner.eigen(""));
        }
    });
    constexpr std::array namen{"A.FKR", "B.FKR"};
    int gescheitert = 0;
    for (std::size_t i = 0; i < 400; ++i) {
        const std::string bytes(20000, i % 2 == 0 ? 'a' : 'b');
        gescheitert += FehlerVon([&] { DateiSchreiben(ordner.eigen(namen.at(i % 2)), bytes); }) != 0 ? 1 : 0;
        EXPECT_TRUE(ordner.lesen(namen.at(i % 2)) == bytes) << i;
    }
    fertig = true;
    start.join();
    EXPECT_EQ(gescheitert, 0);
    EXPECT_EQ(ordner.namen(), (std::set<std::string>{"A.FKR", "B.FKR"}));
}

TEST(Reste, AFolderThatIsntThereIsNoMatter) {
    const Probeordner ordner;
    ResteEntfernen(ordner.eigen("NICHTDA"));
    ResteEntfernen("");
    EXPECT_TRUE(ordner.namen().empty());
}

} // namespace
