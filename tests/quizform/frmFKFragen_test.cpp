// The quiz form's window on the real main window: what a new form holds, its geometry and the rules.
#include "tests/quizform/formhilfe.h"

#include <QMdiSubWindow>

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
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
    QVERIFY(!Stand.FormGeaendert);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picEingabeFlagGruen"))->isVisible());
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible());
}

void FrmFKFragenTest::aNewFormStartsWithAnEmptyModel() {
    Programm programm;
    FKForm.FrageText.at(3) = "alt";
    FKForm.FeldSpezial.at(3) = "J";
    FKForm.WissenTitel.at(2) = "Tiere";
    FKForm.FormNr = "7";
    programm.NeuesQuizformular();
    QCOMPARE(FKForm.FrageText.at(3), std::string());
    QCOMPARE(FKForm.FeldSpezial.at(3), std::string());
    QCOMPARE(FKForm.FormNr, std::string());
    // The merge runs after the titles are emptied, so the stored title is the placeholder.
    QCOMPARE(FKForm.WissenTitel.at(2), std::string("Wissen"));
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
    QCOMPARE(Stand.FormTyp, Formart::Keine);
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
    QVERIFY(Stand.FormGeaendert);
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
    QVERIFY(!Stand.FormGeaendert);
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
    Spiel.OptionMaxFelder = true;
    Spiel.FragenProWissen = 2;
    const frmFKFragen* form = programm.NeuesQuizformular();
    QCOMPARE(SichtbareZellen(form), (std::vector<int>{2, 4, 7, 9, 12, 14, 17, 19, 22, 24, 27, 29}));
    QVERIFY(form->pnlPunkte.at(2)->isVisible());
    QVERIFY(!form->pnlSpezial.at(3)->isVisible());
}

void FrmFKFragenTest::withOneQuestionNoPointsPanelShows() {
    Programm programm;
    Spiel.OptionMaxFelder = true;
    Spiel.FragenProWissen = 1;
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
    Spiel.OptionMaxFelder = false;
    Spiel.FragenProWissen = 3;
    FK_AlleFelderZeigen();
    FK_FragenRegel();
    FK_WissenRegel();
    QCOMPARE(SichtbareZellen(form).size(), std::size_t(30));
    QCOMPARE(FKForm.FrageText.at(2), std::string("steht"));
}

void FrmFKFragenTest::fourAreasCloseTheLastTwoTitles() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->pnlWissen.at(5)->setCaption(QStringLiteral("Tiere"));
    form->txtFrage.at(21)->setText("geht");
    FK_Merken();
    Spiel.OptionMaxWissen = true;
    Spiel.AnzahlWissen = 4;
    FK_AlleFelderZeigen();
    FK_WissenRegel();
    QCOMPARE(form->pnlWissen.at(5)->caption(), QStringLiteral("Wissen"));
    QCOMPARE(form->pnlWissen.at(6)->caption(), QStringLiteral("Wissen"));
    QVERIFY(!form->pnlWissen.at(5)->isEnabled());
    QVERIFY(form->pnlWissen.at(4)->isEnabled());
    QCOMPARE(SichtbareZellen(form).back(), 20);
    QCOMPARE(FKForm.FrageText.at(21), std::string());
    QCOMPARE(FKForm.WissenTitel.at(5), std::string("Tiere")); // in the model only at the next merge
    FK_Merken();
    QCOMPARE(FKForm.WissenTitel.at(5), std::string("Wissen"));
}

void FrmFKFragenTest::bothRulesTogetherLeaveEightCells() {
    Programm programm;
    Spiel.OptionMaxFelder = Spiel.OptionMaxWissen = true;
    Spiel.FragenProWissen = 4;
    Spiel.AnzahlWissen = 2;
    QCOMPARE(SichtbareZellen(programm.NeuesQuizformular()), (std::vector<int>{1, 2, 4, 5, 6, 7, 9, 10}));
}

void FrmFKFragenTest::hiddenCellsLoseTheirContentsForGood() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(3)->setText("Frage drei");
    form->txtAntwort.at(3)->setText("Antwort drei");
    form->pnlSpezial.at(3)->setCaption(QStringLiteral("G"));
    FK_Merken();
    Spiel.OptionMaxFelder = true;
    Spiel.FragenProWissen = 4;
    FK_FragenRegel();
    QCOMPARE(FKForm.FrageText.at(3), std::string());
    QCOMPARE(FKForm.AntwortText.at(3), std::string());
    QCOMPARE(FKForm.FeldSpezial.at(3), std::string());
    Spiel.FragenProWissen = 5;
    FK_FragenRegel();
    QVERIFY(form->txtFrage.at(3)->isVisible());
    QCOMPARE(form->txtFrage.at(3)->text(), std::string());
}

QTEST_MAIN(FrmFKFragenTest)
#include "frmFKFragen_test.moc"
