// The person's program folder on a disk that fails, or in a program that is killed, at each system call.
#include "tests/start/einrichtungshilfe.h"
#include "tests/stoerung/stoerung.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>

namespace {

constexpr int hoechstensAufrufe = 2000;

// Thousands of files are forced to the disk here: one in memory spares the real one.
const bool imSpeicher = std::filesystem::is_directory("/dev/shm") && ::setenv("TMPDIR", "/dev/shm", 1) == 0;

class Einrichtungsstoerung : public ::testing::Test {
protected:
    // First delivered, then one file changed by the person, so that every way of the upgrade is gone.
    void Anfang(bool neu) const {
        std::filesystem::remove_all(probe.ordner.nativ("heim"));
        std::filesystem::create_directories(probe.ordner.nativ("heim"));
        if (!neu) {
            probe.Liefern(ersteFassung);
            ASSERT_EQ(probe.Einrichten(), 0);
            probe.Schreiben("WISSEN/LAND/W_2.TXT", "meins");
        }
        probe.Liefern(zweiteFassung);
    }
    [[nodiscard]] static Lieferprobe::Inhalt Soll(bool neu) {
        Lieferprobe::Inhalt soll = zweiteFassung;
        if (!neu) {
            soll["CONFIG/Feldkranz.INI"] = "6";
            soll["KRANZ/Abend.FKR"] = "Abend";
            soll["WISSEN/LAND/W_2.TXT"] = "meins";
            soll["WISSEN/LAND/W_2.TXT.NEU"] = "zwei 2";
        }
        return soll;
    }
    // Each file that is there is whole, of one version or the other.
    void GanzPruefen(bool neu, int nummer) const {
        for (const auto& [pfad, bytes] : probe.Da()) {
            const auto alt = ersteFassung.find(pfad);
            const bool ganz = bytes == Soll(neu)[pfad] || (alt != ersteFassung.end() && bytes == alt->second);
            EXPECT_TRUE(ganz) << nummer << ' ' << pfad << ": " << bytes;
        }
    }
    // The next start makes it good, and tells of what lies beside once.
    void GutPruefen(bool neu, int nummer) const {
        EXPECT_EQ(probe.Einrichten(), 0) << nummer;
        EXPECT_EQ(probe.Da(), Soll(neu)) << nummer;
        EXPECT_EQ(probe.Ungemeldet().size(), neu ? 0U : 1U) << nummer;
        EXPECT_TRUE(probe.Beginnen().fertig()) << nummer;
    }
    [[nodiscard]] std::string Heim() const { return probe.ordner.nativ("heim"); }

    Lieferprobe probe;
};

} // namespace

TEST_F(Einrichtungsstoerung, KilledAtAnyCallTheNextStartMakesItGood) {
    int getoetete = 0;
    for (const bool neu : {true, false}) {
        bool getoetet = true;
        for (int nummer = 1; getoetet && nummer < hoechstensAufrufe; ++nummer) {
            Anfang(neu);
            const pid_t kind = ::fork();
            ASSERT_GE(kind, 0);
            if (kind == 0) {
                int aendernde = 0; // between two of them the disk stays as it is
                const Stoerung stoerung({Heim()}, [&, nummer](const Aufruf& aufruf) {
                    aendernde += aufruf.aendernd ? 1 : 0;
                    if (aendernde == nummer) {
                        ::kill(::getpid(), SIGKILL);
                    }
                    return 0;
                });
                static_cast<void>(probe.Einrichten());
                ::_exit(0);
            }
            int zustand = 0;
            ASSERT_EQ(::waitpid(kind, &zustand, 0), kind);
            getoetet = WIFSIGNALED(zustand);
            getoetete += getoetet ? 1 : 0;
            GanzPruefen(neu, nummer);
            GutPruefen(neu, nummer);
        }
        EXPECT_FALSE(getoetet);
    }
    EXPECT_GT(getoetete, 40);
}

TEST_F(Einrichtungsstoerung, WhicheverCallFailsTheNextStartMakesItGood) {
    int gescheiterte = 0;
    for (const auto& [neu, fehlernummer] : {std::pair{true, EIO}, std::pair{false, EACCES}}) {
        for (int nummer = 1, anzahl = 1; nummer <= anzahl && nummer < hoechstensAufrufe; ++nummer) {
            Anfang(neu);
            {
                const Stoerung stoerung({Heim()}, [nummer, grund = fehlernummer](const Aufruf& aufruf) {
                    return aufruf.nummer == nummer ? grund : 0;
                });
                gescheiterte += probe.Einrichten() == 0 ? 0 : 1;
                anzahl = std::max(anzahl, static_cast<int>(stoerung.aufrufe().size()));
            }
            GanzPruefen(neu, nummer);
            GutPruefen(neu, nummer);
        }
    }
    EXPECT_GT(gescheiterte, 50);
}

TEST_F(Einrichtungsstoerung, OnADiskThatIsFullFromAnyCallOnItIsToldAndMadeGoodLater) {
    const auto schreibt = [](const Aufruf& aufruf) {
        return aufruf.name == "write" || aufruf.name == "mkdir" || aufruf.anlegend;
    };
    for (const bool neu : {true, false}) {
        int anzahl = 1; // of the calls that want room
        for (int ab = 1; ab <= anzahl && ab < hoechstensAufrufe; ++ab) {
            Anfang(neu);
            int gezaehlt = 0;
            {
                const Stoerung stoerung({Heim()}, [&](const Aufruf& aufruf) {
                    gezaehlt += schreibt(aufruf) ? 1 : 0;
                    return schreibt(aufruf) && gezaehlt >= ab ? ENOSPC : 0;
                });
                const int gemeldet = probe.Einrichten();
                EXPECT_EQ(gemeldet, gezaehlt >= ab ? 61 : 0) << ab;
            }
            anzahl = std::max(anzahl, ab + (gezaehlt >= ab ? 1 : 0));
            GanzPruefen(neu, ab);
            GutPruefen(neu, ab);
        }
        EXPECT_GT(anzahl, 5);
    }
}
