#include "quizform/feldbild.h"
#include "rules/spezialarten.h"
#include "rules/spezialfelder.h"
#include "rules/spielwerte.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace {

// Two of each kind but four Jokers, with points of their own.
Spielwerte Werte() {
    Spielwerte werte;
    werte.Felder = {2, 2, 2, 4, 2};
    werte.Punkte = {7, 10, 12, 5, 9};
    return werte;
}

Artwerte Gezaehlt(const std::vector<std::string>& buchstaben) {
    return SpezialAnzahl(buchstaben);
}

constexpr std::array arten{Spezialart::Aktion, Spezialart::Ereignis, Spezialart::Glueck, Spezialart::Joker,
                           Spezialart::Risiko};

} // namespace

TEST(Spezialfelder, TheLetterOfAListEntryIsItsFirstTwoCharactersTrimmed) {
    const std::array<std::string, 6> erwartet{"", "J", "G", "R", "A", "E"};
    ASSERT_EQ(Spezialliste().size(), erwartet.size());
    for (std::size_t i = 0; i < erwartet.size(); ++i) {
        EXPECT_EQ(SpezialBuchstabe(Spezialliste().at(i)), erwartet.at(i));
    }
}

TEST(Spezialfelder, CountsEveryKindAndNothingElse) {
    EXPECT_EQ(Gezaehlt({"A", "J", "J", "", "X", "R", "G", "E", "J"}), (Artwerte{1, 1, 1, 3, 1}));
}

TEST(Spezialfelder, AFifthJokerIsRefusedWithFourAllowed) {
    const Artwerte anzahl = Gezaehlt({"J", "J", "J", "J"});
    EXPECT_TRUE(GrenzeErreicht(Werte(), Spezialart::Joker, anzahl[Spezialart::Joker]));
    EXPECT_EQ(Einsetzen(ArtzeileVon(Spezialart::Joker).grenze.text, {"4"}),
              "Wir wollten uns an die Spielregeln halten -\r\n"
              "Die maximale Anzahl von 4 Jokern wurde bereits erreicht !");
}

TEST(Spezialfelder, AboveTheLimitAFurtherGIsLetThroughButAFurtherAIsRefused) {
    EXPECT_FALSE(GrenzeErreicht(Werte(), Spezialart::Glueck, 3));
    EXPECT_FALSE(GrenzeErreicht(Werte(), Spezialart::Risiko, 3));
    EXPECT_TRUE(GrenzeErreicht(Werte(), Spezialart::Aktion, 3));
    EXPECT_TRUE(GrenzeErreicht(Werte(), Spezialart::Ereignis, 3));
}

TEST(Spezialfelder, AtTheLimitEveryKindIsRefusedAndBelowNone) {
    for (const Spezialart art : arten) {
        const std::int16_t grenze = Werte().Felder[art];
        EXPECT_TRUE(GrenzeErreicht(Werte(), art, grenze)) << ArtzeileVon(art).name;
        EXPECT_FALSE(GrenzeErreicht(Werte(), art, static_cast<std::int16_t>(grenze - 1)))
            << ArtzeileVon(art).name;
    }
}

TEST(Spezialfelder, PointsPanelOfEachKind) {
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
        const PunkteBild bild = PunkteBildFuer(Werte(), zeile.buchstabe, 3);
        EXPECT_EQ(bild.caption, zeile.caption) << zeile.buchstabe;
        EXPECT_EQ(bild.grund, zeile.grund) << zeile.buchstabe;
        EXPECT_EQ(bild.schrift, zeile.schrift) << zeile.buchstabe;
    }
}

TEST(Spezialfelder, APlainCellWorthFourShowsFourOnSystemFace) {
    const PunkteBild bild = PunkteBildFuer(Werte(), "", 4);
    EXPECT_EQ(bild.caption, "4");
    EXPECT_FALSE(bild.grund.has_value());
}

TEST(Spezialfelder, BuiltInValues) {
    EXPECT_EQ(werkPunkte, (Artwerte{5, 10, 10, 5, 0}));
    EXPECT_EQ(werkFelder, (Artwerte{2, 2, 2, 4, 2}));
}

TEST(Spezialfelder, TheHintNeverSpeaksSinceNothingSetsItsKey) {
    EXPECT_EQ(FaelligerRegelHinweis('\0', Gezaehlt({"A", "A", "J", "J", "J", "J"})), std::nullopt);
}

TEST(Spezialfelder, WithItsKeySetTheHintIsDueOnlyAtTheLimit) {
    EXPECT_EQ(FaelligerRegelHinweis('A', Gezaehlt({"A", "A"})), Spezialart::Aktion);
    EXPECT_EQ(FaelligerRegelHinweis('A', Gezaehlt({"A"})), std::nullopt);
    EXPECT_EQ(FaelligerRegelHinweis('E', Gezaehlt({})), std::nullopt) << "no Ereignis, no hint";
}

TEST(Spezialfelder, TheTipNamesTheLimitsInForce) {
    EXPECT_EQ(SpezialTipp(Werte()), "Spezialfeld mit Linksklick auswählen\r\n\r\n"
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
