// The sheets as another program reads them from their PDF: lines within 0.05 mm, texts within 0.3.
#include "core/pfad.h"
#include "printing/druckseite.h"
#include "printing/pdfordnung.h"
#include "sheets/spielbrett.h"
#include "tests/printing/pdfleser.h"
#include "tests/sheets/blattvorlagen.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace {

class Blattpdf : public testing::Test {
protected:
    static void SetUpTestSuite() { qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); }

    // Prints the sheet into a file of its own. BLAETTER_BEHALTEN=folder keeps it for a look.
    QString Drucken(const Blattvorlage& vorlage, Blattart art) {
        const QString behalten = qEnvironmentVariable("BLAETTER_BEHALTEN");
        const QString name =
            QString::fromUtf8(Blattname(art).data(), static_cast<int>(Blattname(art).size()));
        QString datei =
            (behalten.isEmpty() ? ordner.path() : behalten) + u'/' + name + QStringLiteral(".pdf");
        Druckseite seite({BlattQuer(vorlage, art) ? QPageLayout::Landscape : QPageLayout::Portrait,
                          EigenerPfad(datei), "Probe", Wenden::Nicht, false, false});
        blatt = BlattMachen(vorlage, {art, false, false}, {seite.masse().links, seite.masse().oben},
                            seite.schriftmass());
        EXPECT_EQ(seite.SeitenDrucken(blatt.seiten, {}), EigenerPfad(datei));
        return datei;
    }

    QTemporaryDir ordner;
    Blattsatz blatt;
};

// The word's middle, if it stands once on the page.
std::pair<double, double> Mitte(const PdfSeite& seite, const std::string& text) {
    const auto gleich = [&text](const Wort& wort) { return wort.text == text; };
    EXPECT_EQ(std::ranges::count_if(seite.worte, gleich), 1) << text;
    const auto wort = std::ranges::find_if(seite.worte, gleich);
    return wort == seite.worte.end()
               ? std::pair(0.0, 0.0)
               : std::pair((wort->links + wort->rechts) / 2, (wort->oben + wort->unten) / 2);
}

bool HatKasten(const PdfSeite& seite, double links, double oben, double rechts, double unten) {
    return std::ranges::any_of(seite.pfade, [=](const Pfad& pfad) {
        return pfad.ecken == 4 && std::abs(pfad.links - links) < 0.05 && std::abs(pfad.oben - oben) < 0.05 &&
               std::abs(pfad.rechts - rechts) < 0.05 && std::abs(pfad.unten - unten) < 0.05;
    });
}

bool HatLinie(const PdfSeite& seite, double x1, double y1, double x2, double y2) {
    return std::ranges::any_of(seite.pfade, [=](const Pfad& pfad) {
        return pfad.ecken == 2 && std::abs(pfad.links - x1) < 0.05 && std::abs(pfad.oben - y1) < 0.05 &&
               std::abs(pfad.rechts - x2) < 0.05 && std::abs(pfad.unten - y2) < 0.05;
    });
}

// A board's measures, from its size alone.
struct Brettsoll {
    double breite, hoehe;
    [[nodiscard]] double luecke() const { return breite * 0.012; }
    [[nodiscard]] double spalte() const { return (breite - 5 * luecke()) / 6; }
    [[nodiscard]] double kopf() const { return hoehe * 0.16; }
    [[nodiscard]] double zeile() const { return (hoehe - kopf() - 5 * luecke()) / 5; }
    [[nodiscard]] double x(int a) const { return (a - 1) * (spalte() + luecke()); }
    [[nodiscard]] double y(int r) const { return kopf() + luecke() + (r - 1) * (zeile() + luecke()); }
};

} // namespace

TEST_F(Blattpdf, TheBoardOnOnePageHasATitleAndFiveNumbersAnArea) {
    const PdfSeite seite = PdfLesen(Drucken(VollesQuiz(), Blattart::BrettA4));
    ASSERT_EQ(seite.fehler, "");
    EXPECT_NEAR(seite.breite, 297.0, 0.2);
    EXPECT_NEAR(seite.hoehe, 210.0, 0.2);
    const Brettsoll soll{277, 190};
    EXPECT_EQ(seite.worte.size(), 36U);
    const auto [x, y] = Mitte(seite, "Natur");
    EXPECT_NEAR(x, 10 + soll.x(2) + soll.spalte() / 2, 0.3);
    EXPECT_NEAR(y, 10 + soll.kopf() / 2, 0.3);
    for (int a = 1; a <= 6; ++a) {
        const double links = 10 + soll.x(a);
        EXPECT_TRUE(HatKasten(seite, links, 10, links + soll.spalte(), 10 + soll.kopf())) << a;
        for (int r = 1; r <= 5; ++r) {
            const double oben = 10 + soll.y(r);
            EXPECT_TRUE(HatKasten(seite, links, oben, links + soll.spalte(), oben + soll.zeile())) << a << r;
            const auto zahl = std::ranges::find_if(seite.worte, [&](const Wort& wort) {
                return wort.text == std::to_string(r) && wort.links > links &&
                       wort.rechts < links + soll.spalte();
            });
            ASSERT_NE(zahl, seite.worte.end()) << a << r;
            EXPECT_NEAR((zahl->links + zahl->rechts) / 2, links + soll.spalte() / 2, 0.3);
            EXPECT_NEAR((zahl->oben + zahl->unten) / 2, oben + soll.zeile() / 2, 0.3);
        }
    }
}

TEST_F(Blattpdf, OnlyWhatIsInPlayStandsOnTheBoardAndTakesItsRoom) {
    Quizvorlage quiz = VollesQuiz();
    quiz.spiel.OptionMaxWissen = true;
    quiz.spiel.AnzahlWissen = 4;
    const PdfSeite seite = PdfLesen(Drucken(quiz, Blattart::BrettA4));
    EXPECT_EQ(seite.worte.size(), 24U);
    const double spalte = (277 - 3 * 277 * 0.012) / 4;
    EXPECT_TRUE(HatKasten(seite, 287 - spalte, 10, 287, 10 + 190 * 0.16));
    EXPECT_NEAR(Mitte(seite, "Bibel").first, 287 - spalte / 2, 0.3);
}

class Posterpdf : public Blattpdf, public testing::WithParamInterface<Blattart> {};

// On each page stands what the whole board has there, its marks stand at the corners, and put together the
// pages give the board.
TEST_P(Posterpdf, EachPageIsItsPartOfTheBoard) {
    const Kacheln k = std::map<Blattart, Kacheln>{
        {Blattart::BrettA3, {false, 2, 1}},
        {Blattart::BrettA2, {true, 2, 2}},
        {Blattart::BrettA1, {false, 4, 2}},
        {Blattart::BrettA0,
         {true, 4, 4}}}.at(GetParam());
    const QString datei = Drucken(VollesQuiz(), GetParam());
    ASSERT_EQ(PdfSeitenzahl(datei), k.spalten * k.zeilen);
    const double breite = (k.quer ? 297 : 210) - 20;
    const double hoehe = (k.quer ? 210 : 297) - 20;
    const Brettsoll soll{breite * k.spalten, hoehe * k.zeilen};
    int gesehen = 0;
    for (int nummer = 1; nummer <= k.spalten * k.zeilen; ++nummer) {
        const PdfSeite seite = PdfLesen(datei, nummer);
        EXPECT_NEAR(seite.breite, breite + 20, 0.2);
        const int zeile = (nummer - 1) / k.spalten;
        const double dx = 10 - (nummer - 1) % k.spalten * breite;
        const double dy = 10 - zeile * hoehe;
        for (const double x : {10.0, 10 + breite}) {
            for (const double y : {10.0, 10 + hoehe}) {
                const double seitlich = x < 50 ? -1 : 1;
                const double auf = y < 50 ? -1 : 1;
                EXPECT_TRUE(HatLinie(seite, std::min(x + seitlich, x + 5 * seitlich), y,
                                     std::max(x + seitlich, x + 5 * seitlich), y));
                EXPECT_TRUE(
                    HatLinie(seite, x, std::min(y + auf, y + 5 * auf), x, std::max(y + auf, y + 5 * auf)));
            }
        }
        for (int a = 1; a <= 6; ++a) {
            const double links = dx + soll.x(a);
            const bool waagerecht = links < 10 + breite - 0.1 && links + soll.spalte() > 10.1;
            const bool kopf = waagerecht && dy + soll.kopf() > 10.1;
            EXPECT_EQ(HatKasten(seite, links, dy, links + soll.spalte(), dy + soll.kopf()), kopf)
                << nummer << " title " << a;
            for (int r = 1; r <= 5; ++r) {
                const double oben = dy + soll.y(r);
                const bool da = waagerecht && oben < 10 + hoehe - 0.1 && oben + soll.zeile() > 10.1;
                EXPECT_EQ(HatKasten(seite, links, oben, links + soll.spalte(), oben + soll.zeile()), da)
                    << nummer << " cell " << a << r;
                gesehen += da ? 1 : 0;
            }
        }
    }
    EXPECT_GE(gesehen, 30);
}

static std::string Postername(const testing::TestParamInfo<Blattart>& fall) {
    return std::string(Blattname(fall.param).substr(6));
}
INSTANTIATE_TEST_SUITE_P(Groessen, Posterpdf,
                         testing::Values(Blattart::BrettA3, Blattart::BrettA2, Blattart::BrettA1,
                                         Blattart::BrettA0),
                         Postername);

TEST_F(Blattpdf, APosterSaysOnEachPageWhichItIs) {
    const QString text = PdfText(Drucken(VollesQuiz(), Blattart::BrettA2));
    for (const char* zeile :
         {"Brett A2, Blatt 1 von 4 (Reihe 1, Spalte 1)", "Brett A2, Blatt 2 von 4 (Reihe 1, Spalte 2)",
          "Brett A2, Blatt 3 von 4 (Reihe 2, Spalte 1)", "Brett A2, Blatt 4 von 4 (Reihe 2, Spalte 2)"}) {
        EXPECT_TRUE(text.contains(QString::fromUtf8(zeile))) << zeile;
    }
}

class Kartenpdf : public Blattpdf, public testing::WithParamInterface<bool> {};

TEST_P(Kartenpdf, FrontAndBackOfACardMeetWhenThePaperIsTurned) {
    const bool acht = GetParam();
    const QString datei = Drucken(VollesQuiz(), acht ? Blattart::Karten8 : Blattart::Karten16);
    const int spalten = acht ? 2 : 4;
    const double seitenbreite = acht ? 210 : 297;
    const double breite = (seitenbreite - 20) / spalten;
    const double hoehe = ((acht ? 297 : 210) - 20) / 4.0;
    const int jeSeite = spalten * 4;
    ASSERT_EQ(PdfSeitenzahl(datei), 2 * ((30 + jeSeite - 1) / jeSeite));
    EXPECT_EQ(blatt.wenden, acht ? Wenden::LangeKante : Wenden::KurzeKante);
    std::set<std::string> fragen;
    for (int nummer = 1; nummer < PdfSeitenzahl(datei); nummer += 2) {
        const PdfSeite vorn = PdfLesen(datei, nummer);
        const PdfSeite hinten = PdfLesen(datei, nummer + 1);
        for (int i = 0; i <= spalten; ++i) {
            const double x = 10 + i * breite;
            EXPECT_TRUE(HatLinie(vorn, x, 6, x, (acht ? 297 : 210) - 6)) << i;
        }
        for (int i = 0; i < jeSeite && (nummer - 1) / 2 * jeSeite + i < 30; ++i) {
            const int n = (nummer - 1) / 2 * jeSeite + i + 1;
            const int reihe = i / spalten;
            const double x = 10 + i % spalten * breite;
            const double y = 10 + reihe * hoehe;
            const std::string zeile = std::to_string((n - 1) % 5 + 1);
            const auto inKarte = [&](const Wort& wort, double links) {
                return wort.links > links && wort.rechts < links + breite && wort.oben > y &&
                       wort.unten < y + hoehe;
            };
            EXPECT_EQ(std::ranges::count_if(vorn.worte,
                                            [&](const Wort& w) { return w.text == zeile && inKarte(w, x); }),
                      1)
                << n;
            // Turned over the edge at its side, what lies x from the left lies x from the right.
            const double gespiegelt = seitenbreite - x - breite;
            for (const Wort& wort : hinten.worte) {
                if (inKarte(wort, gespiegelt) && wort.text.starts_with("Frage")) {
                    EXPECT_EQ(wort.text, "Frage" + std::to_string(n));
                    EXPECT_NEAR((wort.links + wort.rechts) / 2, gespiegelt + breite / 2, 0.3);
                    fragen.insert(wort.text);
                }
            }
        }
    }
    EXPECT_EQ(fragen.size(), 28U); // all but Joker and Ereignis
}
INSTANTIATE_TEST_SUITE_P(JeSeite, Kartenpdf, testing::Bool(),
                         [](const auto& fall) { return fall.param ? "Acht" : "Sechzehn"; });

TEST_F(Blattpdf, SpecialFieldsShowTheirKindAndPointsBehindOnly) {
    const QString datei = Drucken(VollesQuiz(), Blattart::Karten8);
    const QStringList seiten = PdfText(datei).split(u'\f');
    ASSERT_EQ(seiten.size(), 9); // behind the last page nothing follows
    const QString vorn = seiten.at(0) + seiten.at(2) + seiten.at(4) + seiten.at(6);
    const QString hinten = seiten.at(1) + seiten.at(3) + seiten.at(5) + seiten.at(7);
    for (const char* text : {"Joker\n7 Punkte", "Ereignis\n20 Punkte", "Glück, 10 Punkte", "Risiko, ? Punkte",
                             "Aktion, 4 Punkte"}) {
        EXPECT_TRUE(hinten.contains(QString::fromUtf8(text))) << text << "\n" << hinten.toStdString();
    }
    for (const char* text : {"Joker", "Ereignis", "Glück", "Risiko", "Aktion", "Punkt"}) {
        EXPECT_FALSE(vorn.contains(QString::fromUtf8(text))) << text;
    }
}

TEST_F(Blattpdf, TheAnswerSheetReadsInTheOrderOfTheBoard) {
    const QString datei = Drucken(VollesQuiz(), Blattart::Antwortbogen);
    const QString text = PdfText(datei);
    EXPECT_TRUE(text.startsWith(QStringLiteral("Antwortbogen\nNr. 17 · 24.12.2008 · 90 Minuten\n")))
        << text.toStdString();
    qsizetype stelle = 0;
    for (int n = 1; n <= 30; ++n) {
        if (n == 6 || n == 10) {
            continue;
        }
        for (const QString& wort : {QStringLiteral("Frage%1").arg(n), QStringLiteral("Antwort%1").arg(n)}) {
            const qsizetype hier = text.indexOf(wort, stelle);
            ASSERT_GE(hier, stelle) << wort.toStdString();
            stelle = hier;
        }
    }
    const PdfSeite seite = PdfLesen(datei);
    EXPECT_NEAR(seite.breite, 210.0, 0.2);
    const auto links = [&seite](const char* was) {
        const auto wort = std::ranges::find_if(seite.worte, [&](const Wort& w) { return w.text == was; });
        return wort == seite.worte.end() ? -1.0 : wort->links;
    };
    EXPECT_NEAR(links("Frage7"), 26, 0.3);
    EXPECT_NEAR(links("Antwort7"), 118, 0.3);
    EXPECT_NEAR(links("Glück"), 177, 0.3);
}

TEST_F(Blattpdf, ATestsAnswerSheetHasItsRowsAndTotal) {
    const QString text = PdfText(Drucken(KleinerTest(), Blattart::Antwortbogen));
    EXPECT_EQ(text.toStdString(),
              "Antwortbogen\nLernzielkontrolle · Knoten · Gruppe : III · Knoten.FKR\n"
              "Frage Antwort Punkte\n1. Frage2 Antwort2 2\n2. Frage3 3\n3. Frage4 Antwort4 4\n"
              "Gesamtpunkte : 12\n\f");
}

TEST_F(Blattpdf, ThePrintersOffsetsAreMadeUpForOnEverySheet) {
    const PdfSeite ohne = PdfLesen(Drucken(VollesQuiz(), Blattart::BrettA3));
    QPageLayout layout = Drucker().pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    layout.setMinimumMargins(QMarginsF(4, 6, 5, 7));
    Drucker().setPageLayout(layout);
    const PdfSeite mit = PdfLesen(Drucken(VollesQuiz(), Blattart::BrettA3));
    layout.setMinimumMargins({});
    Drucker().setPageLayout(layout);
    EXPECT_EQ(blatt.seiten.size(), 2U);
    ASSERT_EQ(ohne.pfade.size(), mit.pfade.size());
    for (std::size_t i = 0; i < ohne.pfade.size(); ++i) {
        EXPECT_NEAR(ohne.pfade.at(i).links, mit.pfade.at(i).links, 0.05);
        EXPECT_NEAR(ohne.pfade.at(i).oben, mit.pfade.at(i).oben, 0.05);
    }
}

TEST_F(Blattpdf, APageOfTheFullestSheetsTakesNoMoreThanSixtyKilobytes) {
    Quizvorlage quiz = VollesQuiz();
    for (std::size_t n = 1; n <= anzahlFelder; ++n) {
        quiz.form.FrageText.at(n) =
            "Welches größere Gewässer zwischen Österreich, Ungarn und der Slowakei heißt so, "
            "und wie übersetzt man es ?" +
            std::to_string(n);
        quiz.form.AntwortText.at(n) = "der Neusiedler See (ungarisch Fertö), ÄÖÜ äöü ß";
    }
    for (const Blattart art : Blattarten(Formart::Quiz)) {
        const QString datei = Drucken(quiz, art);
        EXPECT_LE(QFileInfo(datei).size(), 60000 * PdfSeitenzahl(datei)) << Blattname(art);
    }
}

TEST_F(Blattpdf, EverySheetBringsItsFontsAlongAndIsInOrder) {
    for (const Blattart art : Blattarten(Formart::Quiz)) {
        const QString datei = Drucken(VollesQuiz(), art);
        EXPECT_TRUE(PdfSchriftenDabei(datei)) << Blattname(art);
        const std::string bytes = PdfBytes(datei).toStdString();
        EXPECT_EQ(PdfOrdnen(bytes), bytes) << Blattname(art);
        EXPECT_NE(bytes.find("/Lang (de-DE)"), std::string::npos) << Blattname(art);
    }
}

// The toolkit draws lots anew in each process.
TEST_F(Blattpdf, TheSameFormGivesTheSameFileInAnotherProcess) {
    std::map<QString, QByteArray> erste;
    for (int lauf = 0; lauf < 3; ++lauf) {
        const QTemporaryDir ablage;
        QProcess prozess;
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        umgebung.insert(QStringLiteral("BLAETTER_BEHALTEN"), ablage.path());
        prozess.setProcessEnvironment(umgebung);
        prozess.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--gtest_filter=Blattpdf.APageOfTheFullest*")});
        ASSERT_TRUE(prozess.waitForFinished(60000));
        ASSERT_EQ(prozess.exitCode(), 0);
        const QStringList dateien = QDir(ablage.path()).entryList({QStringLiteral("*.pdf")});
        ASSERT_EQ(dateien.size(), 9);
        for (const QString& datei : dateien) {
            const QByteArray bytes = PdfOhneZeit(PdfBytes(ablage.filePath(datei)));
            if (lauf == 0) {
                erste[datei] = bytes;
            }
            EXPECT_TRUE(erste[datei] == bytes) << datei.toStdString();
        }
    }
}
