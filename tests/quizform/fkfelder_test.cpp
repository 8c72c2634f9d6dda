// The cells of the quiz form: special fields and their limits, titles, typing and merging, blanking, menus.
#include "core/hauptfenster.h"
#include "tests/quizform/formhilfe.h"

#include <QClipboard>
#include <QMdiSubWindow>
#include <QMenu>

namespace {

const QString grenzeJoker = QStringLiteral("Wir wollten uns an die Spielregeln halten -\n"
                                           "Die maximale Anzahl von 4 Jokern wurde bereits erreicht !");

} // namespace

class FkFelderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void settingAJokerAndBackAtOnceBringsTheQuestionBack();
    void aMergeInBetweenReplacesTheQuestionByTheMarkerForGood();
    void aFifthJokerIsRefusedAndThePanelReadsEmpty();
    void withTheLimitsOffAnyNumberCanBeSet();
    void aRefusedChangeFromJokerToTaskKeepsTheCellsLook();
    void theSameLetterAgainMarksNothingAsChanged();
    void backToAPlainCellShowsItsRowOnGrey();
    void aChosenTitleReachesTheModelOnlyWithAMerge();
    void aClosedTitleTakesNoClick();
    void typedTextReachesTheModelWhenTheFocusGoes();
    void settingATextThatStandsThereMarksNothingAsChanged();
    void aHeadBoxMarksTheFormAndSelectsItsText();
    void aCharacterOutsideTheCodePageIsReplacedAndNamed();
    void whatIsTypedBehindAReplacedCharacterStays();
    void framesShowOnlyWithTheirOption();
    void blankingKeepsTheMarkersAndRestoringBringsTheTextsBack();
    void theThemeSourceFillsTheTitleList();
    void aNewFormsThemesFollowTheSwitch();
    void escapeClosesAListOverACellAndGoesBackToIt_data();
    void escapeClosesAListOverACellAndGoesBackToIt();
    void theWheelOverAClosedListChangesNothing();
    void theFormsMenuTakesThePlaceOfTheFileMenu();
};

void FkFelderTest::settingAJokerAndBackAtOnceBringsTheQuestionBack() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(4), QStringLiteral("Wer war das?"));
    SpezialWaehlen(form, 4, 1);
    QCOMPARE(form->pnlSpezial.at(4)->caption(), QStringLiteral("J"));
    QCOMPARE(form->txtFrage.at(4)->text(), std::string("----- Joker ! -----\r\n"));
    QCOMPARE(form->txtAntwort.at(4)->text(), std::string("----- Joker ! -----"));
    QCOMPARE(Grund(form->txtFrage.at(4)), QColor(255, 255, 223));
    QCOMPARE(Miniatur(programm, 4), QColor(255, 255, 0));
    QCOMPARE(form->pnlPunkte.at(4)->caption(), QStringLiteral("5"));
    SpezialWaehlen(form, 4, 0);
    QCOMPARE(form->txtFrage.at(4)->text(), std::string("Wer war das?"));
    QCOMPARE(Grund(form->txtFrage.at(4)), QColor(Qt::white));
}

void FkFelderTest::aMergeInBetweenReplacesTheQuestionByTheMarkerForGood() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(4), QStringLiteral("Wer war das?"));
    SpezialWaehlen(form, 4, 1);
    Tippen(form->txtFrage.at(9), QStringLiteral("anderswo"));
    form->txtFrage.at(10)->setFocus();
    QTRY_COMPARE(FKForm.FrageText.at(9), std::string("anderswo"));
    SpezialWaehlen(form, 4, 0);
    QCOMPARE(form->txtFrage.at(4)->text(), std::string("----- Joker ! -----\r\n"));
}

void FkFelderTest::aFifthJokerIsRefusedAndThePanelReadsEmpty() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    for (const int n : {1, 7, 13, 19}) {
        SpezialWaehlen(form, n, 1);
    }
    Dialogfolge dialoge;
    dialoge.meldung(grenzeJoker, QStringLiteral("Akzeptiert"));
    SpezialWaehlen(form, 25, 1);
    QVERIFY(dialoge.fertig());
    QCOMPARE(form->pnlSpezial.at(25)->caption(), QString());
    QVERIFY(form->pnlSpezial.at(25)->isVisible());
    QCOMPARE(FKForm.FeldSpezial.at(25), std::string());
    QCOMPARE(form->SpezialAnzahl[Spezialart::Joker], std::int16_t(4));
}

void FkFelderTest::withTheLimitsOffAnyNumberCanBeSet() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Spiel.OptionMaxSpezial = false;
    for (int n = 1; n <= 7; ++n) {
        SpezialWaehlen(form, n, 1);
    }
    QCOMPARE(form->SpezialAnzahl[Spezialart::Joker], std::int16_t(7));
}

void FkFelderTest::aRefusedChangeFromJokerToTaskKeepsTheCellsLook() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 2, 4);
    SpezialWaehlen(form, 3, 4);
    SpezialWaehlen(form, 5, 1);
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Wir wollten uns an die Spielregeln halten -\n"
                                   "Die maximale Anzahl von 2 Aktionsfeldern wurde bereits erreicht !"),
                    QStringLiteral("Akzeptiert"));
    SpezialWaehlen(form, 5, 4);
    QCOMPARE(form->pnlSpezial.at(5)->caption(), QString());
    QCOMPARE(FKForm.FeldSpezial.at(5), std::string("J"));
    QCOMPARE(Grund(form->txtFrage.at(5)), QColor(255, 255, 223));
    QCOMPARE(Miniatur(programm, 5), QColor(255, 255, 0));
    FK_SpezialZaehlen(); // the next count brings the screen's "" into force
    QCOMPARE(form->SpezialAnzahl[Spezialart::Joker], std::int16_t(0));
}

void FkFelderTest::theSameLetterAgainMarksNothingAsChanged() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 6, 2);
    QVERIFY(Stand.FormGeaendert);
    FormStatusSetzen(false);
    SpezialWaehlen(form, 6, 2);
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(form->pnlSpezial.at(6)->caption(), QStringLiteral("G"));
}

void FkFelderTest::backToAPlainCellShowsItsRowOnGrey() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 9, 3);
    QCOMPARE(form->pnlPunkte.at(9)->caption(), QStringLiteral(".."));
    QCOMPARE(form->pnlPunkte.at(9)->grund(), QColor(255, 0, 0));
    SpezialWaehlen(form, 9, 0);
    QCOMPARE(form->pnlPunkte.at(9)->caption(), QStringLiteral("4"));
    QCOMPARE(form->pnlPunkte.at(9)->grund(), Systemflaeche());
}

void FkFelderTest::aChosenTitleReachesTheModelOnlyWithAMerge() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    QTest::mouseClick(form->pnlWissen.at(2), Qt::LeftButton);
    QTRY_VERIFY(form->cmbWissen->view()->isVisible());
    QVERIFY(!form->pnlWissen.at(2)->isVisible());
    const int tiere = form->cmbWissen->findText(QStringLiteral("Tiere"));
    QVERIFY(tiere > 0);
    QCOMPARE(form->cmbWissen->itemText(0), QString());
    QCOMPARE(form->cmbWissen->count(), 21);
    form->cmbWissen->view()->setCurrentIndex(form->cmbWissen->model()->index(tiere, 0));
    QTest::keyClick(form->cmbWissen->view(), Qt::Key_Return);
    QTRY_VERIFY(!form->cmbWissen->isVisible());
    QVERIFY(form->pnlWissen.at(2)->isVisible());
    QCOMPARE(form->pnlWissen.at(2)->caption(), QStringLiteral("Tiere"));
    QCOMPARE(FKForm.WissenTitel.at(2), std::string("Wissen"));
    QVERIFY(Stand.FormGeaendert);
    FK_Merken();
    QCOMPARE(FKForm.WissenTitel.at(2), std::string("Tiere"));
}

void FkFelderTest::aClosedTitleTakesNoClick() {
    Programm programm;
    Spiel.OptionMaxWissen = true;
    Spiel.AnzahlWissen = 5;
    frmFKFragen* form = programm.NeuesQuizformular();
    QTest::mouseClick(form->pnlWissen.at(6), Qt::LeftButton);
    QVERIFY(!form->cmbWissen->isVisible());
}

void FkFelderTest::typedTextReachesTheModelWhenTheFocusGoes() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    FK_FelderFaerben();
    QCOMPARE(Grund(form->txtFrage.at(8)), Systemflaeche());
    Tippen(form->txtFrage.at(8), QStringLiteral("Wie heißt der Fluss?"));
    QCOMPARE(FKForm.FrageText.at(8), std::string());
    QVERIFY(Stand.FormGeaendert);
    QTest::keyClick(form->txtFrage.at(8), Qt::Key_Tab);
    QTRY_COMPARE(FKForm.FrageText.at(8), std::string("Wie heißt der Fluss?"));
    QVERIFY(form->txtAntwort.at(8)->hasFocus());
    QCOMPARE(Grund(form->txtFrage.at(8)), QColor(Qt::white));
    QCOMPARE(Miniatur(programm, 8), QColor(Qt::white));
}

void FkFelderTest::settingATextThatStandsThereMarksNothingAsChanged() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(1)->setText("a\r\nb");
    FormStatusSetzen(false);
    form->txtFrage.at(1)->setText("a\r\nb");
    form->txtNr->setWert("");
    QVERIFY(!Stand.FormGeaendert);
    form->txtNr->setWert("3");
    QVERIFY(Stand.FormGeaendert);
}

void FkFelderTest::aHeadBoxMarksTheFormAndSelectsItsText() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtDatum->setText(QStringLiteral("24.12."));
    QVERIFY(Stand.FormGeaendert);
    form->txtZeit->setFocus();
    form->txtDatum->setFocus();
    QTRY_COMPARE(form->txtDatum->selectedText(), QStringLiteral("24.12."));
}

void FkFelderTest::whatIsTypedBehindAReplacedCharacterStays() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(1)->setFocus();
    QTRY_VERIFY(form->txtFrage.at(1)->hasFocus());
    for (const QChar zeichen : QStringLiteral("a→bc")) { // faster than the mending
        QKeyEvent druck(QEvent::KeyPress, 0, Qt::NoModifier, zeichen);
        QCoreApplication::sendEvent(form->txtFrage.at(1), &druck);
    }
    QTRY_COMPARE(form->txtFrage.at(1)->text(), std::string("a->bc"));
}

void FkFelderTest::aCharacterOutsideTheCodePageIsReplacedAndNamed() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    maus::Bewegen(Finden(programm.haupt(), QStringLiteral("pnlKranz"))); // no other control speaks meanwhile
    form->txtFrage.at(1)->setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("Płock → 漢 Ende"));
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE(form->txtFrage.at(1)->text(), std::string("Plock ->  Ende"));
    QCOMPARE(Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption(),
             QStringLiteral(" Nicht speichern kann ich  漢 . Ersetzt habe ich  ł durch l, → durch -> . "));
    form->txtNr->setFocus();
    QTest::keyClicks(form->txtNr, QStringLiteral("1"));
    QGuiApplication::clipboard()->setText(QStringLiteral("ł2"));
    QTest::keyClick(form->txtNr, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form->txtNr->text(), QStringLiteral("1l2"));
}

void FkFelderTest::framesShowOnlyWithTheirOption() {
    Programm programm;
    Spiel.OptionRahmen = false;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 2, 1);
    QVERIFY(!form->shpFrage.at(2)->isVisible());
    Spiel.OptionRahmen = true;
    FK_FelderFaerben();
    QVERIFY(form->shpFrage.at(2)->isVisible());
    QCOMPARE(form->shpFrage.at(2)->palette().color(QPalette::Window), QColor(239, 239, 0));
    SpezialWaehlen(form, 8, 1);
    QCOMPARE(form->shpFrage.at(8)->palette().color(QPalette::Window), QColor(223, 223, 0));
    FK_FelderFaerben();
    QCOMPARE(form->shpFrage.at(8)->palette().color(QPalette::Window), QColor(239, 239, 0));
    QVERIFY(!form->shpFrage.at(1)->isVisible());
}

void FkFelderTest::blankingKeepsTheMarkersAndRestoringBringsTheTextsBack() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(1)->setText("eins");
    form->txtAntwort.at(1)->setText("uno");
    FK_Merken();
    SpezialWaehlen(form, 2, 5);
    const auto frage = QStringLiteral("Soll ich die Fragen und Antworten aus dem Formular löschen ?\n"
                                      "(Können anschließend - wenn nichts verändert wurde -\n"
                                      "auch wieder eingefügt werden.)");
    {
        Dialogfolge dialoge;
        dialoge.frage(QStringLiteral("Fragen löschen"), frage, 2);
        QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKFLoeschen")), Qt::LeftButton);
        QCOMPARE(form->txtFrage.at(1)->text(), std::string("eins"));
    }
    {
        Dialogfolge dialoge;
        dialoge.frage(QStringLiteral("Fragen löschen"), frage, 6);
        QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKFLoeschen")), Qt::LeftButton);
    }
    QCOMPARE(form->txtFrage.at(1)->text(), std::string());
    QCOMPARE(form->txtFrage.at(2)->text(), std::string("----- Ereignis ! -----\r\n"));
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdFKFLaden")), Qt::LeftButton);
    QCOMPARE(form->txtFrage.at(1)->text(), std::string("eins"));
    QCOMPARE(form->txtAntwort.at(1)->text(), std::string("uno"));
}

void FkFelderTest::theThemeSourceFillsTheTitleList() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    auto* schalter = Finden<QAbstractButton>(programm.haupt(), QStringLiteral("grpFKHB"));
    auto* eintrag = Finden<QAction>(programm.haupt(), QStringLiteral("mThemenHB"));
    QTest::mouseClick(schalter, Qt::LeftButton);
    QVERIFY(eintrag->isChecked());
    QCOMPARE(form->cmbWissen->count(), 20);
    QCOMPARE(form->cmbWissen->itemText(0), QStringLiteral("Andacht"));
    eintrag->trigger();
    QVERIFY(!eintrag->isChecked());
    QVERIFY(!schalter->isChecked());
    QCOMPARE(form->cmbWissen->count(), 20);
    QCOMPARE(form->cmbWissen->itemText(0), QStringLiteral("A-Z")); // without a leading ""
}

void FkFelderTest::aNewFormsThemesFollowTheSwitch() {
    Programm programm;
    programm.NeuesQuizformular();
    auto* schalter = Finden<QAbstractButton>(programm.haupt(), QStringLiteral("grpFKHB"));
    QTest::mouseClick(schalter, Qt::LeftButton);
    FK_Entladen();
    const frmFKFragen* form = programm.NeuesQuizformular();
    QVERIFY(schalter->isChecked());
    QVERIFY(Finden<QAction>(programm.haupt(), QStringLiteral("mThemenHB"))->isChecked());
    QCOMPARE(form->cmbWissen->count(), 20);
    QCOMPARE(form->cmbWissen->itemText(0), QStringLiteral("Andacht"));
}

void FkFelderTest::escapeClosesAListOverACellAndGoesBackToIt_data() {
    QTest::addColumn<bool>("offen");
    QTest::newRow("in the open list") << true;
    QTest::newRow("in the closed list") << false;
}

void FkFelderTest::escapeClosesAListOverACellAndGoesBackToIt() {
    QFETCH(const bool, offen);
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    for (const auto& [panel, liste] :
         {std::pair<Panel*, QComboBox*>{form->pnlSpezial.at(7), form->cmbSpezial},
          {form->pnlWissen.at(2), form->cmbWissen}}) {
        QTest::mouseClick(panel, Qt::LeftButton);
        QTRY_VERIFY(liste->view()->isVisible());
        if (!offen) {
            liste->hidePopup();
            QTRY_VERIFY(!liste->view()->isVisible());
        }
        QTest::keyClick(offen ? static_cast<QWidget*>(liste->view()) : liste, Qt::Key_Escape);
        QTRY_VERIFY(!liste->view()->isVisible());
        QVERIFY(!liste->isVisible());
        QVERIFY(panel->isVisible());
        QTRY_VERIFY(panel->hasFocus());
        QVERIFY(!Stand.FormGeaendert);
    }
}

void FkFelderTest::theWheelOverAClosedListChangesNothing() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    QTest::mouseClick(form->pnlSpezial.at(7), Qt::LeftButton);
    QTRY_VERIFY(form->cmbSpezial->view()->isVisible());
    form->cmbSpezial->hidePopup();
    QTRY_VERIFY(!form->cmbSpezial->view()->isVisible());
    form->txtNr->setFocus();
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdAuswahl(0)")), Qt::LeftButton);
    const QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    for (QComboBox* liste : {form->cmbSpezial, Finden<QComboBox>(auswahl, QStringLiteral("cmbThemen"))}) {
        const int vorher = liste->currentIndex();
        const QPointF mitte = liste->rect().center();
        for (const int drehung : {-120, -120, 120}) {
            QWheelEvent rad(mitte, liste->mapToGlobal(mitte), {}, {0, drehung}, Qt::NoButton, Qt::NoModifier,
                            Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(liste, &rad);
        }
        QCOMPARE(liste->currentIndex(), vorher);
        QVERIFY(!liste->hasFocus());
    }
    QCOMPARE(form->pnlSpezial.at(7)->caption(), QString());
    QVERIFY(!Stand.FormGeaendert);
}

void FkFelderTest::theFormsMenuTakesThePlaceOfTheFileMenu() {
    Programm programm;
    auto* haupt = Finden<QMenu>(programm.haupt(), QStringLiteral("mDateien"));
    auto* form = Finden<QMenu>(programm.haupt(), QStringLiteral("mDateienFK"));
    QVERIFY(haupt->menuAction()->isVisible());
    QVERIFY(!form->menuAction()->isVisible());
    programm.NeuesQuizformular();
    QVERIFY(!haupt->menuAction()->isVisible());
    QVERIFY(form->menuAction()->isVisible());
    Dialogfolge dialoge;
    dialoge.meldung(
        QStringLiteral("Falls erforderlich,\nwird noch ein zusätzliches Hilfesystem implementiert !"),
        QStringLiteral("Ich glaube, das ist nicht nötig"));
    Finden<QAction>(programm.haupt(), QStringLiteral("mHilfeFK"))->trigger();
}

QTEST_MAIN(FkFelderTest)
#include "fkfelder_test.moc"
