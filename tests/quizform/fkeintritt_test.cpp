// Entering and leaving a cell without changing it, by mouse, by key and from another window: nothing is
// merged, nothing counts as changed.
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "tests/hilfe/auswahlhilfe.h"
#include "tests/quizform/formhilfe.h"

#include <QSignalSpy>

namespace {

const QString loeschTitel = QStringLiteral("Fragen löschen");
const QString loeschFrage = QStringLiteral("Soll ich die Fragen und Antworten aus dem Formular löschen ?\n"
                                           "(Können anschließend - wenn nichts verändert wurde -\n"
                                           "auch wieder eingefügt werden.)");

void Fuellen(frmFKFragen* form) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Nr(n))->setText("Frage " + std::to_string(n));
        form->txtAntwort.at(Nr(n))->setText("Antwort " + std::to_string(n));
    }
    FK_Merken();
    FK_FelderFaerben();
    FormStatusSetzen(false);
}

void FragenLoeschen(const Programm& programm) {
    Dialogfolge dialoge;
    dialoge.frage(loeschTitel, loeschFrage, 6);
    maus::Druecken(Finden(programm.haupt(), QStringLiteral("cmdFKFLoeschen")));
    QTRY_VERIFY(dialoge.fertig());
}

} // namespace

class FkEintrittTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBoxLeftWithoutAChangeLeavesABlankedFormRestorable_data();
    void aBoxLeftWithoutAChangeLeavesABlankedFormRestorable();
    void aDragBegunFromTheSelectionDialogAndAbandonedChangesNothing();
    void aClickIntoABoxFromTheSelectionDialogEntersIt();
    void undoInAnUntouchedBoxMarksNothing();
    void undoingToTheTextThatStoodThereMarksNothingMore();
    void settingTheTextThatStandsThereMarksNothing();
    void aPressOnSelectedTextNeverBeginsToCarryItOff_data();
    void aPressOnSelectedTextNeverBeginsToCarryItOff();
    void leavingABoxWithAStraightMarkSaysWhatItCosts_data();
    void leavingABoxWithAStraightMarkSaysWhatItCosts();
};

void FkEintrittTest::aBoxLeftWithoutAChangeLeavesABlankedFormRestorable_data() {
    QTest::addColumn<bool>("antwort");
    QTest::newRow("an answer") << true;
    QTest::newRow("a question") << false;
}

void FkEintrittTest::aBoxLeftWithoutAChangeLeavesABlankedFormRestorable() {
    QFETCH(bool, antwort);
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    maus::Klicken(form->txtFrage.at(2)->viewport());
    maus::Tippen(QStringLiteral("Anders"));
    FragenLoeschen(programm);
    QCOMPARE(FK_Frage(2), std::string());
    maus::Klicken((antwort ? form->txtAntwort : form->txtFrage).at(8)->viewport());
    QTRY_VERIFY((antwort ? form->txtAntwort : form->txtFrage).at(8)->hasFocus());
    maus::Klicken(form->txtNr);
    QTRY_VERIFY(form->txtNr->hasFocus());
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKFLaden")), Qt::LeftButton);
    QCOMPARE(FK_Frage(2), std::string("Anders"));
    QCOMPARE(FK_Frage(8), std::string("Frage 8"));
    QCOMPARE(FK_Antwort(30), std::string("Antwort 30"));
}

void FkEintrittTest::aDragBegunFromTheSelectionDialogAndAbandonedChangesNothing() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    maus::Klicken(form->txtFrage.at(4)->viewport());
    QTRY_VERIFY(form->txtFrage.at(4)->hasFocus());
    QWidget* auswahl = AuswahlOeffnen(programm, QStringLiteral("cmdAuswahl(0)"), Ecke::Oben, true);
    QTRY_VERIFY(auswahl->isActiveWindow());
    FK_FragenLoeschen();
    form->txtFrage.at(1)->setText("eine Frage");
    maus::Ziehen(form->txtFrage.at(1), form->txtAntwort.at(2), Qt::ShiftModifier);
    maus::Klicken(form->txtNr);
    QTRY_VERIFY(form->txtNr->hasFocus());
    QCOMPARE(FKForm.FrageText.at(7), std::string("Frage 7")); // nothing was merged
}

void FkEintrittTest::aClickIntoABoxFromTheSelectionDialogEntersIt() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    maus::Klicken(form->txtFrage.at(4)->viewport());
    QTRY_VERIFY(form->txtFrage.at(4)->textCursor().hasSelection());
    QWidget* auswahl = AuswahlOeffnen(programm, QStringLiteral("cmdAuswahl(0)"), Ecke::Oben, false);
    QTRY_VERIFY(auswahl->isActiveWindow());
    maus::Klicken(form->txtAntwort.at(7)->viewport());
    QTRY_COMPARE(form->txtAntwort.at(7)->textCursor().selectedText(), QStringLiteral("Antwort 7"));
    QVERIFY(!form->txtFrage.at(4)->textCursor().hasSelection());
    QCOMPARE(form->Alt.antwort, std::string("Antwort 7"));
}

void FkEintrittTest::undoInAnUntouchedBoxMarksNothing() {
    Programm programm;
    const frmFKFragen* quiz = programm.NeuesQuizformular();
    maus::Klicken(quiz->txtFrage.at(3)->viewport());
    QTRY_VERIFY(quiz->txtFrage.at(3)->hasFocus());
    for (const char* taste : {"ctrl+z", "ctrl+z", "ctrl+y"}) {
        maus::Taste(QLatin1String(taste));
        QVERIFY2(!Stand.FormGeaendert, taste);
    }
}

void FkEintrittTest::undoingToTheTextThatStoodThereMarksNothingMore() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    FormularWechselt(); // as if it had been read like that: what stands there is no step
    FormStatusSetzen(false);
    QTRY_VERIFY(form->isVisible());
    QSignalSpy anders(form->txtFrage.at(3), &Textfeld::textAnders);
    Tippen(form->txtFrage.at(3), QStringLiteral("x"));
    QVERIFY(!anders.isEmpty());
    anders.clear();
    QTest::keyClick(form->txtFrage.at(3), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(FK_Frage(3), std::string("Frage 3"));
    anders.clear();
    FormStatusSetzen(false);
    QTest::keyClick(form->txtFrage.at(3), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(FK_Frage(3), std::string("Frage 3"));
    QVERIFY(anders.isEmpty());
    QVERIFY(!Stand.FormGeaendert);
}

void FkEintrittTest::settingTheTextThatStandsThereMarksNothing() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    for (Textfeld* feld : {form->txtFrage.at(3), form->txtAntwort.at(3)}) {
        feld->setPlainText(feld->toPlainText());
        feld->setZentriert(true);
        feld->setZentriert(false);
    }
    form->txtNr->setText(form->txtNr->text());
    QVERIFY(!Stand.FormGeaendert);
}

void FkEintrittTest::aPressOnSelectedTextNeverBeginsToCarryItOff_data() {
    QTest::addColumn<Qt::KeyboardModifiers>("tasten");
    QTest::newRow("none") << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("Strg") << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Alt") << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("Super") << Qt::KeyboardModifiers(Qt::MetaModifier);
    QTest::newRow("Super+Umschalt") << (Qt::MetaModifier | Qt::ShiftModifier);
    QTest::newRow("Umschalt+Strg") << (Qt::ShiftModifier | Qt::ControlModifier);
}

// A window manager keeps some of these to itself; sent to the box they arrive all the same.
void FkEintrittTest::aPressOnSelectedTextNeverBeginsToCarryItOff() {
    QFETCH(const Qt::KeyboardModifiers, tasten);
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    Textfeld* antwort = form->txtAntwort.at(3);
    antwort->setText("eine lange Antwort, auf der man gut ziehen kann");
    antwort->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(antwort->textCursor().hasSelection());
    QTest::mousePress(antwort->viewport(), Qt::LeftButton, tasten, QPoint(20, 8));
    // What isn't selected can't be carried off.
    const QTextCursor dort = antwort->cursorForPosition(QPoint(20, 8));
    QVERIFY(!antwort->textCursor().hasSelection() ||
            antwort->textCursor().selectionEnd() <= dort.position() ||
            antwort->textCursor().selectionStart() >= dort.position());
    QTest::mouseRelease(antwort->viewport(), Qt::LeftButton, tasten, QPoint(20, 8));
    QCOMPARE(antwort->text(), std::string("eine lange Antwort, auf der man gut ziehen kann"));
}

void FkEintrittTest::leavingABoxWithAStraightMarkSaysWhatItCosts_data() {
    QTest::addColumn<QString>("feld");
    QTest::addColumn<QString>("name");
    QTest::newRow("a question") << QStringLiteral("txtFrage(8)") << QStringLiteral("Gebiet 2, Frage 3");
    QTest::newRow("an answer") << QStringLiteral("txtAntwort(30)") << QStringLiteral("Gebiet 6, Antwort 5");
    QTest::newRow("the date") << QStringLiteral("txtDatum") << QStringLiteral("Datum");
}

void FkEintrittTest::leavingABoxWithAStraightMarkSaysWhatItCosts() {
    QFETCH(const QString, feld);
    QFETCH(const QString, name);
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    auto* box = Finden(form, feld);
    box->setFocus();
    QTRY_VERIFY(box->hasFocus());
    maus::Tippen(QStringLiteral("Wer sagte \"Ja\"?"));
    maus::Taste(QStringLiteral("Tab"));
    QTRY_COMPARE(Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption(),
                 QStringLiteral(" %1: Was hinter \" steht, geht verloren. Nimm „ und “. ").arg(name));
    QVERIFY(!box->hasFocus());
}

QTEST_MAIN(FkEintrittTest)
#include "fkeintritt_test.moc"
