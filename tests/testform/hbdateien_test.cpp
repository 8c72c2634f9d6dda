// Saving and opening test forms, and how the two kinds of form refuse each other's files.
#include "core/hauptfenster.h"
#include "formlauf.h"
#include "forms/oeffnen.h"
#include "forms/verlauf.h"
#include "persistence/formulardatei.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "tests/testform/testhilfe.h"

#include <QDir>
#include <QFile>
#include <QMdiSubWindow>

namespace {

const QByteArray& Knoten() {
    static const QByteArray bytes = Formlauf::Test("Knoten");
    return bytes;
}

void Laden(const Formlauf& lauf, const std::string& name) {
    FormularLaden(lauf.Pfad(name));
}

} // namespace

class HbDateienTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { lauf.Vorbereiten(); }
    void cleanupTestCase() { lauf.Beenden(); }

    void aTestFileFillsTheFormAndIsUnchanged();
    void aTestFileReplacesTheOpenTestForm();
    void leavingABoxWithAStraightMarkSaysWhatItCosts();
    void aQuizFileWhileATestFormIsOpenChangesNothing();
    void aSavedTestFormIsByteForByteTheOneThatWasOpened();
    void whatStandsOnTheFormStandsInTheFile();
    void aFormWithoutANameAsksForOneOnlyOnce();
    void theSavedFormKeepsABackupOfItsLastVersion();
    void jaOnTheClosingButtonSavesAndLeavesTheFormOpen();
    void jaBeforeANewFormSavesTheOldOne();
    void aCancelledSaveKeepsTheFormThatWasToBeReplaced();
    void aFileWithHugePointsIsShownAndItsTotalNeverWraps();
    void aFailedSaveOfATestFormIsReportedAndClaimsNothing();
    void saveKeysOfTheMenuSaveTheTestForm();

private:
    Formlauf lauf;
};

void HbDateienTest::aTestFileFillsTheFormAndIsUnchanged() {
    lauf.Schreiben(QStringLiteral("test.fkr"), Knoten());
    lauf.Oeffnen(QStringLiteral("test.fkr"));
    const frmHBFragen* form = HBFragenOffen();
    QVERIFY(form != nullptr);
    QCOMPARE(form->windowTitle(), QStringLiteral(" Test : TEST.FKR"));
    QCOMPARE(form->titel.panel->caption(), QStringLiteral(" TEST  HFZ"));
    QCOMPARE(form->fach.panel->caption(), QStringLiteral(" Knoten"));
    QCOMPARE(form->lblGruppe->text(), QStringLiteral(" II"));
    QCOMPARE(HB_Frage(1), std::string("Knoten"));
    QCOMPARE(HB_Frage(10), std::string("Aufgabe 10"));
    QCOMPARE(HB_Antwort(10), std::string("Lösung, 10"));
    QCOMPARE(form->pnlPunkte.at(7)->caption(), QStringLiteral("7"));
    QCOMPARE(Grund(form->txtFrage.at(10)), QColor(Qt::white));
    QCOMPARE(form->pnlPunktkontrolle->caption(), QStringLiteral(" Gesamtpunkte : 55"));
    QCOMPARE(form->pnlGesamtpunkte->caption(), QStringLiteral(" Punkte :           / 55"));
    QCOMPARE(Summenfeld(lauf.programm()), QStringLiteral("55"));
    QCOMPARE(Stand.FormTyp, Formart::Test);
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(Stand.HBDateiName, lauf.Pfad("test.fkr"));
    QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picHB"))->isVisible());
    QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picEingabeFlagGruen"))->isVisible());
}

void HbDateienTest::aTestFileReplacesTheOpenTestForm() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Test("Eins"));
    lauf.Schreiben(QStringLiteral("B.FKR"), Formlauf::Test("Zwei"));
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    const frmHBFragen* form = HBFragenOffen();
    lauf.Oeffnen(QStringLiteral("B.FKR"));
    QCOMPARE(HBFragenOffen(), form);
    QCOMPARE(HB_Frage(1), std::string("Zwei"));
    QCOMPARE(Stand.HBDateiName, lauf.Pfad("B.FKR"));
    QCOMPARE(Spiel.Datei[0], std::string());
}

void HbDateienTest::leavingABoxWithAStraightMarkSaysWhatItCosts() {
    const frmHBFragen* form = lauf.programm().NeuesTestformular();
    form->txtAntwort.at(3)->setFocus();
    QTRY_VERIFY(form->txtAntwort.at(3)->hasFocus());
    QTest::keyClicks(form->txtAntwort.at(3), QStringLiteral("\"Ja\""));
    QTest::keyClick(form->txtAntwort.at(3), Qt::Key_Tab);
    QTRY_COMPARE(Finden<Panel>(lauf.programm().haupt(), QStringLiteral("pnlHilfe"))->caption(),
                 QStringLiteral(" Antwort 3: Was hinter \" steht, geht verloren. Nimm „ und “. "));
}

void HbDateienTest::aQuizFileWhileATestFormIsOpenChangesNothing() {
    lauf.Schreiben(QStringLiteral("T.FKR"), Knoten());
    lauf.Schreiben(QStringLiteral("Q.FKR"), Formlauf::Quiz("Eins"));
    lauf.Oeffnen(QStringLiteral("T.FKR"));
    GespeichertVergessen(); // as after a save that failed
    FormStatusSetzen(true);
    Dialogfolge dialoge;
    dialoge.meldung(
        QStringLiteral("Ich kann jetzt kein Feldkranzformular laden.\nDu mußt erst das Testformular "
                       "schließen."),
        QStringLiteral("Das ist kein Problem, das mache ich doch sofort !"));
    Laden(lauf, "Q.FKR");
    QVERIFY(dialoge.fertig());
    QCOMPARE(HB_Frage(1), std::string("Knoten"));
    QVERIFY(FKFragenOffen() == nullptr);
    QCOMPARE(Stand.FormTyp, Formart::Test);
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Stand.HBDateiName, lauf.Pfad("T.FKR"));
}

void HbDateienTest::aSavedTestFormIsByteForByteTheOneThatWasOpened() {
    lauf.Schreiben(QStringLiteral("T.FKR"), Knoten());
    lauf.Oeffnen(QStringLiteral("T.FKR"));
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("T.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(3)"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("T.FKR")), Knoten());
}

void HbDateienTest::whatStandsOnTheFormStandsInTheFile() {
    lauf.Schreiben(QStringLiteral("T.FKR"), Knoten());
    lauf.Oeffnen(QStringLiteral("T.FKR"));
    frmHBFragen* form = HBFragenOffen();
    KopfWaehlen(form->titel, QStringLiteral("Späherprüfung"), true);
    KopfWaehlen(form->fach, QStringLiteral("Andacht"), true);
    KopfWaehlen(form->gruppe, QStringLiteral("III"), true);
    form->txtFrage.at(2)->setText("Was nun?");
    form->txtAntwort.at(2)->setText("Tee\r\nund Kekse");
    Drehen(form, 10, "hoch", 2);
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("T.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(3)"));
    QVERIFY(dialoge.fertig());
    QVERIFY(!Stand.FormGeaendert);
    HB_Entladen();
    Laden(lauf, "T.FKR");
    form = HBFragenOffen();
    QVERIFY(form != nullptr);
    QCOMPARE(form->titel.panel->caption(), QStringLiteral(" Späherprüfung"));
    QCOMPARE(form->fach.panel->caption(), QStringLiteral(" Andacht"));
    QCOMPARE(form->lblGruppe->text(), QStringLiteral(" III"));
    QCOMPARE(HB_Frage(2), std::string("Was nun?"));
    QCOMPARE(HB_Antwort(2), std::string("Tee\r\nund Kekse"));
    QCOMPARE(form->pnlPunkte.at(10)->caption(), QStringLiteral("12"));
    QCOMPARE(Summenfeld(lauf.programm()), QStringLiteral("57"));
}

void HbDateienTest::aFormWithoutANameAsksForOneOnlyOnce() {
    frmHBFragen* form = lauf.programm().NeuesTestformular();
    form->txtFrage.at(1)->setText("neu");
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, QStringLiteral("Speichern unter ..."), QStringLiteral("neutest"),
                        QStringLiteral("cmdSpeichern"));
    GespeichertErwarten(dialoge, QStringLiteral("neutest.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(3)"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(form->windowTitle(), QStringLiteral("neutest.FKR "));
    GespeichertErwarten(dialoge, QStringLiteral("neutest.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(3)"));
    QVERIFY(dialoge.fertig());
}

void HbDateienTest::theSavedFormKeepsABackupOfItsLastVersion() {
    lauf.Schreiben(QStringLiteral("T.FKR"), Knoten());
    lauf.Oeffnen(QStringLiteral("T.FKR"));
    Spiel.OptionDatei = true;
    HBFragenOffen()->txtFrage.at(1)->setText("anders");
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("BackUp angelegt :   [ T.BAK ]"), QStringLiteral("Schön"));
    GespeichertErwarten(dialoge, QStringLiteral("T.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(3)"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("T.BAK")), Knoten());
    QVERIFY(lauf.Lesen(QStringLiteral("T.FKR")).contains("anders"));
}

void HbDateienTest::jaOnTheClosingButtonSavesAndLeavesTheFormOpen() {
    lauf.Schreiben(QStringLiteral("T.FKR"), Knoten());
    lauf.Oeffnen(QStringLiteral("T.FKR"));
    HBFragenOffen()->txtFrage.at(1)->setText("anders");
    Dialogfolge dialoge;
    dialoge.frage(schliessenTitel,
                  QStringLiteral("Das Formular wurde möglicherweise verändert\n"
                                 "Soll ich das Formular vorher speichern ?"),
                  6);
    GespeichertErwarten(dialoge, QStringLiteral("T.FKR"));
    lauf.Druecken(QStringLiteral("cmdHBSchliessen"));
    QVERIFY(dialoge.fertig());
    QVERIFY(HBFragenOffen() != nullptr);
    QVERIFY(lauf.Lesen(QStringLiteral("T.FKR")).contains("anders"));
}

void HbDateienTest::jaBeforeANewFormSavesTheOldOne() {
    lauf.Schreiben(QStringLiteral("T.FKR"), Knoten());
    lauf.Oeffnen(QStringLiteral("T.FKR"));
    HBFragenOffen()->txtFrage.at(1)->setText("anders");
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuFrage, 6);
    dialoge.frage(neuTitel, neuSpeichernFrage, 6);
    GespeichertErwarten(dialoge, QStringLiteral("T.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(1)"));
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("T.FKR")).contains("anders"));
    QCOMPARE(HBFragenOffen()->windowTitle(), QStringLiteral(" Neues Testformular"));
    QCOMPARE(HB_Frage(1), std::string());
    QCOMPARE(Stand.HBDateiName, std::string());
    QVERIFY(!Stand.FormGeaendert);
}

void HbDateienTest::aCancelledSaveKeepsTheFormThatWasToBeReplaced() {
    frmHBFragen* form = lauf.programm().NeuesTestformular();
    form->txtFrage.at(1)->setText("bleibt");
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuFrage, 6);
    dialoge.frage(neuTitel, neuSpeichernFrage, 6);
    DateidialogErwarten(dialoge, QStringLiteral("Speichern unter ..."), QString(),
                        QStringLiteral("cmdAbbrechen"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(1)"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(HBFragenOffen(), form);
    QCOMPARE(HB_Frage(1), std::string("bleibt"));
    QVERIFY(Stand.FormGeaendert);
}

void HbDateienTest::aFileWithHugePointsIsShownAndItsTotalNeverWraps() {
    Formlauf::Test("Riesig"); // leaves the data empty
    HBForm.HBFrageText[1] = "Riesig";
    HBForm.HBPunkte[1] = 32767;
    HBForm.HBPunkte[2] = 5;
    const QByteArray bytes = QByteArray::fromStdString(FormularBytes(HBForm));
    lauf.Schreiben(QStringLiteral("R.FKR"), bytes);
    Laden(lauf, "R.FKR");
    frmHBFragen* form = HBFragenOffen();
    QVERIFY(form != nullptr);
    Drehen(form, 2, "hoch");
    QCOMPARE(form->pnlPunkte.at(2)->caption(), QStringLiteral("6"));
    QCOMPARE(Summenfeld(lauf.programm()), QStringLiteral("32767")); // a row that overflows is left out
    Drehen(form, 1, "hoch");
    QCOMPARE(form->pnlPunkte.at(1)->caption(), QStringLiteral("0")); // above 20 it begins again
    QCOMPARE(Summenfeld(lauf.programm()), QStringLiteral("6"));
}

void HbDateienTest::aFailedSaveOfATestFormIsReportedAndClaimsNothing() {
    lauf.Schreiben(QStringLiteral("T.FKR"), Knoten());
    lauf.Oeffnen(QStringLiteral("T.FKR"));
    const QString nativ = lauf.programm().ordner().nativ(QStringLiteral("KRANZ/T.FKR"));
    QVERIFY(QFile::remove(nativ) && QDir().mkdir(nativ));
    Dialogfolge dialoge;
    dialoge.meldung(
        QStringLiteral("DATEI : FormularSpeichern :\n75 : Fehler beim Zugriff auf Pfad oder Datei"),
        QStringLiteral("Grrr.. *~§§°"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(3)"));
    QVERIFY(dialoge.fertig());
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(HB_Frage(1), std::string("Knoten"));
    QVERIFY(QDir().rmdir(nativ));
    GespeichertErwarten(dialoge, QStringLiteral("T.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiHB(3)"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("T.FKR")), Knoten());
    QVERIFY(!Stand.FormGeaendert);
}

void HbDateienTest::saveKeysOfTheMenuSaveTheTestForm() {
    lauf.Schreiben(QStringLiteral("T.FKR"), Knoten());
    lauf.Oeffnen(QStringLiteral("T.FKR"));
    HBFragenOffen()->txtFrage.at(1)->setFocus();
    QTRY_VERIFY(HBFragenOffen()->txtFrage.at(1)->hasFocus());
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("T.FKR"));
    QTest::keyClick(HBFragenOffen()->txtFrage.at(1), Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(dialoge.fertig());
}

QTEST_MAIN(HbDateienTest)
#include "hbdateien_test.moc"
