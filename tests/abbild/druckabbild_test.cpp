// The two printed pages, held line by line against those in erwartet/: as the layouts make them, and as they
// are read back from what the print commands leave.
#include "abbildschritte.h"
#include "abbildvergleich.h"
#include "printing/druckdaten.h"
#include "printing/druckseite.h"
#include "printing/seitenlayout.h"
#include "printing/testseite.h"
#include "quizform/fkformular.h"
#include "quizform/quizformular.h"
#include "testform/testformular.h"
#include "tests/hilfe/finden.h"
#include "zeichnungstext.h"

#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

using abbild::BytesVergleichen;

namespace {

// What the print command takes from the open quiz form and the settings, without shading and frames.
FKDruckdaten Quizdaten() {
    Spielwerte schlicht = Spiel;
    schlicht.OptionTitel = schlicht.OptionWissen = schlicht.OptionJoker = schlicht.OptionRahmen = false;
    return DruckdatenAus(FK_Ablesen(), schlicht, false);
}

QByteArray Quizseite(const FKDruckdaten& daten, Papier papier) {
    const Druckseite seite(papier == Papier::A4Quer ? QPageLayout::Landscape : QPageLayout::Portrait, "",
                           "Abbild");
    const Druckgeometrie geometrie =
        GeometrieRechnen(papier, Spiel.Zwischenabstand, seite.masse().links, seite.masse().oben);
    return abbild::Zeichnungstext(FormularZeichnen(daten, geometrie, seite.schriftmass()));
}

// The same of the open test form.
Testdruckdaten Testdaten(const QWidget* form) {
    const auto aufschrift = [form](const QString& name) {
        return Finden(form, name)->property("caption").toString().toStdString();
    };
    const auto text = [form](const char* feld, int zeile) {
        QString inhalt = Finden<QPlainTextEdit>(form, QLatin1String(feld), zeile)->toPlainText();
        return inhalt.replace(u'\n', QStringLiteral("\r\n")).toStdString();
    };
    Testdruckdaten daten;
    daten.titel = aufschrift(QStringLiteral("pnlTitel"));
    daten.fach = aufschrift(QStringLiteral("pnlFach"));
    daten.gruppenwort = aufschrift(QStringLiteral("pnlGruppe"));
    daten.gruppe = Finden<QLabel>(form, QStringLiteral("lblGruppe"))->text().toStdString();
    daten.name = aufschrift(QStringLiteral("pnlName"));
    daten.dateiname = "Erste-Hilfe.FKR";
    daten.gesamtpunkte = HBForm.HBGesamtpunkte;
    for (int i = 1; i <= anzahlTestfragen; ++i) {
        daten.zeilen.at(static_cast<std::size_t>(i)) = {text("txtFrage", i), text("txtAntwort", i),
                                                        aufschrift(QStringLiteral("pnlPunkte(%1)").arg(i))};
    }
    return daten;
}

QByteArray Testseite(const Testdruckdaten& daten) {
    const Druckseite seite(QPageLayout::Portrait, "", "Abbild");
    const Testgeometrie geometrie =
        TestGeometrieRechnen(AnzahlTestfragen(daten), seite.masse().links, seite.masse().oben);
    return abbild::Zeichnungstext(TestZeichnen(daten, geometrie, seite.schriftmass()));
}

// The one page that was printed into a folder, under whatever name.
QByteArray Gedruckt(const Abbildlauf& lauf, const QString& ordner) {
    const QDir ort(lauf.programm().ordner().nativ(ordner));
    const QStringList blaetter = ort.entryList({QStringLiteral("*.pdf")}, QDir::Files);
    const PdfSeite seite = PdfLesen(ort.filePath(blaetter.value(0)));
    if (blaetter.size() != 1 || !seite.fehler.empty()) {
        Versagen(
            QStringLiteral("%1 pages, %2").arg(blaetter.size()).arg(QString::fromStdString(seite.fehler)),
            Stelle::hier());
    }
    return "file " + blaetter.join(u' ').toUtf8() + '\n' + abbild::Seitentext(seite);
}

} // namespace

class DruckabbildTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); }
    void theElementsOfTheQuizPage();
    void theElementsOfTheTestPage();
    void thePrintedQuizPage();
    void thePrintedTestPage();
};

void DruckabbildTest::theElementsOfTheQuizPage() {
    Abbildlauf lauf;
    lauf.QuizformularOeffnen(QStringLiteral("Bibelabend.FKR"));
    FKDruckdaten daten = Quizdaten();
    BytesVergleichen(Quizseite(daten, Papier::A5Quer), QStringLiteral("Quizseite_A5.txt"));
    daten.titelGrau = daten.gebieteGrau = daten.spezialFarbig = daten.rahmenFarbig = true;
    BytesVergleichen(Quizseite(daten, Papier::A4Quer), QStringLiteral("Quizseite_A4_farbig.txt"));
    daten.blanko = true;
    daten.gebiete.at(2).benutzbar = false;
    daten.felder.at(3).frageSichtbar = daten.felder.at(3).antwortSichtbar = false;
    BytesVergleichen(Quizseite(daten, Papier::A4Quer), QStringLiteral("Quizseite_A4_blanko.txt"));
}

void DruckabbildTest::theElementsOfTheTestPage() {
    Abbildlauf lauf;
    const QWidget* form = lauf.TestformularOeffnen(QStringLiteral("Erste-Hilfe.FKR"));
    Testdruckdaten daten = Testdaten(form);
    BytesVergleichen(Testseite(daten), QStringLiteral("Testseite.txt"));
    daten.mitAntworten = true;
    BytesVergleichen(Testseite(daten), QStringLiteral("Testseite_antworten.txt"));
}

void DruckabbildTest::thePrintedQuizPage() {
    Abbildlauf lauf;
    lauf.QuizformularOeffnen(QStringLiteral("Naturabend.FKR"));
    Dialogfolge dialoge;
    dialoge.erwarte(Irgendeiner("frmNachricht", "cmdAntwort(4)"));
    lauf.Druecken(QStringLiteral("cmdDruckenFK(2)"));
    BytesVergleichen(Gedruckt(lauf, QStringLiteral("KRANZ")), QStringLiteral("Quizdruck.txt"));
}

void DruckabbildTest::thePrintedTestPage() {
    Abbildlauf lauf;
    lauf.TestformularOeffnen(QStringLiteral("Lagerleben.FKR"));
    Dialogfolge dialoge;
    dialoge.erwarte(Irgendeiner("frmNachricht", "cmdAntwort(4)"));
    dialoge.erwarte(Irgendeiner("QMessageBox", "OK"));
    dialoge.erwarte(Irgendeiner("frmNachricht", "cmdAntwort(0)"));
    lauf.Druecken(QStringLiteral("cmdDruckenHB(2)"));
    BytesVergleichen(Gedruckt(lauf, QStringLiteral("TEST")), QStringLiteral("Testdruck.txt"));
}

QTEST_MAIN(DruckabbildTest)
#include "druckabbild_test.moc"
