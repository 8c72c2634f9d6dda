#include "quizform/feldbild.h"
#include "quizform/spezialfelder.h"
#include "quizform/texte.h"
#include "settings/einstellungen.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

class Spezialfelder : public testing::Test {
protected:
    void SetUp() override {
        FelderA = FelderE = FelderG = FelderR = 2;
        FelderJ = 4;
        PunkteA = 7;
        PunkteE = 10;
        PunkteG = 12;
        PunkteJ = 5;
        PunkteR = 9;
        RegelTaste = 0;
        RegelHinweis = 0;
        SpezialAnzahl.fill(0);
    }

    static void Zaehle(std::initializer_list<std::string> buchstaben) {
        std::array<std::string, anzahlFelder + 1> felder;
        std::size_t n = 1;
        for (const auto& buchstabe : buchstaben) {
            felder.at(n++) = buchstabe;
        }
        SpezialAnzahlZaehlen(felder);
    }
};

} // namespace

TEST_F(Spezialfelder, TheLetterOfAListEntryIsItsFirstTwoCharactersTrimmed) {
    const std::array<std::string, 6> erwartet{"", "J", "G", "R", "A", "E"};
    for (std::size_t i = 0; i < spezialListe.size(); ++i) {
        EXPECT_EQ(SpezialBuchstabe(spezialListe.at(i)), erwartet.at(i));
    }
}

TEST_F(Spezialfelder, CountsEveryKindAndNothingElse) {
    Zaehle({"A", "J", "J", "", "X", "R", "G", "E", "J"});
    EXPECT_EQ(SpezialAnzahl, (std::array<std::int16_t, 6>{1, 1, 1, 3, 1, 0}));
}

TEST_F(Spezialfelder, AFifthJokerIsRefusedWithFourAllowed) {
    Zaehle({"J", "J", "J", "J"});
    EXPECT_TRUE(GrenzeErreicht(SpezialIndex("J")));
    EXPECT_EQ(Einsetzen(fktexte::grenze.at(3).text, {std::to_string(FelderGrenze(3))}),
              "Wir wollten uns an die Spielregeln halten -\r\n"
              "Die maximale Anzahl von 4 Jokern wurde bereits erreicht !");
}

TEST_F(Spezialfelder, AboveTheLimitAFurtherGIsLetThroughButAFurtherAIsRefused) {
    Zaehle({"G", "G", "G", "A", "A", "A", "E", "E", "E", "R", "R", "R"});
    EXPECT_FALSE(GrenzeErreicht(SpezialIndex("G")));
    EXPECT_FALSE(GrenzeErreicht(SpezialIndex("R")));
    EXPECT_TRUE(GrenzeErreicht(SpezialIndex("A")));
    EXPECT_TRUE(GrenzeErreicht(SpezialIndex("E")));
}

TEST_F(Spezialfelder, AtTheLimitEveryKindIsRefusedAndBelowNone) {
    for (int art = 0; art < anzahlArten; ++art) {
        SpezialAnzahl.at(static_cast<std::size_t>(art)) = FelderGrenze(art);
        EXPECT_TRUE(GrenzeErreicht(art)) << art;
        SpezialAnzahl.at(static_cast<std::size_t>(art)) = static_cast<std::int16_t>(FelderGrenze(art) - 1);
        EXPECT_FALSE(GrenzeErreicht(art)) << art;
    }
}

TEST_F(Spezialfelder, PointsPanelOfEachKind) {
    struct Reihe {
        std::string buchstabe;
        std::string caption;
        std::optional<Farbe> grund;
        Farbe schrift;
    };
    for (const auto& zeile :
         {Reihe{"J", "5", Farbe{255, 255, 0}, farbeSchwarz}, Reihe{"E", "10", Farbe{255, 127, 0}, farbeWeiss},
          Reihe{"G", "12", Farbe{0, 255, 0}, farbeSchwarz}, Reihe{"R", "..", Farbe{255, 0, 0}, farbeWeiss},
          Reihe{"A", "3", Farbe{0, 0, 255}, farbeGelb}, Reihe{"", "3", std::nullopt, farbeSchwarz}}) {
        const PunkteBild bild = PunkteBildFuer(zeile.buchstabe, 3);
        EXPECT_EQ(bild.caption, zeile.caption) << zeile.buchstabe;
        EXPECT_EQ(bild.grund, zeile.grund) << zeile.buchstabe;
        EXPECT_EQ(bild.schrift, zeile.schrift) << zeile.buchstabe;
    }
}

TEST_F(Spezialfelder, APlainCellWorthFourShowsFourOnSystemFace) {
    const PunkteBild bild = PunkteBildFuer("", 4);
    EXPECT_EQ(bild.caption, "4");
    EXPECT_FALSE(bild.grund.has_value());
}

TEST_F(Spezialfelder, BuiltInValues) {
    FK_Vorgaben();
    EXPECT_EQ(VorgabePunkte, (std::array<std::int16_t, 5>{5, 10, 10, 5, 0}));
    EXPECT_EQ(VorgabeFelder, (std::array<std::int16_t, 5>{2, 2, 2, 4, 2}));
}

TEST_F(Spezialfelder, TheHintNeverSpeaksSinceNothingSetsItsKey) {
    FK_Vorgaben();
    Zaehle({"A", "A", "J", "J", "J", "J"});
    EXPECT_EQ(FaelligerRegelHinweis(), -1);
    EXPECT_EQ(RegelHinweis, 0);
}

TEST_F(Spezialfelder, WithItsKeySetTheHintIsDueOnceAndOnlyAtTheLimit) {
    FK_Vorgaben();
    Zaehle({"A", "A"});
    RegelTaste = 'A';
    EXPECT_EQ(FaelligerRegelHinweis(), 0);
    EXPECT_EQ(RegelTaste, 0);
    EXPECT_EQ(RegelHinweis, 1);
    EXPECT_EQ(FaelligerRegelHinweis(), -1);
    VorgabeFelder.fill(0);
    Zaehle({});
    RegelTaste = 'E';
    EXPECT_EQ(FaelligerRegelHinweis(), -1) << "no Ereignis, no hint";
}

TEST_F(Spezialfelder, TheTipNamesTheLimitsInForce) {
    EXPECT_EQ(fktexte::SpezialTipp(), "Spezialfeld mit Linksklick auswählen\r\n\r\n"
                                      "mögliche Anzahl von Spezialfeldern :\r\n"
                                      "- 4 Jokerfelder\r\n- 2 Glücksfragen\r\n- 2 Risikofragen\r\n"
                                      "- 2 Aufgaben\r\n- 2 Ereignisfelder\r\n");
}

TEST(Feldbild, LookOfEachLetter) {
    struct Reihe {
        std::string buchstabe;
        std::optional<Farbe> spezial;
        Farbe schrift;
        Farbe miniatur;
        Farbe rahmen;
        Farbe text;
        bool zentriert;
        std::string frage;
        std::string antwort;
    };
    const std::array reihen{
        Reihe{"J",
              Farbe{255, 255, 0},
              farbeSchwarz,
              {255, 255, 0},
              {239, 239, 0},
              {255, 255, 223},
              true,
              "----- Joker ! -----\r\n",
              "----- Joker ! -----"},
        Reihe{"E",
              Farbe{255, 127, 0},
              farbeWeiss,
              {255, 159, 0},
              {0, 0, 255},
              {255, 239, 159},
              true,
              "----- Ereignis ! -----\r\n",
              "----- Ereignis ! -----"},
        Reihe{"G", Farbe{0, 255, 0}, farbeSchwarz, {0, 255, 0}, {0, 223, 0}, {223, 255, 223}, false, "", ""},
        Reihe{"R", Farbe{255, 0, 0}, farbeWeiss, {255, 0, 0}, {255, 0, 0}, {255, 231, 231}, false, "", ""},
        Reihe{"A", Farbe{0, 0, 255}, farbeGelb, {95, 95, 255}, {0, 0, 255}, {231, 231, 255}, false, "", ""}};
    for (const auto& reihe : reihen) {
        const FeldBild bild = FeldBildFuer(reihe.buchstabe, false, false);
        EXPECT_EQ(bild.spezialGrund, reihe.spezial) << reihe.buchstabe;
        EXPECT_EQ(bild.spezialSchrift, reihe.schrift) << reihe.buchstabe;
        EXPECT_EQ(bild.miniatur, reihe.miniatur) << reihe.buchstabe;
        EXPECT_EQ(bild.rahmen, reihe.rahmen) << reihe.buchstabe;
        EXPECT_EQ(bild.textGrund, reihe.text) << reihe.buchstabe;
        EXPECT_EQ(bild.zentriert, reihe.zentriert) << reihe.buchstabe;
        EXPECT_EQ(bild.frageMarke, reihe.frage) << reihe.buchstabe;
        EXPECT_EQ(bild.antwortMarke, reihe.antwort) << reihe.buchstabe;
    }
}

TEST(Feldbild, RepaintingOneCellGivesJAndGAnotherShadeOfFrame) {
    EXPECT_EQ(FeldBildFuer("J", false, true).rahmen, (Farbe{223, 223, 0}));
    EXPECT_EQ(FeldBildFuer("G", false, true).rahmen, (Farbe{0, 255, 0}));
    EXPECT_EQ(FeldBildFuer("R", false, true).rahmen, FeldBildFuer("R", false, false).rahmen);
}

TEST(Feldbild, APlainCellIsGreyWhileEmptyAndWhiteWithAQuestion) {
    EXPECT_FALSE(FeldBildFuer("", true, false).textGrund.has_value());
    EXPECT_FALSE(FeldBildFuer("", true, false).miniatur.has_value());
    EXPECT_EQ(FeldBildFuer("", false, false).textGrund, farbeWeiss);
    EXPECT_EQ(FeldBildFuer("", false, false).miniatur, farbeWeiss);
    EXPECT_FALSE(FeldBildFuer("", false, false).rahmen.has_value());
}
