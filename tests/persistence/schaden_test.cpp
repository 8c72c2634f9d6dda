// Damaged files and saves that don't come about: an opened form shows nothing of another one, its file isn't
// written over unasked, and what was blanked can still come back.
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "formlauf.h"
#include "forms/oeffnen.h"
#include "mainwindow/frmMDI.h"
#include "persistence/formulardatei.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/hilfe/finden.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace {

const QString fehlerTitel = QStringLiteral("Fehler beim Laden !");
const QString speichernUnter = QStringLiteral("Speichern unter ...");
const QString ok = QStringLiteral("OK");

// The bytes up to a line, and that line's end.
QByteArray Anfang(const QByteArray& bytes, int zeilen) {
    qsizetype ende = 0;
    for (int zeile = 0; zeile < zeilen; ++zeile) {
        ende = bytes.indexOf("\r\n", ende) + 2;
    }
    return bytes.left(ende);
}

void ZuKurzErwarten(Dialogfolge& dialoge, int zeile) {
    dialoge.kasten(fehlerTitel, QStringLiteral("Fehler Nummer 62 occurred at line %1").arg(zeile), ok);
    dialoge.kasten(fehlerTitel, QStringLiteral("Dateilänge nicht korrekt oder so ..."), ok);
}

// The save dialog, whose name box proposes a name, and which starts in KRANZ, where the files of these tests
// lie, is cancelled.
void VorschlagErwarten(Dialogfolge& dialoge, const QString& name) {
    dialoge.erwarte({QStringLiteral("frmDatei"),
                     speichernUnter,
                     std::nullopt,
                     {QStringLiteral("cmdAbbrechen")},
                     [name](QDialog& dialog) {
                         QCOMPARE(Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"))->text(), name);
                         const QString dort = Finden<QLabel>(&dialog, QStringLiteral("lblDir"))->text();
                         QVERIFY2(dort.endsWith(QStringLiteral("KRANZ")), qPrintable(dort));
                     }});
}

QString Felder(const Formlauf& lauf) {
    return Finden<Panel>(lauf.programm().haupt(), QStringLiteral("pnlFKFelder"))->caption();
}

} // namespace

class SchadenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { lauf.Vorbereiten(); }
    void cleanupTestCase() { lauf.Beenden(); }

    void aTestFileThatEndsEarlyShowsNothingOfTheFormBefore();
    void aQuizFileThatEndsEarlyShowsNothingOfTheFormBefore();
    void aFileWithoutASectionShowsNothingOfTheFormBefore();
    void anEmptyFileShowsAnEmptyFormAndItsSaveAsksForAName();
    void aWholeFileOpenedBehindADamagedOneIsSavedUnasked();
    void aBoardOfANegativeShapeIsAFullOneAndSoIsTheNextNewForm();
    void aBoardTooLargeIsTheLargest();
    void aFileThatShowsNothingChangesNothing();
    void aCancelledSaveLeavesTheBlankedTextsInTheStoredCopy_data();
    void aCancelledSaveLeavesTheBlankedTextsInTheStoredCopy();
    void aFailedSaveLeavesTheBlankedTextsInTheStoredCopy();
    void aCancelledSaveOfATestFormLeavesItsStoredCopy();
    void aSaveSaysWhichTextsWontComeBackWhole();

private:
    Formlauf lauf;
};

void SchadenTest::aTestFileThatEndsEarlyShowsNothingOfTheFormBefore() {
    const QByteArray ganz = Formlauf::Test("Alt");
    lauf.Schreiben(QStringLiteral("ALT.FKR"), ganz);
    const QByteArray kurz = Anfang(Formlauf::Test("Neu"), 11); // head and first row
    lauf.Schreiben(QStringLiteral("KURZ.FKR"), kurz);
    lauf.Oeffnen(QStringLiteral("ALT.FKR"));
    QVERIFY(!HB_Frage(10).empty());
    {
        Dialogfolge dialoge;
        ZuKurzErwarten(dialoge, 12);
        FormularLaden(lauf.Pfad("KURZ.FKR"));
        QVERIFY(dialoge.fertig());
    }
    QCOMPARE(HB_Frage(1), std::string("Neu"));
    for (int i = 2; i <= anzahlTestfragen; ++i) {
        QCOMPARE(HB_Frage(i), std::string());
        QCOMPARE(HB_Antwort(i), std::string());
        QCOMPARE(HBFragenOffen()->pnlPunkte.at(static_cast<std::size_t>(i))->caption(), QStringLiteral("0"));
    }
    QVERIFY(!Stand.FormGeaendert);
    Dialogfolge dialoge;
    VorschlagErwarten(dialoge, QStringLiteral("KURZ.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(3)"));
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("KURZ.FKR")) == kurz);
}

void SchadenTest::aQuizFileThatEndsEarlyShowsNothingOfTheFormBefore() {
    lauf.Schreiben(QStringLiteral("ALT.FKR"), Formlauf::Quiz("Alt"));
    const QByteArray kurz = Anfang(Formlauf::Quiz("Neu"), 33); // the first cell's question and answer
    lauf.Schreiben(QStringLiteral("KURZ.FKR"), kurz);
    lauf.Oeffnen(QStringLiteral("ALT.FKR"));
    {
        Dialogfolge dialoge;
        ZuKurzErwarten(dialoge, 34);
        FormularLaden(lauf.Pfad("KURZ.FKR"));
        QVERIFY(dialoge.fertig());
    }
    QCOMPARE(FK_Frage(1), std::string("Neu 1"));
    for (int n = 2; n <= anzahlFelder; ++n) {
        QCOMPARE(FK_Frage(n), std::string());
        QCOMPARE(FK_Antwort(n), std::string());
    }
    QCOMPARE(FKFragenOffen()->pnlWissen.at(2)->caption(), QString());
    Dialogfolge dialoge;
    VorschlagErwarten(dialoge, QStringLiteral("KURZ.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("KURZ.FKR")) == kurz);
}

void SchadenTest::aFileWithoutASectionShowsNothingOfTheFormBefore() {
    lauf.Schreiben(QStringLiteral("ALT.FKR"), Formlauf::Quiz("Alt"));
    lauf.Schreiben(QStringLiteral("KOPF.FKR"), Anfang(Formlauf::Quiz("Neu"), 8)); // the shape alone
    lauf.Oeffnen(QStringLiteral("ALT.FKR"));
    QVERIFY(!FKFragenOffen()->txtDatum->wert().empty());
    FormularLaden(lauf.Pfad("KOPF.FKR"));
    QCOMPARE(FK_Frage(1), std::string());
    QCOMPARE(FKFragenOffen()->txtDatum->wert(), std::string());
    QCOMPARE(FKFragenOffen()->pnlPunkte.at(4)->caption(), QStringLiteral("4")); // the board's own
}

void SchadenTest::anEmptyFileShowsAnEmptyFormAndItsSaveAsksForAName() {
    lauf.Schreiben(QStringLiteral("ALT.FKR"), Formlauf::Quiz("Alt"));
    lauf.Schreiben(QStringLiteral("LEER.FKR"), "");
    lauf.Oeffnen(QStringLiteral("ALT.FKR"));
    FormularLaden(lauf.Pfad("LEER.FKR"));
    QCOMPARE(FKFragenOffen()->windowTitle(), QStringLiteral("LEER.FKR "));
    for (int n = 1; n <= anzahlFelder; ++n) {
        QCOMPARE(FK_Frage(n), std::string());
    }
    QVERIFY(!Stand.FormGeaendert);
    {
        Dialogfolge dialoge;
        VorschlagErwarten(dialoge, QStringLiteral("LEER.FKR"));
        lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    }
    QVERIFY(lauf.Lesen(QStringLiteral("LEER.FKR")).isEmpty());
    QVERIFY(lauf.Lesen(QStringLiteral("ALT.FKR")) == Formlauf::Quiz("Alt"));
}

void SchadenTest::aWholeFileOpenedBehindADamagedOneIsSavedUnasked() {
    lauf.Schreiben(QStringLiteral("KURZ.FKR"), Anfang(Formlauf::Quiz("Neu"), 33));
    lauf.Schreiben(QStringLiteral("GANZ.FKR"), Formlauf::Quiz("Ganz"));
    {
        Dialogfolge dialoge;
        ZuKurzErwarten(dialoge, 34);
        FormularLaden(lauf.Pfad("KURZ.FKR"));
    }
    FormularLaden(lauf.Pfad("GANZ.FKR"));
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("GANZ.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    QVERIFY(dialoge.fertig());
}

void SchadenTest::aBoardOfANegativeShapeIsAFullOneAndSoIsTheNextNewForm() {
    QByteArray bytes = Formlauf::Quiz("Minus");
    bytes.replace("\r\n24\r\n4\r\n6\r\n", "\r\n1\r\n-1\r\n-1\r\n");
    QVERIFY(bytes.contains("\r\n-1\r\n-1\r\n"));
    lauf.Schreiben(QStringLiteral("MINUS.FKR"), bytes);
    lauf.Oeffnen(QStringLiteral("MINUS.FKR"));
    Spiel.Punkte[Spezialart::Joker] = -5;
    const QString voll = QStringLiteral(" 30 Fragen : je 5 Fragen aus 6 Wissensgebieten");
    QCOMPARE(Felder(lauf), voll);
    QCOMPARE(FK_Frage(30), std::string("Minus 30"));
    FK_Entladen();
    lauf.programm().NeuesQuizformular();
    QCOMPARE(Felder(lauf), voll);
    QCOMPARE(static_cast<int>(Spiel.Punkte[Spezialart::Joker]), 0);
}

void SchadenTest::aBoardTooLargeIsTheLargest() {
    QByteArray bytes = Formlauf::Quiz("Viel");
    bytes.replace("\r\n24\r\n4\r\n6\r\n", "\r\n24\r\n200\r\n9\r\n");
    lauf.Schreiben(QStringLiteral("VIEL.FKR"), bytes);
    lauf.Oeffnen(QStringLiteral("VIEL.FKR"));
    QCOMPARE(Felder(lauf), QStringLiteral(" 30 Fragen : je 5 Fragen aus 6 Wissensgebieten"));
    QCOMPARE(static_cast<int>(Spiel.FelderGesamt), 30);
}

void SchadenTest::aFileThatShowsNothingChangesNothing() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eigen"));
    QByteArray fremd = Formlauf::Quiz("Fremd");
    fremd.replace("\"[FKINI]\"\r\n\"FK\"", "\"[FKINI]\"\r\n\"XY\"");
    fremd.replace("\r\n24\r\n4\r\n6\r\n", "\r\n30\r\n5\r\n6\r\n");
    lauf.Schreiben(QStringLiteral("FREMD.FKR"), fremd);
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    const std::string vorher = FormularBytes(FKForm, Spiel);
    FormularLaden(lauf.Pfad("FREMD.FKR"));
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
    QVERIFY(FormularBytes(FKForm, Spiel) == vorher);
    frmFKFragen* form = FKFragenOffen();
    QTest::mouseClick(form->pnlSpezial.at(1), Qt::LeftButton);
    QTRY_VERIFY(form->cmbSpezial->view()->isVisible());
    form->cmbSpezial->view()->setCurrentIndex(form->cmbSpezial->model()->index(4, 0));
    QTest::keyClick(form->cmbSpezial->view(), Qt::Key_Return);
    QTRY_COMPARE(form->pnlSpezial.at(1)->caption(), QStringLiteral("A"));
    QCOMPARE(FK_Frage(1), std::string("Eigen 1"));
}

void SchadenTest::aCancelledSaveLeavesTheBlankedTextsInTheStoredCopy_data() {
    QTest::addColumn<QString>("taste");
    QTest::newRow("save") << QStringLiteral("cmdDateiFK(3)");
    QTest::newRow("save under another name") << QStringLiteral("cmdDateiFK(4)");
}

void SchadenTest::aCancelledSaveLeavesTheBlankedTextsInTheStoredCopy() {
    QFETCH(const QString, taste);
    const frmFKFragen* form = lauf.NeuesFormular(QStringLiteral("Wer?"));
    form->txtNr->setFocus();
    QTRY_COMPARE(FKForm.FrageText.at(1), std::string("Wer?"));
    FK_FragenLoeschen();
    QCOMPARE(FK_Frage(1), std::string());
    {
        Dialogfolge dialoge;
        VorschlagErwarten(dialoge, QStringLiteral("*.FKR"));
        lauf.Druecken(taste);
        QVERIFY(dialoge.fertig());
    }
    QVERIFY(Stand.FormGeaendert);
    lauf.Druecken(QStringLiteral("cmdFKFLaden"));
    QCOMPARE(FK_Frage(1), std::string("Wer?"));
}

void SchadenTest::aFailedSaveLeavesTheBlankedTextsInTheStoredCopy() {
    const frmFKFragen* form = lauf.NeuesFormular(QStringLiteral("Wer?"));
    form->txtNr->setFocus();
    QTRY_COMPARE(FKForm.FrageText.at(1), std::string("Wer?"));
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\WEG\\A.FKR"; // a folder that has gone
    FK_FragenLoeschen();
    {
        Dialogfolge dialoge;
        dialoge.erwarte(
            {QStringLiteral("frmMeldung"), QString(), std::nullopt, {QStringLiteral("cmdKenntnis")}});
        lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
        QVERIFY(dialoge.fertig());
    }
    QVERIFY(Stand.FormGeaendert);
    lauf.Druecken(QStringLiteral("cmdFKFLaden"));
    QCOMPARE(FK_Frage(1), std::string("Wer?"));
}

void SchadenTest::aCancelledSaveOfATestFormLeavesItsStoredCopy() {
    const frmHBFragen* form = lauf.programm().NeuesTestformular();
    form->txtFrage.at(1)->setText("Was ?");
    HB_Merken();
    HB_FragenLoeschen();
    {
        Dialogfolge dialoge;
        VorschlagErwarten(dialoge, QStringLiteral("*.FKR"));
        lauf.Druecken(QStringLiteral("cmdDateiHB(3)"));
    }
    lauf.Druecken(QStringLiteral("cmdHBFLaden"));
    QCOMPARE(HB_Frage(1), std::string("Was ?"));
}

void SchadenTest::aSaveSaysWhichTextsWontComeBackWhole() {
    lauf.NeuesFormular(QStringLiteral("Wer sagte \"Ja\"?"));
    FKFragenOffen()->txtAntwort.at(9)->setText("der \"Chef\"");
    Stand.FKDateiName = lauf.Pfad("ZITAT.FKR");
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("ZITAT.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("ZITAT.FKR")).contains("\"Wer sagte \"Ja\"?\"")); // not altered
    QCOMPARE(Finden<Panel>(lauf.programm().haupt(), QStringLiteral("pnlHilfe"))->caption(),
             QStringLiteral(" Gebiet 1, Frage 1 und Gebiet 2, Antwort 4: Was hinter \" steht, geht verloren. "
                            "Nimm „ und “. "));
}

QTEST_MAIN(SchadenTest)
#include "schaden_test.moc"
