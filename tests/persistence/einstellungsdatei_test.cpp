#include "persistence/einstellungsdatei.h"
#include "vorgaben.h"

#include <gtest/gtest.h>

namespace {

void EinstellungenFuellen() {
    AllesLeeren();
    std::int16_t zahl = 1;
    for (auto* wert : {&W.spiel.Punkte[Spezialart::Aktion], &W.spiel.PunkteV[Spezialart::Aktion],
                       &W.spiel.Felder[Spezialart::Aktion], &W.spiel.FelderV[Spezialart::Aktion],
                       &W.spiel.Punkte[Spezialart::Ereignis], &W.spiel.PunkteV[Spezialart::Ereignis],
                       &W.spiel.Felder[Spezialart::Ereignis]}) {
        *wert = zahl++;
    }
    W.spiel.FelderVE = "8";
    zahl = 9;
    for (auto* wert : {&W.spiel.Punkte[Spezialart::Glueck], &W.spiel.PunkteV[Spezialart::Glueck],
                       &W.spiel.Felder[Spezialart::Glueck], &W.spiel.FelderV[Spezialart::Glueck],
                       &W.spiel.Punkte[Spezialart::Joker], &W.spiel.PunkteV[Spezialart::Joker],
                       &W.spiel.Felder[Spezialart::Joker], &W.spiel.FelderV[Spezialart::Joker],
                       &W.spiel.Punkte[Spezialart::Risiko], &W.spiel.PunkteV[Spezialart::Risiko],
                       &W.spiel.Felder[Spezialart::Risiko], &W.spiel.FelderV[Spezialart::Risiko]}) {
        *wert = zahl++;
    }
    W.spiel.OptionMaxFelder = W.spiel.OptionMaxWissen = W.spiel.OptionTitel = W.spiel.OptionRahmen =
        W.spiel.OptionDatei = true;
    W.spiel.Zwischenabstand = 2.5F;
    W.spiel.FarbeHintergrund = 12;
    W.spiel.Papierformat = "A5 quer";
    W.spiel.Datei[0] = "C:\\KRANZ\\ÄPFEL.FKR";
    W.spiel.Datei[3] = "C:\\KRANZ\\BIRNEN.FKR";
    W.spiel.HilfeEintrag[1] = "Hilfe, eins";
    W.spiel.HilfeEintrag[5] = "fünf";
}

std::string OhneAbschnitt(std::string bytes, const std::string& von, const std::string& bis) {
    const auto anfang = bytes.find("\"" + von + "\"");
    return bytes.erase(anfang, bytes.find("\"" + bis + "\"") - anfang);
}

TEST(Einstellungsdatei, HasEveryLineInItsPlace) {
    EinstellungenFuellen();
    std::string erwartet = "\"[STANDARD]\"\r\n";
    for (int zahl = 1; zahl <= 20; ++zahl) {
        erwartet += std::to_string(zahl) + "\r\n";
    }
    const std::string leer = "\"\"\r\n";
    erwartet += leer + leer + "1\r\n0\r\n1\r\n2.5\r\n12\r\n" + leer + "1\r\n" + leer + "1\r\n0\r\n0\r\n\r\n" +
                leer + leer;
    erwartet += "\"Rahmenfarbe\"\r\n1\r\n\"Papierformat\"\r\n\"A5 quer\"\r\n";
    for (int i = 0; i < 10; ++i) {
        erwartet += leer;
    }
    erwartet += "\"[STANDARD2]\"\r\n\"Papierformat\"\r\n\"A5 quer\"\r\n";
    for (int i = 0; i < 18; ++i) {
        erwartet += leer;
    }
    erwartet +=
        "\"[DATEILISTE]\"\r\n\"C:\\KRANZ\\\xC4PFEL.FKR\"\r\n" + leer + leer + "\"C:\\KRANZ\\BIRNEN.FKR\"\r\n";
    erwartet += "\"[HILFE]\"\r\n\"Hilfe, eins\"\r\n" + leer + leer + leer + "\"f\xFCnf\"\r\n";
    for (int i = 0; i < 5; ++i) {
        erwartet += leer;
    }
    EXPECT_EQ(EinstellungenBytes(W.spiel), erwartet);
    EXPECT_EQ(Zeilenzahl(erwartet), 88);
}

TEST(Einstellungsdatei, SavedAndReadAgainGivesTheSame88LinesByteForByte) {
    EinstellungenFuellen();
    const std::string bytes = EinstellungenBytes(W.spiel);
    AllesLeeren();
    EinstellungenAusBytes(bytes, W.spiel);
    EXPECT_EQ(EinstellungenBytes(W.spiel), bytes);
    EXPECT_EQ(W.spiel.FelderVE, "8");
    EXPECT_EQ(W.spiel.Datei[0], "C:\\KRANZ\\ÄPFEL.FKR");
}

TEST(Einstellungsdatei, EmptySettingsAre88LinesToo) {
    AllesLeeren();
    const std::string bytes = EinstellungenBytes(W.spiel);
    EXPECT_EQ(Zeilenzahl(bytes), 88);
    EXPECT_EQ(Zeile(bytes, 9), "") << "FelderVE before its first assignment";
    EinstellungenAusBytes(bytes, W.spiel);
    EXPECT_EQ(W.spiel.FelderVE, std::nullopt);
    EXPECT_EQ(EinstellungenBytes(W.spiel), bytes);
}

TEST(Einstellungsdatei, ABlankLineAtPosition34StaysABlankLine) {
    EinstellungenFuellen();
    const std::string bytes = EinstellungenBytes(W.spiel);
    EXPECT_EQ(Zeile(bytes, 35), "");
    EinstellungenAusBytes(bytes, W.spiel);
    EXPECT_EQ(W.spiel.OptionEreignis, std::nullopt);
    EXPECT_EQ(Zeile(EinstellungenBytes(W.spiel), 35), "");
}

TEST(Einstellungsdatei, AValueAtPosition34GoesBackAsItCame) {
    EinstellungenFuellen();
    for (const std::string wert : {"1", "-2.5", "\"Ja, sicher\"", "\"\"", "#TRUE#"}) {
        W.spiel.OptionEreignis = wert;
        const std::string bytes = EinstellungenBytes(W.spiel);
        W.spiel.OptionEreignis.reset();
        EinstellungenAusBytes(bytes, W.spiel);
        EXPECT_EQ(W.spiel.OptionEreignis, wert);
        EXPECT_EQ(EinstellungenBytes(W.spiel), bytes);
    }
}

TEST(Einstellungsdatei, ThePaperFormatOfStandard2Wins) {
    EinstellungenFuellen();
    std::string bytes = EinstellungenBytes(W.spiel);
    bytes.replace(bytes.find("A5 quer"), 7, "A4 quer");
    EinstellungenAusBytes(bytes, W.spiel);
    EXPECT_EQ(W.spiel.Papierformat, "A5 quer");
}

TEST(Einstellungsdatei, SwappingTheSectionsChangesNothing) {
    EinstellungenFuellen();
    const std::string bytes = EinstellungenBytes(W.spiel);
    const std::string rest = OhneAbschnitt(bytes, "[STANDARD]", "[STANDARD2]");
    const auto hilfe = rest.find("\"[HILFE]\"");
    const std::string standard = bytes.substr(0, bytes.size() - rest.size());
    AllesLeeren();
    EinstellungenAusBytes(rest.substr(hilfe) + standard + rest.substr(0, hilfe), W.spiel);
    EXPECT_EQ(EinstellungenBytes(W.spiel), bytes);
}

TEST(Einstellungsdatei, ATokenThatEqualsNoMarkerIsPassedOver) {
    EinstellungenFuellen();
    const std::string bytes = EinstellungenBytes(W.spiel);
    std::string mehr = "; eigene Notiz, zwei Token\r\n" + bytes;
    mehr.insert(mehr.find("\"[HILFE]\""), "\"[STANDARD3]\"\r\n5\r\n\r\n");
    AllesLeeren();
    EinstellungenAusBytes(mehr, W.spiel);
    EXPECT_EQ(EinstellungenBytes(W.spiel), bytes);
}

TEST(Einstellungsdatei, AFileCutInsideASectionLeavesWhatWasReadInForce) {
    EinstellungenFuellen();
    std::string bytes = EinstellungenBytes(W.spiel);
    bytes.resize(bytes.find("12\r\n")); // behind position 11
    AllesLeeren();
    EXPECT_THROW(EinstellungenAusBytes(bytes, W.spiel), Laufzeitfehler);
    EXPECT_EQ(W.spiel.Punkte[Spezialart::Aktion], 1);
    EXPECT_EQ(W.spiel.Felder[Spezialart::Glueck], 11);
    EXPECT_EQ(W.spiel.FelderV[Spezialart::Glueck], 0);
}

TEST(Einstellungsdatei, AnOverlongNumberEndsTheReadingWithError6) {
    EinstellungenFuellen();
    std::string bytes = EinstellungenBytes(W.spiel);
    bytes.insert(bytes.find("3\r\n"), "99999");
    AllesLeeren();
    try {
        EinstellungenAusBytes(bytes, W.spiel);
        FAIL() << "no error";
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_EQ(fehler.nummer(), 6);
        EXPECT_EQ(fehler.zeile(), 4);
    }
    EXPECT_EQ(W.spiel.PunkteV[Spezialart::Aktion], 2);
    EXPECT_EQ(W.spiel.Felder[Spezialart::Aktion], 0);
}

} // namespace
