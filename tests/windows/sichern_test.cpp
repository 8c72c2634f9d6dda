// Saving on Windows: whole files whatever happens, and the errors of files that may not be written.
#include "core/datei.h"
#include "core/plattform_windows.h"
#include "tests/windows/windowsordner.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <gtest/gtest.h>

namespace {

using plattform::Systempfad;

std::wstring SystempfadVon(const Windowsordner& ordner, const char* name) {
    return Systempfad(ordner.nativ(QString::fromUtf8(name)));
}

TEST(Sichern, AnOldFileIsReplacedAndKeepsItsAttributesAndItsBirth) {
    const Windowsordner ordner;
    ordner.schreiben(QStringLiteral("abend.fkr"), "eine lange alte Fassung");
    const std::wstring pfad = SystempfadVon(ordner, "abend.fkr");
    ASSERT_TRUE(::SetFileAttributesW(pfad.c_str(), FILE_ATTRIBUTE_HIDDEN));
    DateiSchreiben(ordner.eigen("ABEND.FKR"), "neu");
    EXPECT_EQ(ordner.lesen(QStringLiteral("abend.fkr")), "neu");
    EXPECT_NE(::GetFileAttributesW(pfad.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
    EXPECT_EQ(ordner.namen(), QStringList{QStringLiteral("abend.fkr")});
}

TEST(Sichern, AWriteProtectedFileIsError70AndStays) {
    const Windowsordner ordner;
    ordner.schreiben(QStringLiteral("abend.fkr"), "alt");
    const std::wstring pfad = SystempfadVon(ordner, "abend.fkr");
    ASSERT_TRUE(::SetFileAttributesW(pfad.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(FehlerVon([&] { DateiSchreiben(ordner.eigen("abend.fkr"), "neu"); }), 70);
    EXPECT_EQ(FehlerVon([&] { DateiLoeschen(ordner.eigen("abend.fkr")); }), 70);
    EXPECT_EQ(ordner.lesen(QStringLiteral("abend.fkr")), "alt");
    EXPECT_EQ(ordner.namen().size(), 1);
    ASSERT_TRUE(::SetFileAttributesW(pfad.c_str(), FILE_ATTRIBUTE_NORMAL));
    DateiSchreiben(ordner.eigen("abend.fkr"), "neu");
    EXPECT_EQ(ordner.lesen(QStringLiteral("abend.fkr")), "neu");
}

TEST(Sichern, AFileThatAnotherProgramKeepsForItselfIsError70OnWritingAnd52OnReading) {
    const Windowsordner ordner;
    ordner.schreiben(QStringLiteral("abend.fkr"), "alt");
    {
        const plattform::Griff belegt(::CreateFileW(SystempfadVon(ordner, "abend.fkr").c_str(), GENERIC_READ,
                                                    0, nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(belegt.offen());
        EXPECT_EQ(FehlerVon([&] { DateiSchreiben(ordner.eigen("abend.fkr"), "neu"); }), 70);
        EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiLesen(ordner.eigen("abend.fkr"))); }), 52);
        EXPECT_EQ(FehlerVon([&] { DateiLoeschen(ordner.eigen("abend.fkr")); }), 70);
    }
    EXPECT_EQ(ordner.lesen(QStringLiteral("abend.fkr")), "alt");
    EXPECT_EQ(ordner.namen().size(), 1);
}

TEST(Sichern, AFileThatAnotherProgramOnlyKeepsInItsPlaceIsOverwrittenThere) {
    const Windowsordner ordner;
    ordner.schreiben(QStringLiteral("abend.fkr"), "eine lange alte Fassung");
    const plattform::Griff gelesen(::CreateFileW(SystempfadVon(ordner, "abend.fkr").c_str(), GENERIC_READ,
                                                 FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                                 0, nullptr));
    ASSERT_TRUE(gelesen.offen());
    DateiSchreiben(ordner.eigen("abend.fkr"), "neu");
    EXPECT_EQ(ordner.lesen(QStringLiteral("abend.fkr")), "neu");
    EXPECT_EQ(ordner.namen(), QStringList{QStringLiteral("abend.fkr")});
}

TEST(Sichern, AScanOfAMomentHindersNoSave) {
    const Windowsordner ordner;
    ordner.schreiben(QStringLiteral("abend.fkr"), "alt");
    const std::wstring pfad = SystempfadVon(ordner, "abend.fkr");
    QThread* waechter = QThread::create([&pfad] {
        const plattform::Griff blick(::CreateFileW(pfad.c_str(), GENERIC_READ,
                                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                                   0, nullptr));
        ::Sleep(80);
    });
    waechter->start();
    ::Sleep(20);
    DateiSchreiben(ordner.eigen("abend.fkr"), "neu");
    EXPECT_EQ(ordner.lesen(QStringLiteral("abend.fkr")), "neu");
    waechter->wait();
    delete waechter;
}

TEST(Sichern, AFullDiskIsError61AndTheOldFileStays) {
    const QString platte = qEnvironmentVariable("FELDKRANZ_KLEINE_PLATTE");
    if (platte.isEmpty()) {
        GTEST_SKIP() << "no small disk here";
    }
    const std::string pfad = EigenerPfad(platte) + "\\abend.fkr";
    const std::string alt(20000, 'a');
    DateiSchreiben(pfad, alt);
    EXPECT_EQ(FehlerVon([&] { DateiSchreiben(pfad, std::string(60000, 'b')); }), 61);
    EXPECT_EQ(DateiLesen(pfad), alt);
    EXPECT_EQ(DateienIn(EigenerPfad(platte), "*"), std::vector<std::string>{"abend.fkr"});
    DateiSchreiben(pfad, std::string(20000, 'c'));
    EXPECT_EQ(DateiLesen(pfad), std::string(20000, 'c'));
}

TEST(Reste, GoWhenNobodyHasThemOpen) {
    const Windowsordner ordner;
    for (const char* name : {".feldkranz-1f.neu", ".feldkranz-2f.neu", ".feldkranz-x.neu", "abend.fkr"}) {
        ordner.schreiben(QString::fromUtf8(name), "x");
    }
    ordner.schreiben(QStringLiteral("KRANZ/.feldkranz-3f.neu"), "x");
    {
        const plattform::Griff offen(::CreateFileW(SystempfadVon(ordner, ".feldkranz-2f.neu").c_str(),
                                                   GENERIC_READ | GENERIC_WRITE, plattform::allesTeilen,
                                                   nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(offen.offen());
        ResteEntfernen(ordner.eigen(""));
        EXPECT_EQ(ordner.namen(),
                  (QStringList{QStringLiteral(".feldkranz-2f.neu"), QStringLiteral(".feldkranz-x.neu"),
                               QStringLiteral("KRANZ"), QStringLiteral("abend.fkr")}));
    }
    EXPECT_TRUE(ordner.namen(QStringLiteral("KRANZ")).isEmpty());
    ResteEntfernen(ordner.eigen(""));
    EXPECT_FALSE(ordner.namen().contains(QStringLiteral(".feldkranz-2f.neu")));
}

// A process saves again and again, and is killed at some moment.
TEST(Sichern, AKilledProgramLeavesAWholeFileAndAScrapAtMost) {
    const Windowsordner ordner;
    const std::string pfad = ordner.eigen("abend.fkr");
    int geschrieben = 0;
    for (int mal = 0; mal < 30; ++mal) {
        QProcess probe;
        probe.start(QStringLiteral(FELDKRANZ_SPEICHERSCHLEIFE), {QString::fromStdString(pfad)});
        ASSERT_TRUE(probe.waitForStarted());
        ASSERT_TRUE(probe.waitForReadyRead(20000)) << "it never saved";
        ::Sleep(QRandomGenerator::global()->bounded(60U));
        probe.kill();
        ASSERT_TRUE(probe.waitForFinished());
        const std::string bytes = DateiLesen(pfad);
        ASSERT_FALSE(bytes.empty());
        EXPECT_EQ(bytes.size(), 100000U + static_cast<unsigned char>(bytes.front()));
        EXPECT_EQ(bytes.find_first_not_of(bytes.front()), std::string::npos);
        EXPECT_LE(ordner.namen().size(), 2);
        geschrieben += bytes.front() != 'a' ? 1 : 0;
        ResteEntfernen(ordner.eigen(""));
        EXPECT_EQ(ordner.namen(), QStringList{QStringLiteral("abend.fkr")});
    }
    EXPECT_GT(geschrieben, 0);
}

} // namespace
