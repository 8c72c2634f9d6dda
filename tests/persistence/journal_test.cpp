// The journals on the disk: one a program, never over another one, and what a killed program leaves.
#include "persistence/journal.h"

#include "tests/core/probeordner.h"

#include <gtest/gtest.h>

#include <QFile>

#include <atomic>
#include <csignal>
#include <filesystem>

#include <sys/wait.h>
#include <unistd.h>

namespace {

class Journale : public ::testing::Test {
protected:
    void SetUp() override { ordner.schreiben("form/A.fkr", "alt"); }

    [[nodiscard]] Journalort Ort(const std::string& name = "A.fkr") const {
        return {QString::fromStdString(ordner.nativ("form")), name};
    }
    [[nodiscard]] QString Pfad(const std::string& name) const {
        return QString::fromStdString(ordner.nativ("form/" + name));
    }
    // A program that writes its journal and is killed.
    void Abgewuergt(const Journalort& ort, const std::string& bytes) const {
        const pid_t kind = ::fork();
        ASSERT_GE(kind, 0);
        if (kind == 0) {
            Journal journal({});
            journal.Schreiben(ort, [bytes] { return bytes; });
            journal.Abwarten();
            ::kill(::getpid(), SIGKILL);
        }
        int zustand = 0;
        ASSERT_EQ(::waitpid(kind, &zustand, 0), kind);
        ASSERT_TRUE(WIFSIGNALED(zustand));
    }
    [[nodiscard]] std::set<std::string> Namen() const { return ordner.namen("form"); }

    Probeordner ordner;
};

void Schreiben(Journal& journal, const Journalort& ort, const std::string& bytes) {
    journal.Schreiben(ort, [bytes] { return bytes; });
    journal.Abwarten();
}

} // namespace

TEST_F(Journale, AJournalLiesBesideItsFileUntilItGoes) {
    Journal journal({});
    Schreiben(journal, Ort(), "eins");
    EXPECT_EQ(ordner.lesen("form/~A.BAK"), "eins");
    EXPECT_TRUE(JournalInArbeit(Pfad("~A.BAK")));
    EXPECT_FALSE(JournalVerwaist(Pfad("~A.BAK")));
    Schreiben(journal, Ort(), "zwei");
    EXPECT_EQ(ordner.lesen("form/~A.BAK"), "zwei");
    EXPECT_EQ(ordner.lesen("form/A.fkr"), "alt");
    journal.Entfernen();
    journal.Abwarten();
    EXPECT_EQ(Namen(), std::set<std::string>{"A.fkr"});
    Schreiben(journal, Ort(""), "drei");
    EXPECT_EQ(ordner.lesen("form/~NEU.BAK"), "drei");
}

TEST_F(Journale, WhatIsStillToBeWrittenGoesWithIt) {
    Journal journal({});
    for (int i = 0; i < 100; ++i) {
        journal.Schreiben(Ort(), [i] { return std::to_string(i); });
        journal.Entfernen();
    }
    journal.Abwarten();
    EXPECT_EQ(Namen(), std::set<std::string>{"A.fkr"});
}

TEST_F(Journale, AnotherProgramAndAnOldJournalKeepTheirs) {
    Journal eines({});
    Schreiben(eines, Ort(), "eines");
    Journal anderes({});
    Schreiben(anderes, Ort(), "anderes");
    EXPECT_EQ(ordner.lesen("form/~A.BAK"), "eines");
    EXPECT_EQ(ordner.lesen("form/~A1.BAK"), "anderes");
    Abgewuergt(Ort(), "alt");
    EXPECT_EQ(ordner.lesen("form/~A2.BAK"), "alt");
    Journal viertes({});
    Schreiben(viertes, Ort(), "viertes");
    EXPECT_EQ(ordner.lesen("form/~A2.BAK"), "alt");
    EXPECT_EQ(ordner.lesen("form/~A3.BAK"), "viertes");
    eines.Entfernen();
    eines.Abwarten();
    EXPECT_FALSE(Namen().contains("~A.BAK"));
    EXPECT_TRUE(Namen().contains("~A1.BAK"));
}

TEST_F(Journale, AKilledProgramLeavesAJournalThatIsKnown) {
    Abgewuergt(Ort(), "ungesichert");
    EXPECT_TRUE(JournalVerwaist(Pfad("~A.BAK")));
    EXPECT_TRUE(JournalVerwaist(Pfad("~A.BAK"))); // asking takes nothing away
    EXPECT_FALSE(JournalInArbeit(Pfad("~A.BAK")));
    const std::string fuer = "a.FKR";
    const std::string andere = "B.FKR";
    const QString form = Ort().ordner;
    EXPECT_EQ(VerwaisteJournale(form).size(), 1U);
    EXPECT_EQ(VerwaisteJournale(form, &fuer).size(), 1U);
    EXPECT_TRUE(VerwaisteJournale(form, &andere).empty());
    EXPECT_TRUE(VerwaisteJournale(Pfad("gibtesnicht")).empty());
    // A backup of the user's own is none.
    ordner.schreiben("form/~C.BAK", "eigen");
    EXPECT_FALSE(JournalVerwaist(Pfad("~C.BAK")));
    EXPECT_FALSE(JournalInArbeit(Pfad("~C.BAK")));
}

TEST_F(Journale, WhatWasTakenOverGoesWithTheForm) {
    Abgewuergt(Ort(), "ungesichert");
    Journal journal({});
    journal.Uebernehmen(Pfad("~A.BAK"));
    journal.Abwarten();
    EXPECT_TRUE(JournalInArbeit(Pfad("~A.BAK")));
    Schreiben(journal, Ort(""), "weiter");
    EXPECT_EQ(ordner.lesen("form/~A.BAK"), "ungesichert");
    EXPECT_EQ(ordner.lesen("form/~NEU.BAK"), "weiter");
    journal.Entfernen();
    journal.Abwarten();
    EXPECT_EQ(Namen(), std::set<std::string>{"A.fkr"});
}

TEST_F(Journale, TakenOverAndLetGoInOneBreathItGoes) {
    Abgewuergt(Ort(), "ungesichert");
    Journal journal({});
    journal.Entfernen(); // of the form before
    journal.Uebernehmen(Pfad("~A.BAK"));
    journal.Entfernen();
    journal.Abwarten();
    EXPECT_EQ(Namen(), std::set<std::string>{"A.fkr"});
}

TEST_F(Journale, AnEndWithoutAnAnswerLeavesTheJournalWithItsMark) {
    {
        Journal journal({});
        journal.Schreiben(Ort(), [] { return std::string("offen"); });
    }
    EXPECT_EQ(ordner.lesen("form/~A.BAK"), "offen");
    EXPECT_TRUE(Namen().contains(".~A.BAK.lock"));
}

TEST_F(Journale, AFolderThatHasGoneIsToldOnceAndTheWorkGoesOn) {
    std::atomic<int> gemeldet = 0;
    std::atomic<int> nummer = 0;
    Journal journal([&](const Laufzeitfehler& fehler) {
        ++gemeldet;
        nummer = fehler.nummer();
    });
    Schreiben(journal, Ort(), "eins");
    std::filesystem::remove_all(ordner.nativ("form"));
    for (int i = 0; i < 5; ++i) {
        Schreiben(journal, Ort(), "zwei");
    }
    EXPECT_EQ(gemeldet, 1);
    EXPECT_EQ(nummer, 76);
    std::filesystem::create_directory(ordner.nativ("form"));
    Schreiben(journal, Ort(), "drei");
    EXPECT_EQ(ordner.lesen("form/~A.BAK"), "drei");
    std::filesystem::remove_all(ordner.nativ("form"));
    Schreiben(journal, Ort(), "vier");
    EXPECT_EQ(gemeldet, 2);
}
