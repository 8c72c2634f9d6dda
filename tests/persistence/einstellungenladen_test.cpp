#include "persistence/einstellungenladen.h"

#include "core/zustand.h"
#include "persistence/einstellungsdatei.h"
#include "tests/hilfe/programmordner.h"
#include "vorgaben.h"

#include <gtest/gtest.h>

namespace {

const QString ini = QStringLiteral("CONFIG/Feldkranz.INI");

TEST(Einstellungen, TheFactoryFileReadsAndWritesBackByteForByte) {
    const Programmordner ordner;
    AllesLeeren();
    const QByteArray vorher = ordner.lesen(ini);
    EXPECT_EQ(Zeilenzahl(vorher.toStdString()), 88);
    EinstellungenLesen();
    EXPECT_EQ(PunkteA, 5);
    EXPECT_EQ(PunkteE, 10);
    EXPECT_EQ(FelderJ, 4);
    EXPECT_EQ(FelderVE, "2");
    EXPECT_EQ(OptionMaxFelder, 1);
    EXPECT_EQ(OptionDatei, 0);
    EXPECT_EQ(FarbeHintergrund, 7);
    EXPECT_EQ(Papierformat, "A4 quer");
    EinstellungenSchreiben();
    EXPECT_EQ(ordner.lesen(ini), vorher);
}

TEST(Einstellungen, WithoutAFileEverySettingIsZeroOrEmpty) {
    const Programmordner ordner;
    AllesLeeren();
    ordner.schreiben(ini, "");
    EinstellungenLesen();
    AppPfad += "\\NICHTDA";
    EXPECT_THROW(EinstellungenLesen(), Laufzeitfehler);
    EXPECT_EQ(FelderA, 0);
    EXPECT_EQ(FarbeHintergrund, 0);
    EXPECT_EQ(Papierformat, "");
    EXPECT_THROW(EinstellungenSchreiben(), Laufzeitfehler);
}

TEST(Einstellungen, AFileCutShortLeavesWhatWasRead) {
    const Programmordner ordner;
    AllesLeeren();
    ordner.schreiben(ini, ordner.lesen(ini).left(40));
    EXPECT_THROW(EinstellungenLesen(), Laufzeitfehler);
    EXPECT_EQ(PunkteA, 5);
    EXPECT_EQ(Papierformat, "");
}

} // namespace
