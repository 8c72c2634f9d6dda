#include "persistence/einstellungenladen.h"

#include "core/programmstand.h"
#include "persistence/einstellungsdatei.h"
#include "tests/hilfe/programmordner.h"
#include "vorgaben.h"

#include <gtest/gtest.h>

namespace {

const QString ini = QStringLiteral("CONFIG/Feldkranz.INI");

TEST(Einstellungen, TheFactoryFileReadsAndWritesBackByteForByte) {
    const Programmordner ordner;
    Spiel = {};
    const QByteArray vorher = ordner.lesen(ini);
    EXPECT_EQ(Zeilenzahl(vorher.toStdString()), 88);
    EinstellungenLesen();
    EXPECT_EQ(Spiel.Punkte[Spezialart::Aktion], 5);
    EXPECT_EQ(Spiel.Punkte[Spezialart::Ereignis], 10);
    EXPECT_EQ(Spiel.Felder[Spezialart::Joker], 4);
    EXPECT_EQ(Spiel.FelderVE, "2");
    EXPECT_TRUE(Spiel.OptionMaxFelder);
    EXPECT_FALSE(Spiel.OptionDatei);
    EXPECT_EQ(Spiel.FarbeHintergrund, 7);
    EXPECT_EQ(Spiel.Papierformat, "A4 quer");
    EinstellungenSchreiben();
    EXPECT_EQ(ordner.lesen(ini), vorher);
}

TEST(Einstellungen, WithoutAFileEverySettingIsZeroOrEmpty) {
    const Programmordner ordner;
    Spiel = {};
    ordner.schreiben(ini, "");
    EinstellungenLesen();
    Stand.AppPfad += "\\NICHTDA";
    EXPECT_THROW(EinstellungenLesen(), Laufzeitfehler);
    EXPECT_EQ(Spiel.Felder[Spezialart::Aktion], 0);
    EXPECT_EQ(Spiel.FarbeHintergrund, 0);
    EXPECT_EQ(Spiel.Papierformat, "");
    EXPECT_THROW(EinstellungenSchreiben(), Laufzeitfehler);
}

TEST(Einstellungen, AFileCutShortLeavesWhatWasRead) {
    const Programmordner ordner;
    Spiel = {};
    ordner.schreiben(ini, ordner.lesen(ini).left(40));
    EXPECT_THROW(EinstellungenLesen(), Laufzeitfehler);
    EXPECT_EQ(Spiel.Punkte[Spezialart::Aktion], 5);
    EXPECT_EQ(Spiel.Papierformat, "");
}

} // namespace
