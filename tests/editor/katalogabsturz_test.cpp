// What stands on the disk when the editor's save is killed or meets a full disk: the old catalogue or the new
// one, whole.
#include "core/datei.h"
#include "editor/katalogtext.h"
#include "tests/core/spur.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace {

std::string Fragen(int anzahl) {
    std::string bytes = "Knoten\r\n";
    for (int i = 1; i <= anzahl; ++i) {
        bytes += std::to_string(i) + "\r\nWas h\xE4lt fest?\r\nPalstek\r\n10\r\n";
    }
    return bytes;
}

const std::string alteFragen = Fragen(300);
const std::string neueFragen = alteFragen + std::string(laengeNeu, 'n') + "\r\n";

TEST(Katalogabsturz, KilledAtAnySystemCallOfItsSaveTheCatalogueIsWhole) {
    if (const std::string hindernis = SpurHindernis(); !hindernis.empty()) {
        GTEST_SKIP() << hindernis;
    }
    const Probeordner ordner;
    const auto speichere = [&ordner](const std::string& eingriff) {
        ordner.schreiben("HB/HB_KN.TXT", alteFragen);
        return Speichern(ordner, ordner.nativ("HB/HB_KN.TXT"), 'n', laengeNeu, eingriff);
    };
    const Spur ungestoert = speichere("");
    ASSERT_EQ(ungestoert.ergebnis, 0);
    ASSERT_TRUE(ordner.lesen("HB/HB_KN.TXT") == neueFragen);
    int alte = 0;
    int neue = 0;
    for (const Systemaufruf& aufruf : ungestoert.aufrufe) {
        const Spur spur = speichere(Eingriff(aufruf, "signal=KILL"));
        ASSERT_TRUE(spur.getoetet && spur.marken == 1) << aufruf.zeile;
        const std::string bytes = ordner.lesen("HB/HB_KN.TXT");
        EXPECT_TRUE(bytes == alteFragen || bytes == neueFragen) << aufruf.zeile;
        alte += bytes == alteFragen ? 1 : 0;
        neue += bytes == neueFragen ? 1 : 0;
    }
    EXPECT_GE(alte, 5);
    EXPECT_GE(neue, 1);
}

TEST(Katalogabsturz, ADiskThatIsFullLeavesTheOldCatalogueWhole) {
    const Probeordner ordner;
    ordner.schreiben("HB_KN.TXT", alteFragen);
    const auto begrenzt = [] {
        const rlimit grenze{8000, 8000};
        return std::signal(SIGXFSZ, SIG_DFL) != SIG_ERR && ::setrlimit(RLIMIT_FSIZE, &grenze) == 0;
    };
    const std::string pfad = ordner.eigen("HB_KN.TXT");
    const int fehler = ImKind(begrenzt, [&] {
        const Katalogtext gelesen = KatalogtextLesen(DateiLesen(pfad));
        DateiSchreiben(pfad, KatalogtextBytes(gelesen.marke, gelesen.text + "mehr"));
    });
    EXPECT_EQ(fehler, 61);
    EXPECT_TRUE(ordner.lesen("HB_KN.TXT") == alteFragen);
    EXPECT_EQ(ordner.namen(), std::set<std::string>{"HB_KN.TXT"});
}

TEST(Katalogabsturz, AFileWithoutPermissionIsReportedOnReadingAndSaving) {
    if (!AlsRoot()) {
        GTEST_SKIP() << "needs root to make a file of somebody else's: not tested";
    }
    const Probeordner ordner;
    ordner.schreiben("HB_KN.TXT", alteFragen);
    const std::string pfad = ordner.eigen("HB_KN.TXT");
    const auto rechte = [&](unsigned wert) {
        std::filesystem::permissions(ordner.nativ("HB_KN.TXT"), std::filesystem::perms(wert));
    };
    rechte(0600);
    EXPECT_EQ(ImKind(OhneRechte, [&] { (void)KatalogtextLesen(DateiLesen(pfad)); }), 52);
    rechte(0644);
    EXPECT_EQ(ImKind(OhneRechte, [&] { DateiSchreiben(pfad, KatalogtextBytes("Knoten", "weg")); }), 70);
    EXPECT_TRUE(ordner.lesen("HB_KN.TXT") == alteFragen);
}

} // namespace
