#include "printing/seitenlayout.h"

#include "tests/printing/probemass.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr float genau = 0.001F;

double D(Millimeter laenge) {
    return static_cast<double>(laenge.zahl());
}

FKDruckdaten LeeresFormular() {
    FKDruckdaten daten;
    for (FKDruckgebiet& gebiet : daten.gebiete) {
        gebiet = {"Wissen", true};
    }
    for (FKDruckfeld& feld : daten.felder) {
        feld.frageSichtbar = true;
        feld.antwortSichtbar = true;
    }
    return daten;
}

const Druckgeometrie geometrie = GeometrieRechnen(Papier::A4Quer, 0_mm, 0_mm, 0_mm);

Zeichnung Zeichnen(const FKDruckdaten& daten, const Druckgeometrie& g = geometrie) {
    return FormularZeichnen(daten, g, Probemass());
}

// The texts of a page without the head, in drawing order.
std::vector<Textstelle> Texte(const FKDruckdaten& daten) {
    auto texte = Alle<Textstelle>(Zeichnen(daten));
    texte.erase(texte.begin(), texte.begin() + 4);
    return texte;
}

// The last text of the page with that content.
const Textstelle* Finden(const std::vector<Textstelle>& texte, std::string_view text) {
    const auto stelle =
        std::find_if(texte.rbegin(), texte.rend(), [&](const Textstelle& t) { return t.text == text; });
    return stelle == texte.rend() ? nullptr : &*stelle;
}

std::size_t Anzahl(const std::vector<Textstelle>& texte, std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(texte.begin(), texte.end(), [&](const Textstelle& t) { return t.text == text; }));
}

Millimeter FeldX(int n) {
    const int spalte = (n - 1) / 5;
    return geometrie.RandLinks + static_cast<float>(spalte) * geometrie.SpaltenRaster;
}
Millimeter FeldY(int n) {
    return geometrie.ZeilenOben + static_cast<float>((n - 1) % 5) * geometrie.ZeilenRaster;
}

// The number in the small column of a cell.
std::string Nummer(const FKDruckdaten& daten, int n) {
    const auto texte = Texte(daten);
    std::string ergebnis;
    for (const Textstelle& t : texte) {
        const bool zwoelf = t.schrift == Druckschrift{Schriftart::Arial, 12_pt, true};
        if (zwoelf && t.x > FeldX(n) && t.x < FeldX(n) + geometrie.NummerBreite && t.y > FeldY(n) &&
            t.y < FeldY(n) + geometrie.FrageHoehe) {
            ergebnis += t.text;
        }
    }
    return ergebnis;
}

} // namespace

TEST(Seitenlayout, AnEmptyFormIsStripHeadsThirtyFramesAndTheirDividers) {
    const Zeichnung zeichnung = Zeichnen(LeeresFormular());
    EXPECT_EQ(Alle<Rechteck>(zeichnung).size(), 1U + 6U + 30U);
    EXPECT_EQ(Alle<Strich>(zeichnung).size(), 60U);
    EXPECT_EQ(Alle<Textstelle>(zeichnung).size(), 4U + 30U); // the head, then the row numbers
}

TEST(Seitenlayout, TheHeadStrip) {
    FKDruckdaten daten = LeeresFormular();
    daten.datum = "1. Mai";
    daten.zeit = "90 min";
    daten.nummer = "7";
    const Zeichnung zeichnung = Zeichnen(daten);
    const auto streifen = std::get<Rechteck>(zeichnung.front());
    EXPECT_EQ(streifen.x, 10_mm);
    EXPECT_EQ(streifen.y, 25_mm);
    EXPECT_NEAR(D(streifen.breite), D(277_mm), genau);
    EXPECT_EQ(streifen.hoehe, 12_mm);
    EXPECT_EQ(streifen.stift.punkte, 11_dp);
    EXPECT_FALSE(streifen.fuellung.has_value());
    const auto texte = Alle<Textstelle>(zeichnung);
    const Millimeter spalte = geometrie.SpaltenRaster;
    struct Zeile {
        const char* text;
        Millimeter x, y;
        Schriftpunkte groesse;
    };
    const std::vector<Zeile> soll{{"FELDKRANZ!", 13_mm, 27_mm, 20_pt},
                                  {"Datum :  1. Mai", 10_mm + 3.0F * spalte, 29.5_mm, 11_pt},
                                  {"Zeit :  90 min", 10_mm + 4.0F * spalte, 29.5_mm, 11_pt},
                                  {"Nr :  7", 10_mm + 5.0F * spalte, 29.5_mm, 11_pt}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(texte[i].text, soll[i].text);
        EXPECT_NEAR(D(texte[i].x), D(soll[i].x), genau);
        EXPECT_NEAR(D(texte[i].y), D(soll[i].y), genau);
        EXPECT_EQ(texte[i].schrift, (Druckschrift{Schriftart::Arial, soll[i].groesse, true}));
    }
}

TEST(Seitenlayout, TheTwoShadingsOfHeadAndTitles) {
    FKDruckdaten daten = LeeresFormular();
    daten.titelGrau = true;
    daten.gebieteGrau = true;
    const auto kaesten = Alle<Rechteck>(Zeichnen(daten));
    EXPECT_EQ(kaesten[0].fuellung, (Farbe{255, 255, 191}));
    for (std::size_t a = 1; a <= 6; ++a) {
        EXPECT_EQ(kaesten[a].fuellung, (Farbe{223, 223, 223}));
        EXPECT_EQ(kaesten[a].stift.punkte, 9_dp);
    }
    EXPECT_FALSE(kaesten[7].fuellung.has_value());
}

TEST(Seitenlayout, ATitleStandsCentredInItsHead) {
    FKDruckdaten daten = LeeresFormular();
    daten.gebiete[3].titel = "Musik";
    const auto texte = Texte(daten);
    ASSERT_EQ(texte.size(), 31U);
    const Textstelle* titel = Finden(texte, "Musik");
    ASSERT_NE(titel, nullptr);
    EXPECT_EQ(titel->schrift, (Druckschrift{Schriftart::Arial, 14_pt, true}));
    EXPECT_NEAR(D(titel->x), D(FeldX(11) + geometrie.SpaltenBreite / 2.0F - 3.5_mm), genau);
    EXPECT_NEAR(D(titel->y), D(25_mm + 12_mm + 3_mm + 4.5_mm - 3.5_mm), genau);
}

TEST(Seitenlayout, AnAreaWithoutATitleOrOutOfUsePrintsNoTitle) {
    FKDruckdaten daten = LeeresFormular();
    daten.gebiete[1].titel = "Wissen";
    daten.gebiete[2] = {"Musik", false};
    daten.gebiete[3].titel = "";
    EXPECT_EQ(Texte(daten).size(), 30U);
}

TEST(Seitenlayout, TheBlankPrintLacksTheTitlesAndNothingElse) {
    FKDruckdaten daten = LeeresFormular();
    daten.gebiete[1].titel = "Musik";
    daten.felder[1].frage = "Wer schrieb die Zauberflöte ?";
    daten.felder[7].spezial = "J";
    Zeichnung normal = Zeichnen(daten);
    daten.blanko = true;
    const Zeichnung blanko = Zeichnen(daten);
    std::erase_if(normal, [](const Element& e) {
        const Textstelle* t = std::get_if<Textstelle>(&e);
        return t != nullptr && t->text == "Musik";
    });
    ASSERT_EQ(blanko.size(), normal.size());
    for (std::size_t i = 0; i < blanko.size(); ++i) {
        EXPECT_EQ(blanko[i].index(), normal[i].index());
    }
    EXPECT_NE(Finden(Texte(daten), "Wer schrieb die Zauberflöte ?"), nullptr);
}

TEST(Seitenlayout, WithoutAGapOnA4AdjoiningFramesShareTheirEdgesAndTheStripEndsWithTheLastColumn) {
    const auto kaesten = Alle<Rechteck>(Zeichnen(LeeresFormular()));
    const auto feld = [&](int n) { return kaesten[static_cast<std::size_t>(n) + 6]; };
    for (int n = 1; n <= 25; ++n) {
        EXPECT_NEAR(D(feld(n).x + feld(n).breite), D(feld(n + 5).x), genau);
    }
    for (int n = 1; n <= 30; ++n) {
        if (n % 5 != 0) {
            EXPECT_NEAR(D(feld(n).y + feld(n).hoehe), D(feld(n + 1).y), genau);
        }
    }
    EXPECT_NEAR(D(kaesten[0].x + kaesten[0].breite), D(feld(30).x + feld(30).breite), genau);
}

TEST(Seitenlayout, WithFourAreasTheLastTwoColumnsAreFramedWithEmptyHeadsAndEmptyCells) {
    FKDruckdaten daten = LeeresFormular();
    for (std::size_t a = 1; a <= 6; ++a) {
        daten.gebiete[a] = {a <= 4 ? "Musik" : "Wissen", a <= 4};
    }
    for (std::size_t n = 21; n <= 30; ++n) {
        daten.felder[n] = {"", "", "", false, false};
    }
    const Zeichnung zeichnung = Zeichnen(daten);
    EXPECT_EQ(Alle<Rechteck>(zeichnung).size(), 37U);
    EXPECT_EQ(Alle<Strich>(zeichnung).size(), 60U);
    for (const Textstelle& t : Texte(daten)) {
        EXPECT_LT(t.x, FeldX(21)) << t.text;
    }
    EXPECT_EQ(Anzahl(Texte(daten), "Musik"), 4U);
}

TEST(Seitenlayout, ACellThatIsNotInPlayIsFrameAndDividersOnly) {
    FKDruckdaten daten = LeeresFormular();
    daten.felder[8] = {"Frage", "Antwort", "J", false, false};
    const Zeichnung zeichnung = Zeichnen(daten);
    EXPECT_EQ(Alle<Rechteck>(zeichnung).size(), 37U);
    EXPECT_EQ(Alle<Strich>(zeichnung).size(), 60U);
    EXPECT_EQ(Texte(daten).size(), 29U);
    EXPECT_EQ(Nummer(daten, 8), "");
}

TEST(Seitenlayout, APlainCellIsWorthItsRow) {
    const FKDruckdaten daten = LeeresFormular();
    for (int n = 1; n <= 30; ++n) {
        EXPECT_EQ(Nummer(daten, n), std::to_string((n - 1) % 5 + 1));
    }
}

TEST(Seitenlayout, PointsOfTheKinds) {
    struct Zeile {
        const char* spezial;
        std::int16_t a, e, g, j, r;
        const char* nummer; // of cell 4
    };
    const std::vector<Zeile> tabelle{
        {"J", 0, 0, 0, 5, 0, "5"},   {"J", 9, 9, 9, 0, 9, "4"},  {"J", 0, 0, 0, -1, 0, "4"},
        {"E", 0, 10, 0, 5, 0, "10"}, {"E", 0, 10, 0, 0, 0, "4"}, {"E", 0, 0, 0, 5, 0, "0"},
        {"R", 0, 0, 0, 0, 20, "20"}, {"R", 9, 9, 9, 9, 0, "?"},  {"G", 0, 0, 10, 0, 0, "10"},
        {"G", 9, 9, 0, 9, 9, "4"},   {"A", 5, 0, 0, 0, 0, "5"},  {"A", 0, 9, 9, 9, 9, "4"},
        {"", 9, 9, 9, 9, 9, "4"},
    };
    for (const auto& zeile : tabelle) {
        FKDruckdaten daten = LeeresFormular();
        daten.felder[4].spezial = zeile.spezial;
        daten.punkte = {zeile.a, zeile.e, zeile.g, zeile.j, zeile.r};
        EXPECT_EQ(Nummer(daten, 4), zeile.nummer) << zeile.spezial;
    }
}

TEST(Seitenlayout, AJokerWithoutPointsShowsItsRowAndARiskWithoutPointsAQuestionMark) {
    FKDruckdaten daten = LeeresFormular();
    daten.felder[13].spezial = "J";
    daten.felder[14].spezial = "R";
    EXPECT_EQ(Nummer(daten, 13), "3");
    EXPECT_EQ(Nummer(daten, 14), "?");
}

TEST(Seitenlayout, TheLetterOfRiskFortuneAndTaskStandsInTheLowerPart) {
    for (const char* const spezial : {"R", "G", "A"}) {
        FKDruckdaten daten = LeeresFormular();
        daten.felder[1].spezial = spezial;
        const auto texte = Texte(daten);
        const Textstelle* t = Finden(texte, spezial);
        ASSERT_NE(t, nullptr);
        EXPECT_NEAR(D(t->x), D(FeldX(1) + 3.5_mm - 0.6_mm), genau);
        EXPECT_NEAR(D(t->y), D(FeldY(1) + geometrie.FrageHoehe + geometrie.AntwortHoehe / 2.0F - 3_mm),
                    genau);
    }
    for (const char* const spezial : {"J", "E"}) {
        FKDruckdaten daten = LeeresFormular();
        daten.felder[1].spezial = spezial;
        EXPECT_EQ(Finden(Texte(daten), spezial), nullptr);
    }
}

TEST(Seitenlayout, JokerAndEventShowTheirWordOnTheWholeFieldWithoutDividersAndTexts) {
    struct Zeile {
        const char* spezial;
        const char* wort;
    };
    const std::vector<Zeile> tabelle{{"J", "Joker"}, {"E", "Ereignis"}};
    for (const auto& zeile : tabelle) {
        FKDruckdaten daten = LeeresFormular();
        daten.felder[9] = {"----- Joker ! -----\r\n", "----- Joker ! -----", zeile.spezial, true, true};
        const auto texte = Texte(daten);
        const Textstelle* wort = Finden(texte, zeile.wort);
        ASSERT_NE(wort, nullptr);
        EXPECT_EQ(wort->schrift, (Druckschrift{Schriftart::Arial, 18_pt, true}));
        const Millimeter breite = static_cast<float>(wort->text.size()) * 1.8_mm;
        EXPECT_NEAR(D(wort->x), D(FeldX(9) + geometrie.SpaltenBreite / 2.0F - breite / 2.0F), genau);
        EXPECT_NEAR(D(wort->y), D(FeldY(9) + geometrie.ZeileGanz / 2.0F - 4.5_mm), genau);
        EXPECT_EQ(texte.size(), 31U); // the word and thirty numbers
        EXPECT_EQ(Alle<Strich>(Zeichnen(daten)).size(), 58U);
    }
}

TEST(Seitenlayout, ShadingAndFramesOfTheFiveKinds) {
    struct Zeile {
        const char* spezial;
        Farbe grund, linie;
        std::size_t kaesten; // outer, inner and for three kinds outer again
    };
    const std::vector<Zeile> tabelle{{"J", {255, 255, 191}, {159, 159, 0}, 2},
                                     {"E", {255, 223, 191}, {255, 127, 0}, 2},
                                     {"R", {255, 223, 223}, {255, 0, 0}, 3},
                                     {"G", {223, 255, 223}, {0, 255, 0}, 3},
                                     {"A", {223, 223, 255}, {0, 0, 255}, 3}};
    for (const auto& zeile : tabelle) {
        for (const bool farbig : {false, true}) {
            for (const bool rahmen : {false, true}) {
                FKDruckdaten daten = LeeresFormular();
                daten.felder[1].spezial = zeile.spezial;
                daten.spezialFarbig = farbig;
                daten.rahmenFarbig = rahmen;
                const auto kaesten = Alle<Rechteck>(Zeichnen(daten));
                ASSERT_EQ(kaesten.size(), 36U + zeile.kaesten);
                const Rechteck& innen = kaesten[8];
                EXPECT_NEAR(D(innen.x), D(FeldX(1) + 1_mm), genau);
                EXPECT_NEAR(D(innen.y), D(FeldY(1) + 1_mm), genau);
                EXPECT_NEAR(D(innen.breite), D(geometrie.SpaltenBreite - 2_mm), genau);
                EXPECT_NEAR(D(innen.hoehe), D(geometrie.ZeileGanz - 2.1_mm), genau);
                EXPECT_EQ(innen.stift.punkte, 9_dp);
                EXPECT_EQ(innen.stift.farbe, rahmen ? zeile.linie : farbeSchwarz);
                EXPECT_EQ(innen.fuellung, farbig ? std::optional(zeile.grund) : std::nullopt);
                EXPECT_EQ(kaesten[7].stift.punkte, 5_dp);
                EXPECT_EQ(kaesten[zeile.kaesten + 6].stift.punkte, zeile.kaesten == 3 ? 5_dp : 9_dp);
            }
        }
    }
}

TEST(Seitenlayout, TheDividersOfACell) {
    const auto striche = Alle<Strich>(Zeichnen(LeeresFormular()));
    const Millimeter x = FeldX(1), y = FeldY(1), f = geometrie.FrageHoehe;
    EXPECT_NEAR(D(striche[0].x1), D(x + 7_mm), genau);
    EXPECT_NEAR(D(striche[0].y1), D(y + f), genau);
    EXPECT_NEAR(D(striche[0].x2), D(x + geometrie.SpaltenBreite), genau);
    EXPECT_NEAR(D(striche[0].y2), D(y + f), genau);
    EXPECT_NEAR(D(striche[1].x1), D(x + 7_mm), genau);
    EXPECT_NEAR(D(striche[1].y1), D(y), genau);
    EXPECT_NEAR(D(striche[1].x2), D(x + 7_mm), genau);
    EXPECT_NEAR(D(striche[1].y2), D(y + f + geometrie.AntwortHoehe), genau);
    EXPECT_EQ(striche[0].stift.punkte, 5_dp);
}

TEST(Seitenlayout, AQuestionBreaksAndItsLinesFollowOneAnother) {
    FKDruckdaten daten = LeeresFormular();
    daten.felder[1].frage = "Welches Meer liegt zwischen Europa und Afrika und wie tief ist es dort ?";
    const auto texte = Texte(daten);
    // 35.67 mm hold 44 characters of 0.8 mm.
    EXPECT_EQ(texte[1].text, "Welches Meer liegt zwischen Europa und");
    EXPECT_EQ(texte[2].text, "Afrika und wie tief ist es dort ?");
    EXPECT_EQ(texte[1].schrift, (Druckschrift{Schriftart::Arial, 8_pt, false}));
    EXPECT_NEAR(D(texte[1].x), D(FeldX(1) + 8.5_mm), genau);
    EXPECT_NEAR(D(texte[1].y), D(FeldY(1) + 1.5_mm), genau);
    EXPECT_NEAR(D(texte[2].x), D(FeldX(1) + 8.5_mm), genau);
    EXPECT_NEAR(D(texte[2].y), D(FeldY(1) + 1.5_mm + 4_mm), genau);
}

TEST(Seitenlayout, AnAnswerIsBoldAndStandsBelowTheDividingLine) {
    FKDruckdaten daten = LeeresFormular();
    daten.felder[6].antwort = "das Mittelmeer";
    const auto texte = Texte(daten);
    const Textstelle* antwort = Finden(texte, "das Mittelmeer");
    ASSERT_NE(antwort, nullptr);
    EXPECT_EQ(antwort->schrift, (Druckschrift{Schriftart::Arial, 8_pt, true}));
    EXPECT_NEAR(D(antwort->x), D(FeldX(6) + 8.5_mm), genau);
    EXPECT_NEAR(D(antwort->y), D(FeldY(6) + geometrie.FrageHoehe + 1.5_mm), genau);
}

TEST(Seitenlayout, AHiddenAnswerBoxPrintsNoAnswer) {
    FKDruckdaten daten = LeeresFormular();
    daten.felder[6] = {"Frage", "Antwort", "", true, false};
    const auto texte = Texte(daten);
    EXPECT_EQ(Anzahl(texte, "Frage"), 1U);
    EXPECT_EQ(Anzahl(texte, "Antwort"), 0U);
}

TEST(Seitenlayout, AOneWordTextWiderThanTheColumnIsOneLineBeyondTheEdge) {
    FKDruckdaten daten = LeeresFormular();
    daten.felder[1].frage = std::string(80, 'w');
    const auto texte = Texte(daten);
    EXPECT_EQ(texte[0].text, std::string(80, 'w'));
    EXPECT_EQ(texte.size(), 31U);
    EXPECT_GT(texte[0].x + 64_mm, FeldX(6));
}

TEST(Seitenlayout, ALongTextRunsOverTheDividingLine) {
    FKDruckdaten daten = LeeresFormular();
    for (int i = 0; i < 80; ++i) {
        daten.felder[1].frage += "Wortwort ";
    }
    const auto texte = Texte(daten);
    Millimeter unten;
    for (const Textstelle& t : texte) {
        if (t.schrift.groesse.zahl() == 8.0F) {
            unten = std::max(unten, t.y);
        }
    }
    EXPECT_GT(unten, FeldY(1) + geometrie.ZeileGanz);
}

TEST(Seitenlayout, OnA5EverythingIsSetInSevenTenthsAndLessWithTheGap) {
    const Druckgeometrie g = GeometrieRechnen(Papier::A5Quer, 2.5_mm, 0_mm, 0_mm);
    FKDruckdaten daten = LeeresFormular();
    daten.felder[1] = {"Frage", "Antwort", "G", true, true};
    for (const Textstelle& t : Alle<Textstelle>(Zeichnen(daten, g))) {
        if (t.text == "Frage" || t.text == "Antwort") {
            EXPECT_NEAR(t.schrift.groesse.zahl(), 8.0F * 0.65F, genau);
        }
    }
    EXPECT_NEAR(D(Alle<Rechteck>(Zeichnen(daten, g))[8].x), D(6.35_mm), genau);
}
