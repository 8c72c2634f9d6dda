// The print commands on the real main window: the question, what is on the sheet, what happens to the form,
// and the printer dialog. The system knows no printer here; the sheets become PDF files.
#include "core/panel.h"
#include "core/programmstand.h"
#include "dialogs/modal.h"
#include "mainwindow/frmMDI.h"
#include "printing/drucken.h"
#include "printing/drucker.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"
#include "tests/printing/pdfleser.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QSpinBox>
#include <QTest>

#include <algorithm>

namespace {

const QString titel = QStringLiteral("Formular drucken");
const QString frageHoch = QStringLiteral("Ich drucke das Formular für Feldkranz\n"
                                         "auf DIN A4 hochkant (oberer Bereich für A5 quer) aus !");
const QString frageQuer = QStringLiteral("Ich drucke das Formular für Feldkranz\n"
                                         "auf DIN A4 quer (blattfüllend) aus !");
const QString ohneNamen = QStringLiteral("KRANZ/Feldkranz.pdf");

int Anzahl(const PdfSeite& seite, const std::string& wort) {
    return static_cast<int>(
        std::count_if(seite.worte.begin(), seite.worte.end(), [&](const Wort& w) { return w.text == wort; }));
}

QString Status(const Programm& programm) {
    return Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption();
}

void Klicken(const Programm& programm, const QString& name) {
    Finden<QAbstractButton>(programm.haupt(), name)->click();
}

// Prints with the button, the question answered OK.
PdfSeite Drucken(const Programm& programm, const QString& frage, const QString& datei = ohneNamen) {
    Dialogfolge dialoge;
    dialoge.frage(titel, frage, 1);
    Klicken(programm, QStringLiteral("cmdDruckenFK(2)"));
    return PdfLesen(programm.ordner().nativ(datei));
}

} // namespace

class FormulardruckenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void withoutAPaperTheRoutineEndsWithAMessage();
    void abbrechenPrintsNothingAndTheOrientationComesBack_data();
    void abbrechenPrintsNothingAndTheOrientationComesBack();
    void theSheetShowsWhatStandsOnTheScreen();
    void theBlankMenuEntryPrintsNoTitlesOnce();
    void aSheetOfANamedFormLiesBesideTheForm();
    void blankPrintRestoreWorks();
    void cellsOutOfPlayAreEmptyAlsoWhileTheWindowIsMinimised();
    void anUnwritableTargetIsReportedInAStockBoxAndNothingIsPrinted();
    void thePrinterDialogProposesFiveCopiesAndACancelLeavesThePrinterAsItWas();
    void thePrinterOfAnAcceptedDialogServesOn();
};

void FormulardruckenTest::initTestCase() {
    qputenv("CUPS_SERVER", "/gibt/es/nicht.sock");
}

void FormulardruckenTest::withoutAPaperTheRoutineEndsWithAMessage() {
    Programm programm;
    programm.NeuesQuizformular();
    for (const char* const papier : {"", "A4", "A3 quer"}) {
        Spiel.Papierformat = papier;
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmMeldung"),
                         {},
                         QStringLiteral("Mir fehlt die Angabe der Papiergröße."),
                         {QStringLiteral("Hole ich sofort nach !")},
                         [](const QDialog& dialog) {
                             QCOMPARE(Finden<QLabel>(&dialog, QStringLiteral("lblNr"))->text(),
                                      QStringLiteral("11"));
                         }});
        Klicken(programm, QStringLiteral("cmdDruckenFK(2)"));
        QVERIFY(dialoge.fertig());
    }
    QVERIFY(!programm.ordner().vorhanden(ohneNamen));
}

void FormulardruckenTest::abbrechenPrintsNothingAndTheOrientationComesBack_data() {
    QTest::addColumn<QString>("papier");
    QTest::addColumn<QString>("frage");
    QTest::addColumn<QString>("nummer");
    QTest::addColumn<QString>("taste");
    QTest::newRow("upright") << "A5 quer" << frageHoch << "10" << QStringLiteral("schön");
    QTest::newRow("across") << "A4 quer" << frageQuer << "11" << QStringLiteral("gut");
}

void FormulardruckenTest::abbrechenPrintsNothingAndTheOrientationComesBack() {
    QFETCH(QString, papier);
    QFETCH(QString, frage);
    QFETCH(QString, nummer);
    QFETCH(QString, taste);
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.Papierformat = papier.toStdString();
    for (const auto vorher : {QPageLayout::Portrait, QPageLayout::Landscape}) {
        Drucker().setPageOrientation(vorher);
        Dialogfolge dialoge;
        dialoge.frage(titel, frage, 2);
        dialoge.erwarte({QStringLiteral("frmMeldung"),
                         {},
                         QStringLiteral("Formularausdruck abgebrochen"),
                         {taste},
                         [&](const QDialog& dialog) {
                             QCOMPARE(Finden<QLabel>(&dialog, QStringLiteral("lblNr"))->text(), nummer);
                         }});
        Klicken(programm, QStringLiteral("cmdDruckenFK(2)"));
        QVERIFY(dialoge.fertig());
        QCOMPARE(Drucker().pageLayout().orientation(), vorher);
    }
    QVERIFY(!programm.ordner().vorhanden(ohneNamen));
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("pnlKaro"))->isVisible());
}

void FormulardruckenTest::theSheetShowsWhatStandsOnTheScreen() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Spiel.Papierformat = "A4 quer";
    form->txtFrage.at(1)->setText("Zauberflöte");
    form->txtAntwort.at(1)->setText("Mozart");
    form->txtDatum->setWert("24.12.2008");
    form->txtZeit->setWert("90min");
    form->txtNr->setWert("17");
    form->pnlWissen.at(2)->setCaption(QStringLiteral("Musik"));
    form->pnlSpezial.at(3)->setCaption(QStringLiteral("J"));
    const PdfSeite seite = Drucken(programm, frageQuer);
    QCOMPARE(seite.fehler, std::string());
    for (const char* const wort : {"Zauberflöte", "Mozart", "24.12.2008", "90min", "17", "Musik", "Joker"}) {
        QVERIFY2(Anzahl(seite, wort) == 1, wort);
    }
    QCOMPARE(Anzahl(seite, "Wissen"), 0);
    const QString pfad = QString::fromStdString(Stand.AppPfad) + QStringLiteral("\\KRANZ\\Feldkranz.pdf");
    QVERIFY2(Status(programm).startsWith(QStringLiteral(" Feldkranz.pdf liegt als PDF-Datei in ")),
             qPrintable(Status(programm)));
    QVERIFY(Finden(programm.haupt(), QStringLiteral("pnlHilfe"))->toolTip().endsWith(pfad));
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("pnlKaro"))->isVisible());
    QVERIFY(FKForm.FrageText.at(1).empty()); // the stored copy is as it was
}

void FormulardruckenTest::theBlankMenuEntryPrintsNoTitlesOnce() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Spiel.Papierformat = "A5 quer";
    form->txtFrage.at(1)->setText("Zauberflöte");
    form->pnlWissen.at(2)->setCaption(QStringLiteral("Musik"));
    {
        Dialogfolge dialoge;
        dialoge.frage(titel, frageHoch, 1);
        Finden<QAction>(programm.haupt(), QStringLiteral("mDateiFK"), 9)->trigger();
    }
    const PdfSeite blanko = PdfLesen(programm.ordner().nativ(ohneNamen));
    QCOMPARE(Anzahl(blanko, "Musik"), 0);
    QCOMPARE(Anzahl(blanko, "Zauberflöte"), 1);
    QCOMPARE(Anzahl(Drucken(programm, frageHoch), "Musik"), 1);
}

void FormulardruckenTest::aSheetOfANamedFormLiesBesideTheForm() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.Papierformat = "A4 quer";
    QVERIFY(QDir(programm.ordner().nativ()).mkpath(QStringLiteral("Eigene")));
    Stand.FKDateiName = Stand.AppPfad + "\\EIGENE\\Runde Übung.FKR"; // found whatever its case
    const PdfSeite seite = Drucken(programm, frageQuer, QStringLiteral("Eigene/Runde Übung.pdf"));
    QCOMPARE(seite.fehler, std::string());
    QCOMPARE(Anzahl(seite, "FELDKRANZ!"), 1);
    QVERIFY(!programm.ordner().vorhanden(ohneNamen));
}

void FormulardruckenTest::blankPrintRestoreWorks() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Spiel.Papierformat = "A4 quer";
    form->txtFrage.at(8)->setText("Zauberflöte");
    form->txtAntwort.at(8)->setText("Mozart");
    FK_Merken();
    FK_FragenLoeschen();
    QCOMPARE(form->txtFrage.at(8)->text(), std::string());
    const PdfSeite seite = Drucken(programm, frageQuer);
    QCOMPARE(Anzahl(seite, "Zauberflöte"), 0);
    Klicken(programm, QStringLiteral("cmdFKFLaden"));
    QCOMPARE(form->txtFrage.at(8)->text(), std::string("Zauberflöte"));
    QCOMPARE(form->txtAntwort.at(8)->text(), std::string("Mozart"));
}

void FormulardruckenTest::cellsOutOfPlayAreEmptyAlsoWhileTheWindowIsMinimised() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Spiel.Papierformat = "A4 quer";
    for (std::size_t n = 1; n <= 30; ++n) {
        form->txtFrage.at(n)->setText("Frage");
    }
    FK_Merken();
    Spiel.OptionMaxWissen = true;
    Spiel.AnzahlWissen = 4;
    FK_WissenRegel();
    form->parentWidget()->showMinimized();
    const PdfSeite seite = Drucken(programm, frageQuer);
    QCOMPARE(Anzahl(seite, "Frage"), 20);
    QCOMPARE(Anzahl(seite, "5"), 4);
    const auto rahmen =
        std::count_if(seite.pfade.begin(), seite.pfade.end(), [](const Pfad& p) { return p.ecken == 4; });
    QCOMPARE(rahmen, 37); // strip, heads and all thirty cells
}

void FormulardruckenTest::anUnwritableTargetIsReportedInAStockBoxAndNothingIsPrinted() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.Papierformat = "A4 quer";
    Drucker().setPageOrientation(QPageLayout::Portrait);
    QVERIFY(QDir(programm.ordner().nativ()).mkpath(ohneNamen)); // a folder of that name is in the way
    const QString vorher = Status(programm);
    Dialogfolge dialoge;
    dialoge.frage(titel, frageQuer, 1);
    dialoge.kasten(QStringLiteral("Feldkranz"), QStringLiteral("Fehler beim Zugriff auf Pfad oder Datei"),
                   QStringLiteral("OK"));
    Klicken(programm, QStringLiteral("cmdDruckenFK(2)"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(Drucker().pageLayout().orientation(), QPageLayout::Portrait);
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("pnlKaro"))->isVisible());
    QVERIFY(QDir(programm.ordner().nativ(ohneNamen)).isEmpty());
    QVERIFY(!Status(programm).contains(QStringLiteral("abgelegt")));
}

void FormulardruckenTest::thePrinterDialogProposesFiveCopiesAndACancelLeavesThePrinterAsItWas() {
    Programm programm;
    programm.NeuesQuizformular();
    Drucker().setCopyCount(1);
    int gekommen = 0;
    ModalHandlerSetzen([&](QDialog& dialog) {
        auto* wahl = qobject_cast<QPrintDialog*>(&dialog);
        if (wahl == nullptr) {
            return false;
        }
        ++gekommen;
        wahl->show();
        auto* kopien = wahl->findChild<QSpinBox*>(QStringLiteral("copies"));
        if (kopien == nullptr || kopien->value() != 5 || wahl->printer()->copyCount() != 5) {
            QTest::qFail("The dialog doesn't propose five copies", __FILE__, __LINE__);
        }
        wahl->reject();
        return true;
    });
    Klicken(programm, QStringLiteral("cmdDruckenFK(1)"));
    Finden<QAction>(programm.haupt(), QStringLiteral("mDateiFK"), 10)->trigger();
    ModalHandlerSetzen({});
    QCOMPARE(gekommen, 2);
    QCOMPARE(Drucker().copyCount(), 1);
    QCOMPARE(PdfZiel("vorschlag"), std::string("vorschlag"));
}

void FormulardruckenTest::thePrinterOfAnAcceptedDialogServesOn() {
    Programm programm;
    programm.NeuesQuizformular();
    Spiel.Papierformat = "A4 quer";
    const QString datei = programm.ordner().nativ(QStringLiteral("Mein Blatt.pdf"));
    ModalHandlerSetzen([&](QDialog& dialog) {
        auto* wahl = qobject_cast<QPrintDialog*>(&dialog);
        if (wahl == nullptr) {
            return false;
        }
        wahl->printer()->setOutputFileName(datei);
        wahl->setResult(QDialog::Accepted);
        return true;
    });
    Klicken(programm, QStringLiteral("cmdDruckenFK(1)"));
    ModalHandlerSetzen({});
    QCOMPARE(Drucker().copyCount(), 5);
    for (int i = 0; i < 2; ++i) {
        const PdfSeite seite = Drucken(programm, frageQuer, QStringLiteral("Mein Blatt.pdf"));
        QCOMPARE(seite.fehler, std::string());
        QVERIFY(QFile::remove(datei));
    }
}

QTEST_MAIN(FormulardruckenTest)
#include "formulardrucken_test.moc"
