// Where the sheets lie that become PDF files: what they replace and what they leave alone, for whom a name
// from the printer dialog holds, and what that dialog says of itself. The system knows no printer here.
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "core/programmstand.h"
#include "dialogs/modal.h"
#include "forms/formulare.h"
#include "forms/oeffnen.h"
#include "mainwindow/frmMDI.h"
#include "printing/drucker.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"
#include "tests/printing/pdfleser.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QTest>

#include <algorithm>

namespace {

const QString fremd = QStringLiteral("KRANZ/Runde.pdf");
const QByteArray fremdeBytes = "%PDF-1.4\n1 0 obj\n<<\n/Title (Einladung)\n>>\nendobj\n"
                               "trailer\n<<\n/Info 1 0 R\n>>\n%%EOF\n";

// Prints the quiz form, which shows that word, with the button.
void Drucken(const Programm& programm) {
    Spiel.Papierformat = "A4 quer";
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(4)")}});
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdDruckenFK(2)"))->click();
}

// True if the sheet shows that word.
bool Zeigt(const Programm& programm, const QString& datei, const std::string& wort) {
    const PdfSeite seite = PdfLesen(programm.ordner().nativ(datei));
    return std::ranges::any_of(seite.worte, [&](const Wort& w) { return w.text == wort; });
}

void Beschriften(const char* wort) {
    Finden<frmFKFragen>(MDIFenster(), QStringLiteral("frmFKFragen"))->txtFrage.at(1)->setText(wort);
}

// A quiz form that was opened from a file of that name and shows that word.
void Oeffnen(Programm& programm, const std::string& name, const char* wort) {
    programm.ordner().schreiben(QStringLiteral("KRANZ/") + Anzeige(name),
                                programm.ordner().lesen(QStringLiteral("KRANZ/Bibelabend.FKR")));
    FormularLaden(Stand.AppPfad + "\\KRANZ\\" + name);
    Beschriften(wort);
    FormStatusSetzen(false);
}

// The printer dialog, with that done to it.
void Einrichten(const Programm& programm, const std::function<void(QPrintDialog&)>& tun) {
    ModalHandlerSetzen([&tun](QDialog& dialog) {
        auto* wahl = qobject_cast<QPrintDialog*>(&dialog);
        if (wahl != nullptr) {
            wahl->show();
            tun(*wahl);
            wahl->hide();
            wahl->setResult(QDialog::Accepted);
        }
        return wahl != nullptr;
    });
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdDruckenFK(1)"))->click();
    ModalHandlerSetzen({});
}

} // namespace

class BlattplatzTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); }
    void aForeignFileOfTheSheetsNameStaysAndTheNextNumberIsTaken();
    void aForeignFileOfTheSheetsTitleStaysToo();
    void aSheetWithSomebodysNotesInItStays();
    void theSheetOfTheSameFormIsReplacedAlsoUnderItsNumber();
    void twoFormsOfOneNameHaveASheetEach();
    void eachFormWithoutANameHasASheetOfItsOwn();
    void theSheetOfAFormWithoutANameFromAnEarlierRunStays();
    void aNameFromThePrinterDialogHoldsForItsFormOnly();
    void aNameFromThePrinterDialogHoldsOverASave();
    void thePrinterDialogProposesTheFileThatAPrintTakes();
    void thePrinterDialogSaysThatItIsASettingAndNoPrint();
};

void BlattplatzTest::aForeignFileOfTheSheetsNameStaysAndTheNextNumberIsTaken() {
    Programm programm;
    Oeffnen(programm, "Runde.FKR", "Zauberflöte");
    programm.ordner().schreiben(fremd, fremdeBytes);
    Drucken(programm);
    QCOMPARE(programm.ordner().lesen(fremd), fremdeBytes);
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Runde1.pdf"), "Zauberflöte"));
    programm.ordner().schreiben(fremd, "kein PDF");
    programm.ordner().schreiben(QStringLiteral("KRANZ/Runde1.pdf"), fremdeBytes);
    Drucken(programm);
    QCOMPARE(programm.ordner().lesen(fremd), QByteArray("kein PDF"));
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Runde2.pdf"), "Zauberflöte"));
}

// A file that a word processor made of the same form, named after it.
void BlattplatzTest::aForeignFileOfTheSheetsTitleStaysToo() {
    Programm programm;
    Oeffnen(programm, "Runde.FKR", "Zauberflöte");
    const QByteArray gleichnamig = QByteArray(fremdeBytes).replace("(Einladung)", "(Runde.FKR)");
    const QByteArray fremdesProgramm =
        QByteArray(gleichnamig)
            .replace("(Runde.FKR)", "(Runde.FKR)\n/Creator (Schreiber)\n/Producer (Qt 6.4.2)");
    for (const QByteArray& bytes : {gleichnamig, fremdesProgramm}) {
        programm.ordner().schreiben(fremd, bytes);
        Drucken(programm);
        QCOMPARE(programm.ordner().lesen(fremd), bytes);
        QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Runde1.pdf"), "Zauberflöte"));
    }
    QVERIFY(
        !programm.ordner().vorhanden(QStringLiteral("KRANZ/Runde2.pdf"))); // that one was the program's own
}

// A viewer puts them behind what was there.
void BlattplatzTest::aSheetWithSomebodysNotesInItStays() {
    Programm programm;
    Oeffnen(programm, "Runde.FKR", "Zauberflöte");
    Drucken(programm);
    const QByteArray benotet =
        programm.ordner().lesen(fremd) + "9 0 obj\n<< /Contents (Notiz) >>\nendobj\n%%EOF\n";
    programm.ordner().schreiben(fremd, benotet);
    Drucken(programm);
    QCOMPARE(programm.ordner().lesen(fremd), benotet);
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Runde1.pdf"), "Zauberflöte"));
}

void BlattplatzTest::theSheetOfTheSameFormIsReplacedAlsoUnderItsNumber() {
    Programm programm;
    Oeffnen(programm, "Größe (2).FKR", "Zauberflöte"); // every letter of the title has to be read back
    Drucken(programm);
    Beschriften("Freischütz");
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Größe (2).pdf"), "Freischütz"));
    QVERIFY(!programm.ordner().vorhanden(QStringLiteral("KRANZ/Größe (2)1.pdf")));

    Oeffnen(programm, "Runde.FKR", "Zauberflöte");
    programm.ordner().schreiben(fremd, fremdeBytes);
    Drucken(programm);
    Beschriften("Freischütz");
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Runde1.pdf"), "Freischütz"));
    QVERIFY(!programm.ordner().vorhanden(QStringLiteral("KRANZ/Runde2.pdf")));
}

void BlattplatzTest::twoFormsOfOneNameHaveASheetEach() {
    Programm programm;
    Oeffnen(programm, "Runde.FKR", "Zauberflöte");
    Drucken(programm);
    Oeffnen(programm, "Runde.BAK", "Freischütz");
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Runde.pdf"), "Zauberflöte"));
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Runde1.pdf"), "Freischütz"));
}

void BlattplatzTest::eachFormWithoutANameHasASheetOfItsOwn() {
    Programm programm;
    programm.NeuesQuizformular()->txtFrage.at(1)->setText("Zauberflöte");
    Drucken(programm);
    Beschriften("Fidelio"); // still the same form
    Drucken(programm);
    QVERIFY(!programm.ordner().vorhanden(QStringLiteral("KRANZ/Feldkranz1.pdf")));
    FormStatusSetzen(false);
    programm.NeuesQuizformular()->txtFrage.at(1)->setText("Freischütz");
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Feldkranz.pdf"), "Fidelio"));
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Feldkranz1.pdf"), "Freischütz"));
    Oeffnen(programm, "UNGESICHERT.BAK", "Lohengrin"); // in the same window, without a file of its own
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Feldkranz1.pdf"), "Freischütz"));
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Feldkranz2.pdf"), "Lohengrin"));
}

void BlattplatzTest::theSheetOfAFormWithoutANameFromAnEarlierRunStays() {
    Programm programm;
    programm.NeuesQuizformular();
    Drucken(programm);
    const QByteArray frueher = programm.ordner().lesen(QStringLiteral("KRANZ/Feldkranz.pdf"));
    FormulareEntladen();
    programm.NeuesQuizformular();
    Drucken(programm);
    QCOMPARE(programm.ordner().lesen(QStringLiteral("KRANZ/Feldkranz.pdf")), frueher);
    QVERIFY(programm.ordner().vorhanden(QStringLiteral("KRANZ/Feldkranz1.pdf")));
}

void BlattplatzTest::aNameFromThePrinterDialogHoldsForItsFormOnly() {
    Programm programm;
    Oeffnen(programm, "Runde.FKR", "Zauberflöte");
    const QString datei = programm.ordner().nativ(QStringLiteral("Mein Blatt.pdf"));
    Einrichten(programm, [&datei](QPrintDialog& wahl) { wahl.printer()->setOutputFileName(datei); });
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("Mein Blatt.pdf"), "Zauberflöte"));
    Oeffnen(programm, "Andere.FKR", "Freischütz");
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("Mein Blatt.pdf"), "Zauberflöte"));
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Andere.pdf"), "Freischütz"));
    FormularLaden(Stand.AppPfad + "\\KRANZ\\Runde.FKR"); // it is that form again
    Beschriften("Fidelio");
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("Mein Blatt.pdf"), "Fidelio"));
    FormStatusSetzen(false);
    programm.NeuesQuizformular();
    Drucken(programm);
    QVERIFY(programm.ordner().vorhanden(QStringLiteral("KRANZ/Feldkranz.pdf")));
    QVERIFY(Zeigt(programm, QStringLiteral("Mein Blatt.pdf"), "Fidelio"));
}

void BlattplatzTest::aNameFromThePrinterDialogHoldsOverASave() {
    Programm programm;
    programm.NeuesQuizformular();
    const QString datei = programm.ordner().nativ(QStringLiteral("Mein Blatt.pdf"));
    Einrichten(programm, [&datei](QPrintDialog& wahl) { wahl.printer()->setOutputFileName(datei); });
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\Jetzt.FKR"; // as a save leaves it
    Beschriften("Freischütz");
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("Mein Blatt.pdf"), "Freischütz"));
    QVERIFY(!programm.ordner().vorhanden(QStringLiteral("KRANZ/Jetzt.pdf")));
}

void BlattplatzTest::thePrinterDialogProposesTheFileThatAPrintTakes() {
    Programm programm;
    Oeffnen(programm, "Runde.FKR", "Zauberflöte");
    programm.ordner().schreiben(fremd, fremdeBytes);
    QString vorschlag;
    Einrichten(programm, [&vorschlag](QPrintDialog& wahl) { vorschlag = wahl.printer()->outputFileName(); });
    QCOMPARE(vorschlag, programm.ordner().nativ(QStringLiteral("KRANZ/Runde1.pdf")));
    Drucken(programm);
    QVERIFY(Zeigt(programm, QStringLiteral("KRANZ/Runde1.pdf"), "Zauberflöte"));
    QCOMPARE(programm.ordner().lesen(fremd), fremdeBytes);
}

void BlattplatzTest::thePrinterDialogSaysThatItIsASettingAndNoPrint() {
    Programm programm;
    programm.NeuesQuizformular();
    QString titel;
    QStringList tasten;
    Einrichten(programm, [&](const QPrintDialog& wahl) {
        titel = wahl.windowTitle();
        for (const auto* reihe : wahl.findChildren<QDialogButtonBox*>()) {
            for (const QAbstractButton* taste : reihe->buttons()) {
                tasten << taste->text().remove(u'&');
            }
        }
    });
    QCOMPARE(titel, QStringLiteral("Drucker einrichten"));
    QVERIFY2(tasten.contains(QStringLiteral("Übernehmen")), qPrintable(tasten.join(u'|')));
    QVERIFY2(!tasten.contains(QStringLiteral("Drucken")), qPrintable(tasten.join(u'|')));
}

QTEST_MAIN(BlattplatzTest)
#include "blattplatz_test.moc"
