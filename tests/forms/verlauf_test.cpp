// Undo and redo of the quiz form in the real windows, by the keys and by the menu.
#include "forms/verlauf.h"

#include "core/formularfenster.h"
#include "core/schritt.h"
#include "forms/formulare.h"
#include "tests/forms/verlaufhilfe.h"
#include "tests/hilfe/bild.h"
#include "tests/quizform/formhilfe.h"

#include <QMenu>
#include <QMenuBar>

namespace {

const QString loeschFrage = QStringLiteral("Soll ich die Fragen und Antworten aus dem Formular löschen ?\n"
                                           "(Können anschließend - wenn nichts verändert wurde -\n"
                                           "auch wieder eingefügt werden.)");
const QString spezialFrage = QStringLiteral("Soll ich die Spezialfelder aus dem Formular löschen ?\n"
                                            "(Können anschließend - wenn nichts verändert wurde -\n"
                                            "auch wieder eingefügt werden.)");

// All that the form shows.
QStringList Gezeigt(const frmFKFragen* form) {
    QStringList texte{form->txtNr->text(), form->txtDatum->text(), form->txtZeit->text()};
    for (std::size_t n = 1; n <= anzahlFelder; ++n) {
        texte << Anzeige(form->txtFrage.at(n)->text()) << Anzeige(form->txtAntwort.at(n)->text())
              << form->pnlSpezial.at(n)->caption() << form->pnlPunkte.at(n)->caption()
              << Grund(form->txtFrage.at(n)).name()
              << QString::number(int(form->txtFrage.at(n)->isVisible()));
    }
    for (std::size_t a = 1; a <= anzahlGebiete; ++a) {
        texte << form->pnlWissen.at(a)->caption();
    }
    return texte;
}

void Fuellen(frmFKFragen* form) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Nr(n))->setText("Frage " + std::to_string(n));
        form->txtAntwort.at(Nr(n))->setText("Antwort " + std::to_string(n));
    }
    FK_Merken();
    FK_FelderFaerben();
}

// A full form that counts as saved, and whose history begins.
frmFKFragen* VollesFormular(Programm& programm) {
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    FormularWechselt();
    FormStatusSetzen(false);
    return form;
}

void Tippen(QWidget* feld, const QString& text) {
    Betreten(feld);
    maus::Tippen(text);
}

void MitFrage(const Programm& programm, const QString& taste, const QString& titel, const QString& text) {
    Dialogfolge dialoge;
    dialoge.frage(titel, text, 6);
    QTest::mouseClick(Finden(programm.haupt(), taste), Qt::LeftButton);
    QTRY_VERIFY(dialoge.fertig());
}

} // namespace

class VerlaufTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMenuStandsBetweenEditorAndHelpWithItsKeys();
    void aTextIsOneStepFromEnteringItsBoxUntilLeavingIt();
    void withinABoxItsOwnUndoGoesFirst();
    void aTypedCharacterAndItsUndoLeaveNothingMarked();
    void theHeadIsUndoneTextByText();
    void aMoveComesBackWithThePlaceThatItEmptied();
    void aDropOverAQuestionBringsTheOldOneBack();
    void theTrashGivesBackWhatItTook();
    void lettersAndTitlesAreSteps();
    void blankingAndRestoringAreSteps();
    void blankingAnEditAndASaveCostNothing();
    void lettersThatWereBlankedComeBackAsTheyWere();
    void cellsThatTheSettingsClosedComeBackWithTheirTexts();
    void theFlagIsGreenExactlyWhenTheFormEqualsWhatWasSaved();
    void aSaveDoesntEndTheHistoryAndAnotherFormDoes();
    void theMenuDoesWhatTheKeysDo();
    void withAnotherWindowInFrontTheFormStaysAsItIs();
    void aStepBackInTheMiddleOfTypingTakesTheTypingFirst();
};

void VerlaufTest::theMenuStandsBetweenEditorAndHelpWithItsKeys() {
    Programm programm;
    for (int art = 0; art < 3; ++art) {
        if (art == 1) {
            programm.NeuesQuizformular();
        } else if (art == 2) {
            FormulareEntladen();
            programm.NeuesTestformular();
        }
        QStringList namen;
        for (const QAction* menue : programm.haupt()->menuBar()->actions()) {
            if (menue->isVisible()) {
                namen << menue->text();
            }
        }
        QCOMPARE(
            namen.mid(namen.size() - 3),
            (QStringList{QStringLiteral("&Editor"), QStringLiteral("E&xtras"), QStringLiteral("&Hilfe")}));
        QCOMPARE(Extras(), QStringLiteral("(Rückgängig) | (Wiederholen)"));
    }
    QCOMPARE(Eintrag(1)->shortcuts(), QList{QKeySequence(QStringLiteral("Ctrl+Z"))});
    QCOMPARE(Eintrag(2)->shortcuts(),
             (QList{QKeySequence(QStringLiteral("Ctrl+Y")), QKeySequence(QStringLiteral("Ctrl+Shift+Z"))}));
}

void VerlaufTest::aTextIsOneStepFromEnteringItsBoxUntilLeavingIt() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("Wer war es"));
    Tippen(form->txtAntwort.at(1), QStringLiteral("ich"));
    Betreten(form->txtFrage.at(2));
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Antwort eingeben | (Wiederholen)"));
    Zurueck();
    QTRY_COMPARE(FK_Antwort(1), std::string());
    QCOMPARE(FK_Frage(1), std::string("Wer war es"));
    QCOMPARE(Extras(), QStringLiteral("Rückgängig: Frage eingeben | Wiederholen: Antwort eingeben"));
    Zurueck();
    QTRY_COMPARE(FK_Frage(1), std::string());
    QVERIFY(Gruen());
    QCOMPARE(Extras(), QStringLiteral("(Rückgängig) | Wiederholen: Frage eingeben"));
    Vor();
    QTRY_COMPARE(FK_Frage(1), std::string("Wer war es"));
    maus::Taste(QStringLiteral("ctrl+shift+z"));
    QTRY_COMPARE(FK_Antwort(1), std::string("ich"));
    QCOMPARE(Extras(), QStringLiteral("Rückgängig: Antwort eingeben | (Wiederholen)"));
    QCOMPARE(FKForm.FrageText[1], std::string("Wer war es"));
    QVERIFY(Rot());
}

void VerlaufTest::withinABoxItsOwnUndoGoesFirst() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(3), QStringLiteral("eins"));
    Tippen(form->txtFrage.at(4), QStringLiteral("zwei"));
    Zurueck();
    QTRY_COMPARE(FK_Frage(4), std::string());
    QCOMPARE(FK_Frage(3), std::string("eins"));
    Vor();
    QTRY_COMPARE(FK_Frage(4), std::string("zwei"));
    Zurueck();
    QTRY_COMPARE(FK_Frage(4), std::string());
    Zurueck(); // the box has no more
    QTRY_COMPARE(FK_Frage(3), std::string());
    QVERIFY(form->txtFrage.at(4)->hasFocus());
    QTRY_VERIFY(Gruen());
}

void VerlaufTest::aTypedCharacterAndItsUndoLeaveNothingMarked() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(5), QStringLiteral("x"));
    QTRY_VERIFY(Rot());
    Zurueck();
    QTRY_COMPARE(FK_Frage(5), std::string());
    QTRY_VERIFY(Gruen());
    Betreten(form->txtFrage.at(6));
    QTRY_COMPARE(Extras(), QStringLiteral("(Rückgängig) | (Wiederholen)"));
    QVERIFY(Gruen());
}

void VerlaufTest::theHeadIsUndoneTextByText() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtNr, QStringLiteral("7"));
    Tippen(form->txtDatum, QStringLiteral("1.2."));
    Betreten(form->txtFrage.at(2));
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Kopf ausfüllen | (Wiederholen)"));
    Zurueck();
    QTRY_COMPARE(form->txtDatum->text(), QString());
    QCOMPARE(form->txtNr->text(), QStringLiteral("7"));
    Zurueck();
    QTRY_COMPARE(form->txtNr->text(), QString());
    QVERIFY(Gruen());
    // A line's own undo ends with its step, too.
    Betreten(form->txtNr);
    Zurueck();
    QCOMPARE(form->txtNr->text(), QString());
}

void VerlaufTest::aMoveComesBackWithThePlaceThatItEmptied() {
    Programm programm;
    frmFKFragen* form = VollesFormular(programm);
    FK_FeldLeeren(12);
    FK_Merken();
    FK_FelderFaerben();
    FormularWechselt();
    FormStatusSetzen(false);
    const QStringList vorher = Gezeigt(form);
    maus::Ziehen(form->txtFrage.at(3)->viewport(), form->txtFrage.at(12)->viewport(), Qt::ShiftModifier);
    QTRY_COMPARE(FK_Frage(12), std::string("Frage 3"));
    QCOMPARE(FK_Frage(3), std::string());
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Frage verschieben | (Wiederholen)"));
    const QStringList nachher = Gezeigt(form);
    Zurueck();
    QTRY_COMPARE(FK_Frage(12), std::string());
    QCOMPARE(Gezeigt(form).join(QLatin1Char('|')), vorher.join(QLatin1Char('|')));
    QVERIFY(Gruen());
    Vor();
    QTRY_COMPARE(FK_Frage(12), std::string("Frage 3"));
    QCOMPARE(Gezeigt(form).join(QLatin1Char('|')), nachher.join(QLatin1Char('|')));
    QVERIFY(Rot());
}

void VerlaufTest::aDropOverAQuestionBringsTheOldOneBack() {
    Programm programm;
    frmFKFragen* form = VollesFormular(programm);
    const QStringList vorher = Gezeigt(form);
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}});
    FK_Ablegen(8, {Zugart::Auswahl, Formart::Keine, 0, "neu", "auch neu"});
    QVERIFY(dialoge.fertig());
    QCOMPARE(FK_Frage(8), std::string("neu"));
    QCOMPARE(Rueckschritt(), std::string("Frage einsetzen"));
    RueckgaengigMachen();
    QCOMPARE(Gezeigt(form).join(QLatin1Char('|')), vorher.join(QLatin1Char('|')));
}

void VerlaufTest::theTrashGivesBackWhatItTook() {
    Programm programm;
    frmFKFragen* form = VollesFormular(programm);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdAuswahl(0)")), Qt::LeftButton);
    QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    programm.haupt()->activateWindow();
    form->txtFrage.at(9)->setFocus();
    QTest::keyClick(form->txtFrage.at(9), Qt::Key_F8, Qt::ShiftModifier);
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"),
                     QStringLiteral("Frage und Antwort löschen "),
                     {},
                     {QStringLiteral("cmdAntwort(0)")}});
    QTest::keyClick(Finden(auswahl, QStringLiteral("fraMuell")), Qt::Key_F8);
    QTRY_VERIFY(dialoge.fertig());
    QTRY_COMPARE(FK_Frage(9), std::string());
    QCOMPARE(Rueckschritt(), std::string("Frage wegwerfen"));
    RueckgaengigMachen();
    QCOMPARE(FK_Frage(9), std::string("Frage 9"));
    QCOMPARE(FK_Antwort(9), std::string("Antwort 9"));
    QVERIFY(Gruen());
}

void VerlaufTest::lettersAndTitlesAreSteps() {
    Programm programm;
    frmFKFragen* form = VollesFormular(programm);
    const QStringList vorher = Gezeigt(form);
    SpezialWaehlen(form, 7, 1);
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Spezialfeld wählen | (Wiederholen)"));
    const QStringList mitJoker = Gezeigt(form);
    QCOMPARE(form->pnlSpezial.at(7)->caption(), QStringLiteral("J"));
    QTest::mouseClick(form->pnlWissen.at(2), Qt::LeftButton);
    QTRY_VERIFY(form->cmbWissen->view()->isVisible());
    form->cmbWissen->view()->setCurrentIndex(form->cmbWissen->model()->index(3, 0));
    QTest::keyClick(form->cmbWissen->view(), Qt::Key_Return);
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Titel wählen | (Wiederholen)"));
    Zurueck();
    QTRY_COMPARE(Gezeigt(form).join(QLatin1Char('|')), mitJoker.join(QLatin1Char('|')));
    QCOMPARE(form->SpezialAnzahl[Spezialart::Joker], std::int16_t(1));
    Zurueck();
    QTRY_COMPARE(Gezeigt(form).join(QLatin1Char('|')), vorher.join(QLatin1Char('|')));
    QCOMPARE(form->SpezialAnzahl[Spezialart::Joker], std::int16_t(0));
    QVERIFY(Gruen());
}

void VerlaufTest::blankingAndRestoringAreSteps() {
    Programm programm;
    frmFKFragen* form = VollesFormular(programm);
    const QStringList voll = Gezeigt(form);
    MitFrage(programm, QStringLiteral("cmdFKFLoeschen"), QStringLiteral("Fragen löschen"), loeschFrage);
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Fragen löschen | (Wiederholen)"));
    QVERIFY(Rot());
    const QStringList leer = Gezeigt(form);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKFLaden")), Qt::LeftButton);
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Fragen einfügen | (Wiederholen)"));
    QVERIFY(Gruen());
    Zurueck();
    QTRY_COMPARE(Gezeigt(form).join(QLatin1Char('|')), leer.join(QLatin1Char('|')));
    QCOMPARE(FKForm.FrageText[4], std::string("Frage 4")); // still waits there
    Zurueck();
    QTRY_COMPARE(Gezeigt(form).join(QLatin1Char('|')), voll.join(QLatin1Char('|')));
}

void VerlaufTest::blankingAnEditAndASaveCostNothing() {
    Programm programm;
    frmFKFragen* form = VollesFormular(programm);
    const QStringList voll = Gezeigt(form);
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\BLANK.FKR";
    MitFrage(programm, QStringLiteral("cmdFKFLoeschen"), QStringLiteral("Fragen löschen"), loeschFrage);
    Tippen(form->txtFrage.at(6), QStringLiteral("neu"));
    Betreten(form->txtFrage.at(7));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ BLANK.FKR ]"), QStringLiteral("Schön"));
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdDateiFK(3)")), Qt::LeftButton);
    QTRY_VERIFY(dialoge.fertig());
    QTRY_VERIFY(Gruen());
    QCOMPARE(FKForm.FrageText[4], std::string()); // gone from the stored copy
    Zurueck();
    QTRY_COMPARE(FK_Frage(6), std::string());
    Zurueck();
    QTRY_COMPARE(Gezeigt(form).join(QLatin1Char('|')), voll.join(QLatin1Char('|')));
    QCOMPARE(FKForm.FrageText[4], std::string("Frage 4"));
    QVERIFY(Rot());
}

void VerlaufTest::lettersThatWereBlankedComeBackAsTheyWere() {
    Programm programm;
    frmFKFragen* form = VollesFormular(programm);
    SpezialWaehlen(form, 7, 1);
    SpezialWaehlen(form, 20, 3);
    const QStringList vorher = Gezeigt(form);
    MitFrage(programm, QStringLiteral("cmdFKSLoeschen"), QStringLiteral("Spezialfelder löschen"),
             spezialFrage);
    QTRY_COMPARE(form->pnlSpezial.at(7)->caption(), QString());
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Spezialfelder löschen | (Wiederholen)"));
    Zurueck();
    QTRY_COMPARE(Gezeigt(form).join(QLatin1Char('|')), vorher.join(QLatin1Char('|')));
}

void VerlaufTest::cellsThatTheSettingsClosedComeBackWithTheirTexts() {
    Programm programm;
    frmFKFragen* form = VollesFormular(programm);
    const QStringList voll = Gezeigt(form);
    const Spielwerte werte = Spiel;
    {
        const Schritt schritt("Einstellungen ändern"); // as the dialog's OK does
        Spiel.OptionMaxFelder = true;
        Spiel.FragenProWissen = 3;
        FK_VorgabenAnwenden();
        FelderAnzeigen();
        FormStatusSetzen(true);
        FK_Auffrischen();
    }
    QVERIFY(!form->txtFrage.at(4)->isVisible());
    QCOMPARE(FK_Frage(4), std::string());
    QVERIFY(Rot());
    RueckgaengigMachen();
    QVERIFY(Spiel == werte);
    QCOMPARE(Gezeigt(form).join(QLatin1Char('|')), voll.join(QLatin1Char('|')));
    QVERIFY(Gruen());
    Wiederholen();
    QVERIFY(!form->txtFrage.at(4)->isVisible());
    QCOMPARE(Spiel.FragenProWissen, std::int16_t(3));
    QCOMPARE(Finden<Panel>(programm.haupt(), QStringLiteral("pnlFKFelder"))->caption(),
             QStringLiteral(" 18 Fragen : je 3 Fragen aus 6 Wissensgebieten"));
}

void VerlaufTest::theFlagIsGreenExactlyWhenTheFormEqualsWhatWasSaved() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\FLAGGE.FKR";
    Tippen(form->txtFrage.at(1), QStringLiteral("eins"));
    Betreten(form->txtFrage.at(2));
    QTRY_VERIFY(Rot());
    {
        Dialogfolge dialoge;
        dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ FLAGGE.FKR ]"), QStringLiteral("Schön"));
        QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdDateiFK(3)")), Qt::LeftButton);
        QTRY_VERIFY(dialoge.fertig());
    }
    QTRY_VERIFY(Gruen());
    Zurueck();
    QTRY_VERIFY(Rot());
    QCOMPARE(FK_Frage(1), std::string());
    Vor();
    QTRY_VERIFY(Gruen());
    Tippen(form->txtFrage.at(2), QStringLiteral("y"));
    QTRY_VERIFY(Rot());
    maus::Taste(QStringLiteral("BackSpace"));
    QTRY_VERIFY(Gruen());
}

void VerlaufTest::aSaveDoesntEndTheHistoryAndAnotherFormDoes() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("eins"));
    Betreten(form->txtFrage.at(2));
    FormStatusSetzen(false); // as a save ends
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Frage eingeben | (Wiederholen)"));
    programm.NeuesQuizformular();
    QTRY_COMPARE(Extras(), QStringLiteral("(Rückgängig) | (Wiederholen)"));
    Zurueck();
    FormulareEntladen();
    QTRY_COMPARE(Extras(), QStringLiteral("(Rückgängig) | (Wiederholen)"));
    RueckgaengigMachen();
    Wiederholen();
    QVERIFY(OffenesFormular() == nullptr);
}

void VerlaufTest::theMenuDoesWhatTheKeysDo() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("eins"));
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Frage eingeben | (Wiederholen)"));
    Eintrag(1)->trigger();
    QCOMPARE(FK_Frage(1), std::string());
    QTRY_COMPARE(Extras(), QStringLiteral("(Rückgängig) | Wiederholen: Eingabe"));
    Eintrag(2)->trigger();
    QCOMPARE(FK_Frage(1), std::string("eins"));
    Betreten(form->txtFrage.at(2));
    QTRY_VERIFY(Eintrag(1)->isEnabled());
    auto* menue = Finden<QMenu>(programm.haupt(), QStringLiteral("mExtras"));
    maus::Taste(QStringLiteral("alt+x"));
    QTRY_VERIFY(menue->isVisible());
    BildVomBildschirm(QStringLiteral("extras"));
    maus::Taste(QStringLiteral("Escape"));
    QTRY_VERIFY(!menue->isVisible());
    Eintrag(1)->trigger();
    QCOMPARE(FK_Frage(1), std::string());
    QCOMPARE(Anzeige(HilfeStand()).trimmed(), QStringLiteral("Rückgängig gemacht : Frage eingeben"));
    Eintrag(2)->trigger();
    QCOMPARE(FK_Frage(1), std::string("eins"));
    QCOMPARE(Anzeige(HilfeStand()).trimmed(), QStringLiteral("Wiederholt : Frage eingeben"));
}

void VerlaufTest::withAnotherWindowInFrontTheFormStaysAsItIs() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("eins"));
    Betreten(form->txtFrage.at(2));
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdEdit")), Qt::LeftButton);
    QWidget* editor = FensterAbwarten(QStringLiteral("frmEditor"));
    auto* notiz = Finden<QPlainTextEdit>(editor, QStringLiteral("txtNotiz"));
    notiz->setFocus();
    QTRY_VERIFY(notiz->hasFocus());
    maus::Tippen(QStringLiteral("abc"));
    QTRY_VERIFY(notiz->toPlainText().contains(QStringLiteral("abc")));
    Zurueck();
    QTRY_VERIFY(!notiz->toPlainText().contains(QStringLiteral("abc")));
    Zurueck();
    Eintrag(1)->trigger();
    QCOMPARE(FK_Frage(1), std::string("eins"));
    QVERIFY(Eintrag(2)->isEnabled());
    Eintrag(2)->trigger();
    QVERIFY2(notiz->toPlainText().contains(QLatin1Char('a')), qPrintable(notiz->toPlainText()));
}

void VerlaufTest::aStepBackInTheMiddleOfTypingTakesTheTypingFirst() {
    Programm programm;
    frmFKFragen* form = VollesFormular(programm);
    SpezialWaehlen(form, 7, 1);
    Tippen(form->txtFrage.at(1), QStringLiteral("anders"));
    {
        const Schritt schritt("Spezialfeld wählen"); // a step while a box has typed text in it
        form->pnlSpezial.at(8)->setCaption(QStringLiteral("G"));
    }
    RueckgaengigMachen();
    QCOMPARE(form->pnlSpezial.at(8)->caption(), QString());
    QCOMPARE(FK_Frage(1), std::string("anders"));
    RueckgaengigMachen();
    QCOMPARE(FK_Frage(1), std::string("Frage 1"));
    QCOMPARE(form->pnlSpezial.at(7)->caption(), QStringLiteral("J"));
}

QTEST_MAIN(VerlaufTest)
#include "verlauf_test.moc"
