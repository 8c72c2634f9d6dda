// Names of the journals.
#include "persistence/journalname.h"

#include "persistence/rettungsname.h"

#include <gtest/gtest.h>

#include <map>

TEST(Journalname, ComesFromTheNameOfTheFile) {
    EXPECT_EQ(Journalname("ABEND.FKR"), "~ABEND.BAK");
    EXPECT_EQ(Journalname("abend.fkr", 2), "~abend2.BAK");
    EXPECT_EQ(Journalname("TI_HAUS.TXT"), "~TI_HAUS.BAK");
    EXPECT_EQ(Journalname("ohne"), "~ohne.BAK");
    EXPECT_EQ(Journalname("a.b.fkr"), "~a.b.BAK");
    EXPECT_EQ(Journalname(""), "~NEU.BAK");
    EXPECT_EQ(Journalname("", 12), "~NEU12.BAK");
}

TEST(Journalname, IsKnownWhateverItsCase) {
    EXPECT_TRUE(IstJournalname("~ABEND.BAK"));
    EXPECT_TRUE(IstJournalname("~abend.bak"));
    for (const char* name : {"ABEND.BAK", "~.BAK", "~ABEND.FKR", "~", "", "~BAK", ".~ABEND.BAK.lock"}) {
        EXPECT_FALSE(IstJournalname(name)) << name;
    }
}

TEST(Journalname, TellsWhoseJournalItIs) {
    EXPECT_TRUE(IstJournalVon("~ABEND.BAK", "abend.fkr"));
    EXPECT_TRUE(IstJournalVon("~abend17.bak", "ABEND.FKR"));
    EXPECT_TRUE(IstJournalVon("~NEU.BAK", ""));
    EXPECT_FALSE(IstJournalVon("~ABENDS.BAK", "ABEND.FKR"));
    EXPECT_FALSE(IstJournalVon("~ABEND.BAK", "MORGEN.FKR"));
    EXPECT_FALSE(IstJournalVon("ABEND.BAK", "ABEND.FKR"));
    EXPECT_FALSE(IstJournalVon("~NEU.BAK", "ALT.FKR"));
}

TEST(Journalname, StandsAheadOfTheOtherBackupsByItsTime) {
    std::vector<std::string> namen{"A.BAK", "UNGESICHERT.BAK", "~ABEND.BAK", "~b.bak", "Z.BAK"};
    const std::map<std::string, std::int64_t> zeiten{
        {"UNGESICHERT.BAK", 20}, {"~ABEND.BAK", 30}, {"~b.bak", 10}};
    RettungenVoranstellen(namen, [&](const std::string& name) { return zeiten.at(name); });
    EXPECT_EQ(namen, (std::vector<std::string>{"~ABEND.BAK", "UNGESICHERT.BAK", "~b.bak", "A.BAK", "Z.BAK"}));
}
