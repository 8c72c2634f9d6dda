// What only Windows has: its names, its paths, its drives, and the run-time errors that its codes become.
#include "core/datei.h"
#include "core/plattform.h"
#include "core/plattform_windows.h"
#include "tests/windows/windowsordner.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// A drive letter for a folder, as a stick that is put in and pulled out. Wine knows letters by links in its
// own folder, Windows by a definition.
class Laufwerksbuchstabe {
public:
    Laufwerksbuchstabe(wchar_t buchstabe, const QString& ordner)
        : name_{buchstabe, L':'}, ordner_(QDir::toNativeSeparators(ordner)) {
        Einlegen();
    }
    ~Laufwerksbuchstabe() { Abziehen(); }
    Laufwerksbuchstabe(const Laufwerksbuchstabe&) = delete;
    Laufwerksbuchstabe& operator=(const Laufwerksbuchstabe&) = delete;

    void Einlegen() {
        if (links_.isEmpty()) {
            ::DefineDosDeviceW(0, name_.c_str(), ordner_.toStdWString().c_str());
        } else {
            const QString ziel =
                links_ + QString(ordner_).replace(u'\\', u'/').replace(0, 2, ordner_.left(2).toLower());
            Rufen({QStringLiteral("/bin/ln"), QStringLiteral("-sfn"), ziel, Link()});
        }
        Abwarten(true);
    }
    void Abziehen() {
        if (links_.isEmpty()) {
            ::DefineDosDeviceW(DDD_REMOVE_DEFINITION, name_.c_str(), nullptr);
        } else {
            Rufen({QStringLiteral("/bin/rm"), QStringLiteral("-f"), Link()});
        }
        Abwarten(false);
    }

private:
    [[nodiscard]] QString Link() const { return links_ + QString::fromStdWString(name_).toLower(); }
    static void Rufen(const QStringList& befehl) {
        QProcess::execute(QStringLiteral("start"), QStringList{QStringLiteral("/unix")} + befehl);
    }
    void Abwarten(bool da) const {
        for (int i = 0; i < 500 && (::GetDriveTypeW((name_ + L"\\").c_str()) != DRIVE_NO_ROOT_DIR) != da;
             ++i) {
            ::Sleep(10);
        }
    }

    std::wstring name_;
    QString ordner_;
    QString links_ = qEnvironmentVariableIsSet("WINEPREFIX")
                         ? qEnvironmentVariable("WINEPREFIX") + QStringLiteral("/dosdevices/")
                         : QString();
};

TEST(Fehlercodes, BecomeTheNumbersOfTheTable) {
    struct Zeile {
        DWORD code;
        int lesen, schreiben;
    };
    const std::vector<Zeile> tabelle{
        {ERROR_FILE_NOT_FOUND, 53, 76},
        {ERROR_PATH_NOT_FOUND, 53, 76},
        {ERROR_INVALID_DRIVE, 53, 76},
        {ERROR_DIRECTORY, 53, 76},
        {ERROR_FILE_EXISTS, 52, 75},
        {ERROR_DIR_NOT_EMPTY, 52, 75},
        {ERROR_ACCESS_DENIED, 52, 70},
        {ERROR_WRITE_PROTECT, 52, 70},
        {ERROR_SHARING_VIOLATION, 52, 70},
        {ERROR_LOCK_VIOLATION, 52, 70},
        {ERROR_INVALID_NAME, 52, 52},
        {ERROR_FILENAME_EXCED_RANGE, 52, 52},
        {ERROR_CANT_RESOLVE_FILENAME, 52, 52},
        {ERROR_DISK_FULL, 57, 61},
        {ERROR_HANDLE_DISK_FULL, 57, 61},
        {1295, 57, 61}, // the user's share of the disk
        {ERROR_FILE_TOO_LARGE, 7, 61},
        {ERROR_NOT_ENOUGH_MEMORY, 7, 7},
        {ERROR_CRC, 57, 57},
        {ERROR_IO_DEVICE, 57, 57},
        {ERROR_GEN_FAILURE, 57, 57},
        {ERROR_DEV_NOT_EXIST, 68, 68},
        {ERROR_DEVICE_NOT_CONNECTED, 68, 68},
        {ERROR_BAD_NETPATH, 68, 68},
        {ERROR_NETNAME_DELETED, 68, 68},
        {ERROR_NOT_READY, 71, 71},
        {ERROR_NO_MEDIA_IN_DRIVE, 71, 71},
        {ERROR_BUSY, 71, 71},
        {ERROR_FILE_CORRUPT, 72, 72},
        {ERROR_DISK_CORRUPT, 72, 72},
        {0xDEAD, 57, 57},
    };
    for (const Zeile& zeile : tabelle) {
        EXPECT_EQ(plattform::Lesefehler(zeile.code).nummer(), zeile.lesen) << zeile.code;
        EXPECT_EQ(plattform::Schreibfehler(zeile.code).nummer(), zeile.schreiben) << zeile.code;
    }
}

TEST(Systempfad, IsWholeAndOfAnyLength) {
    using plattform::Systempfad;
    EXPECT_EQ(Systempfad(QStringLiteral("C:/a/./b/../c")), L"\\\\?\\C:\\a\\c");
    EXPECT_EQ(Systempfad(QStringLiteral("c:")), L"\\\\?\\c:\\");
    EXPECT_EQ(Systempfad(QStringLiteral("//server/share/x")), L"\\\\?\\UNC\\server\\share\\x");
    EXPECT_EQ(Systempfad(QStringLiteral("\\\\?\\C:\\a")), L"\\\\?\\C:\\a");
    EXPECT_EQ(Systempfad(QStringLiteral("\\\\?\\UNC\\server\\share\\x")), L"\\\\?\\UNC\\server\\share\\x");
    const std::wstring lang(400, L'x');
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(Systempfad(QString::fromStdWString(L"C:/" + lang))); }), 52);
    const QString tief = QStringLiteral("/abcdefghi").repeated(100);
    EXPECT_EQ(Systempfad(QStringLiteral("C:") + tief).size(), 4U + 2U + 1000U);
}

TEST(Namen, ThatNothingCanHaveAreError52WhereverTheyStand) {
    const Windowsordner ordner;
    const QStringList vorher = ordner.namen();
    for (const char* name :
         {"CON", "con.fkr", "NUL", "nul.FKR", "COM1.FKR", "AUX", "a:b.FKR", "ABEND.FKR:strom", "ABEND.",
          "ABEND.FKR ", "a?b.FKR", "a*.FKR", "a<b", "a|b", "NUL\\a.FKR", "a.\\b.FKR", "CON.x\\b"}) {
        const std::string pfad = ordner.eigen("") + "\\" + name;
        EXPECT_EQ(FehlerVon([&] { DateiSchreiben(pfad, "x"); }), 52) << name;
        EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiLesen(pfad)); }), 52) << name;
        EXPECT_EQ(FehlerVon([&] { OrdnerAnlegen(pfad); }), 52) << name;
        EXPECT_FALSE(DateiDa(pfad)) << name;
        EXPECT_FALSE(OrdnerDa(pfad)) << name;
    }
    EXPECT_EQ(ordner.namen(), vorher);
}

TEST(Namen, OfTheLongestKindAreTakenAndLongerOnesAreError52) {
    const Windowsordner ordner;
    const std::string laengster = std::string(251, 'n') + ".fkr";
    DateiSchreiben(ordner.eigen(laengster), "x");
    EXPECT_EQ(DateiLesen(ordner.eigen(laengster)), "x");
    EXPECT_EQ(FehlerVon([&] { DateiSchreiben(ordner.eigen("n" + laengster), "x"); }), 52);
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiLesen(ordner.eigen("n" + laengster))); }), 52);
}

TEST(Namen, AreFoundWhateverTheirCase) {
    const Windowsordner ordner;
    OrdnerAnlegen(ordner.eigen("Übung"));
    DateiSchreiben(ordner.eigen("Übung/Größe.fkr"), "x");
    EXPECT_EQ(DateiLesen(ordner.eigen("ÜBUNG\\GRÖßE.FKR")), "x");
    DateiSchreiben(ordner.eigen("ÜBUNG/GRÖßE.FKR"), "neu");
    EXPECT_EQ(DateienIn(ordner.eigen("übung"), "*.FKR"), std::vector<std::string>{"Größe.fkr"});
    EXPECT_EQ(FehlerVon([&] { OrdnerAnlegen(ordner.eigen("übung")); }), 75);
}

TEST(Pfade, BeyondTheSystemsOldLimitAreLikeOthers) {
    const Windowsordner ordner;
    std::string tief = "Ordner";
    OrdnerAnlegen(ordner.eigen(tief));
    while (tief.size() < 600) {
        tief += "/" + std::string(60, 'd') + "ü";
        OrdnerAnlegen(ordner.eigen(tief));
    }
    DateiSchreiben(ordner.eigen(tief + "/Abend.fkr"), "eins");
    DateiSchreiben(ordner.eigen(tief + "/ABEND.FKR"), "zwei");
    EXPECT_EQ(DateiLesen(ordner.eigen(tief + "/abend.fkr")), "zwei");
    EXPECT_EQ(DateienIn(ordner.eigen(tief), "*.fkr"), std::vector<std::string>{"Abend.fkr"});
    EXPECT_EQ(DateiGroesse(ordner.eigen(tief + "/abend.fkr")), 4);
    DateiLoeschen(ordner.eigen(tief + "/abend.fkr"));
    OrdnerLoeschen(ordner.eigen(tief));
    EXPECT_FALSE(OrdnerDa(ordner.eigen(tief)));
}

TEST(Ordner, TellWhyByTheNumber) {
    const Windowsordner ordner;
    ordner.schreiben(QStringLiteral("Datei.fkr"), "x");
    OrdnerAnlegen(ordner.eigen("Ordner.fkr"));
    EXPECT_EQ(FehlerVon([&] { DateiSchreiben(ordner.eigen("Ordner.fkr"), "x"); }), 75);
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiLesen(ordner.eigen("Ordner.fkr"))); }), 52);
    EXPECT_EQ(FehlerVon([&] { DateiLoeschen(ordner.eigen("Ordner.fkr")); }), 75);
    EXPECT_EQ(FehlerVon([&] { DateiSchreiben(ordner.eigen("Fehlt/a.fkr"), "x"); }), 76);
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiLesen(ordner.eigen("Fehlt/a.fkr"))); }), 53);
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiLesen(ordner.eigen("fehlt.fkr"))); }), 53);
    EXPECT_EQ(FehlerVon([&] { DateiSchreiben(ordner.eigen("Datei.fkr/a.fkr"), "x"); }), 76);
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateiLesen(ordner.eigen("Datei.fkr/a.fkr"))); }), 53);
    EXPECT_EQ(FehlerVon([&] { DateiLoeschen(ordner.eigen("fehlt.fkr")); }), 53);
    EXPECT_EQ(FehlerVon([&] { OrdnerLoeschen(ordner.eigen("fehlt")); }), 76);
    EXPECT_EQ(FehlerVon([&] { OrdnerAnlegen(ordner.eigen("fehlt/a")); }), 76);
    EXPECT_EQ(FehlerVon([&] { static_cast<void>(DateienIn(ordner.eigen("fehlt"), "*")); }), 76);
    ordner.schreiben(QStringLiteral("Ordner.fkr/darin"), "x");
    EXPECT_EQ(FehlerVon([&] { OrdnerLoeschen(ordner.eigen("Ordner.fkr")); }), 75);
}

TEST(Ordner, WhatTheSystemHidesIsInNoList) {
    const Windowsordner ordner;
    ordner.schreiben(QStringLiteral("offen.fkr"), "x");
    ordner.schreiben(QStringLiteral("verborgen.fkr"), "x");
    ASSERT_TRUE(::SetFileAttributesW(
        plattform::Systempfad(ordner.nativ(QStringLiteral("verborgen.fkr"))).c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(DateienIn(ordner.eigen(""), "*.fkr"), std::vector<std::string>{"offen.fkr"});
    EXPECT_EQ(DateiLesen(ordner.eigen("verborgen.fkr")), "x");
}

TEST(Laufwerke, TheSystemsOwnStandsFirstAndOneThatComesIsThere) {
    const Windowsordner ordner;
    const auto buchstaben = [] {
        std::vector<std::string> namen;
        for (const Laufwerk& laufwerk : Laufwerke()) {
            namen.push_back(laufwerk.name.toStdString());
        }
        return namen;
    };
    ASSERT_FALSE(buchstaben().empty());
    EXPECT_EQ(buchstaben().front(), "C:");
    ASSERT_EQ(std::ranges::count(buchstaben(), "Y:"), 0);
    const Laufwerksbuchstabe stick(L'Y', ordner.nativ({}));
    EXPECT_EQ(std::ranges::count(buchstaben(), "Y:"), 1);
}

TEST(Laufwerke, OneThatGoesIsError76AndOneThatIsBackTakesTheSave) {
    const Windowsordner ordner;
    Laufwerksbuchstabe stick(L'Y', ordner.nativ({}));
    DateiSchreiben("Y:\\abend.fkr", "eins");
    stick.Abziehen();
    EXPECT_EQ(FehlerVon([] { DateiSchreiben("Y:\\abend.fkr", "zwei"); }), 76);
    EXPECT_EQ(FehlerVon([] { static_cast<void>(DateiLesen("Y:\\abend.fkr")); }), 53);
    EXPECT_EQ(FehlerVon([] { static_cast<void>(DateienIn("Y:\\", "*")); }), 76);
    EXPECT_FALSE(OrdnerDa("Y:\\"));
    stick.Einlegen();
    EXPECT_TRUE(OrdnerDa("Y:\\"));
    EXPECT_TRUE(OrdnerDa("Y:"));
    DateiSchreiben("Y:\\abend.fkr", "zwei");
    EXPECT_EQ(ordner.lesen(QStringLiteral("abend.fkr")), "zwei");
}

TEST(Laufwerke, AServerThatIsntThereIsAnErrorThatComesBackSoon) {
    const int lesen = FehlerVon([] { static_cast<void>(DateiLesen("\\\\gibtesnicht\\frei\\a.fkr")); });
    const int schreiben = FehlerVon([] { DateiSchreiben("\\\\gibtesnicht\\frei\\a.fkr", "x"); });
    EXPECT_TRUE(lesen == 53 || lesen == 68) << lesen;
    EXPECT_TRUE(schreiben == 76 || schreiben == 68) << schreiben;
}

} // namespace
