// The quiz form's window on the real main window: what a new form holds, the rules, the lists over the
// panels, typing and merging.
#include "core/frmMDI.h"
#include "core/oberflaeche.h"
#include "core/zustand.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/spezialfelder.h"
#include "settings/einstellungen.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"

#include <QAbstractItemView>
#include <QMdiSubWindow>
#include <QTest>

namespace {

std::size_t Nr(int n) {
    return static_cast<std::size_t>(n);
}

std::vector<int> SichtbareZellen(const frmFKFragen* form) {
    std::vector<int> zellen;
    for (int n = 1; n <= anzahlFelder; ++n) {
        if (form->txtFrage.at(Nr(n))->isVisible()) {
            zellen.push_back(n);
        }
    }
    return zellen;
}

// Clicks the panel and chooses the entry in the open list with the keyboard, as a user would.
void SpezialWaehlen(frmFKFragen* form, int n, int eintrag) {
    QTest::mouseClick(form->pnlSpezial.at(Nr(n)), Qt::LeftButton);
    QTRY_VERIFY(form->cmbSpezial->isVisible());
    QAbstractItemView* liste = form->cmbSpezial->view();
    QTRY_VERIFY(liste->isVisible());
    liste->setCurrentIndex(form->cmbSpezial->model()->index(eintrag, 0));
    QTest::keyClick(liste, Qt::Key_Return);
    QTRY_VERIFY(!form->cmbSpezial->isVisible());
}

void Tippen(Textfeld* feld, const QString& text) {
    feld->setFocus();
    QTRY_VERIFY(feld->hasFocus());
    QTest::keyClicks(feld, text);
}

QColor Grund(const Textfeld* feld) {
    return feld->palette().color(QPalette::Base);
}

QColor Miniatur(const Programm& programm, int n) {
    return Finden(programm.haupt(), QStringLiteral("picJoker"), n)->palette().color(QPalette::Window);
}

const QString grenzeJoker = QStringLiteral("Wir wollten uns an die Spielregeln halten -\n"
                                           "Die maximale Anzahl von 4 Jokern wurde bereits erreicht !");

} // namespace

class FrmFKFragenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewFormShowsNoLetterSixWissenAndThePointsDownEachColumn();
    void aNewFormStartsWithAnEmptyModel();
    void abbrechenOnTheNewFormQuestionChangesNothing();
    void aNewFormOverAChangedOneAnsweredAbbrechenKeepsIt();
    void aNewFormOverAChangedOneAnsweredNeinDiscardsItWithoutASecondQuestion();
    void theGeometryFollowsTheSizeClass_data();
    void theGeometryFollowsTheSizeClass();
    void theWindowStandsWhereTheScreenWidthPutsIt();
    void thePatternOfTwoQuestionsLeavesTwelveCells();
    void withOneQuestionNoPointsPanelShows();
    void withTheRuleOffAllThirtyCellsStay();
    void fourAreasCloseTheLastTwoTitles();
    void bothRulesTogetherLeaveEightCells();
    void hiddenCellsLoseTheirContentsForGood();
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
    void framesShowOnlyWithTheirOption();
    void blankingKeepsTheMarkersAndRestoringBringsTheTextsBack();
    void theThemeSourceFillsTheTitleList();
    void theFormsMenuTakesThePlaceOfTheFileMenu();
};

void FrmFKFragenTest::aNewFormShowsNoLetterSixWissenAndThePointsDownEachColumn() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    for (int n = 1; n <= anzahlFelder; ++n) {
        QCOMPARE(form->pnlSpezial.at(Nr(n))->caption(), QString());
        QCOMPARE(form->pnlPunkte.at(Nr(n))->caption(), QString::number(ZeileVon(n)));
        QCOMPARE(form->txtFrage.at(Nr(n))->text(), std::string());
        QCOMPARE(Grund(form->txtFrage.at(Nr(n))), QColor(Qt::white));
        QCOMPARE(Miniatur(programm, n), QColor(192, 192, 192));
    }
    for (int a = 1; a <= anzahlGebiete; ++a) {
        QCOMPARE(form->pnlWissen.at(Nr(a))->caption(), QStringLiteral("Wissen"));
    }
    QCOMPARE(form->windowTitle(), QStringLiteral(" Neues Feldkranz-Formular"));
    QCOMPARE(FormTyp, std::string("FK"));
    QCOMPARE(FormGeaendert, std::int16_t(0));
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picEingabeFlagGruen"))->isVisible());
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible());
}

void FrmFKFragenTest::aNewFormStartsWithAnEmptyModel() {
    Programm programm;
    FrageText.at(3) = "alt";
    FeldSpezial.at(3) = "J";
    WissenTitel.at(2) = "Tiere";
    FormNr = "7";
    programm.NeuesQuizformular();
    QCOMPARE(FrageText.at(3), std::string());
    QCOMPARE(FeldSpezial.at(3), std::string());
    QCOMPARE(FormNr, std::string());
    // The merge runs after the titles are emptied, so the stored title is the placeholder.
    QCOMPARE(WissenTitel.at(2), std::string("Wissen"));
}

void FrmFKFragenTest::abbrechenOnTheNewFormQuestionChangesNothing() {
    Programm programm;
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Feldkranz-Formular"),
                  QStringLiteral("Ich besorge dir ein neues Feldkranz-Formular !\n"
                                 "(Das kann einen kleinen Moment dauern.)"),
                  2);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdNeuFK")), Qt::LeftButton);
    QVERIFY(FKFragenOffen() == nullptr);
    QCOMPARE(FormTyp, std::string());
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picKranz"))->isVisible());
}

void FrmFKFragenTest::aNewFormOverAChangedOneAnsweredAbbrechenKeepsIt() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("bleibt"));
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Feldkranz-Formular"),
                  QStringLiteral("Ich besorge dir ein neues Feldkranz-Formular !\n"
                                 "(Das kann einen kleinen Moment dauern.)"),
                  6);
    dialoge.frage(QStringLiteral("Neues Feldkranz-Formular"),
                  QStringLiteral("Soll ich das vorhandene Formular vorher speichern ?"), 2);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdDateiFK"), 1), Qt::LeftButton);
    QCOMPARE(FKFragenOffen(), form);
    QCOMPARE(form->txtFrage.at(1)->text(), std::string("bleibt"));
    QCOMPARE(FormGeaendert, std::int16_t(1));
}

void FrmFKFragenTest::aNewFormOverAChangedOneAnsweredNeinDiscardsItWithoutASecondQuestion() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("weg damit"));
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Feldkranz-Formular"),
                  QStringLiteral("Ich besorge dir ein neues Feldkranz-Formular !\n"
                                 "(Das kann einen kleinen Moment dauern.)"),
                  6);
    dialoge.frage(QStringLiteral("Neues Feldkranz-Formular"),
                  QStringLiteral("Soll ich das vorhandene Formular vorher speichern ?"), 7);
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdDateiFK"), 1), Qt::LeftButton);
    QVERIFY(dialoge.fertig());
    QCOMPARE(FK_Frage(1), std::string());
    QCOMPARE(FormGeaendert, std::int16_t(0));
}

void FrmFKFragenTest::theGeometryFollowsTheSizeClass_data() {
    QTest::addColumn<QSize>("schirm");
    QTest::addColumn<QSize>("innen");
    QTest::addColumn<QRect>("frage7");
    QTest::addColumn<QRect>("punkte7");
    QTest::addColumn<QRect>("spezial7");
    QTest::addColumn<QRect>("titel2");
    // Cell 7 is column 2, row 2; pixels are twips by 15.
    QTest::newRow("small") << QSize(1024, 768) << QSize(941, 574) << QRect(186, 160, 124, 69)
                           << QRect(159, 160, 25, 69) << QRect(159, 229, 25, 30) << QRect(159, 33, 151, 21);
    QTest::newRow("large") << QSize(1280, 1024) << QSize(1229, 726) << QRect(235, 196, 170, 88)
                           << QRect(207, 196, 26, 88) << QRect(207, 284, 26, 39) << QRect(207, 35, 198, 24);
}

void FrmFKFragenTest::theGeometryFollowsTheSizeClass() {
    QFETCH(QSize, schirm);
    Programm programm;
    BildschirmgroesseVorgeben(schirm);
    const frmFKFragen* form = programm.NeuesQuizformular();
    QTEST(form->size(), "innen");
    QTEST(form->txtFrage.at(7)->geometry(), "frage7");
    QTEST(form->pnlPunkte.at(7)->geometry(), "punkte7");
    QTEST(form->pnlSpezial.at(7)->geometry(), "spezial7");
    QTEST(form->pnlWissen.at(2)->geometry(), "titel2");
    QCOMPARE(form->HolAuflösungX(), schirm.width());
    QCOMPARE(form->HolAuflösungY(), schirm.height());
}

void FrmFKFragenTest::theWindowStandsWhereTheScreenWidthPutsIt() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    const QSize rahmen(1000, 600);
    BildschirmgroesseVorgeben(QSize(800, 600));
    QCOMPARE(form->Platz(rahmen, QPoint(7, 8)), QPoint(0, 0));
    BildschirmgroesseVorgeben(QSize(1024, 768));
    QCOMPARE(form->Platz(rahmen, QPoint(7, 8)), QPoint(7, 8));
    BildschirmgroesseVorgeben(QSize(1280, 1024));
    QCOMPARE(form->Platz(rahmen, QPoint(7, 8)), QPoint(140, 1024 / 2 - 300 - 62));
}

void FrmFKFragenTest::thePatternOfTwoQuestionsLeavesTwelveCells() {
    Programm programm;
    OptionMaxFelder = 1;
    FragenProWissen = 2;
    const frmFKFragen* form = programm.NeuesQuizformular();
    QCOMPARE(SichtbareZellen(form), (std::vector<int>{2, 4, 7, 9, 12, 14, 17, 19, 22, 24, 27, 29}));
    QVERIFY(form->pnlPunkte.at(2)->isVisible());
    QVERIFY(!form->pnlSpezial.at(3)->isVisible());
}

void FrmFKFragenTest::withOneQuestionNoPointsPanelShows() {
    Programm programm;
    OptionMaxFelder = 1;
    FragenProWissen = 1;
    const frmFKFragen* form = programm.NeuesQuizformular();
    QCOMPARE(SichtbareZellen(form), (std::vector<int>{3, 8, 13, 18, 23, 28}));
    for (int n = 1; n <= anzahlFelder; ++n) {
        QVERIFY(!form->pnlPunkte.at(Nr(n))->isVisible());
    }
    QVERIFY(form->pnlSpezial.at(3)->isVisible());
}

void FrmFKFragenTest::withTheRuleOffAllThirtyCellsStay() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(2), QStringLiteral("steht"));
    FK_Merken();
    OptionMaxFelder = 0;
    FragenProWissen = 3;
    FK_AlleFelderZeigen();
    FK_FragenRegel();
    FK_WissenRegel();
    QCOMPARE(SichtbareZellen(form).size(), std::size_t(30));
    QCOMPARE(FrageText.at(2), std::string("steht"));
}

void FrmFKFragenTest::fourAreasCloseTheLastTwoTitles() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->pnlWissen.at(5)->setCaption(QStringLiteral("Tiere"));
    form->txtFrage.at(21)->setText("geht");
    FK_Merken();
    OptionMaxWissen = 1;
    AnzahlWissen = 4;
    FK_AlleFelderZeigen();
    FK_WissenRegel();
    QCOMPARE(form->pnlWissen.at(5)->caption(), QStringLiteral("Wissen"));
    QCOMPARE(form->pnlWissen.at(6)->caption(), QStringLiteral("Wissen"));
    QVERIFY(!form->pnlWissen.at(5)->isEnabled());
    QVERIFY(form->pnlWissen.at(4)->isEnabled());
    QCOMPARE(SichtbareZellen(form).back(), 20);
    QCOMPARE(FrageText.at(21), std::string());
    QCOMPARE(WissenTitel.at(5), std::string("Tiere")); // in the model only at the next merge
    FK_Merken();
    QCOMPARE(WissenTitel.at(5), std::string("Wissen"));
}

void FrmFKFragenTest::bothRulesTogetherLeaveEightCells() {
    Programm programm;
    OptionMaxFelder = OptionMaxWissen = 1;
    FragenProWissen = 4;
    AnzahlWissen = 2;
    QCOMPARE(SichtbareZellen(programm.NeuesQuizformular()), (std::vector<int>{1, 2, 4, 5, 6, 7, 9, 10}));
}

void FrmFKFragenTest::hiddenCellsLoseTheirContentsForGood() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(3)->setText("Frage drei");
    form->txtAntwort.at(3)->setText("Antwort drei");
    form->pnlSpezial.at(3)->setCaption(QStringLiteral("G"));
    FK_Merken();
    OptionMaxFelder = 1;
    FragenProWissen = 4;
    FK_FragenRegel();
    QCOMPARE(FrageText.at(3), std::string());
    QCOMPARE(AntwortText.at(3), std::string());
    QCOMPARE(FeldSpezial.at(3), std::string());
    FragenProWissen = 5;
    FK_FragenRegel();
    QVERIFY(form->txtFrage.at(3)->isVisible());
    QCOMPARE(form->txtFrage.at(3)->text(), std::string());
}

void FrmFKFragenTest::settingAJokerAndBackAtOnceBringsTheQuestionBack() {
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

void FrmFKFragenTest::aMergeInBetweenReplacesTheQuestionByTheMarkerForGood() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(4), QStringLiteral("Wer war das?"));
    SpezialWaehlen(form, 4, 1);
    Tippen(form->txtFrage.at(9), QStringLiteral("anderswo"));
    form->txtFrage.at(10)->setFocus();
    QTRY_COMPARE(FrageText.at(9), std::string("anderswo"));
    SpezialWaehlen(form, 4, 0);
    QCOMPARE(form->txtFrage.at(4)->text(), std::string("----- Joker ! -----\r\n"));
}

void FrmFKFragenTest::aFifthJokerIsRefusedAndThePanelReadsEmpty() {
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
    QCOMPARE(FeldSpezial.at(25), std::string());
    QCOMPARE(SpezialAnzahl.at(3), std::int16_t(4));
}

void FrmFKFragenTest::withTheLimitsOffAnyNumberCanBeSet() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    OptionMaxSpezial = 0;
    for (int n = 1; n <= 7; ++n) {
        SpezialWaehlen(form, n, 1);
    }
    QCOMPARE(SpezialAnzahl.at(3), std::int16_t(7));
}

void FrmFKFragenTest::aRefusedChangeFromJokerToTaskKeepsTheCellsLook() {
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
    QCOMPARE(FeldSpezial.at(5), std::string("J"));
    QCOMPARE(Grund(form->txtFrage.at(5)), QColor(255, 255, 223));
    QCOMPARE(Miniatur(programm, 5), QColor(255, 255, 0));
    FK_SpezialZaehlen(); // the next count brings the screen's "" into force
    QCOMPARE(SpezialAnzahl.at(3), std::int16_t(0));
}

void FrmFKFragenTest::theSameLetterAgainMarksNothingAsChanged() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 6, 2);
    QCOMPARE(FormGeaendert, std::int16_t(1));
    FormGeaendert = 0;
    SpezialWaehlen(form, 6, 2);
    QCOMPARE(FormGeaendert, std::int16_t(0));
    QCOMPARE(form->pnlSpezial.at(6)->caption(), QStringLiteral("G"));
}

void FrmFKFragenTest::backToAPlainCellShowsItsRowOnGrey() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 9, 3);
    QCOMPARE(form->pnlPunkte.at(9)->caption(), QStringLiteral(".."));
    QCOMPARE(form->pnlPunkte.at(9)->grund(), QColor(255, 0, 0));
    SpezialWaehlen(form, 9, 0);
    QCOMPARE(form->pnlPunkte.at(9)->caption(), QStringLiteral("4"));
    QCOMPARE(form->pnlPunkte.at(9)->grund(), Systemflaeche());
}

void FrmFKFragenTest::aChosenTitleReachesTheModelOnlyWithAMerge() {
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
    QCOMPARE(WissenTitel.at(2), std::string("Wissen"));
    QCOMPARE(FormGeaendert, std::int16_t(1));
    FK_Merken();
    QCOMPARE(WissenTitel.at(2), std::string("Tiere"));
}

void FrmFKFragenTest::aClosedTitleTakesNoClick() {
    Programm programm;
    OptionMaxWissen = 1;
    AnzahlWissen = 5;
    frmFKFragen* form = programm.NeuesQuizformular();
    QTest::mouseClick(form->pnlWissen.at(6), Qt::LeftButton);
    QVERIFY(!form->cmbWissen->isVisible());
}

void FrmFKFragenTest::typedTextReachesTheModelWhenTheFocusGoes() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    FK_FelderFaerben();
    QCOMPARE(Grund(form->txtFrage.at(8)), Systemflaeche());
    Tippen(form->txtFrage.at(8), QStringLiteral("Wie heißt der Fluss?"));
    QCOMPARE(FrageText.at(8), std::string());
    QCOMPARE(FormGeaendert, std::int16_t(1));
    QTest::keyClick(form->txtFrage.at(8), Qt::Key_Tab);
    QTRY_COMPARE(FrageText.at(8), std::string("Wie heißt der Fluss?"));
    QVERIFY(form->txtAntwort.at(8)->hasFocus());
    QCOMPARE(Grund(form->txtFrage.at(8)), QColor(Qt::white));
    QCOMPARE(Miniatur(programm, 8), QColor(Qt::white));
}

void FrmFKFragenTest::settingATextThatStandsThereMarksNothingAsChanged() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(1)->setText("a\r\nb");
    FormGeaendert = 0;
    form->txtFrage.at(1)->setText("a\r\nb");
    form->txtNr->setWert("");
    QCOMPARE(FormGeaendert, std::int16_t(0));
    form->txtNr->setWert("3");
    QCOMPARE(FormGeaendert, std::int16_t(1));
}

void FrmFKFragenTest::aHeadBoxMarksTheFormAndSelectsItsText() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtDatum->setText(QStringLiteral("24.12."));
    QCOMPARE(FormGeaendert, std::int16_t(1));
    form->txtZeit->setFocus();
    form->txtDatum->setFocus();
    QTRY_COMPARE(form->txtDatum->selectedText(), QStringLiteral("24.12."));
}

void FrmFKFragenTest::aCharacterOutsideTheCodePageIsReplacedAndNamed() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    maus::Bewegen(Finden(programm.haupt(), QStringLiteral("pnlKranz"))); // no other control speaks meanwhile
    form->txtFrage.at(1)->setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("Płock → 漢 Ende"));
    QTest::keyClick(form->txtFrage.at(1), Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE(form->txtFrage.at(1)->text(), std::string("Plock ->  Ende"));
    QCOMPARE(Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"))->caption(),
             QStringLiteral(" Das Zeichen  ł  kann ich nicht speichern, es musste draußen bleiben. "));
    form->txtNr->setFocus();
    QTest::keyClicks(form->txtNr, QStringLiteral("1"));
    QGuiApplication::clipboard()->setText(QStringLiteral("ł2"));
    QTest::keyClick(form->txtNr, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(form->txtNr->text(), QStringLiteral("1l2"));
}

void FrmFKFragenTest::framesShowOnlyWithTheirOption() {
    Programm programm;
    OptionRahmen = 0;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 2, 1);
    QVERIFY(!form->shpFrage.at(2)->isVisible());
    OptionRahmen = 1;
    FK_FelderFaerben();
    QVERIFY(form->shpFrage.at(2)->isVisible());
    QCOMPARE(form->shpFrage.at(2)->palette().color(QPalette::Window), QColor(239, 239, 0));
    SpezialWaehlen(form, 8, 1);
    QCOMPARE(form->shpFrage.at(8)->palette().color(QPalette::Window), QColor(223, 223, 0));
    FK_FelderFaerben();
    QCOMPARE(form->shpFrage.at(8)->palette().color(QPalette::Window), QColor(239, 239, 0));
    QVERIFY(!form->shpFrage.at(1)->isVisible());
}

void FrmFKFragenTest::blankingKeepsTheMarkersAndRestoringBringsTheTextsBack() {
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

void FrmFKFragenTest::theThemeSourceFillsTheTitleList() {
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

void FrmFKFragenTest::theFormsMenuTakesThePlaceOfTheFileMenu() {
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

QTEST_MAIN(FrmFKFragenTest)
#include "frmFKFragen_test.moc"
