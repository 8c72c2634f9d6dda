// The filled quiz form and the filled test as PDF pages, from the values of the form to the file on the disk,
// against a bare page with 100 short texts and 100 rectangles through the same classes of the toolkit.
#include "benchmarks/zeiten.h"
#include "core/pfad.h"
#include "printing/druckseite.h"
#include "printing/seitenlayout.h"
#include "printing/testseite.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>

#include <array>
#include <string>
#include <vector>

namespace {

const QTemporaryDir& Ordner() {
    static const QTemporaryDir ordner;
    return ordner;
}

// A board as a leader fills it: questions of two to four lines, eight special fields, everything shaded.
FKDruckdaten VollesFormular() {
    constexpr std::array<const char*, 6> titel{"Musik", "Natur", "Sport", "Bibel", "Technik", "Länder"};
    FKDruckdaten daten;
    daten.datum = "24. 12. 2008";
    daten.zeit = "90 Minuten";
    daten.nummer = "17";
    for (std::size_t a = 1; a < daten.gebiete.size(); ++a) {
        daten.gebiete[a] = {titel[a - 1], true};
    }
    for (std::size_t n = 1; n < daten.felder.size(); ++n) {
        daten.felder[n] = {"Welches Meer liegt zwischen Europa und Afrika, und wie heißt die Meerenge " +
                               std::to_string(n) + " im Westen ?",
                           "das Mittelmeer, Gibraltar", "", true, true};
    }
    constexpr std::array<const char*, 8> arten{"J", "G", "R", "A", "E", "J", "G", "R"};
    for (std::size_t i = 0; i < arten.size(); ++i) {
        daten.felder[3 * i + 2].spezial = arten[i];
    }
    daten.titelGrau = daten.gebieteGrau = daten.spezialFarbig = daten.rahmenFarbig = true;
    return daten;
}

void FormularDrucken(benchmark::State& lauf) {
    const std::string ziel = EigenerPfad(Ordner().filePath(QStringLiteral("formular.pdf")));
    const FKDruckdaten daten = VollesFormular();
    for ([[maybe_unused]] auto _ : lauf) {
        Druckseite seite(QPageLayout::Landscape, ziel, "Messung");
        const Druckgeometrie g =
            GeometrieRechnen(Papier::A4Quer, 1_mm, seite.masse().links, seite.masse().oben);
        if (seite.Drucken(FormularZeichnen(daten, g, seite.schriftmass()), [] {}) != ziel) {
            lauf.SkipWithError("no page");
        }
    }
}

// A test as a leader fills it: ten questions of two lines with their answers and points.
Testdruckdaten VollerTest() {
    Testdruckdaten daten;
    daten.titel = " Lernzielkontrolle Häuptlingsfreizeit";
    daten.fach = " Knoten und Bünde";
    daten.gruppenwort = " Gruppe :";
    daten.gruppe = " III";
    daten.name = " Name :";
    daten.dateiname = "Knoten.FKR";
    daten.gesamtpunkte = 100;
    daten.mitAntworten = true;
    for (std::size_t n = 1; n < daten.zeilen.size(); ++n) {
        daten.zeilen[n] = {
            "Welchen Knoten nimmst du, um zwei gleich dicke Taue so miteinander zu verbinden, daß "
            "sie auch unter Last nicht rutschen, sich danach aber wieder lösen lassen ?",
            "den Kreuzknoten; bei ungleich dicken Tauen den Weberknoten", "10"};
    }
    return daten;
}

void TestDrucken(benchmark::State& lauf) {
    const std::string ziel = EigenerPfad(Ordner().filePath(QStringLiteral("test.pdf")));
    const Testdruckdaten daten = VollerTest();
    for ([[maybe_unused]] auto _ : lauf) {
        Druckseite seite(QPageLayout::Portrait, ziel, "Messung");
        const Testgeometrie g =
            TestGeometrieRechnen(AnzahlTestfragen(daten), seite.masse().links, seite.masse().oben);
        if (seite.Drucken(TestZeichnen(daten, g, seite.schriftmass()), [] {}) != ziel) {
            lauf.SkipWithError("no page");
        }
    }
}

void SchlichteSeite(benchmark::State& lauf) {
    const QString ziel = Ordner().filePath(QStringLiteral("schlicht.pdf"));
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setPageSize(QPageSize(QPageSize::A4));
    drucker.setFullPage(true);
    drucker.setOutputFileName(ziel);
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(8.0);
    for ([[maybe_unused]] auto _ : lauf) {
        QPainter maler(&drucker);
        maler.setFont(font);
        for (int i = 0; i < 100; ++i) {
            const int spalte = i % 10;
            const int zeile = i / 10;
            const QPointF ecke(500.0 + 900.0 * spalte, 500.0 + 1200.0 * zeile);
            maler.drawRect(QRectF(ecke, QSizeF(800.0, 1000.0)));
            maler.drawText(ecke + QPointF(50.0, 200.0), QStringLiteral("Frage %1").arg(i));
        }
        if (!maler.end()) {
            lauf.SkipWithError("no page");
        }
    }
}

BENCHMARK(FormularDrucken)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(TestDrucken)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(SchlichteSeite)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    constexpr int runden = 11;
    qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); // both go to a file, whatever printers the machine has
    const QApplication anwendung(argc, argv);
    std::string dauer = "--benchmark_min_time=0.2";
    std::vector<char*> argumente{argv[0], dauer.data()};
    argumente.insert(argumente.end(), argv + 1, argv + argc); // the command line's own comes later and wins
    int anzahl = static_cast<int>(argumente.size());
    benchmark::Initialize(&anzahl, argumente.data());
    Zeiten zeiten;
    for (int runde = 0; runde < runden; ++runde) {
        benchmark::RunSpecifiedBenchmarks(&zeiten);
    }
    zeiten.Ausgeben();
    zeiten.Gegen("druckseite", "FormularDrucken", "SchlichteSeite");
    zeiten.Gegen("druckseite_test", "TestDrucken", "SchlichteSeite");
    return zeiten.versagt() ? 1 : 0;
}
