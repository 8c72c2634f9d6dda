// Handing a file over to the program that runs: live, killed and hanging ones.
#include "start/empfang.h"
#include "tests/core/probeordner.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace std::chrono_literals;

class Empfangen : public ::testing::Test {
protected:
    void SetUp() override { ::setenv("XDG_RUNTIME_DIR", ordner.nativ("lauf").c_str(), 1); }
    Empfangen() {
        ordner.schreiben("lauf/x", "");
        std::filesystem::permissions(ordner.nativ("lauf"), std::filesystem::perms(0700));
        ort = ordner.nativ("lauf/ort");
    }
    [[nodiscard]] QString Ort() const { return QString::fromStdString(ort); }

    // What handing over comes to, done by a thread of its own as by another program.
    [[nodiscard]] bool Uebergeben(const QString& datei) const {
        bool angenommen = false;
        QThread* const faden = QThread::create([&] { angenommen = DateiUebergeben(Ort(), datei, 5s); });
        faden->start();
        while (!faden->isFinished()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        }
        faden->wait();
        delete faden;
        return angenommen;
    }

    Probeordner ordner;
    std::string ort;
};

TEST_F(Empfangen, AFileComesToTheOneThatReceivesLetterForLetter) {
    QStringList gekommen;
    const Empfang empfang(Ort(), [&](const QString& datei) { gekommen += datei; });
    ASSERT_TRUE(empfang.laeuft());
    const QString roh = QStringLiteral("/x/") + QChar(0xDCE4) + QStringLiteral(".FKR"); // a byte, no UTF-8
    const QStringList dateien{QStringLiteral("/a b/Übung\n1.FKR"), roh, QString(20000, QLatin1Char('y'))};
    for (const QString& datei : dateien) {
        EXPECT_TRUE(Uebergeben(datei));
    }
    EXPECT_EQ(gekommen, dateien);
}

TEST_F(Empfangen, WithoutAReceiverItIsSaidAtOnce) {
    QElapsedTimer uhr;
    uhr.start();
    EXPECT_FALSE(DateiUebergeben(Ort(), QStringLiteral("/a.FKR")));
    EXPECT_FALSE(DateiUebergeben(QString(), QStringLiteral("/a.FKR")));
    EXPECT_LT(uhr.elapsed(), 500);
}

TEST_F(Empfangen, TheFirstOneReceivesAndTheNextWhenItHasGone) {
    int erster = 0;
    int zweiter = 0;
    auto erste = std::make_unique<Empfang>(Ort(), [&](const QString&) { ++erster; });
    {
        const Empfang zweite(Ort(), [&](const QString&) { ++zweiter; });
        EXPECT_FALSE(zweite.laeuft());
        EXPECT_TRUE(Uebergeben(QStringLiteral("/a.FKR")));
    }
    EXPECT_TRUE(Uebergeben(QStringLiteral("/a.FKR"))); // the end of the second took nothing away
    erste.reset();
    EXPECT_FALSE(Uebergeben(QStringLiteral("/a.FKR")));
    const Empfang dritte(Ort(), [&](const QString&) { ++zweiter; });
    EXPECT_TRUE(Uebergeben(QStringLiteral("/a.FKR")));
    EXPECT_EQ(erster, 2);
    EXPECT_EQ(zweiter, 1);
}

TEST_F(Empfangen, ThePlaceOfAKilledProgramIsTakenOver) {
    int angenommen = 0;
    const pid_t kind = ::fork();
    if (kind == 0) {
        const Empfang empfang(Ort(), [](const QString&) {});
        ::_exit(empfang.laeuft() ? 0 : 1); // nothing is cleared away
    }
    int zustand = 0;
    ASSERT_EQ(::waitpid(kind, &zustand, 0), kind);
    ASSERT_TRUE(WIFEXITED(zustand) && WEXITSTATUS(zustand) == 0);
    ASSERT_TRUE(ordner.namen("lauf").contains("ort"));
    EXPECT_FALSE(DateiUebergeben(Ort(), QStringLiteral("/a.FKR")));
    const Empfang empfang(Ort(), [&](const QString&) { ++angenommen; });
    ASSERT_TRUE(empfang.laeuft());
    EXPECT_TRUE(Uebergeben(QStringLiteral("/a.FKR")));
    EXPECT_EQ(angenommen, 1);
}

TEST_F(Empfangen, AHangingProgramIsNotWaitedForAndOpensNothingWhenItWakes) {
    int angenommen = 0;
    const Empfang empfang(Ort(), [&](const QString&) { ++angenommen; });
    QElapsedTimer uhr;
    uhr.start();
    EXPECT_FALSE(DateiUebergeben(Ort(), QStringLiteral("/a.FKR"))); // no event of ours runs meanwhile
    EXPECT_LT(uhr.elapsed(), 2000);
    EXPECT_TRUE(Uebergeben(QStringLiteral("/b.FKR")));
    EXPECT_EQ(angenommen, 1);
}

TEST_F(Empfangen, WhoSendsNonsenseOrNothingDisturbsNobody) {
    int angenommen = 0;
    const Empfang empfang(Ort(), [&](const QString&) { ++angenommen; });
    QLocalSocket stumm;
    stumm.connectToServer(Ort());
    QLocalSocket laut;
    laut.connectToServer(Ort());
    laut.write(QByteArray(200000, '\xFF'));
    EXPECT_TRUE(Uebergeben(QStringLiteral("/a.FKR")));
    laut.abort();
    EXPECT_TRUE(Uebergeben(QStringLiteral("/a.FKR")));
    EXPECT_GE(angenommen, 2);
}

TEST_F(Empfangen, ThePlaceBelongsToTheProgramFolderAndItsLinksMeanTheSame) {
    ordner.schreiben("a/x", "");
    ordner.schreiben("b/x", "");
    std::filesystem::create_directory_symlink(ordner.nativ("a"), ordner.nativ("link"));
    const auto ortVon = [this](const char* name) {
        return Empfangsort(QString::fromStdString(ordner.nativ(name)));
    };
    EXPECT_NE(ortVon("a"), ortVon("b"));
    EXPECT_EQ(ortVon("a"), ortVon("link"));
    EXPECT_TRUE(ortVon("a").startsWith(QString::fromStdString(ordner.nativ("lauf/feldkranz-"))));
}

} // namespace
