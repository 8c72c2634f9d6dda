// The printed page as another program reads it: the way through the toolkit's printer into a PDF file.
#include "core/laufzeitfehler.h"
#include "core/pfad.h"
#include "printing/druckseite.h"
#include "tests/printing/formularsoll.h"
#include "tests/printing/pdfleser.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrinter>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

namespace {

// A system without a printer, whatever the machine has.
class PdfSeiten : public testing::Test {
protected:
    static void SetUpTestSuite() { qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); }

    // Prints the form and returns the path of the file.
    QString Drucken(const FKDruckdaten& daten, Papier papier, float abstand) {
        QString datei = ordner.filePath(QStringLiteral("Blatt.pdf"));
        Druckseite seite(papier == Papier::A4Quer ? QPageLayout::Landscape : QPageLayout::Portrait,
                         EigenerPfad(datei), "Probe");
        const auto g = GeometrieRechnen(papier, abstand, seite.masse().links, seite.masse().oben);
        const std::string pdf = seite.Drucken(FormularZeichnen(daten, g, seite.schriftmass()), {});
        EXPECT_EQ(pdf, EigenerPfad(datei));
        return datei;
    }

    QTemporaryDir ordner;
};

// A form with every kind of cell, with several lines, umlauts, and cells that are not in play.
FKDruckdaten GefuelltesFormular() {
    FKDruckdaten daten;
    daten.datum = "24.12.2008";
    daten.zeit = "90 Minuten";
    daten.nummer = "17";
    constexpr std::array titel{"", "Musik", "Natur", "Wissen", "Geschichte", "Bibel", "Sport"};
    constexpr std::array arten{"", "J", "", "E", "R", "", "G", "", "A"};
    for (std::size_t a = 1; a <= 6; ++a) {
        daten.gebiete[a] = {titel[a], a != 6};
    }
    for (std::size_t n = 1; n <= 30; ++n) {
        const std::string nr = std::to_string(n);
        daten.felder[n] = {std::string("Frage").append(nr).append(" ist öde ?\r\nZeile").append(nr),
                           std::string("Antwort").append(nr).append(" ß"), arten[n % 9], n <= 25,
                           n <= 25 && n != 2};
    }
    daten.punkte[Spezialart::Joker] = 5;
    daten.punkte[Spezialart::Ereignis] = 10;
    daten.punkte[Spezialart::Glueck] = 7;
    return daten;
}

} // namespace

class PdfSeitenAlle : public PdfSeiten, public testing::WithParamInterface<std::tuple<Papier, float>> {};

TEST_P(PdfSeitenAlle, EveryBoxLineAndTextStandsInItsPlace) {
    const auto [papier, abstand] = GetParam();
    for (int wahl = 0; wahl < 8; ++wahl) {
        FKDruckdaten daten = GefuelltesFormular();
        daten.titelGrau = daten.gebieteGrau = daten.spezialFarbig = (wahl & 1) != 0;
        daten.rahmenFarbig = (wahl & 2) != 0;
        daten.blanko = (wahl & 4) != 0;
        const QString datei = Drucken(daten, papier, abstand);
        const PdfSeite seite = PdfLesen(datei);
        EXPECT_EQ(Unterschied(FormularSoll(daten, papier, static_cast<double>(abstand)), seite), "")
            << "choice " << wahl;
        EXPECT_NEAR(seite.breite, papier == Papier::A4Quer ? 297.0 : 210.0, 0.2);
        EXPECT_NEAR(seite.hoehe, papier == Papier::A4Quer ? 210.0 : 297.0, 0.2);
    }
}

static void PrintTo(Papier papier, std::ostream* strom) {
    *strom << (papier == Papier::A4Quer ? "A4" : "A5");
}

// "A4At15TenthsOfAMillimetre".
static std::string Fallname(const testing::TestParamInfo<std::tuple<Papier, float>>& fall) {
    const auto [papier, abstand] = fall.param;
    return std::string(papier == Papier::A4Quer ? "A4" : "A5") + "At" +
           std::to_string(std::lround(abstand * 10.0F)) + "TenthsOfAMillimetre";
}

INSTANTIATE_TEST_SUITE_P(PapierUndAbstand, PdfSeitenAlle,
                         testing::Combine(testing::Values(Papier::A4Quer, Papier::A5Quer),
                                          testing::Values(0.0F, 1.0F, 1.5F, 2.0F, 2.5F)),
                         Fallname);

TEST_F(PdfSeiten, EachShadingByItself) {
    for (int wahl = 0; wahl < 3; ++wahl) {
        FKDruckdaten daten = GefuelltesFormular();
        daten.titelGrau = wahl == 0;
        daten.gebieteGrau = wahl == 1;
        daten.spezialFarbig = wahl == 2;
        const PdfSeite seite = PdfLesen(Drucken(daten, Papier::A4Quer, 1.0F));
        EXPECT_EQ(Unterschied(FormularSoll(daten, Papier::A4Quer, 1.0), seite), "") << wahl;
    }
}

TEST_F(PdfSeiten, AnEmptyBlankFormIsAnEmptySheet) {
    FKDruckdaten daten;
    daten.blanko = true;
    for (FKDruckgebiet& gebiet : daten.gebiete) {
        gebiet = {"Musik", true};
    }
    for (FKDruckfeld& feld : daten.felder) {
        feld.frageSichtbar = feld.antwortSichtbar = true;
    }
    const PdfSeite seite = PdfLesen(Drucken(daten, Papier::A5Quer, 0.0F));
    EXPECT_EQ(Unterschied(FormularSoll(daten, Papier::A5Quer, 0.0), seite), "");
}

TEST_F(PdfSeiten, ALongQuestionBreaksWhereItsWidthInThePdfSays) {
    FKDruckdaten daten;
    daten.felder[1] = {"Welche sechs Flüsse fließen durch Österreich, und in welches Meer münden sie am Ende "
                       "ihres langen Weges wohl alle miteinander ?",
                       "", "", true, false};
    for (const Papier papier : {Papier::A4Quer, Papier::A5Quer}) {
        const bool a4 = papier == Papier::A4Quer;
        const double breite = a4 ? 277.0 / 6 - 8.5 - 2 : 198.0 / 6 - 5.95 - 2;
        const double leer = 8 * (a4 ? 1.0 : 0.7) * 0.278 * 25.4 / 72; // a blank of Arial
        const double oben = a4 ? 49.0 : 36.8;                         // of the first row
        std::vector<std::vector<Wort>> zeilen;
        for (const Wort& wort : PdfLesen(Drucken(daten, papier, 0.0F)).worte) {
            if (wort.oben < oben || wort.links < (a4 ? 18.0 : 11.0)) {
                continue; // the head; the number
            }
            if (zeilen.empty() || wort.oben > zeilen.back().back().oben + 1.0) {
                zeilen.emplace_back();
            }
            zeilen.back().push_back(wort);
        }
        ASSERT_GT(zeilen.size(), 2U);
        for (std::size_t i = 0; i + 1 < zeilen.size(); ++i) {
            const double zeile = zeilen[i].back().rechts - zeilen[i].front().links;
            const Wort& wort = zeilen[i + 1].front();
            EXPECT_LE(zeile + leer, breite + 0.05) << zeilen[i].front().text;
            EXPECT_GT(zeile + leer + (wort.rechts - wort.links) + leer, breite - 0.05) << wort.text;
            EXPECT_NEAR(zeilen[i + 1].front().links, (a4 ? 10 + 8.5 : 6 + 5.95), 0.3);
        }
    }
}

TEST_F(PdfSeiten, AOneWordTextWiderThanTheColumnIsOneLineBeyondTheEdge) {
    const std::string wort = "Donaudampfschifffahrtsgesellschaftskapitänswitwe";
    FKDruckdaten daten;
    daten.felder[1] = {wort, "", "", true, true};
    const PdfSeite seite = PdfLesen(Drucken(daten, Papier::A4Quer, 0.0F));
    const auto stelle =
        std::find_if(seite.worte.begin(), seite.worte.end(), [&](const Wort& w) { return w.text == wort; });
    ASSERT_NE(stelle, seite.worte.end());
    EXPECT_NEAR(stelle->links, 18.5, 0.3);
    EXPECT_GT(stelle->rechts, 10 + 277.0 / 6);
}

TEST_F(PdfSeiten, TheFacesHaveArialsMetricsAndAreEmbedded) {
    const QString datei = Drucken(GefuelltesFormular(), Papier::A4Quer, 0.0F);
    EXPECT_EQ(PdfSeitenzahl(datei), 1);
    for (const std::string& name : PdfSchriften(datei)) {
        const bool gut = name.find("Arial") != std::string::npos ||
                         name.find("Liberation") != std::string::npos ||
                         name.find("Arimo") != std::string::npos || name.find("Nimbus") != std::string::npos;
        EXPECT_TRUE(gut) << name;
    }
}

TEST_F(PdfSeiten, ArialBlackIsTheHeaviestFaceAndCirclesAreDrawn) {
    const QString datei = ordner.filePath(QStringLiteral("schwarz.pdf"));
    Druckseite seite(QPageLayout::Portrait, EigenerPfad(datei), "Probe");
    const Zeichnung zeichnung{Textstelle{15, 10, {Schriftart::ArialBlack, 20, true}, "Natur"},
                              Kreis{100, 50, 2.5F, {}}};
    seite.Drucken(zeichnung, {});
    ASSERT_EQ(PdfSchriften(datei).size(), 1U);
    const std::string name = PdfSchriften(datei).front();
    EXPECT_TRUE(name.find("Bold") != std::string::npos || name.find("Black") != std::string::npos) << name;
    const PdfSeite gelesen = PdfLesen(datei);
    ASSERT_EQ(gelesen.pfade.size(), 1U);
    EXPECT_NEAR(gelesen.pfade[0].links, 97.5, 0.1);
    EXPECT_NEAR(gelesen.pfade[0].unten, 52.5, 0.1);
}

TEST_F(PdfSeiten, TheOffsetsOfThePrinterAreMadeUpForOnPaper) {
    QPageLayout layout = Drucker().pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    layout.setMinimumMargins(QMarginsF(4, 6, 5, 7));
    Drucker().setPageLayout(layout);
    const QString datei = ordner.filePath(QStringLiteral("rand.pdf"));
    Druckseite seite(layout.orientation(), EigenerPfad(datei), "Probe");
    const Seitenmasse masse = seite.masse();
    const auto g = GeometrieRechnen(Papier::A4Quer, 0.0F, masse.links, masse.oben);
    EXPECT_EQ(g.RandLinks, 10.0F - static_cast<float>(masse.links));
    EXPECT_EQ(g.RandOben, 25.0F - static_cast<float>(masse.oben));
    seite.Drucken({Rechteck{g.RandLinks, g.RandOben, 20, 30, {}, {}}}, {});
    const PdfSeite gelesen = PdfLesen(datei);
    ASSERT_EQ(gelesen.pfade.size(), 1U);
    EXPECT_NEAR(gelesen.pfade[0].links, 10.0, 0.1);
    EXPECT_NEAR(gelesen.pfade[0].oben, 25.0, 0.1);
    EXPECT_EQ(masse.links, 4);
    EXPECT_EQ(masse.oben, 6);
    EXPECT_EQ(masse.rechts, 5);
    EXPECT_EQ(masse.unten, 7);
    layout.setMinimumMargins(QMarginsF());
    Drucker().setPageLayout(layout);
}

TEST_F(PdfSeiten, MeasuresOfA4InBothWays) {
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setPageSize(QPageSize(QPageSize::A4));
    EXPECT_EQ(SeitenmasseText(SeiteMessen(drucker)),
              "Papiergröße: 210 x 297mm\r\nLinker Rand: 0mm\r\nRechter Rand: 0mm\r\nOberer Rand: 0mm\r\n"
              "Unterer Rand: 0mm");
    drucker.setPageOrientation(QPageLayout::Landscape);
    EXPECT_EQ(SeiteMessen(drucker).breite, 297);
    EXPECT_EQ(SeiteMessen(drucker).hoehe, 210);
}

TEST_F(PdfSeiten, TheOrientationIsSetBackAfterTheJobAndAfterAFailure) {
    for (const auto vorher : {QPageLayout::Portrait, QPageLayout::Landscape}) {
        Drucker().setPageOrientation(vorher);
        for (const auto waehrend : {QPageLayout::Portrait, QPageLayout::Landscape}) {
            {
                Druckseite seite(waehrend, EigenerPfad(ordner.filePath(QStringLiteral("a.pdf"))), "Probe");
                EXPECT_EQ(Drucker().pageLayout().orientation(), waehrend);
                EXPECT_EQ(seite.hochkant(), waehrend == QPageLayout::Portrait);
                seite.Drucken({}, {});
            }
            EXPECT_EQ(Drucker().pageLayout().orientation(), vorher);
            {
                Druckseite seite(waehrend, EigenerPfad(ordner.filePath(QStringLiteral("weg/a.pdf"))),
                                 "Probe");
                EXPECT_THROW(seite.Drucken({}, {}), Laufzeitfehler);
            }
            EXPECT_EQ(Drucker().pageLayout().orientation(), vorher);
        }
    }
    Drucker().setPageOrientation(QPageLayout::Portrait);
}

TEST_F(PdfSeiten, AnUnwritableTargetIsARunTimeErrorAndLeavesNothing) {
    const QString belegt = ordner.filePath(QStringLiteral("belegt.pdf"));
    ASSERT_TRUE(QDir().mkpath(belegt)); // a folder of that name
    for (const QString& ziel : {belegt, ordner.filePath(QStringLiteral("weg/a.pdf"))}) {
        Druckseite seite(QPageLayout::Portrait, EigenerPfad(ziel), "Probe");
        try {
            seite.Drucken({}, {});
            ADD_FAILURE() << ziel.toStdString();
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_FALSE(fehler.text().empty());
        }
    }
    EXPECT_EQ(QDir(ordner.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("belegt.pdf")});
}

TEST_F(PdfSeiten, AFailedPrintLeavesTheOldSheetWhole) {
    const QString datei = Drucken(GefuelltesFormular(), Papier::A4Quer, 0.0F);
    const auto vorher = PdfLesen(datei).worte.size();
    Druckseite seite(QPageLayout::Portrait, EigenerPfad(datei), "Probe");
    EXPECT_THROW(seite.Drucken({Strich{0, 0, 1, 1, {}}}, [] { throw Laufzeitfehler(Fehler::Ueberlauf); }),
                 Laufzeitfehler);
    EXPECT_EQ(PdfLesen(datei).worte.size(), vorher);
    EXPECT_EQ(QDir(ordner.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

TEST_F(PdfSeiten, ALinkLeadsToTheFileThatIsReplacedAndItsPermissionsStay) {
    const QString echt = Drucken({}, Papier::A4Quer, 0.0F);
    const auto rechte = QFile::ReadOwner | QFile::WriteOwner;
    ASSERT_TRUE(QFile::setPermissions(echt, rechte));
    const QString verweis = ordner.filePath(QStringLiteral("Verweis.pdf"));
    ASSERT_TRUE(QFile::link(echt, verweis));
    Druckseite seite(QPageLayout::Portrait, EigenerPfad(verweis), "Probe");
    seite.Drucken({Textstelle{10, 10, {}, "Neu"}}, {});
    EXPECT_TRUE(QFileInfo(verweis).isSymLink());
    ASSERT_EQ(PdfLesen(echt).worte.size(), 1U);
    EXPECT_EQ(PdfLesen(echt).worte.front().text, "Neu");
    EXPECT_EQ(QFile::permissions(echt) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

TEST_F(PdfSeiten, ANewFilesNameMayHoldAnyCharacter) {
    for (const char* const name : {"Größe 日本.pdf", "a'b \"c\".pdf", "ohne Endung", "x.PDF"}) {
        const QString datei = ordner.filePath(QString::fromUtf8(name));
        Druckseite seite(QPageLayout::Portrait, EigenerPfad(datei), "Größe 日本");
        EXPECT_EQ(seite.Drucken({}, {}), EigenerPfad(datei));
        EXPECT_EQ(PdfSeitenzahl(datei), 1) << name;
    }
}

TEST_F(PdfSeiten, ProgressRunsThroughThirtySteps) {
    int schritte = 0;
    Druckseite seite(QPageLayout::Portrait, EigenerPfad(ordner.filePath(QStringLiteral("s.pdf"))), "Probe");
    const Zeichnung zeichnung(7, Strich{0, 0, 1, 1, {}});
    seite.Drucken(zeichnung, [&] { ++schritte; });
    EXPECT_EQ(schritte, 30);
}
