// The journal on a disk that fails, or in a program that is killed, at each system call of its writing.
#include "persistence/journal.h"
#include "tests/core/probeordner.h"
#include "tests/stoerung/stoerung.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int hoechstensAufrufe = 200;

class Journalstoerung : public ::testing::Test {
protected:
    void SetUp() override { ordner.schreiben("form/A.fkr", "form"); }

    [[nodiscard]] Journalort Ort() const { return {QString::fromStdString(ordner.nativ("form")), "A.fkr"}; }
    [[nodiscard]] std::string Bytes() const {
        return ordner.namen("form").contains("~A.BAK") ? ordner.lesen("form/~A.BAK") : "";
    }
    void Schreiben(Journal& journal, const std::string& bytes) const {
        journal.Schreiben(Ort(), [bytes] { return bytes; });
        journal.Abwarten();
    }
    // What lies in the folder beside form, journal and its mark.
    [[nodiscard]] std::set<std::string> Reste() const {
        std::set<std::string> namen = ordner.namen("form");
        for (const char* name : {"A.fkr", "~A.BAK", ".~A.BAK.lock"}) {
            namen.erase(name);
        }
        return namen;
    }

    Probeordner ordner;
};

} // namespace

TEST_F(Journalstoerung, WhicheverCallFailsTheJournalIsWholeAndTheNextOneComesAbout) {
    int gescheiterte = 0;
    for (const int fehlernummer : {ENOSPC, EIO, EACCES, EROFS, ENOENT, EDQUOT}) {
        for (int nummer = 1, anzahl = 1; nummer <= anzahl && nummer < hoechstensAufrufe; ++nummer) {
            std::atomic<int> gemeldet = 0;
            Journal journal([&gemeldet](const Laufzeitfehler&) { ++gemeldet; });
            Schreiben(journal, "alt");
            ASSERT_EQ(Bytes(), "alt");
            bool verhindert = false; // the removal of a scrap
            {
                const Stoerung stoerung(
                    {ordner.nativ("form")},
                    [&](const Aufruf& aufruf) {
                        verhindert =
                            verhindert || (aufruf.nummer == nummer && aufruf.name.starts_with("unlink"));
                        return aufruf.nummer == nummer ? fehlernummer : 0;
                    },
                    Faeden::Alle);
                Schreiben(journal, "neu");
                anzahl = std::max(anzahl, static_cast<int>(stoerung.aufrufe().size()));
            }
            EXPECT_TRUE(Bytes() == "alt" || Bytes() == "neu") << nummer << ' ' << fehlernummer;
            EXPECT_LE(gemeldet, 1);
            EXPECT_TRUE(gemeldet == 1 || Bytes() == "neu") << nummer << ' ' << fehlernummer;
            EXPECT_TRUE(verhindert || Reste().empty()) << nummer << ' ' << fehlernummer;
            gescheiterte += gemeldet;
            Schreiben(journal, "weiter");
            EXPECT_EQ(Bytes(), "weiter") << nummer << ' ' << fehlernummer;
            journal.Entfernen();
            journal.Abwarten();
            EXPECT_EQ(Bytes(), "") << nummer << ' ' << fehlernummer;
        }
    }
    EXPECT_GT(gescheiterte, 30);
}

TEST_F(Journalstoerung, KilledAtAnyCallTheOldOrTheNewJournalIsWhole) {
    int alte = 0;
    int neue = 0;
    bool getoetet = true;
    for (int nummer = 1; getoetet && nummer < hoechstensAufrufe; ++nummer) {
        const pid_t kind = ::fork();
        ASSERT_GE(kind, 0);
        if (kind == 0) {
            Journal journal({});
            Schreiben(journal, "alt");
            const Stoerung stoerung(
                {ordner.nativ("form")},
                [nummer](const Aufruf& aufruf) {
                    if (aufruf.nummer == nummer) {
                        ::kill(::getpid(), SIGKILL);
                    }
                    return 0;
                },
                Faeden::Alle);
            Schreiben(journal, "neu");
            ::_exit(0);
        }
        int zustand = 0;
        ASSERT_EQ(::waitpid(kind, &zustand, 0), kind);
        getoetet = WIFSIGNALED(zustand);
        EXPECT_TRUE(Bytes() == "alt" || Bytes() == "neu") << nummer << ": " << Bytes();
        alte += Bytes() == "alt" ? 1 : 0;
        neue += Bytes() == "neu" ? 1 : 0;
        EXPECT_TRUE(JournalVerwaist(QString::fromStdString(ordner.nativ("form/~A.BAK")))) << nummer;
        for (const std::string& name : ordner.namen("form")) {
            if (name != "A.fkr") {
                ::unlink(ordner.nativ("form/" + name).c_str());
            }
        }
    }
    EXPECT_FALSE(getoetet);
    EXPECT_GE(alte, 5);
    EXPECT_GE(neue, 2);
}
