// The lists of names that the dialogs show.
#include "core/datei.h"
#include "tests/core/probeordner.h"

#include <gtest/gtest.h>

#include <array>

#include <sys/stat.h>

namespace {

TEST(Listen, NamesStandAsAGermanReaderExpects) {
    const Probeordner ordner;
    for (const char* name : {"zelt.fkr", "Äpfel.fkr", "apfel.FKR", "Zwei.fkr", "b.bak", "Birne", "10.fkr"}) {
        ordner.schreiben(name, "");
    }
    using Namen = std::vector<std::string>;
    EXPECT_EQ(DateienIn(ordner.eigen(""), "*.FKR"),
              (Namen{"10.fkr", "apfel.FKR", "Äpfel.fkr", "zelt.fkr", "Zwei.fkr"}));
    EXPECT_EQ(DateienIn(ordner.eigen(""), "*.BAK;*.txt"), Namen{"b.bak"});
    EXPECT_EQ(DateienIn(ordner.eigen(""), "*.*").size(), 7U);
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateienIn(ordner.eigen("fehlt"), "*.*")); }), 76);
}

TEST(Listen, AFolderWithoutPermissionIsError70) {
    const Probeordner ordner;
    std::filesystem::create_directory(ordner.nativ("zu"));
    ::chmod(ordner.nativ("zu").c_str(), 0);
    EXPECT_EQ(ImKind(OhneRechte, [&] { static_cast<void>(DateienIn(ordner.eigen("zu"), "*.*")); }), 70);
    ::chmod(ordner.nativ("zu").c_str(), 0700); // so that it can be cleared away
}

TEST(Listen, Patterns) {
    struct Zeile {
        const char* name;
        const char* muster;
        bool passt;
    };
    constexpr std::array tabelle{
        Zeile{"a.fkr", "*.FKR", true},
        Zeile{"a.fkr.bak", "*.FKR", false},
        Zeile{"a.fkr.fkr", "*.fkr", true},
        Zeile{"a", "*.*", true},
        Zeile{"a", "*.FKR", false},
        Zeile{"Ä.TXT", "ä.txt", true},
        Zeile{"abc", "a?c", true},
        Zeile{"ac", "a?c", false},
        Zeile{"abcbc", "a*bc", true},
        Zeile{"", "*", true},
        Zeile{"", "?", false},
        Zeile{"W_HB.TXT", "w_*.txt; *.ini", true},
        Zeile{"x.ini", "w_*.txt; *.ini", true},
        Zeile{"x.ini", "", false},
        Zeile{"aaaaaaaaaaaaaaaaaaaaaaaab", "*a*a*a*a*a*a*a*c", false},
    };
    for (const Zeile& zeile : tabelle) {
        EXPECT_EQ(MusterPasst(zeile.name, zeile.muster), zeile.passt) << zeile.name << " " << zeile.muster;
    }
}

} // namespace
