// Which texts of the quiz form's page follow one another as a person reads, and which are drawn with their
// frames because others may cover them.
#include "printing/seitenlayout.h"
#include "tests/printing/probemass.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const Druckgeometrie geometrie = GeometrieRechnen(Papier::A4Quer, 0_mm, 0_mm, 0_mm);

// All cells in play, without a text.
FKDruckdaten LeeresFormular() {
    FKDruckdaten daten;
    for (FKDruckgebiet& gebiet : daten.gebiete) {
        gebiet.benutzbar = true;
    }
    for (FKDruckfeld& feld : daten.felder) {
        feld.frageSichtbar = feld.antwortSichtbar = true;
    }
    return daten;
}

Zeichnung Zeichnen(const FKDruckdaten& daten) {
    return FormularZeichnen(daten, geometrie, Probemass());
}

std::vector<std::string> Texte(const FKDruckdaten& daten) {
    std::vector<std::string> texte;
    for (const Textstelle& stelle : Alle<Textstelle>(Zeichnen(daten))) {
        texte.push_back(stelle.text);
    }
    return texte;
}

// True if no frame, and nothing else that could cover it, is drawn after the text.
bool StehtObenauf(const FKDruckdaten& daten, std::string_view text) {
    const Zeichnung zeichnung = Zeichnen(daten);
    const auto stelle = std::ranges::find_if(zeichnung, [text](const Element& element) {
        const auto* t = std::get_if<Textstelle>(&element);
        return t != nullptr && t->text == text;
    });
    EXPECT_NE(stelle, zeichnung.end()) << text;
    return std::all_of(stelle, zeichnung.end(),
                       [](const Element& element) { return std::holds_alternative<Textstelle>(element); });
}

// Text of that many lines, each of the same word.
std::string Zeilen(int anzahl, const std::string& wort) {
    std::string text = wort;
    for (int i = 1; i < anzahl; ++i) {
        text += "\r\n" + wort;
    }
    return text;
}

} // namespace

TEST(Feldfolge, IsThatOfAReaderAreaByAreaAndCellByCell) {
    FKDruckdaten daten = LeeresFormular();
    daten.datum = "1. Mai";
    daten.gebiete[1].titel = "Musik";
    daten.gebiete[2].titel = "Natur";
    daten.felder[1] = {"Wer ?", "Ich", "", true, true};
    daten.felder[2] = {"Wo ?", "Hier", "G", true, true};
    daten.felder[3] = {"----", "----", "J", true, true};
    daten.felder[4] = {"Wie ?", "So", "", false, false};
    daten.felder[6] = {"Wann ?", "Jetzt\r\ngleich", "R", true, true};
    daten.punkte[Spezialart::Glueck] = 10;
    const std::vector<std::string> soll{"FELDKRANZ!", "Datum :  1. Mai",
                                        "Zeit :  ",   "Nr :  ", // the head
                                        "Musik",      "1",
                                        "Wer ?",      "Ich", // cell 1
                                        "10",         "G",
                                        "Wo ?",       "Hier", // cell 2
                                        "3",          "Joker",
                                        "5", // cells 3 and 5
                                        "Natur",      "?",
                                        "R",          "Wann ?", //
                                        "Jetzt",      "gleich",
                                        "2",          "3"};
    std::vector<std::string> texte = Texte(daten);
    ASSERT_GT(texte.size(), soll.size());
    texte.resize(soll.size());
    EXPECT_EQ(texte, soll);
}

TEST(Feldfolge, AQuestionThatEndsInItsCellIsCoveredByNothing) {
    FKDruckdaten daten = LeeresFormular();
    // 30.2 mm less 1.5 hold seven lines of 4 mm, also over the dividing line; 37.67 mm hold 47 letters.
    daten.felder[1].frage = Zeilen(7, std::string(47, 'w'));
    EXPECT_TRUE(StehtObenauf(daten, std::string(47, 'w')));
    EXPECT_EQ(Texte(daten)[4], "1"); // the number, behind the head
}

TEST(Feldfolge, AQuestionThatRunsOutOfItsCellIsCoveredByTheFramesOfTheNext) {
    FKDruckdaten daten = LeeresFormular();
    daten.felder[1].frage = Zeilen(8, "unten");
    EXPECT_FALSE(StehtObenauf(daten, "unten"));
    daten.felder[1].frage = std::string(48, 'w');
    EXPECT_FALSE(StehtObenauf(daten, std::string(48, 'w')));
    daten.felder[1].frage = "kurz\r\n" + std::string(48, 'w');
    EXPECT_FALSE(StehtObenauf(daten, "kurz")); // a text isn't torn apart
}

TEST(Feldfolge, AQuestionThatRunsOutOfItsCellComesBehindItsOwnFramesAndBeforeTheNextOnes) {
    FKDruckdaten daten = LeeresFormular();
    daten.felder[7] = {Zeilen(8, "unten"), "", "G", true, true};
    daten.felder[8].spezial = "G";
    const Zeichnung zeichnung = Zeichnen(daten);
    std::vector<Rechteck> davor; // of the two cells
    std::vector<Rechteck> danach;
    bool gesehen = false;
    for (const Element& element : zeichnung) {
        const auto* text = std::get_if<Textstelle>(&element);
        gesehen = gesehen || (text != nullptr && text->text == "unten");
        if (const auto* rechteck = std::get_if<Rechteck>(&element)) {
            (gesehen ? danach : davor).push_back(*rechteck);
        }
    }
    const Millimeter oben = geometrie.ZeilenOben + geometrie.ZeilenRaster;
    EXPECT_EQ(davor.size(), 1U + 6U + 6U + 3U);
    EXPECT_FLOAT_EQ(davor.back().y.zahl(), oben.zahl());
    ASSERT_FALSE(danach.empty());
    EXPECT_FLOAT_EQ(danach.front().y.zahl(), (oben + geometrie.ZeilenRaster).zahl());
}

TEST(Feldfolge, ATitleThatRunsOutOfItsHeadIsCoveredByTheNextHead) {
    FKDruckdaten daten = LeeresFormular();
    daten.gebiete[2].titel = std::string(32, 't'); // 46.17 mm hold 32 letters of 1.4 mm
    EXPECT_TRUE(StehtObenauf(daten, daten.gebiete[2].titel));
    daten.gebiete[2].titel += 't';
    EXPECT_FALSE(StehtObenauf(daten, daten.gebiete[2].titel));
}

TEST(Feldfolge, AnAnswerIsNeverCoveredWhereverItEnds) {
    FKDruckdaten daten = LeeresFormular();
    daten.felder[1] = {"Wer ?", Zeilen(9, std::string(90, 'a')), "", true, true};
    daten.felder[2].spezial = "G";
    daten.felder[6].spezial = "A";
    EXPECT_TRUE(StehtObenauf(daten, std::string(90, 'a')));
    EXPECT_EQ(Texte(daten)[6], std::string(90, 'a')); // behind number and question
}
