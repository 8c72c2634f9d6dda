// Dragging on the test form with a real mouse: from the selection dialog, from row to row, to and from the
// clipboard panels, to the trash; the refusals, the questions and the pictures at the pointer.
#include "catalogue/auswahl.h"
#include "core/ziehen.h"
#include "mainwindow/ablage.h"
#include "tests/hilfe/auswahlhilfe.h"
#include "tests/hilfe/versagen.h"
#include "tests/testform/testhilfe.h"

namespace {

// What was dragged last, kept while the next press may replace it.
Ziehwert LetzterZug() {
    return Gezogen();
}

const QString auswahlTitel = QStringLiteral("Fragenauswahl");
const QString besetzt = QStringLiteral("In diesem Feld gibt es schon eine Frage !\n"
                                       "Soll ich diese Frage durch die neue Frage ersetzen ?");
const QString muellTitel = QStringLiteral("Frage und Antwort löschen");
const QString muellFrage = QStringLiteral("Soll ich die Frage und Antwort wirklich löschen ?");

// The selection dialog where it hides nothing of the form, with a question picked where gewaehlt.
QWidget* AuswahlOeffnen(const Programm& programm, bool gewaehlt) {
    return AuswahlOeffnen(programm, QStringLiteral("cmdAuswahl(1)"), Ecke::Unten, gewaehlt);
}

// Moves the form to the left edge, so that the selection dialog has room beside or below it.
frmHBFragen* FormLinks(Programm& programm) {
    frmHBFragen* form = programm.NeuesTestformular();
    form->parentWidget()->move(0, 0);
    return form;
}

Panel* Ablage(const Programm& programm, const char* name) {
    return Finden<Panel>(programm.haupt(), QLatin1String(name));
}

std::function<bool()> Zeigt(ZiehBild bild) {
    return [bild] { return AktuellesZiehBild() == bild; };
}

} // namespace

class HbZiehenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromTheSelectionDialogIntoAnEmptyRow();
    void aRowThatReadsFrageTakesADropWithoutAQuestion();
    void ontoAnOccupiedRowAnsweredAbbrechenNothingChanges();
    void ontoAnOccupiedRowAnsweredJaReplaces();
    void aMovedQuestionTakesItsAnswerAlongAndLeavesItsPoints();
    void aRowDroppedOnItselfLosesItsQuestion();
    void aCopyDroppedOnItsOwnRowKeepsTheQuestion();
    void aCopyWithAnEmptySelectionDialogLeavesTheAnswerEmpty();
    void aCopyTakesTheAnswerFromTheSelectionDialog();
    void anEmptyRowRefusesThePress();
    void ctrlAndShiftTogetherStartNothing();
    void theSourceRowKeepsItsStoredValuesUntilTheMerge();
    void nothingButAQuestionTakesADrop();
    void parkingAMovedQuestionEmptiesItsRow();
    void parkingACopiedQuestionTakesTheAnswerFromTheSelectionDialog();
    void aDropOnTheHelpPanelParksAsWell();
    void aParkedQuestionBringsItsAnswerAndEmptiesNoRow();
    void theTrashEmptiesARowAfterItsQuestion();
    void theSameWayWithKeysAlone();
    void anotherFormLetsGoOfWhatWasHeldOfTheFirst();
};

void HbZiehenTest::fromTheSelectionDialogIntoAnEmptyRow() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    QWidget* auswahl = AuswahlOeffnen(programm, true);
    const std::string frage = Modelltext(Finden<QComboBox>(auswahl, QStringLiteral("cmbFrage"))->itemText(0));
    maus::Ziehen(Finden(auswahl, QStringLiteral("txtFrage")), form->txtFrage.at(3), Qt::NoModifier,
                 Zeigt(ZiehBild::Ablegen));
    QTRY_COMPARE(HB_Frage(3), frage);
    QCOMPARE(HB_Antwort(3), AuswahlAntwort());
    QVERIFY(!HB_Antwort(3).empty());
    QCOMPARE(HBForm.HBFrageText.at(3), frage); // merged at once
    QCOMPARE(Grund(form->txtFrage.at(3)), QColor(Qt::white));
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Gezogen().herkunft, Formart::Keine);
}

void HbZiehenTest::aRowThatReadsFrageTakesADropWithoutAQuestion() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 1, "Wer?", "Ich");
    Fuellen(form, 2, "Frage", "");
    maus::Ziehen(form->txtFrage.at(1), form->txtFrage.at(2), Qt::ShiftModifier);
    QTRY_COMPARE(HB_Frage(2), std::string("Wer?"));
    QCOMPARE(HB_Frage(1), std::string());
}

void HbZiehenTest::ontoAnOccupiedRowAnsweredAbbrechenNothingChanges() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 1, "eins", "uno");
    Fuellen(form, 3, "drei", "tre");
    Dialogfolge dialoge;
    dialoge.frage(auswahlTitel, besetzt, 2);
    maus::Ziehen(form->txtFrage.at(1), form->txtFrage.at(3), Qt::ShiftModifier);
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(HB_Frage(1), std::string("eins"));
    QCOMPARE(HB_Frage(3), std::string("drei"));
    QCOMPARE(HB_Antwort(3), std::string("tre"));
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(Gezogen().art, Zugart::Verschieben);
}

void HbZiehenTest::ontoAnOccupiedRowAnsweredJaReplaces() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 1, "eins", "uno");
    Fuellen(form, 3, "drei", "tre");
    Dialogfolge dialoge;
    dialoge.frage(auswahlTitel, besetzt, 6);
    maus::Ziehen(form->txtFrage.at(1), form->txtFrage.at(3), Qt::ShiftModifier);
    QTRY_COMPARE(HB_Frage(3), std::string("eins"));
    QCOMPARE(HB_Antwort(3), std::string("uno"));
    QCOMPARE(HB_Frage(1), std::string());
}

void HbZiehenTest::aMovedQuestionTakesItsAnswerAlongAndLeavesItsPoints() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    Drehen(form, 2, "hoch", 4);
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(5), Qt::ShiftModifier, Zeigt(ZiehBild::Ablegen));
    QTRY_COMPARE(HB_Frage(5), std::string("Wie viele?"));
    QCOMPARE(HB_Antwort(5), std::string("Zwölf"));
    QCOMPARE(HB_Frage(2), std::string());
    QCOMPARE(HB_Antwort(2), std::string());
    QCOMPARE(form->pnlPunkte.at(2)->caption(), QStringLiteral("4"));
    QCOMPARE(form->pnlPunkte.at(5)->caption(), QString());
    QCOMPARE(Grund(form->txtFrage.at(2)), Systemflaeche());
    QCOMPARE(Gezogen().herkunft, Formart::Test);
}

void HbZiehenTest::aRowDroppedOnItselfLosesItsQuestion() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    Dialogfolge dialoge;
    dialoge.frage(auswahlTitel, besetzt, 2);
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(2), Qt::ShiftModifier, Zeigt(ZiehBild::Ablegen));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(HB_Frage(2), std::string("Wie viele?"));
    dialoge.frage(auswahlTitel, besetzt, 6);
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(2), Qt::ShiftModifier, Zeigt(ZiehBild::Ablegen));
    QTRY_VERIFY(dialoge.fertig());
    QTRY_COMPARE(HB_Frage(2), std::string());
    QCOMPARE(HB_Antwort(2), std::string());
    QCOMPARE(HBForm.HBFrageText.at(2), std::string()); // merged at once, as every target
    QCOMPARE(Grund(form->txtFrage.at(2)), Systemflaeche());
}

void HbZiehenTest::aCopyDroppedOnItsOwnRowKeepsTheQuestion() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    Dialogfolge dialoge;
    dialoge.frage(auswahlTitel, besetzt, 6);
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(2), Qt::ControlModifier, Zeigt(ZiehBild::Ablegen));
    QTRY_VERIFY(dialoge.fertig());
    QTRY_COMPARE(HB_Antwort(2), std::string()); // there is no selection dialog
    QCOMPARE(HB_Frage(2), std::string("Wie viele?"));
}

void HbZiehenTest::aCopyWithAnEmptySelectionDialogLeavesTheAnswerEmpty() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    AuswahlOeffnen(programm, false);
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(5), Qt::ControlModifier);
    QTRY_COMPARE(HB_Frage(5), std::string("Wie viele?"));
    QCOMPARE(HB_Antwort(5), std::string());
    QCOMPARE(HB_Frage(2), std::string("Wie viele?"));
    QCOMPARE(HB_Antwort(2), std::string("Zwölf"));
    QCOMPARE(Gezogen().art, Zugart::Testkopie);
}

void HbZiehenTest::aCopyTakesTheAnswerFromTheSelectionDialog() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    AuswahlOeffnen(programm, true);
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(5), Qt::ControlModifier);
    QTRY_COMPARE(HB_Frage(5), std::string("Wie viele?"));
    QVERIFY(!AuswahlAntwort().empty());
    QCOMPARE(HB_Antwort(5), AuswahlAntwort());
}

void HbZiehenTest::anEmptyRowRefusesThePress() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    form->txtAntwort.at(4)->setText("nur die Antwort");
    const Ziehwert vorher = LetzterZug();
    for (const auto taste : {Qt::ShiftModifier, Qt::ControlModifier}) {
        Dialogfolge dialoge;
        dialoge.kasten(QString(), QStringLiteral("Keine Frage vorhanden !"), QStringLiteral("OK"));
        maus::Druecken(form->txtFrage.at(4), taste);
        QTRY_VERIFY(dialoge.fertig());
        QVERIFY(Gezogen() == vorher);
    }
}

void HbZiehenTest::ctrlAndShiftTogetherStartNothing() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 1, "bleibt", "hier");
    const Ziehwert vorher = LetzterZug();
    maus::Klicken(form->txtFrage.at(1), Qt::ControlModifier | Qt::ShiftModifier);
    maus::Klicken(form->txtFrage.at(1), Qt::NoModifier);
    QVERIFY(Gezogen() == vorher);
    QCOMPARE(AktuellesZiehBild(), ZiehBild::Keins);
    QCOMPARE(HB_Frage(1), std::string("bleibt"));
}

void HbZiehenTest::theSourceRowKeepsItsStoredValuesUntilTheMerge() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(5), Qt::ShiftModifier);
    QTRY_COMPARE(HBForm.HBFrageText.at(5), std::string("Wie viele?"));
    QCOMPARE(HBForm.HBFrageText.at(2), std::string("Wie viele?"));
    HB_Merken();
    QCOMPARE(HBForm.HBFrageText.at(2), std::string());
}

void HbZiehenTest::nothingButAQuestionTakesADrop() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 2, "bleibt", "hier");
    for (const QWidget* ziel :
         std::initializer_list<QWidget*>{form->txtAntwort.at(4), form->pnlPunkte.at(4), form->fach.panel}) {
        maus::Ziehen(form->txtFrage.at(2), ziel, Qt::ShiftModifier, Zeigt(ZiehBild::Nein));
        QTRY_COMPARE(AktuellesZiehBild(), ZiehBild::Keins);
        QCOMPARE(HB_Frage(2), std::string("bleibt"));
        QCOMPARE(HB_Antwort(4), std::string());
    }
    QVERIFY(!Stand.FormGeaendert);
}

void HbZiehenTest::parkingAMovedQuestionEmptiesItsRow() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    maus::Ziehen(form->txtFrage.at(2), Ablage(programm, "pnlCopyF"), Qt::ShiftModifier);
    QTRY_COMPARE(AblageFrage(), std::string("Wie viele?"));
    QCOMPARE(AblageAntwort(), std::string("Zwölf"));
    QCOMPARE(HB_Frage(2), std::string());
    QCOMPARE(HBForm.HBFrageText.at(2), std::string()); // merged
    QCOMPARE(Grund(form->txtFrage.at(2)), Systemflaeche());
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Ablage(programm, "pnlCopyF")->grund(), QColor(Qt::white));
}

void HbZiehenTest::parkingACopiedQuestionTakesTheAnswerFromTheSelectionDialog() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    maus::Ziehen(form->txtFrage.at(2), Ablage(programm, "pnlCopyF"), Qt::ControlModifier);
    QTRY_COMPARE(AblageFrage(), std::string("Wie viele?"));
    QCOMPARE(AblageAntwort(), std::string()); // there is no selection dialog
    QCOMPARE(HB_Frage(2), std::string("Wie viele?"));
}

void HbZiehenTest::aDropOnTheHelpPanelParksAsWell() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 9, "neun", "nove");
    maus::Ziehen(form->txtFrage.at(9), Finden(programm.haupt(), QStringLiteral("pnlHilfe")),
                 Qt::ShiftModifier);
    QTRY_COMPARE(AblageFrage(), std::string("neun"));
    QCOMPARE(AblageAntwort(), std::string("nove"));
    QCOMPARE(HB_Frage(9), std::string());
}

void HbZiehenTest::aParkedQuestionBringsItsAnswerAndEmptiesNoRow() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 1, "eins", "uno");
    Ablage(programm, "pnlCopyF")->setCaption(QStringLiteral("geparkt"));
    Ablage(programm, "pnlCopyA")->setCaption(QStringLiteral("dazu"));
    for (const auto& [taste, zeile] : {std::pair{Qt::ShiftModifier, 4}, std::pair{Qt::ControlModifier, 6}}) {
        maus::Ziehen(Ablage(programm, "pnlCopyF"), form->txtFrage.at(Nr(zeile)), taste);
        QTRY_COMPARE(HB_Frage(zeile), std::string("geparkt"));
        QCOMPARE(HB_Antwort(zeile), std::string("dazu"));
        QCOMPARE(AblageFrage(), std::string("geparkt"));
        QCOMPARE(HB_Frage(1), std::string("eins"));
    }
}

void HbZiehenTest::theTrashEmptiesARowAfterItsQuestion() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    QWidget* muell = Finden(AuswahlOeffnen(programm, false), QStringLiteral("fraMuell"));
    Fuellen(form, 1, "Abfall", "weg");
    Dialogfolge dialoge;
    dialoge.frage(muellTitel, muellFrage, 2);
    maus::Ziehen(form->txtFrage.at(1), muell, Qt::ShiftModifier, Zeigt(ZiehBild::Atom));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(HB_Frage(1), std::string("Abfall"));
    dialoge.frage(muellTitel, muellFrage, 6);
    maus::Ziehen(form->txtFrage.at(1), muell, Qt::ShiftModifier);
    QTRY_COMPARE(HB_Frage(1), std::string());
    QCOMPARE(HB_Antwort(1), std::string());
    QTRY_COMPARE(HBForm.HBFrageText.at(1), std::string());
    QVERIFY(Stand.FormGeaendert);
}

void HbZiehenTest::theSameWayWithKeysAlone() {
    Programm programm;
    frmHBFragen* form = FormLinks(programm);
    Fuellen(form, 1, "mit Tasten", "auch");
    form->txtFrage.at(1)->setFocus();
    QTRY_VERIFY(form->txtFrage.at(1)->hasFocus());
    maus::Taste(QStringLiteral("shift+F8"));
    form->txtFrage.at(9)->setFocus();
    QTRY_VERIFY(form->txtFrage.at(9)->hasFocus());
    maus::Taste(QStringLiteral("F8"));
    QTRY_COMPARE(HB_Frage(9), std::string("mit Tasten"));
    QCOMPARE(HB_Antwort(9), std::string("auch"));
    QCOMPARE(HB_Frage(1), std::string());
}

void HbZiehenTest::anotherFormLetsGoOfWhatWasHeldOfTheFirst() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Fuellen(form, 1, "Was ?", "Das");
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_F8, Qt::ShiftModifier);
    QVERIFY(OhneMausGehalten());
    HB_FormularZeigen(); // as a form that was read is shown
    QVERIFY(!OhneMausGehalten());
    QTest::keyClick(form->txtFrage.at(5), Qt::Key_F8);
    QCOMPARE(HB_Frage(1), std::string("Was ?"));
    QCOMPARE(HB_Frage(5), std::string());
}

QTEST_MAIN(HbZiehenTest)
#include "hbziehen_test.moc"
