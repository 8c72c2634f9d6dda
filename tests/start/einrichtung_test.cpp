// The person's program folder as it is made, upgraded and mended, on a real disk.
#include "start/startorte.h"
#include "tests/start/einrichtungshilfe.h"

#include <gtest/gtest.h>

namespace {

class Einrichten : public ::testing::Test {
protected:
    void SetUp() override { probe.Liefern(ersteFassung); }
    Lieferprobe probe;
};

TEST_F(Einrichten, TheFirstStartMakesTheFolderAndEverySubfolder) {
    EXPECT_FALSE(probe.Beginnen().fertig());
    EXPECT_EQ(probe.Einrichten(), 0);
    EXPECT_EQ(probe.Da(), ersteFassung);
    std::set<std::string> namen = probe.ordner.namen("heim/daten/Feldkranz");
    EXPECT_EQ(namen, (std::set<std::string>{".ausgeliefert", "BITMAP", "CONFIG", "KRANZ", "REGEL", "SOUND",
                                            "TEST", "WISSEN"}));
    EXPECT_TRUE(probe.Beginnen().fertig());
    EXPECT_TRUE(probe.Ungemeldet().empty());
}

TEST_F(Einrichten, WhatIsPutThereCanBeWrittenAlsoWhereTheDeliveredCannot) {
    std::filesystem::permissions(probe.ordner.nativ("lieferung/WISSEN/LAND/W_1.TXT"),
                                 std::filesystem::perms(0444));
    EXPECT_EQ(probe.Einrichten(), 0);
    const auto rechte =
        std::filesystem::status(probe.ordner.nativ("heim/daten/Feldkranz/WISSEN/LAND/W_1.TXT")).permissions();
    EXPECT_NE(rechte & std::filesystem::perms::owner_write, std::filesystem::perms::none);
}

TEST_F(Einrichten, TheProgressGoesFromNothingToAll) {
    Einrichtung einrichtung = probe.Beginnen();
    double vorher = einrichtung.prozent();
    EXPECT_EQ(vorher, 0.0);
    while (!einrichtung.fertig()) {
        einrichtung.Schritt();
        EXPECT_GT(einrichtung.prozent(), vorher);
        vorher = einrichtung.prozent();
    }
    EXPECT_EQ(vorher, 100.0);
}

TEST_F(Einrichten, ANewVersionBringsWhatIsNewAndTouchesNothingOfThePersons) {
    ASSERT_EQ(probe.Einrichten(), 0);
    probe.Schreiben("WISSEN/LAND/W_2.TXT", "meins");
    probe.Schreiben("KRANZ/Meiner.FKR", "Form");
    std::filesystem::remove(probe.ordner.nativ("heim/daten/Feldkranz/KRANZ/Abend.FKR"));
    probe.Liefern(zweiteFassung);
    EXPECT_EQ(probe.Einrichten(), 0);
    EXPECT_EQ(probe.Da(), (Lieferprobe::Inhalt{{"CONFIG/Feldkranz.INI", "6"},
                                               {"KRANZ/Lager.FKR", "Lager"},
                                               {"KRANZ/Meiner.FKR", "Form"},
                                               {"WISSEN/LAND/W_1.TXT", "eins 2"},
                                               {"WISSEN/LAND/W_2.TXT", "meins"},
                                               {"WISSEN/LAND/W_2.TXT.NEU", "zwei 2"}}));
    EXPECT_TRUE(probe.Beginnen().fertig());
    EXPECT_EQ(probe.Ungemeldet(), std::vector<std::string>{"WISSEN/LAND/W_2.TXT"});
    EXPECT_TRUE(probe.Ungemeldet().empty());
    EXPECT_TRUE(probe.Beginnen().fertig());
}

TEST_F(Einrichten, ADamagedFolderIsMadeGood) {
    ASSERT_EQ(probe.Einrichten(), 0);
    std::filesystem::remove_all(probe.ordner.nativ("heim/daten/Feldkranz/WISSEN"));
    std::filesystem::remove_all(probe.ordner.nativ("heim/daten/Feldkranz/SOUND"));
    EXPECT_FALSE(probe.Beginnen().fertig());
    EXPECT_EQ(probe.Einrichten(), 0);
    EXPECT_EQ(probe.Da(), ersteFassung);
    EXPECT_TRUE(std::filesystem::is_directory(probe.ordner.nativ("heim/daten/Feldkranz/SOUND")));
}

TEST_F(Einrichten, AFolderWithoutItsMarkKeepsWhatThePersonHas) {
    probe.Schreiben("WISSEN/LAND/W_1.TXT", "meins");
    probe.Schreiben("WISSEN/LAND/W_2.TXT", "zwei");
    probe.Schreiben("KRANZ/Abend.FKR", "meiner");
    EXPECT_EQ(probe.Einrichten(), 0);
    Lieferprobe::Inhalt soll = ersteFassung;
    soll["WISSEN/LAND/W_1.TXT"] = "meins";
    soll["WISSEN/LAND/W_1.TXT.NEU"] = "eins";
    soll["KRANZ/Abend.FKR"] = "meiner";
    EXPECT_EQ(probe.Da(), soll);
}

TEST_F(Einrichten, WhatCannotBeDeliveredIsReportedAndTheRestIsThere) {
    std::filesystem::remove(probe.ordner.nativ("lieferung/WISSEN/LAND/W_1.TXT"));
    Einrichtung einrichtung = probe.Beginnen();
    while (!einrichtung.fertig()) {
        einrichtung.Schritt();
    }
    ASSERT_TRUE(einrichtung.fehler());
    EXPECT_EQ(einrichtung.fehler()->grund.art(), Fehler::DateiNichtGefunden);
    EXPECT_EQ(einrichtung.fehler()->pfad, probe.ordner.eigen("heim/daten/Feldkranz/WISSEN/LAND/W_1.TXT"));
    EXPECT_EQ(probe.Da().size(), ersteFassung.size() - 1);
    probe.Liefern(ersteFassung);
    EXPECT_EQ(probe.Einrichten(), 0);
    EXPECT_EQ(probe.Da(), ersteFassung);
}

TEST_F(Einrichten, WithoutAListNothingIsDelivered) {
    std::filesystem::remove(probe.ordner.nativ("lieferung/LIEFERUNG"));
    EXPECT_EQ(probe.Einrichten(), 0);
    EXPECT_TRUE(probe.Da().empty());
}

class Orte : public ::testing::Test {
protected:
    [[nodiscard]] QString Nativ(const char* name) const { return QString::fromStdString(ordner.nativ(name)); }
    Probeordner ordner;
};

TEST_F(Orte, TheFolderWithTheProgramInItIsThePersons) {
    ordner.schreiben("bin/feldkranz", "");
    EXPECT_EQ(StartorteFinden(Nativ("bin"), Nativ("daten")), (Startorte{Nativ("bin"), {}, Nativ("bin")}));
}

TEST_F(Orte, AnInstalledProgramHasItsThingsInTheSystemsPlaces) {
    ordner.schreiben("bin/feldkranz", "");
    ordner.schreiben("share/feldkranz/LIEFERUNG", "");
    const Startorte orte = StartorteFinden(Nativ("bin"), Nativ("daten"));
    EXPECT_EQ(orte.programmordner, Nativ("daten/Feldkranz"));
    EXPECT_EQ(orte.lieferung, Nativ("share/feldkranz"));
    EXPECT_TRUE(orte.zusatzordner.startsWith(Nativ("lib")) && orte.zusatzordner.endsWith("/feldkranz"));
}

TEST_F(Orte, FoldersBesideTheProgramMakeItPortableWhateverIsInstalled) {
    for (const char* name : {"WISSEN", "CONFIG"}) {
        ordner.schreiben("share/feldkranz/LIEFERUNG", "");
        ordner.schreiben(std::string("bin/") + name + "/x", "");
        EXPECT_EQ(StartorteFinden(Nativ("bin"), Nativ("daten")).programmordner, Nativ("bin"));
        std::filesystem::remove_all(ordner.nativ("bin"));
    }
}

TEST_F(Orte, ThePersonsDataLieWhereTheSystemSaysUnlessThatIsNoPlace) {
    ::setenv("XDG_DATA_HOME", "/daten/hier", 1);
    EXPECT_EQ(Datenheim(), "/daten/hier");
    ::setenv("HOME", "/heim", 1);
    for (const char* nichts : {"", "hier"}) {
        ::setenv("XDG_DATA_HOME", nichts, 1);
        EXPECT_EQ(Datenheim(), "/heim/.local/share") << nichts;
    }
}

} // namespace
