// Typing in the quiz form while commands, menus and dialogs come in between: nothing typed is lost, nothing
// counts as changed that isn't.
#include "core/hauptfenster.h"
#include "tests/quizform/formhilfe.h"

#include <QClipboard>
#include <QMdiSubWindow>
#include <QMenu>

namespace {

const QString neuTitel = QStringLiteral("Neues Feldkranz-Formular");
const QString neuText = QStringLiteral("Ich besorge dir ein neues Feldkranz-Formular !\n"
                                       "(Das kann einen kleinen Moment dauern.)");
const QString loeschFrage = QStringLiteral("Soll ich die Fragen und Antworten aus dem Formular löschen ?\n"
                                           "(Können anschließend - wenn nichts verändert wurde -\n"
                                           "auch wieder eingefügt werden.)");
const QString spezialFrage = QStringLiteral("Soll ich die Spezialfelder aus dem Formular löschen ?\n"
                                            "(Können anschließend - wenn nichts verändert wurde -\n"
                                            "auch wieder eingefügt werden.)");

// Opens a menu on the screen and presses a key in it, on an entry where one is named.
void ImMenue(const Programm& programm, const QString& name, const QString& eintrag, Qt::Key taste) {
    auto* menue = Finden<QMenu>(programm.haupt(), name);
    menue->popup(programm.haupt()->mapToGlobal(QPoint(20, 60)));
    QTRY_VERIFY(menue->isActiveWindow() || menue->isVisible());
    if (!eintrag.isEmpty()) {
        menue->setActiveAction(Finden<QAction>(programm.haupt(), eintrag));
    }
    QTest::keyClick(menue, taste);
    QTRY_VERIFY(!menue->isVisible());
}

// The box's own menu, by the right button.
void Einfuegen(QWidget* flaeche) {
    maus::RechtsKlicken(flaeche);
    QTRY_VERIFY(qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr);
    auto* menue = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (QAction* eintrag : menue->actions()) {
        if (eintrag->shortcut() == QKeySequence(QKeySequence::Paste) ||
            eintrag->text().remove(QLatin1Char('&')).startsWith(QStringLiteral("Einf"))) {
            menue->setActiveAction(eintrag);
        }
    }
    QStringList texte;
    for (QAction* eintrag : menue->actions()) {
        texte << eintrag->text();
    }
    QVERIFY2(menue->activeAction() != nullptr, qPrintable(texte.join(QLatin1Char(';'))));
    QTest::keyClick(menue, Qt::Key_Return);
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
}

void Fuellen(frmFKFragen* form) {
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Nr(n))->setText("Frage " + std::to_string(n));
        form->txtAntwort.at(Nr(n))->setText("Antwort " + std::to_string(n));
    }
    FK_Merken();
    FK_FelderFaerben();
    FormStatusSetzen(false);
}

} // namespace

class FkEingabeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aClickIntoABoxSelectsItsWholeTextAndTheNextOnePlacesTheCursor();
    void aBoxThatIsLeftKeepsNoSelection();
    void selectedTextIsntCarriedOffWhateverKeysAreHeld_data();
    void selectedTextIsntCarriedOffWhateverKeysAreHeld();
    void aTypedQuestionLeavesTheAnswerAsItWas();
    void savingByKeyWhileTypingSavesTheTextAndLeavingTheCellChangesNothing();
    void aNewFormByKeyOverTypedTextAnsweredNeinIsUnchanged();
    void aClosedFormIsNotMarkedAsChangedByItsLastFocus();
    void aMenuLeavesThePlaceInTheTextWhereItWas();
    void pastingFromTheBoxesOwnMenuReplacesNothing();
    void blankingAndRestoringFromTheMenuWhileACellHasTheFocus();
    void openingAListedFileLeavesTheFormUnchangedWhenItsCellIsLeft();
    void openingAFileClosesAnOpenList();
    void blankingAndRestoringWithNothingBetweenBringsTextsTitlesAndLettersBack();
    void blankTypeOneLetterAndRestoreLeavesTheOthersBlank();
    void changingALetterOnABlankedFormRefillsThatCellOnly();
    void blankedSpecialFieldsComeBackWithLettersAndColours();
    void theMenuEntriesOfTheSpecialFieldsPressTheirButtons();
    void aDoubleClickOnTheMiniatureBringsTheFormToTheFront();
    void aShapeThatFitsNoCounterGivesWayToTheFullBoard();
    void thePicturesOfTheDragAreThere();
};

void FkEingabeTest::aClickIntoABoxSelectsItsWholeTextAndTheNextOnePlacesTheCursor() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    for (Textfeld* feld : {form->txtFrage.at(2), form->txtAntwort.at(3)}) {
        const QPoint vorn(6, 8);
        maus::Klicken(feld->viewport(), Qt::NoModifier, vorn);
        QTRY_COMPARE(feld->textCursor().selectedText(), feld->toPlainText());
        // Elsewhere, or it would be a double click.
        maus::Klicken(feld->viewport(), Qt::NoModifier, vorn + QPoint(40, 0));
        QTRY_VERIFY(!feld->textCursor().hasSelection());
        QVERIFY(feld->hasFocus());
    }
    form->txtNr->setText(QStringLiteral("12 b"));
    maus::Klicken(form->txtNr);
    QTRY_COMPARE(form->txtNr->selectedText(), QStringLiteral("12 b"));
}

void FkEingabeTest::aBoxThatIsLeftKeepsNoSelection() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    form->txtFrage.at(1)->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(form->txtFrage.at(1)->textCursor().hasSelection());
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_Tab);
    QTRY_VERIFY(form->txtAntwort.at(1)->textCursor().hasSelection());
    QVERIFY(!form->txtFrage.at(1)->textCursor().hasSelection());
}

void FkEingabeTest::selectedTextIsntCarriedOffWhateverKeysAreHeld_data() {
    QTest::addColumn<Qt::KeyboardModifiers>("tasten");
    QTest::newRow("Strg") << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Umschalt") << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("Umschalt+Strg") << (Qt::ShiftModifier | Qt::ControlModifier);
}

void FkEingabeTest::selectedTextIsntCarriedOffWhateverKeysAreHeld() {
    QFETCH(Qt::KeyboardModifiers, tasten);
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    Textfeld* antwort = form->txtAntwort.at(1);
    antwort->setText("eine lange Antwort, auf der man gut ziehen kann");
    antwort->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(antwort->textCursor().hasSelection());
    FormStatusSetzen(false);
    maus::Ziehen(antwort, form->txtAntwort.at(4), tasten);
    maus::Ziehen(antwort, form->txtFrage.at(4), tasten);
    QCOMPARE(FK_Frage(1), std::string("Frage 1"));
    QCOMPARE(FK_Antwort(1), std::string("eine lange Antwort, auf der man gut ziehen kann"));
    QCOMPARE(FK_Frage(4), std::string("Frage 4"));
    QCOMPARE(FK_Antwort(4), std::string("Antwort 4"));
    QVERIFY(!Stand.FormGeaendert);
}

void FkEingabeTest::aTypedQuestionLeavesTheAnswerAsItWas() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    Tippen(form->txtFrage.at(2), QStringLiteral("Anders"));
    form->txtFrage.at(3)->setFocus();
    QTRY_COMPARE(FKForm.FrageText.at(2), std::string("Anders"));
    QCOMPARE(FKForm.AntwortText.at(2), std::string("Antwort 2"));
}

void FkEingabeTest::savingByKeyWhileTypingSavesTheTextAndLeavingTheCellChangesNothing() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\TIPP.FKR";
    Tippen(form->txtFrage.at(1), QStringLiteral("Wer?"));
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_Tab);
    QTRY_VERIFY(form->txtAntwort.at(1)->hasFocus());
    QTest::keyClicks(form->txtAntwort.at(1), QStringLiteral("Ich"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ TIPP.FKR ]"), QStringLiteral("Schön"));
    QTest::keyClick(form->txtAntwort.at(1), Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(dialoge.fertig());
    QTRY_VERIFY(form->txtAntwort.at(1)->hasFocus());
    const QByteArray datei = programm.ordner().lesen(QStringLiteral("KRANZ/TIPP.FKR"));
    QVERIFY(datei.contains("\"Wer?\"\r\n"));
    QVERIFY(datei.contains("\"Ich\"\r\n"));
    QCOMPARE(FKForm.AntwortText.at(1), std::string("Ich"));
    QVERIFY(!Stand.FormGeaendert);
    form->txtNr->setFocus();
    QTRY_VERIFY(form->txtNr->hasFocus());
    QVERIFY(!Stand.FormGeaendert);
}

void FkEingabeTest::aNewFormByKeyOverTypedTextAnsweredNeinIsUnchanged() {
    Programm programm;
    Tippen(programm.NeuesQuizformular()->txtAntwort.at(3), QStringLiteral("weg"));
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuText, 6);
    dialoge.frage(neuTitel, QStringLiteral("Soll ich das vorhandene Formular vorher speichern ?"), 7);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::ControlModifier);
    QTRY_VERIFY(dialoge.fertig());
    QTRY_VERIFY(FKFragenOffen() != nullptr && FKFragenOffen()->isVisible());
    QCOMPARE(FK_Antwort(3), std::string());
    QVERIFY(!Stand.FormGeaendert);
}

void FkEingabeTest::aClosedFormIsNotMarkedAsChangedByItsLastFocus() {
    Programm programm;
    const QPointer<frmFKFragen> form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("Wer?"));
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_Tab);
    QTRY_VERIFY(form->txtAntwort.at(1)->hasFocus());
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Formular schließen"),
                  QStringLiteral("Das Formular wurde möglicherweise verändert\n"
                                 "Soll ich das Formular vorher speichern ?"),
                  7);
    Finden<QAction>(programm.haupt(), QStringLiteral("mFKFormular"))->trigger();
    QTRY_VERIFY(form.isNull());
    QVERIFY(!Stand.FormGeaendert);
}

void FkEingabeTest::aMenuLeavesThePlaceInTheTextWhereItWas() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("abc"));
    ImMenue(programm, QStringLiteral("mInfo"), QString(), Qt::Key_Escape);
    QTRY_VERIFY(form->txtFrage.at(1)->hasFocus());
    QCOMPARE(FKForm.FrageText.at(1), std::string("abc")); // merged before any command of the menu could run
    QTest::keyClicks(form->txtFrage.at(1), QStringLiteral("d"));
    QCOMPARE(FK_Frage(1), std::string("abcd"));
    form->txtFrage.at(2)->setFocus();
    QTRY_COMPARE(FKForm.FrageText.at(1), std::string("abcd"));
    form->txtNr->setFocus();
    QTest::keyClicks(form->txtNr, QStringLiteral("1"));
    ImMenue(programm, QStringLiteral("mInfo"), QString(), Qt::Key_Escape);
    QTRY_VERIFY(form->txtNr->hasFocus());
    QTest::keyClicks(form->txtNr, QStringLiteral("2"));
    QCOMPARE(form->txtNr->text(), QStringLiteral("12"));
}

void FkEingabeTest::pastingFromTheBoxesOwnMenuReplacesNothing() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    QGuiApplication::clipboard()->setText(QStringLiteral("xyz"));
    for (QWidget* feld : std::initializer_list<QWidget*>{form->txtFrage.at(1), form->txtDatum}) {
        feld->setFocus();
        QTRY_VERIFY(feld->hasFocus());
        QTest::keyClicks(feld, QStringLiteral("abc"));
    }
    Einfuegen(form->txtDatum);
    QCOMPARE(form->txtDatum->text(), QStringLiteral("abcxyz"));
    form->txtFrage.at(1)->setFocus();
    QTRY_VERIFY(form->txtFrage.at(1)->hasFocus());
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_End); // takes the selection of the entry back
    Einfuegen(form->txtFrage.at(1)->viewport());
    QCOMPARE(FK_Frage(1), std::string("abcxyz"));
}

void FkEingabeTest::blankingAndRestoringFromTheMenuWhileACellHasTheFocus() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    for (Textfeld* feld : {form->txtFrage.at(7), form->txtAntwort.at(7)}) {
        feld->setFocus();
        QTRY_VERIFY(feld->hasFocus());
        Dialogfolge dialoge;
        dialoge.frage(QStringLiteral("Fragen löschen"), loeschFrage, 6);
        ImMenue(programm, QStringLiteral("mFormularFK"), QStringLiteral("mFKFragen(1)"), Qt::Key_Return);
        QTRY_VERIFY(dialoge.fertig());
        QTRY_VERIFY(feld->hasFocus());
        QCOMPARE(FK_Frage(7), std::string());
        ImMenue(programm, QStringLiteral("mFormularFK"), QStringLiteral("mFKFragen(2)"), Qt::Key_Return);
        QTRY_COMPARE(FK_Frage(7), std::string("Frage 7"));
        QCOMPARE(FK_Antwort(30), std::string("Antwort 30"));
    }
}

void FkEingabeTest::openingAListedFileLeavesTheFormUnchangedWhenItsCellIsLeft() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\LISTE.FKR";
    Fuellen(form);
    {
        Dialogfolge dialoge;
        dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ LISTE.FKR ]"), QStringLiteral("Schön"));
        QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdDateiFK(3)")), Qt::LeftButton);
    }
    Spiel.Datei[0] = Stand.FKDateiName;
    DateilisteAnzeigen();
    form->txtFrage.at(4)->setText("noch nicht gespeichert");
    FK_Merken();
    form->txtFrage.at(4)->setFocus();
    QTRY_VERIFY(form->txtFrage.at(4)->hasFocus());
    FormStatusSetzen(false);
    ImMenue(programm, QStringLiteral("mDateienFK"), QStringLiteral("mDateiGeoeffnet(0)"), Qt::Key_Return);
    QTRY_COMPARE(FK_Frage(4), std::string("Frage 4"));
    form->txtFrage.at(5)->setFocus();
    QTRY_VERIFY(form->txtFrage.at(5)->hasFocus());
    QVERIFY(!Stand.FormGeaendert);
}

void FkEingabeTest::openingAFileClosesAnOpenList() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    QTest::mouseClick(form->pnlWissen.at(2), Qt::LeftButton);
    QTRY_VERIFY(form->cmbWissen->view()->isVisible());
    form->cmbWissen->hidePopup(); // as a click elsewhere does
    QTRY_VERIFY(!form->cmbWissen->view()->isVisible());
    QVERIFY(form->cmbWissen->isVisible()); // an unfinished choice stays
    FK_FormularZeigen();
    QVERIFY(!form->cmbWissen->isVisible());
    QVERIFY(form->pnlWissen.at(2)->isVisible());
}

void FkEingabeTest::blankingAndRestoringWithNothingBetweenBringsTextsTitlesAndLettersBack() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    for (std::size_t a = 1; a < FKForm.WissenTitel.size(); ++a) {
        form->pnlWissen.at(a)->setCaption(QStringLiteral("Titel %1").arg(a));
    }
    SpezialWaehlen(form, 1, 1);
    SpezialWaehlen(form, 7, 2);
    SpezialWaehlen(form, 30, 5);
    FK_Merken();
    FormStatusSetzen(false);
    const auto gezeigt = [form] {
        QStringList texte;
        for (int n = 1; n <= anzahlFelder; ++n) {
            texte << Anzeige(FK_Frage(n)) << Anzeige(FK_Antwort(n)) << form->pnlSpezial.at(Nr(n))->caption()
                  << form->pnlPunkte.at(Nr(n))->caption() << Grund(form->txtFrage.at(Nr(n))).name();
        }
        for (std::size_t a = 1; a < FKForm.WissenTitel.size(); ++a) {
            texte << form->pnlWissen.at(a)->caption();
        }
        return texte;
    };
    const QStringList vorher = gezeigt();
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Fragen löschen"), loeschFrage, 6);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKFLoeschen")), Qt::LeftButton);
    for (int n = 1; n <= anzahlFelder; ++n) {
        const bool marke = n == 1 || n == 30; // Joker and Ereignis keep showing their text
        QCOMPARE(FK_Frage(n).empty(), !marke);
    }
    QCOMPARE(FK_Frage(1), std::string("----- Joker ! -----\r\n"));
    QCOMPARE(form->pnlWissen.at(6)->caption(), QStringLiteral("Titel 6"));
    QCOMPARE(form->pnlSpezial.at(7)->caption(), QStringLiteral("G"));
    QVERIFY(Stand.FormGeaendert);                                // the texts have changed
    form->pnlWissen.at(6)->setCaption(QStringLiteral("anders")); // titles come back as well
    for (int i = 0; i < 2; ++i) {
        QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKFLaden")), Qt::LeftButton);
        QCOMPARE(gezeigt(), vorher);
    }
}

void FkEingabeTest::blankTypeOneLetterAndRestoreLeavesTheOthersBlank() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Fragen löschen"), loeschFrage, 6);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKFLoeschen")), Qt::LeftButton);
    Tippen(form->txtFrage.at(8), QStringLiteral("x"));
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKFLaden")), Qt::LeftButton);
    for (int n = 1; n <= anzahlFelder; ++n) {
        QCOMPARE(FK_Frage(n), std::string(n == 8 ? "x" : ""));
        QCOMPARE(FK_Antwort(n), std::string());
    }
}

void FkEingabeTest::changingALetterOnABlankedFormRefillsThatCellOnly() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Fuellen(form);
    FK_FragenLoeschen();
    SpezialWaehlen(form, 8, 2);
    for (int n = 1; n <= anzahlFelder; ++n) {
        QCOMPARE(FK_Frage(n), std::string(n == 8 ? "Frage 8" : ""));
        QCOMPARE(FK_Antwort(n), std::string(n == 8 ? "Antwort 8" : ""));
    }
}

void FkEingabeTest::blankedSpecialFieldsComeBackWithLettersAndColours() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 1, 1);
    SpezialWaehlen(form, 7, 2);
    FK_Merken(); // the Joker's marker is its stored text from here on
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Spezialfelder löschen"), spezialFrage, 6);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKSLoeschen")), Qt::LeftButton);
    QCOMPARE(form->pnlSpezial.at(1)->caption(), QString());
    QCOMPARE(FK_Frage(1), std::string());
    QCOMPARE(Grund(form->txtFrage.at(1)), QColor(Qt::white));
    QCOMPARE(Miniatur(programm, 7), QColor(192, 192, 192));
    QCOMPARE(form->pnlPunkte.at(7)->caption(), QStringLiteral("2"));
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKSLaden")), Qt::LeftButton);
    QCOMPARE(form->pnlSpezial.at(1)->caption(), QStringLiteral("J"));
    QCOMPARE(FK_Frage(1), std::string("----- Joker ! -----\r\n"));
    QCOMPARE(Miniatur(programm, 7), QColor(0, 255, 0));
    QCOMPARE(form->pnlPunkte.at(7)->caption(), QStringLiteral("10"));
}

void FkEingabeTest::theMenuEntriesOfTheSpecialFieldsPressTheirButtons() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 7, 2);
    FK_Merken();
    FormStatusSetzen(false);
    auto* loeschen = Finden<QAction>(programm.haupt(), QStringLiteral("mFKSpezial(1)"));
    auto* einfuegen = Finden<QAction>(programm.haupt(), QStringLiteral("mFKSpezial(2)"));
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Spezialfelder löschen"), spezialFrage, 2);
    loeschen->trigger();
    QCOMPARE(form->pnlSpezial.at(7)->caption(), QStringLiteral("G"));
    for (int i = 0; i < 2; ++i) { // a second time asks again
        dialoge.frage(QStringLiteral("Spezialfelder löschen"), spezialFrage, 6);
        loeschen->trigger();
        QVERIFY(dialoge.fertig());
        QCOMPARE(form->pnlSpezial.at(7)->caption(), QString());
        QCOMPARE(FKForm.FeldSpezial.at(7), std::string("G")); // the stored letter and its count stay
        QCOMPARE(form->SpezialAnzahl[Spezialart::Glueck], std::int16_t(1));
        for (int n = 1; n <= anzahlFelder; ++n) {
            QCOMPARE(Grund(form->txtFrage.at(Nr(n))), QColor(Qt::white)); // empty cells as well
            QCOMPARE(Miniatur(programm, n), QColor(192, 192, 192));
        }
    }
    for (int i = 0; i < 2; ++i) {
        einfuegen->trigger();
        QCOMPARE(form->pnlSpezial.at(7)->caption(), QStringLiteral("G"));
        QCOMPARE(Miniatur(programm, 7), QColor(0, 255, 0));
    }
    QVERIFY(!Stand.FormGeaendert); // no text has changed
}

void FkEingabeTest::aDoubleClickOnTheMiniatureBringsTheFormToTheFront() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    auto* anderes = new QWidget;
    KindfensterAufnehmen(anderes)->show();
    KindNachVorn(anderes);
    QTRY_COMPARE(AktivesKind(), anderes);
    maus::Doppelklicken(Finden(programm.haupt(), QStringLiteral("picJoker"), 13));
    QTRY_VERIFY(AktivesKind() == FKFragenOffen());
    QCOMPARE(FKFragenOffen(), form);
    anderes->parentWidget()->close();
    FK_Entladen();
    QVERIFY(Stand.FormTyp == Formart::Keine);
    maus::Doppelklicken(Finden(programm.haupt(), QStringLiteral("picSpezial"))); // touching a form makes it
    QTRY_VERIFY(FKFragenOffen() != nullptr && FKFragenOffen()->isVisible());
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
    QVERIFY(!Stand.FormGeaendert);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("cmdFKFLaden"))->isEnabled());
}

void FkEingabeTest::aShapeThatFitsNoCounterGivesWayToTheFullBoard() {
    Programm programm;
    Spiel.AnzahlWissen = Spiel.FragenProWissen = 200;
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuText, 6);
    dialoge.erwarte(
        {QStringLiteral("frmMeldung"), std::nullopt, std::nullopt, {QStringLiteral("cmdKenntnis")}});
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdNeuFK")), Qt::LeftButton);
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() != nullptr);
    QCOMPARE(Spiel.AnzahlWissen, std::int16_t(6));
    QCOMPARE(Spiel.FragenProWissen, std::int16_t(5));
}

void FkEingabeTest::thePicturesOfTheDragAreThere() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    for (const char* name : {"picBildAufnehmen", "picBildAblegen", "picBildNein"}) {
        QVERIFY(!Finden(form, QLatin1String(name))->isVisible());
    }
}

QTEST_MAIN(FkEingabeTest)
#include "fkeingabe_test.moc"
