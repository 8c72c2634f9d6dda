#include "persistence/einstellungsdatei.h"
#include "vorgaben.h"

#include <gtest/gtest.h>

namespace {

void EinstellungenFuellen() {
    AllesLeeren();
    std::int16_t zahl = 1;
    for (auto* wert : {&PunkteA, &PunkteVA, &FelderA, &FelderVA, &PunkteE, &PunkteVE, &FelderE}) {
        *wert = zahl++;
    }
    FelderVE = "8";
    zahl = 9;
    for (auto* wert : {&PunkteG, &PunkteVG, &FelderG, &FelderVG, &PunkteJ, &PunkteVJ, &FelderJ, &FelderVJ,
                       &PunkteR, &PunkteVR, &FelderR, &FelderVR}) {
        *wert = zahl++;
    }
    OptionMaxFelder = OptionMaxWissen = OptionTitel = OptionRahmen = OptionDatei = 1;
    Zwischenabstand = 2.5F;
    FarbeHintergrund = 12;
    Papierformat = "A5 quer";
    Datei1 = "C:\\KRANZ\\ÄPFEL.FKR";
    Datei4 = "C:\\KRANZ\\BIRNEN.FKR";
    HilfeEintrag[1] = "Hilfe, eins";
    HilfeEintrag[5] = "fünf";
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
    EXPECT_EQ(EinstellungenBytes(), erwartet);
    EXPECT_EQ(Zeilenzahl(erwartet), 88);
}

TEST(Einstellungsdatei, SavedAndReadAgainGivesTheSame88LinesByteForByte) {
    EinstellungenFuellen();
    const std::string bytes = EinstellungenBytes();
    AllesLeeren();
    EinstellungenAusBytes(bytes);
    EXPECT_EQ(EinstellungenBytes(), bytes);
    EXPECT_EQ(FelderVE, "8");
    EXPECT_EQ(Datei1, "C:\\KRANZ\\ÄPFEL.FKR");
}

TEST(Einstellungsdatei, EmptySettingsAre88LinesToo) {
    AllesLeeren();
    const std::string bytes = EinstellungenBytes();
    EXPECT_EQ(Zeilenzahl(bytes), 88);
    EXPECT_EQ(Zeile(bytes, 9), "") << "FelderVE before its first assignment";
    EinstellungenAusBytes(bytes);
    EXPECT_EQ(FelderVE, std::nullopt);
    EXPECT_EQ(EinstellungenBytes(), bytes);
}

TEST(Einstellungsdatei, ABlankLineAtPosition34StaysABlankLine) {
    EinstellungenFuellen();
    const std::string bytes = EinstellungenBytes();
    EXPECT_EQ(Zeile(bytes, 35), "");
    EinstellungenAusBytes(bytes);
    EXPECT_EQ(OptionEreignis, std::nullopt);
    EXPECT_EQ(Zeile(EinstellungenBytes(), 35), "");
}

TEST(Einstellungsdatei, AValueAtPosition34GoesBackAsItCame) {
    EinstellungenFuellen();
    for (const std::string wert : {"1", "-2.5", "\"Ja, sicher\"", "\"\"", "#TRUE#"}) {
        OptionEreignis = wert;
        const std::string bytes = EinstellungenBytes();
        OptionEreignis.reset();
        EinstellungenAusBytes(bytes);
        EXPECT_EQ(OptionEreignis, wert);
        EXPECT_EQ(EinstellungenBytes(), bytes);
    }
}

TEST(Einstellungsdatei, ThePaperFormatOfStandard2Wins) {
    EinstellungenFuellen();
    std::string bytes = EinstellungenBytes();
    bytes.replace(bytes.find("A5 quer"), 7, "A4 quer");
    EinstellungenAusBytes(bytes);
    EXPECT_EQ(Papierformat, "A5 quer");
}

TEST(Einstellungsdatei, SwappingTheSectionsChangesNothing) {
    EinstellungenFuellen();
    const std::string bytes = EinstellungenBytes();
    const std::string rest = OhneAbschnitt(bytes, "[STANDARD]", "[STANDARD2]");
    const auto hilfe = rest.find("\"[HILFE]\"");
    const std::string standard = bytes.substr(0, bytes.size() - rest.size());
    AllesLeeren();
    EinstellungenAusBytes(rest.substr(hilfe) + standard + rest.substr(0, hilfe));
    EXPECT_EQ(EinstellungenBytes(), bytes);
}

TEST(Einstellungsdatei, ATokenThatEqualsNoMarkerIsPassedOver) {
    EinstellungenFuellen();
    const std::string bytes = EinstellungenBytes();
    std::string mehr = "; eigene Notiz, zwei Token\r\n" + bytes;
    mehr.insert(mehr.find("\"[HILFE]\""), "\"[STANDARD3]\"\r\n5\r\n\r\n");
    AllesLeeren();
    EinstellungenAusBytes(mehr);
    EXPECT_EQ(EinstellungenBytes(), bytes);
}

TEST(Einstellungsdatei, AFileCutInsideASectionLeavesWhatWasReadInForce) {
    EinstellungenFuellen();
    std::string bytes = EinstellungenBytes();
    bytes.resize(bytes.find("12\r\n")); // behind position 11
    AllesLeeren();
    EXPECT_THROW(EinstellungenAusBytes(bytes), Laufzeitfehler);
    EXPECT_EQ(PunkteA, 1);
    EXPECT_EQ(FelderG, 11);
    EXPECT_EQ(FelderVG, 0);
}

TEST(Einstellungsdatei, AnOverlongNumberEndsTheReadingWithError6) {
    EinstellungenFuellen();
    std::string bytes = EinstellungenBytes();
    bytes.insert(bytes.find("3\r\n"), "99999");
    AllesLeeren();
    try {
        EinstellungenAusBytes(bytes);
        FAIL() << "no error";
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_EQ(fehler.nummer(), 6);
        EXPECT_EQ(fehler.zeile(), 4);
    }
    EXPECT_EQ(PunkteVA, 2);
    EXPECT_EQ(FelderA, 0);
}

} // namespace
