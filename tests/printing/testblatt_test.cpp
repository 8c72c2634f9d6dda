// The printed test as another program reads it from its PDF: every line within 0.1 mm, every text within 0.3.
#include "core/pfad.h"
#include "printing/druckseite.h"
#include "printing/testseite.h"
#include "tests/printing/pdfleser.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

double Breite(double anteil, double punkte) {
    return anteil * punkte * 25.4 / 72.0;
}
constexpr double leer = 0.278;   // of a blank, in sizes of the font
constexpr double ziffer = 0.556; // of a digit

double Zeilenhoehe(double punkte) {
    return Breite(0.905273 + 0.212402, punkte);
}

Testdruckdaten Daten(int anzahl, bool punkte, bool antworten) {
    Testdruckdaten daten;
    daten.titel = "Titel";
    daten.fach = "Knoten";
    daten.gruppenwort = " Gruppe :";
    daten.gruppe = "IV";
    daten.name = " Name :";
    daten.dateiname = "Übung.FKR";
    daten.gesamtpunkte = 123;
    daten.mitAntworten = antworten;
    for (int n = 1; n <= anzahl; ++n) {
        const std::string nr = std::to_string(n);
        daten.zeilen[static_cast<std::size_t>(n)] = {"Frage" + nr, "Lösung" + nr, punkte ? "7" : ""};
    }
    return daten;
}

bool Nahe(double ist, double soll, double abstand) {
    return std::abs(ist - soll) <= abstand;
}

class Testblatt : public testing::TestWithParam<std::tuple<int, bool, bool>> {
protected:
    static void SetUpTestSuite() { qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); }

    void Drucken(const Testdruckdaten& daten) {
        const QString datei = ordner.filePath(QStringLiteral("Test.pdf"));
        Druckseite seite(QPageLayout::Portrait, EigenerPfad(datei), "Probe");
        const auto g = TestGeometrieRechnen(AnzahlTestfragen(daten), seite.masse().links, seite.masse().oben);
        ASSERT_EQ(seite.Drucken(TestZeichnen(daten, g, seite.schriftmass()), {}), EigenerPfad(datei));
        blatt = PdfLesen(datei);
        ASSERT_EQ(blatt.fehler, "");
    }
    void Strich(double x1, double y1, double x2, double y2) const {
        EXPECT_EQ(std::count_if(blatt.pfade.begin(), blatt.pfade.end(),
                                [&](const Pfad& p) {
                                    return Nahe(p.links, x1, 0.1) && Nahe(p.oben, y1, 0.1) &&
                                           Nahe(p.rechts, x2, 0.1) && Nahe(p.unten, y2, 0.1);
                                }),
                  1)
            << x1 << " " << y1 << " to " << x2 << " " << y2;
    }
    void Text(const std::string& text, double x, double y) const {
        EXPECT_EQ(std::count_if(blatt.worte.begin(), blatt.worte.end(),
                                [&](const Wort& w) {
                                    return w.text == text && Nahe(w.links, x, 0.3) && Nahe(w.oben, y, 0.3);
                                }),
                  1)
            << text << " at " << x << ", " << y;
    }
    [[nodiscard]] std::size_t Kreise() const {
        return static_cast<std::size_t>(
            std::count_if(blatt.pfade.begin(), blatt.pfade.end(), [](const Pfad& p) {
                return Nahe(p.rechts - p.links, 5.0, 0.1) && Nahe(p.unten - p.oben, 5.0, 0.1);
            }));
    }

    QTemporaryDir ordner;
    PdfSeite blatt;
};

std::string Fallname(const testing::TestParamInfo<std::tuple<int, bool, bool>>& fall) {
    const auto [anzahl, punkte, antworten] = fall.param;
    return std::to_string(anzahl) + (punkte ? "WithPoints" : "WithoutPoints") +
           (antworten ? "WithAnswers" : "WithoutAnswers");
}

} // namespace

TEST_P(Testblatt, EveryLineOfTheFrameStandsInItsPlace) {
    const auto [anzahl, punkte, antworten] = GetParam();
    Drucken(Daten(anzahl, punkte, antworten));
    EXPECT_NEAR(blatt.breite, 210.0, 0.2);
    EXPECT_NEAR(blatt.hoehe, 297.0, 0.2);
    Strich(15, 10, 200, 287);
    for (const double y : {20.0, 30.0, 40.0, 277.0}) {
        Strich(15, y, 200, y);
    }
    Strich(155, 10, 155, 30);
    Strich(15 + 185.0 / 3, 277, 15 + 185.0 / 3, 287);
    Strich(15 + 370.0 / 3, 277, 15 + 370.0 / 3, 287);
    EXPECT_EQ(Kreise(), punkte ? static_cast<std::size_t>(anzahl) : 0U);
    EXPECT_EQ(blatt.pfade.size(), 8U + Kreise());
}

TEST_P(Testblatt, EveryTextStandsInItsPlace) {
    const auto [anzahl, punkte, antworten] = GetParam();
    Drucken(Daten(anzahl, punkte, antworten));
    Text("Titel", 15, 10);
    Text("Übung.FKR", 155 + Breite(2 * leer, 12), 13);
    Text("Knoten", 15, 20);
    Text("Gruppe", 155 + Breite(3 * leer, 12), 23);
    Text("IV", 177, 20);
    Text("Name", 15 + Breite(leer, 12), 33);
    Text("Punkte", 15, 280);
    Text("/", 55, 280);
    Text("123", 55 + Breite(2 * leer, 12), 280);
    Text("Note", 15 + 185.0 / 3 + Breite(2 * leer, 12), 280);
    Text("Bewertet", 15 + 370.0 / 3 + Breite(2 * leer, 12), 280);
    const double raster = 219.0 / std::max(1, anzahl);
    for (int i = 0; i < std::max(1, anzahl); ++i) {
        const std::string nummer = std::to_string(i + 1);
        const double ziffern = static_cast<double>(nummer.size());
        Text(nummer + ".", 21 - Breite(ziffern * ziffer + leer, 10), 46 + i * raster);
    }
    for (int i = 0; i < anzahl; ++i) {
        const std::string nummer = std::to_string(i + 1);
        Text("Frage" + nummer, 26, 46 + i * raster);
        if (antworten) {
            Text("Lösung" + nummer, 26, 46 + i * raster + (raster - 3) / 2);
        }
        if (punkte) {
            Text("7", 197 - Breite(ziffer, 10) / 2, 56 + i * raster);
            const double mitte = 56 + i * raster + Zeilenhoehe(10) / 2;
            Strich(196.8 - 2.5, mitte - 2.5, 196.8 + 2.5, mitte + 2.5);
        }
    }
    const int woerter = 13 + std::max(1, anzahl) + anzahl * (1 + (antworten ? 1 : 0) + (punkte ? 1 : 0));
    // "Gruppe :", "Name :", "Punkte :", "Note :" and "Bewertet :" are two words each
    EXPECT_EQ(blatt.worte.size(), static_cast<std::size_t>(woerter + 3));
}

INSTANTIATE_TEST_SUITE_P(Blaetter, Testblatt,
                         testing::Combine(testing::Values(0, 1, 3, 10), testing::Bool(), testing::Bool()),
                         Fallname);
