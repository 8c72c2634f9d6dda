// The way through a real print service: the same routine that prints in the program, a queue that writes what
// arrives into a PDF file, and the sheet measured there.
#include "core/laufzeitfehler.h"
#include "core/pfad.h"
#include "printing/druckseite.h"
#include "printing/seitenlayout.h"
#include "tests/printing/druckdienst.h"
#include "tests/printing/formularsoll.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include <cmath>

namespace {

class Warteschlange : public testing::Test {
protected:
    static void SetUpTestSuite() {
        dienst = new Druckdienst;
        grund = dienst->starten();
    }
    static void TearDownTestSuite() {
        delete dienst;
        dienst = nullptr;
    }
    void SetUp() override {
        if (!grund.isEmpty()) {
            GTEST_SKIP() << grund.toStdString();
        }
    }

    // Prints the form through the queue and reads what came out; the file is removed again.
    static PdfSeite Drucken(const FKDruckdaten& daten, Papier papier) {
        static int nummer = 0;
        const QString auftrag =
            QStringLiteral("Feldkranz-Test-%1-%2").arg(QCoreApplication::applicationPid()).arg(++nummer);
        {
            Druckseite seite(papier == Papier::A4Quer ? QPageLayout::Landscape : QPageLayout::Portrait,
                             "\\gibt\\es\\nicht.pdf", auftrag.toStdString());
            const auto g = GeometrieRechnen(papier, 1_mm, seite.masse().links, seite.masse().oben);
            EXPECT_EQ(seite.Drucken(FormularZeichnen(daten, g, seite.schriftmass()), {}), "");
        }
        const QString datei = Druckdienst::warten(auftrag);
        EXPECT_NE(datei, QString()) << "no file came out of the queue";
        PdfSeite gelesen = PdfLesen(datei);
        QFile::remove(datei);
        return gelesen;
    }

    static inline Druckdienst* dienst = nullptr;
    static inline QString grund;
};

FKDruckdaten Formular() {
    FKDruckdaten daten;
    daten.titelGrau = daten.gebieteGrau = daten.spezialFarbig = daten.rahmenFarbig = true;
    for (std::size_t n = 1; n <= 30; ++n) {
        daten.felder[n] = {"Frage", "Antwort", n == 7 ? "G" : n == 12 ? "J" : "", true, true};
    }
    return daten;
}

// A sheet that lies across leaves the service turned on an upright page: its left edge is the page's bottom.
void AufrechtDrehen(PdfSeite& seite) {
    for (Pfad& p : seite.pfade) {
        const Pfad alt = p;
        p.links = seite.hoehe - alt.unten;
        p.rechts = seite.hoehe - alt.oben;
        p.oben = alt.links;
        p.unten = alt.rechts;
    }
}

// True when a box of that kind stands there, to 0.1 mm. The service may split a box into filling and line.
bool Steht(const PdfSeite& seite, const Pfad& soll) {
    const auto nah = [](double a, double b) { return std::abs(a - b) <= 0.1; };
    for (const Pfad& p : seite.pfade) {
        if (nah(p.links, soll.links) && nah(p.oben, soll.oben) && nah(p.rechts, soll.rechts) &&
            nah(p.unten, soll.unten) && p.linie == soll.linie && nah(p.strich, soll.strich)) {
            return true;
        }
    }
    return false;
}

} // namespace

TEST_F(Warteschlange, TheServicesPrinterIsUsedWithItsMargins) {
    Druckseite seite(QPageLayout::Portrait, "\\x.pdf", "Probe");
    EXPECT_EQ(Drucker().printerName().toStdString(), Druckdienst::warteschlange);
    EXPECT_EQ(Drucker().outputFormat(), QPrinter::NativeFormat);
    EXPECT_TRUE(seite.hochkant());
    EXPECT_EQ(SeitenmasseText(seite.masse()),
              "Papiergröße: 210 x 297mm\r\nLinker Rand: 5mm\r\nRechter Rand: 5mm\r\nOberer Rand: 8mm\r\n"
              "Unterer Rand: 6mm");
}

TEST_F(Warteschlange, TheA5SheetStandsAtSixAndTwentyMillimetresOfPaper) {
    const FKDruckdaten daten = Formular();
    const PdfSeite gelesen = Drucken(daten, Papier::A5Quer);
    EXPECT_NEAR(gelesen.breite, 210.0, 0.3);
    for (const Pfad& pfad : FormularSoll(daten, Papier::A5Quer, 1.0).pfade) {
        EXPECT_TRUE(Steht(gelesen, pfad)) << pfad.links << " " << pfad.oben << " " << pfad.linie;
    }
}

TEST_F(Warteschlange, TheA4SheetLiesAcrossAtTenAndTwentyFiveMillimetresOfPaper) {
    const FKDruckdaten daten = Formular();
    PdfSeite gelesen = Drucken(daten, Papier::A4Quer);
    if (gelesen.breite < gelesen.hoehe) {
        AufrechtDrehen(gelesen);
    }
    for (const Pfad& pfad : FormularSoll(daten, Papier::A4Quer, 1.0).pfade) {
        EXPECT_TRUE(Steht(gelesen, pfad)) << pfad.links << " " << pfad.oben << " " << pfad.linie;
    }
}

TEST_F(Warteschlange, SeveralPagesAreOneJobAndBothSidesAreAskedForOnlyThen) {
    const QString auftrag =
        QStringLiteral("Feldkranz-Test-Seiten-%1").arg(QCoreApplication::applicationPid());
    const QPrinter::DuplexMode sonst = Drucker().duplex();
    {
        Druckseite seite(
            Druckziel{QPageLayout::Portrait, "", auftrag.toStdString(), Wenden::LangeKante, false, false});
        std::vector<Zeichnung> seiten;
        for (const Millimeter x : {20_mm, 40_mm, 60_mm}) {
            seiten.push_back({Rechteck{x, 30_mm, 50_mm, 20_mm, {}, {}}});
        }
        EXPECT_EQ(seite.SeitenDrucken(seiten, {}), "");
    }
    EXPECT_EQ(Drucker().duplex(), sonst);
    const QString datei = Druckdienst::warten(auftrag, 3);
    EXPECT_EQ(PdfSeitenzahl(datei), 3);
    for (int nummer = 1; nummer <= 3; ++nummer) {
        const PdfSeite gelesen = PdfLesen(datei, nummer);
        ASSERT_EQ(gelesen.pfade.size(), 1U) << nummer;
        EXPECT_NEAR(gelesen.pfade.front().links, 20.0 * nummer + 5, 0.1); // and the printer's own margin
        EXPECT_NEAR(gelesen.pfade.front().oben, 38.0, 0.1);
    }
    QFile::remove(datei);
}

TEST_F(Warteschlange, ASheetGoesIntoAFileThoughThereIsAPrinter) {
    const QTemporaryDir ordner;
    const std::string ziel = EigenerPfad(ordner.filePath(QStringLiteral("Blatt.pdf")));
    Druckseite seite(Druckziel{QPageLayout::Landscape, ziel, "Probe", Wenden::Nicht, true, false});
    EXPECT_EQ(seite.Drucken(Zeichnung{Textstelle{20_mm, 30_mm, {}, "Blatt"}}, {}), ziel);
    const PdfSeite gelesen = PdfLesen(NativerPfad(ziel));
    EXPECT_NEAR(gelesen.breite, 297.0, 0.3);
    ASSERT_EQ(gelesen.worte.size(), 1U);
    // Where the printer would have put it.
    EXPECT_NEAR(gelesen.worte.front().links, 20.0 + static_cast<double>(seite.masse().links.zahl()), 0.3);
    EXPECT_EQ(Drucker().outputFormat(), QPrinter::NativeFormat);
}

TEST_F(Warteschlange, AJobThatTheServiceRefusesIsARunTimeError) {
    const QString name = QString::fromLatin1(Druckdienst::warteschlange);
    ASSERT_TRUE(dienst->befehl(QStringLiteral("cupsreject"), {name}));
    {
        Druckseite seite(QPageLayout::Portrait, "\\x.pdf", "Probe");
        EXPECT_THROW(seite.Drucken({}, {}), Laufzeitfehler);
    }
    EXPECT_TRUE(dienst->befehl(QStringLiteral("cupsaccept"), {name}));
}

TEST_F(Warteschlange, WithoutTheServiceTheSheetBecomesAPdfFileAndWithItAgainAPrintedOne) {
    EXPECT_EQ(Drucker().outputFormat(), QPrinter::NativeFormat);
    dienst->beenden();
    const QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("Ohne.pdf"));
    {
        Druckseite seite(QPageLayout::Portrait, EigenerPfad(datei), "Probe");
        EXPECT_EQ(seite.Drucken({Strich{10_mm, 10_mm, 20_mm, 10_mm, {}}}, {}), EigenerPfad(datei));
    }
    EXPECT_EQ(PdfSeitenzahl(datei), 1);
    ASSERT_EQ(dienst->starten(), QString());
    EXPECT_EQ(Drucker().outputFormat(), QPrinter::NativeFormat);
}

TEST_F(Warteschlange, APrinterChosenInTheDialogServesAlsoWhenItIsAFile) {
    const QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("Gewaehlt.pdf"));
    auto kopie = DruckerKopie("\\x\\Feldkranz.pdf");
    EXPECT_EQ(kopie->printerName().toStdString(), Druckdienst::warteschlange);
    kopie->setOutputFormat(QPrinter::PdfFormat);
    kopie->setOutputFileName(datei);
    DruckerUebernehmen(std::move(kopie));
    for (int i = 0; i < 2; ++i) {
        QFile::remove(datei);
        Druckseite seite(QPageLayout::Portrait, "\\x\\Feldkranz.pdf", "Probe");
        EXPECT_EQ(seite.Drucken({Strich{10_mm, 10_mm, 20_mm, 10_mm, {}}}, {}), EigenerPfad(datei));
        EXPECT_TRUE(QFile::exists(datei));
    }
    // The file stays chosen when the dialog is confirmed again as it stands.
    DruckerUebernehmen(DruckerKopie("\\x\\Feldkranz.pdf"));
    EXPECT_EQ(PdfZiel("\\x\\Feldkranz.pdf"), EigenerPfad(datei));
}
