// Printing a test by the command on the real main window: the checks, the questions in their order, what is
// on the sheet, and that the form is left as it was. The system knows no printer here.
#include "core/hauptfenster.h"
#include "core/panel.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "printing/drucker.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"
#include "tests/printing/pdfleser.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QPrinter>
#include <QTest>

#include <algorithm>

namespace {

const QString titel = QStringLiteral("Testformular ausdrucken");
const QString leeresBlatt = QStringLiteral("Ich drucke ein leeres Testformular aus !");
const QString ohnePunkte = QStringLiteral("Für eine oder mehrere Fragen fehlt die Punktzahl.\n"
                                          "Soll ich das Formular trotzdem drucken ?");
const QString mitAntworten = QStringLiteral("Das Testformular enthält auch Antworten.\n"
                                            "Soll ich die Antworten mit ausdrucken ?");
const QString ohneNamen = QStringLiteral("TEST/Test.pdf");

QString MitFragen(int anzahl) {
    return QStringLiteral("Ich drucke ein Testformular mit %1 Fragen aus !").arg(anzahl);
}

void SeitenmasseErwarten(Dialogfolge& dialoge) {
    dialoge.kasten(QStringLiteral("Feldkranz"),
                   QStringLiteral("Papiergröße: 210 x 297mm\nLinker Rand: 0mm\nRechter Rand: 0mm\n"
                                  "Oberer Rand: 0mm\nUnterer Rand: 0mm"),
                   QStringLiteral("OK"));
}

bool Enthaelt(const PdfSeite& seite, const std::string& wort) {
    return std::any_of(seite.worte.begin(), seite.worte.end(), [&](const Wort& w) { return w.text == wort; });
}

// A form with subject and group, and questions in the first rows.
frmHBFragen* Formular(Programm& programm, int fragen, bool punkte) {
    frmHBFragen* form = programm.NeuesTestformular();
    form->fach.panel->setCaption(QStringLiteral(" Knoten"));
    form->lblGruppe->setText(QStringLiteral(" II"));
    for (int n = 1; n <= fragen; ++n) {
        const auto i = static_cast<std::size_t>(n);
        form->txtFrage.at(i)->setText("Frage" + std::to_string(n));
        if (punkte) {
            form->pnlPunkte.at(i)->setCaption(QString::number(n));
        }
    }
    return form;
}

void Drucken(const Programm& programm) {
    auto* taste = Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdDruckenHB(2)"));
    QVERIFY(taste->isVisible() && taste->isEnabled());
    taste->click();
}

} // namespace

class TestdruckenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); }
    void withoutASubjectTheRoutineEndsWithAMessage();
    void anEmptyTestIsAskedAboutAndPrinted();
    void aTestWithoutAGroupPrintsAllTheSame();
    void theQuestionAboutPointsComesOncePerRow();
    void oneAbbrechenAboutPointsStopsAll();
    void pointsWithoutAQuestionAreNotAskedAbout();
    void aTestWithoutAnswersIsNotAskedAboutThem();
    void onlyJaPrintsTheAnswers_data();
    void onlyJaPrintsTheAnswers();
    void abbrechenBeforeThePrintPrintsNothing();
    void blankPrintRestoreWorks();
    void aNamedTestIsPrintedBesideItsFormUnderItsName();
    void anUnwritableTargetIsReportedInAStockBoxAndNothingIsPrinted();
    void theMenuEntryPrintsAsWell();
};

void TestdruckenTest::withoutASubjectTheRoutineEndsWithAMessage() {
    Programm programm;
    Formular(programm, 3, true)->fach.panel->setCaption(QStringLiteral(" Fach"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Fachangabe fehlt !"), QStringLiteral("Wird sofort eingetragen !"));
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    QVERIFY(!programm.ordner().vorhanden(ohneNamen));
}

void TestdruckenTest::anEmptyTestIsAskedAboutAndPrinted() {
    Programm programm;
    Formular(programm, 0, false);
    FormStatusSetzen(false);
    Drucker().setPageOrientation(QPageLayout::Landscape);
    Dialogfolge dialoge;
    dialoge.frage(titel, leeresBlatt, 1);
    SeitenmasseErwarten(dialoge);
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    const PdfSeite seite = PdfLesen(programm.ordner().nativ(ohneNamen));
    QVERIFY(Enthaelt(seite, "Knoten"));
    QVERIFY(Enthaelt(seite, "1."));
    QVERIFY(!Enthaelt(seite, "2."));
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(Drucker().pageLayout().orientation(), QPageLayout::Landscape);
    const auto* hilfe = Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"));
    QVERIFY(hilfe->caption().startsWith(QStringLiteral(" Test.pdf ")));
    QVERIFY(hilfe->toolTip().endsWith(QStringLiteral("\\TEST\\Test.pdf")));
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("pnlKaro"))->isVisible());
}

void TestdruckenTest::aTestWithoutAGroupPrintsAllTheSame() {
    Programm programm;
    Formular(programm, 1, true)->lblGruppe->setText(QString());
    Dialogfolge dialoge;
    dialoge.frage(titel, MitFragen(1), 1);
    SeitenmasseErwarten(dialoge);
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    QVERIFY(programm.ordner().vorhanden(ohneNamen));
}

void TestdruckenTest::theQuestionAboutPointsComesOncePerRow() {
    Programm programm;
    Formular(programm, 3, true);
    frmHBFragen* form = HBFragenOffen();
    form->pnlPunkte.at(1)->setCaption(QString());
    form->pnlPunkte.at(3)->setCaption(QString());
    Dialogfolge dialoge;
    dialoge.frage(titel, ohnePunkte, 6);
    dialoge.frage(titel, ohnePunkte, 6);
    dialoge.frage(titel, MitFragen(3), 1);
    SeitenmasseErwarten(dialoge);
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    QVERIFY(programm.ordner().vorhanden(ohneNamen));
}

void TestdruckenTest::oneAbbrechenAboutPointsStopsAll() {
    Programm programm;
    Formular(programm, 2, false);
    Dialogfolge dialoge;
    dialoge.frage(titel, ohnePunkte, 6);
    dialoge.frage(titel, ohnePunkte, 2);
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    QVERIFY(!programm.ordner().vorhanden(ohneNamen));
}

void TestdruckenTest::pointsWithoutAQuestionAreNotAskedAbout() {
    Programm programm;
    Formular(programm, 2, true)->txtFrage.at(1)->setText("");
    Dialogfolge dialoge;
    dialoge.frage(titel, MitFragen(1), 1);
    SeitenmasseErwarten(dialoge);
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    const PdfSeite seite = PdfLesen(programm.ordner().nativ(ohneNamen));
    QVERIFY(Enthaelt(seite, "Frage2"));
    QVERIFY(Enthaelt(seite, "2"));
    QVERIFY(!Enthaelt(seite, "1"));
}

void TestdruckenTest::aTestWithoutAnswersIsNotAskedAboutThem() {
    Programm programm;
    Formular(programm, 10, true);
    Dialogfolge dialoge;
    dialoge.frage(titel, MitFragen(10), 1);
    SeitenmasseErwarten(dialoge);
    Drucken(programm);
    QVERIFY(dialoge.fertig());
}

void TestdruckenTest::onlyJaPrintsTheAnswers_data() {
    QTest::addColumn<int>("antwort");
    QTest::newRow("Ja") << 6;
    QTest::newRow("Nein") << 7;
}

void TestdruckenTest::onlyJaPrintsTheAnswers() {
    QFETCH(int, antwort);
    Programm programm;
    Formular(programm, 3, true)->txtAntwort.at(2)->setText("Palstek");
    Dialogfolge dialoge;
    dialoge.frage(titel, MitFragen(3), 1);
    SeitenmasseErwarten(dialoge);
    dialoge.frage(titel, mitAntworten, antwort);
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    QCOMPARE(Enthaelt(PdfLesen(programm.ordner().nativ(ohneNamen)), "Palstek"), antwort == 6);
}

void TestdruckenTest::abbrechenBeforeThePrintPrintsNothing() {
    Programm programm;
    Formular(programm, 3, true);
    for (const QString& taste : {QStringLiteral("cmdAntwort(2)"), durchRahmen}) {
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, MitFragen(3), {taste}});
        Drucken(programm);
        QVERIFY(dialoge.fertig());
        QVERIFY(!programm.ordner().vorhanden(ohneNamen));
        QVERIFY(!Finden(programm.haupt(), QStringLiteral("pnlKaro"))->isVisible());
    }
}

void TestdruckenTest::blankPrintRestoreWorks() {
    Programm programm;
    Formular(programm, 2, true);
    HB_Merken();
    HB_FragenLoeschen();
    Dialogfolge dialoge;
    dialoge.frage(titel, leeresBlatt, 1);
    SeitenmasseErwarten(dialoge);
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    QVERIFY(!Enthaelt(PdfLesen(programm.ordner().nativ(ohneNamen)), "Frage1"));
    HB_FragenEinfuegen();
    QCOMPARE(HB_Frage(1), std::string("Frage1"));
}

void TestdruckenTest::aNamedTestIsPrintedBesideItsFormUnderItsName() {
    Programm programm;
    Formular(programm, 1, true);
    Stand.HBDateiName = Stand.AppPfad + "\\TEST\\Herbst.FKR";
    Dialogfolge dialoge;
    dialoge.frage(titel, MitFragen(1), 1);
    SeitenmasseErwarten(dialoge);
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    const PdfSeite seite = PdfLesen(programm.ordner().nativ(QStringLiteral("TEST/Herbst.pdf")));
    QVERIFY(Enthaelt(seite, "Herbst.FKR"));
}

void TestdruckenTest::anUnwritableTargetIsReportedInAStockBoxAndNothingIsPrinted() {
    Programm programm;
    Formular(programm, 2, true);
    Drucker().setPageOrientation(QPageLayout::Landscape);
    const QString ziel = programm.ordner().nativ(ohneNamen);
    QVERIFY(QDir(programm.ordner().nativ()).mkpath(ohneNamen)); // a folder of that name is in the way
    Dialogfolge dialoge;
    dialoge.frage(titel, MitFragen(2), 1);
    SeitenmasseErwarten(dialoge);
    dialoge.kasten(QStringLiteral("Feldkranz"), QStringLiteral("Fehler beim Zugriff auf Pfad oder Datei"),
                   QStringLiteral("OK"));
    Drucken(programm);
    QVERIFY(dialoge.fertig());
    QVERIFY(QDir(ziel).isEmpty());
    QCOMPARE(Drucker().pageLayout().orientation(), QPageLayout::Landscape);
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("pnlKaro"))->isVisible());
    QCOMPARE(HB_Frage(2), std::string("Frage2"));
}

void TestdruckenTest::theMenuEntryPrintsAsWell() {
    Programm programm;
    Formular(programm, 1, true);
    Dialogfolge dialoge;
    dialoge.frage(titel, MitFragen(1), 2);
    Finden<QAction>(programm.haupt(), QStringLiteral("mDateiHB(8)"))->trigger();
    QVERIFY(dialoge.fertig());
}

QTEST_MAIN(TestdruckenTest)
#include "testdrucken_test.moc"
