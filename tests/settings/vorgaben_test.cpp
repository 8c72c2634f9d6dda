#include "settings/vorgaben.h"

#include "core/laufzeitfehler.h"
#include "settings/darstellung.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

Spielwerte JedemEinEigenerWert() {
    Spielwerte spiel;
    spiel.Punkte = {1, 2, 3, 4, 5};
    spiel.Felder = {6, 7, 8, 9, 10};
    spiel.PunkteV = {11, 12, 13, 14, 15};
    spiel.FelderV = {16, 0, 18, 19, 20};
    spiel.FelderVE = "17";
    return spiel;
}

} // namespace

TEST(Vorgaben, TheEditCopiesAreFilledInTheOrderOfTheScreen) {
    const Vorgaben vorgaben = VorgabenAus(JedemEinEigenerWert());
    EXPECT_EQ(vorgaben.Punkte, (Artwerte{1, 2, 3, 4, 5}));
    EXPECT_EQ(vorgaben.Felder, (Artwerte{6, 7, 8, 9, 10}));
    EXPECT_EQ(vorgaben.PunkteV, (Artwerte{11, 12, 13, 14, 15}));
    EXPECT_EQ(vorgaben.FelderV, (Artwerte{16, 17, 18, 19, 20}));
}

TEST(Vorgaben, TheStandardValuesComeInAloneAndLeaveTheOthers) {
    Vorgaben vorgaben;
    vorgaben.Punkte = {21, 22, 23, 24, 25};
    StandardHolen(vorgaben, JedemEinEigenerWert());
    EXPECT_EQ(vorgaben.Punkte, (Artwerte{21, 22, 23, 24, 25}));
    EXPECT_EQ(vorgaben.PunkteV, (Artwerte{11, 12, 13, 14, 15}));
    EXPECT_EQ(vorgaben.FelderV, (Artwerte{16, 17, 18, 19, 20}));
}

TEST(Vorgaben, EachWayBackWritesItsOwnValuesAndNoOthers) {
    const Vorgaben vorgaben{
        {21, 22, 23, 24, 25}, {26, 27, 28, 29, 30}, {31, 32, 33, 34, 35}, {36, 37, 38, 39, 40}};
    Spielwerte spiel = JedemEinEigenerWert();
    VorgabenUebernehmen(vorgaben, spiel);
    Spielwerte soll = JedemEinEigenerWert();
    soll.Punkte = {21, 22, 23, 24, 25};
    soll.Felder = {26, 27, 28, 29, 30};
    EXPECT_EQ(spiel, soll);
    StandardUebernehmen(vorgaben, spiel);
    soll.PunkteV = {31, 32, 33, 34, 35};
    soll.FelderV = {36, 0, 38, 39, 40};
    soll.FelderVE = "37";
    EXPECT_EQ(spiel, soll);
}

TEST(Vorgaben, AStandardCountThatHoldsNothingOrNoNumberCountsAsNone) {
    Spielwerte spiel = JedemEinEigenerWert();
    for (const std::optional<std::string>& wert :
         {std::optional<std::string>(), std::optional<std::string>(""), std::optional<std::string>("\"2\""),
          std::optional<std::string>("99999")}) {
        spiel.FelderVE = wert;
        EXPECT_EQ(VorgabenAus(spiel).FelderV[Spezialart::Ereignis], 0) << wert.value_or("nothing");
    }
}

TEST(Vorgaben, FiveValuesAndNoOthersArePutBack) {
    Spielwerte vorher;
    vorher.FragenProWissen = 3;
    vorher.AnzahlWissen = 4;
    vorher.OptionMaxFelder = vorher.OptionMaxSpezial = true;
    Spielwerte spiel = JedemEinEigenerWert();
    spiel.FragenProWissen = 5;
    spiel.AnzahlWissen = 6;
    spiel.OptionMaxWissen = true;
    spiel.OptionTitel = true;
    Spielwerte soll = spiel;
    RegelnZuruecksetzen(vorher, spiel);
    soll.FragenProWissen = 3;
    soll.AnzahlWissen = 4;
    soll.OptionMaxFelder = soll.OptionMaxSpezial = true;
    soll.OptionMaxWissen = false;
    EXPECT_EQ(spiel, soll);
}

TEST(Vorgaben, TheTotalIsTheProductAndNeverWraps) {
    Spielwerte spiel;
    spiel.FragenProWissen = 4;
    spiel.AnzahlWissen = 6;
    GesamtRechnen(spiel);
    EXPECT_EQ(spiel.FelderGesamt, 24);
    spiel.FragenProWissen = spiel.AnzahlWissen = 200;
    EXPECT_THROW(GesamtRechnen(spiel), Laufzeitfehler);
    EXPECT_EQ(spiel.FelderGesamt, 24);
}

TEST(Vorgaben, ASpinStopsAtItsBoundsAndNowhereElse) {
    for (const std::int16_t hoechstens : {hoechstensFelder, hoechstensPunkte}) {
        std::int16_t wert = 0;
        EXPECT_FALSE(Drehen(wert, Richtung::Runter, hoechstens));
        EXPECT_EQ(wert, 0);
        for (int i = 1; i <= hoechstens; ++i) {
            EXPECT_TRUE(Drehen(wert, Richtung::Hoch, hoechstens));
            EXPECT_EQ(wert, i);
        }
        EXPECT_FALSE(Drehen(wert, Richtung::Hoch, hoechstens));
        EXPECT_EQ(wert, hoechstens);
        EXPECT_TRUE(Drehen(wert, Richtung::Runter, hoechstens));
        EXPECT_EQ(wert, hoechstens - 1);
    }
    EXPECT_EQ(hoechstensFelder, 5);
    EXPECT_EQ(hoechstensPunkte, 20);
}

TEST(Vorgaben, AValueBeyondTheBoundCanOnlyComeBack) {
    std::int16_t wert = 50; // out of a file
    EXPECT_FALSE(Drehen(wert, Richtung::Hoch, hoechstensPunkte));
    EXPECT_TRUE(Drehen(wert, Richtung::Runter, hoechstensPunkte));
    EXPECT_EQ(wert, 49);
    wert = -2;
    EXPECT_FALSE(Drehen(wert, Richtung::Runter, hoechstensPunkte));
    EXPECT_TRUE(Drehen(wert, Richtung::Hoch, hoechstensPunkte));
    EXPECT_EQ(wert, -1);
}

TEST(Darstellung, OnlyTheGapsOfTheListHaveAPlace) {
    EXPECT_EQ(AbstandStelle(0.0F), 0);
    EXPECT_EQ(AbstandStelle(1.0F), 1);
    EXPECT_EQ(AbstandStelle(1.5F), 2);
    EXPECT_EQ(AbstandStelle(2.0F), 3);
    EXPECT_EQ(AbstandStelle(2.5F), 4);
    for (const float millimeter : {0.7F, 2.4999998F, -1.0F, 3.0F}) {
        EXPECT_FALSE(AbstandStelle(millimeter).has_value()) << millimeter;
    }
}

TEST(Darstellung, OnlyTheTwoPaperFormatsHaveAPlace) {
    EXPECT_EQ(PapierStelle("A5 quer"), 0);
    EXPECT_EQ(PapierStelle("A4 quer"), 1);
    for (const std::string_view format : {"", "a4 quer", "A4", "A4 quer "}) {
        EXPECT_FALSE(PapierStelle(format).has_value()) << format;
    }
}
