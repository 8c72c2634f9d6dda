#include "core/laufzeitfehler.h"
#include "quizform/spezialfelder.h"
#include "settings/darstellung.h"
#include "settings/einstellungen.h"
#include "settings/vorgaben.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

void JedemEinEigenerWert() {
    std::tie(PunkteA, PunkteE, PunkteG, PunkteJ, PunkteR) = std::tuple(1, 2, 3, 4, 5);
    std::tie(FelderA, FelderE, FelderG, FelderJ, FelderR) = std::tuple(6, 7, 8, 9, 10);
    std::tie(PunkteVA, PunkteVE, PunkteVG, PunkteVJ, PunkteVR) = std::tuple(11, 12, 13, 14, 15);
    std::tie(FelderVA, FelderVG, FelderVJ, FelderVR) = std::tuple(16, 18, 19, 20);
    FelderVE = "17";
}

} // namespace

TEST(Vorgaben, TheEditArraysAreFilledInTheOrderOfTheScreen) {
    JedemEinEigenerWert();
    VorgabenHolen();
    EXPECT_EQ(VorgabePunkte, (Artwerte{1, 2, 3, 4, 5}));
    EXPECT_EQ(VorgabeFelder, (Artwerte{6, 7, 8, 9, 10}));
    EXPECT_EQ(StdPunkte, (Artwerte{11, 12, 13, 14, 15}));
    EXPECT_EQ(StdFelder, (Artwerte{16, 17, 18, 19, 20}));
}

TEST(Vorgaben, EachWayBackWritesItsOwnValuesAndNoOthers) {
    JedemEinEigenerWert();
    VorgabePunkte = {21, 22, 23, 24, 25};
    VorgabeFelder = {26, 27, 28, 29, 30};
    VorgabenUebernehmen();
    EXPECT_EQ(std::tuple(PunkteA, PunkteE, PunkteG, PunkteJ, PunkteR), std::tuple(21, 22, 23, 24, 25));
    EXPECT_EQ(std::tuple(FelderA, FelderE, FelderG, FelderJ, FelderR), std::tuple(26, 27, 28, 29, 30));
    EXPECT_EQ(std::tuple(PunkteVA, FelderVE.value_or("")), std::tuple(11, "17"));
    StdPunkte = {31, 32, 33, 34, 35};
    StdFelder = {36, 37, 38, 39, 40};
    StandardUebernehmen();
    EXPECT_EQ(std::tuple(PunkteVA, PunkteVE, PunkteVG, PunkteVJ, PunkteVR), std::tuple(31, 32, 33, 34, 35));
    EXPECT_EQ(std::tuple(FelderVA, FelderVE.value_or(""), FelderVG, FelderVJ, FelderVR),
              std::tuple(36, "37", 38, 39, 40));
    EXPECT_EQ(PunkteA, 21);
}

TEST(Vorgaben, AStandardCountThatHoldsNothingOrNoNumberCountsAsNone) {
    for (const std::optional<std::string>& wert :
         {std::optional<std::string>(), std::optional<std::string>(""), std::optional<std::string>("\"2\""),
          std::optional<std::string>("99999")}) {
        FelderVE = wert;
        StandardHolen();
        EXPECT_EQ(StdFelder.at(1), 0) << wert.value_or("nothing");
    }
}

TEST(Vorgaben, ASnapshotPutsFiveValuesBack) {
    std::tie(FragenProWissen, AnzahlWissen) = std::tuple(3, 4);
    std::tie(OptionMaxFelder, OptionMaxWissen, OptionMaxSpezial) = std::tuple(1, 0, 1);
    OptionTitel = 0;
    const Schnappschuss vorher = SchnappschussNehmen();
    std::tie(FragenProWissen, AnzahlWissen) = std::tuple(5, 6);
    std::tie(OptionMaxFelder, OptionMaxWissen, OptionMaxSpezial) = std::tuple(0, 1, 0);
    OptionTitel = 1;
    SchnappschussZurueck(vorher);
    EXPECT_EQ(std::tuple(FragenProWissen, AnzahlWissen), std::tuple(3, 4));
    EXPECT_EQ(std::tuple(OptionMaxFelder, OptionMaxWissen, OptionMaxSpezial), std::tuple(1, 0, 1));
    EXPECT_EQ(OptionTitel, 1); // not one of them
}

TEST(Vorgaben, TheTotalIsTheProductAndNeverWraps) {
    std::tie(FragenProWissen, AnzahlWissen) = std::tuple(4, 6);
    GesamtRechnen();
    EXPECT_EQ(FelderGesamt, 24);
    std::tie(FragenProWissen, AnzahlWissen) = std::tuple(200, 200);
    EXPECT_THROW(GesamtRechnen(), Laufzeitfehler);
    EXPECT_EQ(FelderGesamt, 24);
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
