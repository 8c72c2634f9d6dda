// Dragging with a real mouse: from the selection dialog, from cell to cell, to and from the clipboard panels,
// to the trash; the refusals, the questions and the pictures at the pointer.
#include "catalogue/auswahl.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "core/programmstand.h"
#include "core/ziehen.h"
#include "mainwindow/ablage.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "tests/hilfe/auswahlhilfe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"
#include "tests/hilfe/versagen.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTest>

namespace {

// What was dragged last, kept while the next press may replace it.
Ziehwert LetzterZug() {
    return Gezogen();
}

std::size_t Nr(int n) {
    return static_cast<std::size_t>(n);
}

const QString auswahlTitel = QStringLiteral("Fragenauswahl");
const QString besetzt = QStringLiteral("In diesem Feld gibt es schon eine Frage !\n"
                                       "Soll ich diese Frage durch die neue Frage ersetzen ?");
const QString muellTitel = QStringLiteral("Frage und Antwort löschen");
const QString muellFrage = QStringLiteral("Soll ich die Frage und Antwort wirklich löschen ?");

void Fuellen(frmFKFragen* form, int n, const char* frage, const char* antwort) {
    form->txtFrage.at(Nr(n))->setText(frage);
    form->txtAntwort.at(Nr(n))->setText(antwort);
    FK_Merken();
    FK_FelderFaerben();
    FormStatusSetzen(false);
}

void BuchstabeSetzen(frmFKFragen* form, int n, const QString& buchstabe) {
    form->pnlSpezial.at(Nr(n))->setCaption(buchstabe);
    FK_Merken();
    FK_SpezialZaehlen();
    FK_FelderFaerben();
}

// The selection dialog beside the form, with a question picked where gewaehlt.
QWidget* AuswahlOeffnen(const Programm& programm, bool gewaehlt) {
    return AuswahlOeffnen(programm, QStringLiteral("cmdAuswahl(0)"), Ecke::Oben, gewaehlt);
}

Panel* Ablage(const Programm& programm, const char* name) {
    return Finden<Panel>(programm.haupt(), QLatin1String(name));
}

std::function<bool()> Zeigt(ZiehBild bild) {
    return [bild] { return AktuellesZiehBild() == bild; };
}

} // namespace

class FkZiehenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromTheSelectionDialogIntoAnEmptyCell();
    void ontoAnOccupiedCellAnsweredAbbrechenNothingChanges();
    void ontoAnOccupiedCellAnsweredJaReplaces();
    void aMovedQuestionTakesItsAnswerAlong();
    void aCopiedQuestionStaysWhereItWas();
    void theLetterStaysBehindAndTheTextsGo();
    void aJokerIsNeitherMovedNorCopied();
    void anEreignisIsNeitherMovedNorCopied();
    void anEmptyQuestionIsRefusedEvenWithAnAnswer();
    void ctrlAndShiftTogetherStartNothing();
    void aRefusedDropKeepsTheKindOfDragUntilTheNextPress();
    void aCellDroppedOnItselfLosesItsQuestion();
    void aQuestionDroppedOnAJokerLiesUnderItsMarker();
    void theAnswerBoxTakesNoDrop();
    void aPressWithoutAKeyCarriesNothingOff();
    void theRightButtonWithShiftDragsNothing();
    void theOtherPanelsAtTheBottomTakeNoDrop();
    void parkingAQuestionByMoveAndByCopy();
    void parkingOverAParkedQuestionAsks();
    void aDropOnTheHelpPanelParksAsWell();
    void aParkedQuestionStaysAfterItIsPlaced();
    void anEmptyPanelRefusesThePress();
    void aDoubleClickEmptiesTheTwoPanels();
    void parkedTextsOutliveTheForm();
    void theTrashEmptiesACellAfterItsQuestion();
    void theTrashRefusesTheSelectionDialogsOwnQuestion();
    void theSameWayWithKeysAlone();
};

void FkZiehenTest::fromTheSelectionDialogIntoAnEmptyCell() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    QWidget* auswahl = AuswahlOeffnen(programm, true);
    const std::string frage = Modelltext(Finden<QComboBox>(auswahl, QStringLiteral("cmbFrage"))->itemText(0));
    maus::Ziehen(Finden(auswahl, QStringLiteral("txtFrage")), form->txtFrage.at(7), Qt::NoModifier,
                 Zeigt(ZiehBild::Ablegen));
    QTRY_COMPARE(FK_Frage(7), frage);
    QCOMPARE(FK_Antwort(7), AuswahlAntwort());
    QVERIFY(!FK_Antwort(7).empty());
    QCOMPARE(FKForm.FrageText.at(7), frage); // merged at once
    QCOMPARE(form->txtFrage.at(7)->palette().color(QPalette::Base), QColor(Qt::white));
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Gezogen().herkunft, Formart::Keine);
    QCOMPARE(Gezogen().antwort, FK_Antwort(7));
}

void FkZiehenTest::ontoAnOccupiedCellAnsweredAbbrechenNothingChanges() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "eins", "uno");
    Fuellen(form, 3, "drei", "tre");
    Dialogfolge dialoge;
    dialoge.frage(auswahlTitel, besetzt, 2);
    maus::Ziehen(form->txtFrage.at(1), form->txtFrage.at(3), Qt::ShiftModifier);
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(FK_Frage(1), std::string("eins"));
    QCOMPARE(FK_Antwort(1), std::string("uno"));
    QCOMPARE(FK_Frage(3), std::string("drei"));
    QVERIFY(!Stand.FormGeaendert);
}

void FkZiehenTest::ontoAnOccupiedCellAnsweredJaReplaces() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "eins", "uno");
    Fuellen(form, 3, "drei", "tre");
    Dialogfolge dialoge;
    // A help click leaves the question open.
    dialoge.erwarte({QStringLiteral("frmNachricht"),
                     auswahlTitel + QLatin1Char(' '),
                     besetzt,
                     {QStringLiteral("cmdAntwort(3)"), QStringLiteral("cmdAntwort(0)")}});
    maus::Ziehen(form->txtFrage.at(1), form->txtFrage.at(3), Qt::ShiftModifier);
    QTRY_COMPARE(FK_Frage(3), std::string("eins"));
    QCOMPARE(FK_Antwort(3), std::string("uno"));
    QCOMPARE(FK_Frage(1), std::string());
}

void FkZiehenTest::aMovedQuestionTakesItsAnswerAlong() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(14), Qt::ShiftModifier, Zeigt(ZiehBild::Ablegen));
    QTRY_COMPARE(FK_Frage(14), std::string("Wie viele?"));
    QCOMPARE(FK_Antwort(14), std::string("Zwölf"));
    QCOMPARE(FK_Frage(2), std::string());
    QCOMPARE(FK_Antwort(2), std::string());
    QCOMPARE(FKForm.FrageText.at(2), std::string());
    QCOMPARE(form->txtFrage.at(2)->palette().color(QPalette::Base), Systemflaeche());
}

void FkZiehenTest::aCopiedQuestionStaysWhereItWas() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 2, "Wie viele?", "Zwölf");
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(14), Qt::ControlModifier);
    QTRY_COMPARE(FK_Frage(14), std::string("Wie viele?"));
    QCOMPARE(FK_Antwort(14), std::string("Zwölf"));
    QCOMPARE(FK_Frage(2), std::string("Wie viele?"));
}

void FkZiehenTest::theLetterStaysBehindAndTheTextsGo() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 2, "Glück?", "Ja");
    BuchstabeSetzen(form, 2, QStringLiteral("G"));
    maus::Ziehen(form->txtFrage.at(2), form->txtFrage.at(8), Qt::ShiftModifier);
    QTRY_COMPARE(FK_Frage(8), std::string("Glück?"));
    QCOMPARE(form->pnlSpezial.at(2)->caption(), QStringLiteral("G"));
    QCOMPARE(form->pnlSpezial.at(8)->caption(), QString());
    QCOMPARE(FKForm.FeldSpezial.at(2), std::string("G"));
}

void FkZiehenTest::aJokerIsNeitherMovedNorCopied() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    BuchstabeSetzen(form, 5, QStringLiteral("J"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Joker kann nicht verschoben werden."), QStringLiteral("Aha"));
    maus::Druecken(form->txtFrage.at(5)->viewport(), Qt::ShiftModifier);
    QTRY_COMPARE(dialoge.offen(), 0);
    dialoge.meldung(QStringLiteral("Joker kann nicht kopiert werden."), QStringLiteral("Aha"));
    maus::Druecken(form->txtFrage.at(5)->viewport(), Qt::ControlModifier);
    QTRY_COMPARE(dialoge.offen(), 0);
    QCOMPARE(AktuellesZiehBild(), ZiehBild::Keins);
}

void FkZiehenTest::anEreignisIsNeitherMovedNorCopied() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    BuchstabeSetzen(form, 5, QStringLiteral("E"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Ereignis kann nicht verschoben werden."), QStringLiteral("Aha"));
    maus::Druecken(form->txtFrage.at(5)->viewport(), Qt::ShiftModifier);
    QTRY_COMPARE(dialoge.offen(), 0);
    dialoge.meldung(QStringLiteral("Ereignis kann nicht kopiert werden."), QStringLiteral("Aha"));
    maus::Druecken(form->txtFrage.at(5)->viewport(), Qt::ControlModifier);
    QTRY_COMPARE(dialoge.offen(), 0);
}

void FkZiehenTest::anEmptyQuestionIsRefusedEvenWithAnAnswer() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 4, "", "nur die Antwort");
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Keine Frage zum Verschieben vorhanden."), QStringLiteral("Ach ja ..."));
    maus::Druecken(form->txtFrage.at(4)->viewport(), Qt::ShiftModifier);
    QTRY_COMPARE(dialoge.offen(), 0);
    dialoge.meldung(QStringLiteral("Keine Frage zum Kopieren vorhanden."), QStringLiteral("Ach ja ..."));
    maus::Druecken(form->txtFrage.at(4)->viewport(), Qt::ControlModifier);
    QTRY_COMPARE(dialoge.offen(), 0);
}

void FkZiehenTest::ctrlAndShiftTogetherStartNothing() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 2, "bleibt", "hier");
    const Ziehwert vorher = LetzterZug();
    maus::Klicken(form->txtFrage.at(2)->viewport(), Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(Gezogen() == vorher);
    QCOMPARE(AktuellesZiehBild(), ZiehBild::Keins);
    QCOMPARE(FK_Frage(2), std::string("bleibt"));
}

void FkZiehenTest::aRefusedDropKeepsTheKindOfDragUntilTheNextPress() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "eins", "uno");
    Fuellen(form, 3, "drei", "tre");
    Dialogfolge dialoge;
    dialoge.frage(auswahlTitel, besetzt, 2);
    maus::Ziehen(form->txtFrage.at(1), form->txtFrage.at(3), Qt::ControlModifier);
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(Gezogen().art, Zugart::Kopieren);
    maus::Ziehen(form->txtFrage.at(1), form->txtFrage.at(4), Qt::ShiftModifier);
    QTRY_COMPARE(FK_Frage(4), std::string("eins"));
    QCOMPARE(Gezogen().art, Zugart::Verschieben);
}

void FkZiehenTest::aCellDroppedOnItselfLosesItsQuestion() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 6, "zu mir selbst", "weg");
    Dialogfolge dialoge;
    dialoge.frage(auswahlTitel, besetzt, 6);
    maus::Ziehen(form->txtFrage.at(6), form->txtFrage.at(6), Qt::ShiftModifier);
    QTRY_COMPARE(FK_Frage(6), std::string());
    QCOMPARE(FK_Antwort(6), std::string());
}

void FkZiehenTest::aQuestionDroppedOnAJokerLiesUnderItsMarker() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "darunter", "tief");
    BuchstabeSetzen(form, 3, QStringLiteral("J"));
    Dialogfolge dialoge;
    dialoge.frage(auswahlTitel, besetzt, 6); // the marker counts as a question
    maus::Ziehen(form->txtFrage.at(1), form->txtFrage.at(3), Qt::ControlModifier);
    QTRY_COMPARE(FKForm.FrageText.at(3), std::string("darunter"));
    QCOMPARE(FK_Frage(3), std::string("----- Joker ! -----\r\n"));
}

void FkZiehenTest::theAnswerBoxTakesNoDrop() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "eins", "uno");
    Fuellen(form, 2, "", "zwei");
    maus::Ziehen(form->txtFrage.at(1), form->txtAntwort.at(2), Qt::ShiftModifier, Zeigt(ZiehBild::Nein));
    QTRY_COMPARE(AktuellesZiehBild(), ZiehBild::Keins);
    QCOMPARE(FK_Antwort(2), std::string("zwei"));
    QCOMPARE(FK_Frage(1), std::string("eins"));
    maus::Ziehen(form->txtFrage.at(1), form->pnlWissen.at(3), Qt::ShiftModifier, Zeigt(ZiehBild::Nein));
    QCOMPARE(FK_Frage(1), std::string("eins"));
}

void FkZiehenTest::aPressWithoutAKeyCarriesNothingOff() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 2, "bleibt hier", "auch");
    form->txtFrage.at(2)->setFocus(); // all of it is selected now
    QTRY_VERIFY(form->txtFrage.at(2)->textCursor().hasSelection());
    maus::Ziehen(form->txtFrage.at(2), form->txtAntwort.at(4));
    QCOMPARE(FK_Frage(2), std::string("bleibt hier"));
    QCOMPARE(FK_Antwort(4), std::string());
    QVERIFY(!Stand.FormGeaendert);
}

void FkZiehenTest::theRightButtonWithShiftDragsNothing() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "bleibt", "auch");
    Ablage(programm, "pnlCopyF")->setCaption(QStringLiteral("liegt"));
    for (QWidget* quelle :
         {form->txtFrage.at(1)->viewport(), static_cast<QWidget*>(Ablage(programm, "pnlCopyF"))}) {
        OhneMausLoslassen();
        // A press that began a drag would hold the question here.
        const bool gehalten =
            OhneMausAufnehmen([quelle] { QTest::mousePress(quelle, Qt::RightButton, Qt::ShiftModifier); });
        QVERIFY(!gehalten);
        QTest::mouseRelease(quelle, Qt::RightButton, Qt::ShiftModifier);
        if (QWidget* menue = QApplication::activePopupWidget()) {
            menue->close();
        }
    }
    QCOMPARE(FK_Frage(1), std::string("bleibt"));
}

void FkZiehenTest::theOtherPanelsAtTheBottomTakeNoDrop() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "bleibt", "hier");
    for (const char* name : {"pnlCopyA", "pnlFKFelder"}) {
        maus::Ziehen(form->txtFrage.at(1), Ablage(programm, name), Qt::ShiftModifier, Zeigt(ZiehBild::Nein));
        QTRY_COMPARE(AktuellesZiehBild(), ZiehBild::Keins);
        QCOMPARE(AblageFrage(), std::string());
        QCOMPARE(FK_Frage(1), std::string("bleibt"));
    }
}

void FkZiehenTest::parkingAQuestionByMoveAndByCopy() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "parken", "dort");
    maus::Ziehen(form->txtFrage.at(1), Ablage(programm, "pnlCopyF"), Qt::ControlModifier,
                 Zeigt(ZiehBild::Ablegen));
    QTRY_COMPARE(AblageFrage(), std::string("parken"));
    QCOMPARE(AblageAntwort(), std::string("dort"));
    QCOMPARE(FK_Frage(1), std::string("parken"));
    QCOMPARE(Ablage(programm, "pnlCopyF")->grund(), QColor(Qt::white));
    QCOMPARE(Ablage(programm, "pnlCopyA")->grund(), QColor(Qt::white));
    AblageLeeren();
    maus::Ziehen(form->txtFrage.at(1), Ablage(programm, "pnlCopyF"), Qt::ShiftModifier);
    QTRY_COMPARE(AblageFrage(), std::string("parken"));
    QCOMPARE(FK_Frage(1), std::string());
    QCOMPARE(FK_Antwort(1), std::string());
}

void FkZiehenTest::parkingOverAParkedQuestionAsks() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "neu", "n");
    Ablage(programm, "pnlCopyF")->setCaption(QStringLiteral("alt"));
    Dialogfolge dialoge;
    dialoge.frage(auswahlTitel, besetzt, 2);
    maus::Ziehen(form->txtFrage.at(1), Ablage(programm, "pnlCopyF"), Qt::ShiftModifier);
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(AblageFrage(), std::string("alt"));
    QCOMPARE(FK_Frage(1), std::string("neu"));
    dialoge.frage(auswahlTitel, besetzt, 6);
    maus::Ziehen(form->txtFrage.at(1), Ablage(programm, "pnlCopyF"), Qt::ShiftModifier);
    QTRY_COMPARE(AblageFrage(), std::string("neu"));
}

void FkZiehenTest::aDropOnTheHelpPanelParksAsWell() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    QWidget* auswahl = AuswahlOeffnen(programm, true);
    maus::Ziehen(Finden(auswahl, QStringLiteral("txtFrage")),
                 Finden(programm.haupt(), QStringLiteral("pnlHilfe")), Qt::NoModifier,
                 Zeigt(ZiehBild::Ablegen));
    QTRY_VERIFY(!AblageFrage().empty());
    QCOMPARE(AblageAntwort(), AuswahlAntwort());
    QVERIFY(Ablage(programm, "pnlCopyF")->isVisible());
    QVERIFY(Ablage(programm, "pnlCopyF")->grund() != QColor(Qt::white));
    QVERIFY(form->isVisible());
}

void FkZiehenTest::aParkedQuestionStaysAfterItIsPlaced() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Ablage(programm, "pnlCopyF")->setCaption(QStringLiteral("geparkt"));
    Ablage(programm, "pnlCopyA")->setCaption(QStringLiteral("Antwort"));
    maus::Ziehen(Ablage(programm, "pnlCopyF"), form->txtFrage.at(12), Qt::ShiftModifier);
    QTRY_COMPARE(FK_Frage(12), std::string("geparkt"));
    QCOMPARE(FK_Antwort(12), std::string("Antwort"));
    QCOMPARE(AblageFrage(), std::string("geparkt"));
    QCOMPARE(AblageAntwort(), std::string("Antwort"));
    QCOMPARE(Gezogen().feld, 0);
}

void FkZiehenTest::anEmptyPanelRefusesThePress() {
    Programm programm;
    Dialogfolge dialoge;
    for (const auto taste : {Qt::ShiftModifier, Qt::ControlModifier}) {
        dialoge.erwarte({QStringLiteral("QMessageBox"),
                         std::nullopt,
                         QStringLiteral("Keine Frage vorhanden !"),
                         {QStringLiteral("OK")}});
        maus::Druecken(Ablage(programm, "pnlCopyF"), taste);
        QTRY_COMPARE(dialoge.offen(), 0);
    }
}

void FkZiehenTest::aDoubleClickEmptiesTheTwoPanels() {
    Programm programm;
    Ablage(programm, "pnlCopyF")->setCaption(QStringLiteral("F"));
    Ablage(programm, "pnlCopyA")->setCaption(QStringLiteral("A"));
    maus::Doppelklicken(Ablage(programm, "pnlCopyF"));
    QTRY_COMPARE(AblageFrage(), std::string());
    QCOMPARE(AblageAntwort(), std::string());
}

void FkZiehenTest::parkedTextsOutliveTheForm() {
    Programm programm;
    programm.NeuesQuizformular();
    Ablage(programm, "pnlCopyF")->setCaption(QStringLiteral("bleibt"));
    FK_Entladen();
    QCOMPARE(AblageFrage(), std::string("bleibt"));
}

void FkZiehenTest::theTrashEmptiesACellAfterItsQuestion() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    QWidget* muell = Finden(AuswahlOeffnen(programm, false), QStringLiteral("fraMuell"));
    Fuellen(form, 1, "Abfall", "weg");
    Dialogfolge dialoge;
    dialoge.frage(muellTitel, muellFrage, 2);
    maus::Ziehen(form->txtFrage.at(1), muell, Qt::ShiftModifier, Zeigt(ZiehBild::Atom));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(FK_Frage(1), std::string("Abfall"));
    dialoge.frage(muellTitel, muellFrage, 6);
    maus::Ziehen(form->txtFrage.at(1), muell, Qt::ControlModifier);
    QTRY_COMPARE(FK_Frage(1), std::string());
    QCOMPARE(FK_Antwort(1), std::string());
    QCOMPARE(FKForm.FrageText.at(1), std::string());
    QVERIFY(Stand.FormGeaendert);
}

void FkZiehenTest::theTrashRefusesTheSelectionDialogsOwnQuestion() {
    Programm programm;
    programm.NeuesQuizformular();
    QWidget* auswahl = AuswahlOeffnen(programm, true);
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Aus der Fragenauswahl kann ich so keine Fragen löschen."),
                    QStringLiteral("Das sehe ich ein."));
    maus::Ziehen(Finden(auswahl, QStringLiteral("txtFrage")), Finden(auswahl, QStringLiteral("fraMuell")));
    QTRY_VERIFY(dialoge.fertig());
}

void FkZiehenTest::theSameWayWithKeysAlone() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form, 1, "mit Tasten", "auch");
    form->txtFrage.at(1)->setFocus();
    QTRY_VERIFY(form->txtFrage.at(1)->hasFocus());
    maus::Taste(QStringLiteral("shift+F8"));
    form->txtFrage.at(9)->setFocus();
    QTRY_VERIFY(form->txtFrage.at(9)->hasFocus());
    maus::Taste(QStringLiteral("F8"));
    QTRY_COMPARE(FK_Frage(9), std::string("mit Tasten"));
    QCOMPARE(FK_Antwort(9), std::string("auch"));
    QCOMPARE(FK_Frage(1), std::string());
}

QTEST_MAIN(FkZiehenTest)
#include "fkziehen_test.moc"
