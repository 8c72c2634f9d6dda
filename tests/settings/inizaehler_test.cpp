// The settings dialog's counters, rule boxes and spin controls over the real quiz form, with all their words.
#include "core/hauptfenster.h"
#include "tests/settings/inihilfe.h"

namespace {

const QString titelFragen = QStringLiteral("Fragen pro Wissensgebiet");
const QString titelWissen = QStringLiteral("Wissensgebiete");
const QString mitte = QStringLiteral("\nDa Du die Spielregeln einhalten willst, muß ich\n");
const QString naDenn = QStringLiteral("Na denn ...");
const QString vier = QStringLiteral("Ich soll vier Fragen pro Wissensgebiet anlegen.") + mitte +
                     QStringLiteral("die Felder 3 jetzt löschen!");

} // namespace

class IniZaehlerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void atFiveQuestionsWithTheRuleOffMinusIsRefusedAndTheNumberStays();
    void withOneQuestionAndFourAreasPlusNamesTwoAreasAndTheCountBecomesFive();
    void withThreeQuestionsAndOneAreaPlusAsksNothingAndTheCountBecomesTwo();
    void everyStepShowsTheNumbersAndTheTotal();
    void aStepAnsweredAbbrechenOrClosedByItsFrameChangesNothing();
    void theBoundsAreToldInTheirOwnWords();
    void answerAbbrechenToTheTickedRuleTakesTheTickOutAgain();
    void fillingTheBoxesRaisesNoQuestion();
    void theRuleOfTheSpecialFieldsIsASwitchAndNothingElse();
    void everySpinStopsAtItsBounds_data();
    void everySpinStopsAtItsBounds();
    void aSpinButtonHeldDownAtItsBoundTellsOnce();
    void countsOutOfAWildFileEndInTheErrorReportNotInAWrap();
};

void IniZaehlerTest::atFiveQuestionsWithTheRuleOffMinusIsRefusedAndTheNumberStays() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(5, 6, false, true);
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.meldung(
            QStringLiteral("Ich lösche keine Fragen,\nweil es in der Spielregel nicht gefordert ist!"),
            QStringLiteral("Dann trage ich es in der Spielregel noch schnell nach."));
        Druecke(dialog, "cmdFragenMinus");
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFKF")), QStringLiteral("5"));
    });
    QCOMPARE(Spiel.FragenProWissen, std::int16_t(5));
}

void IniZaehlerTest::withOneQuestionAndFourAreasPlusNamesTwoAreasAndTheCountBecomesFive() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(1, 4, true, true);
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(titelWissen,
                      QStringLiteral("Ich soll zwei Wissensgebiete anlegen.") + mitte +
                          QStringLiteral("diesmal keine Felder löschen!"),
                      1);
        Druecke(dialog, "cmdWissenPlus");
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFKW")), QStringLiteral("5"));
    });
    QCOMPARE(Spiel.AnzahlWissen, std::int16_t(5));
}

void IniZaehlerTest::withThreeQuestionsAndOneAreaPlusAsksNothingAndTheCountBecomesTwo() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(3, 1, true, true);
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        Druecke(dialog, "cmdWissenPlus"); // a question would fail the test
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFKW")), QStringLiteral("2"));
    });
    QCOMPARE(Spiel.AnzahlWissen, std::int16_t(2));
}

void IniZaehlerTest::everyStepShowsTheNumbersAndTheTotal() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(5, 6, true, true);
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(titelFragen, vier, 1);
        Druecke(dialog, "cmdFragenMinus");
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFKF")), QStringLiteral("4"));
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFK")), QStringLiteral("24"));
        dialoge.frage(titelWissen,
                      QStringLiteral("Ich soll fünf Wissensgebiete anlegen.") + mitte +
                          QStringLiteral("das sechste Wissensgebiet jetzt löschen!"),
                      1);
        Druecke(dialog, "cmdWissenMinus");
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFKW")), QStringLiteral("5"));
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFK")), QStringLiteral("20"));
        QCOMPARE(Spiel.FelderGesamt, std::int16_t(20));
        dialoge.frage(titelFragen,
                      QStringLiteral("Ich soll fünf Fragen pro Wissensgebiet anlegen.") + mitte +
                          QStringLiteral("diesmal keine Felder löschen!"),
                      1);
        Druecke(dialog, "cmdFragenPlus");
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFK")), QStringLiteral("25"));
    });
    QCOMPARE(Finden<Panel>(programm.haupt(), QStringLiteral("pnlFKFelder"))->caption(),
             QStringLiteral(" 25 Fragen : je 5 Fragen aus 5 Wissensgebieten"));
}

void IniZaehlerTest::aStepAnsweredAbbrechenOrClosedByItsFrameChangesNothing() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(5, 6, true, true);
    Spiel.FelderGesamt = 12;
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(titelFragen, vier, 2);
        Druecke(dialog, "cmdFragenMinus");
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFKF")), QStringLiteral("5"));
        dialoge.erwarte({QStringLiteral("frmNachricht"), titelFragen + u' ', vier, {durchRahmen}});
        Druecke(dialog, "cmdFragenMinus");
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFKF")), QStringLiteral("5"));
    });
    QCOMPARE(Spiel.FragenProWissen, std::int16_t(5));
    QCOMPARE(Spiel.FelderGesamt, std::int16_t(12));
}

void IniZaehlerTest::theBoundsAreToldInTheirOwnWords() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(1, 1, true, true);
    const QString verstaendnis = QStringLiteral("Dafür habe ich vollstes Verständnis.");
    MitAbbrechen(programm, [&](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.meldung(
            QStringLiteral(
                "Die Minimalanzahl der Fragen ist bereits erreicht.\nIch kann leider nicht weniger!?"),
            verstaendnis);
        Druecke(dialog, "cmdFragenMinus");
        dialoge.meldung(QStringLiteral("Die Minimalanzahl der Wissensgebiete ist bereits erreicht.\n"
                                       "Ich kann leider nicht weniger!?"),
                        verstaendnis);
        Druecke(dialog, "cmdWissenMinus");
        Form(5, 6, true, true);
        dialoge.meldung(
            QStringLiteral(
                "Die Maximalanzahl der Fragen ist bereits erreicht.\nIch kann leider nicht mehr!?"),
            verstaendnis);
        Druecke(dialog, "cmdFragenPlus");
        dialoge.meldung(QStringLiteral("Die Maximalanzahl von 6 Wissensgebieten ist bereits erreicht.\n"
                                       "Ich kann leider nicht mehr!?"),
                        verstaendnis);
        Druecke(dialog, "cmdWissenPlus");
    });
}

void IniZaehlerTest::answerAbbrechenToTheTickedRuleTakesTheTickOutAgain() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(3, 6, false, false);
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Register(dialog, 5);
        dialoge.frage(QStringLiteral("Spielregeln einhalten"),
                      QStringLiteral("Du hast die Anzahl der Fragen pro Wissensgebiet auf  [ 3 ]  begrenzt.\n"
                                     "Wenn Du die Spielregeln einhalten willst, muß ich\n"
                                     "die restlichen Felder jetzt löschen!"),
                      2);
        DruckeWahl(dialog, QStringLiteral("chkMaxFelder"));
        QVERIFY(!Finden<QCheckBox>(&dialog, QStringLiteral("chkMaxFelder"))->isChecked());
        QVERIFY(!Spiel.OptionMaxFelder);
    });
}

void IniZaehlerTest::fillingTheBoxesRaisesNoQuestion() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(2, 2, true, true);
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        for (const char* name : {"chkMaxFelder", "chkMaxWissen", "chkMaxSpezial"}) {
            QVERIFY(Finden<QCheckBox>(&dialog, QLatin1String(name))->isChecked());
        }
    });
}

void IniZaehlerTest::theRuleOfTheSpecialFieldsIsASwitchAndNothingElse() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(2, 2, true, true);
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 5);
        DruckeWahl(dialog, QStringLiteral("chkMaxSpezial"));
        QVERIFY(!Spiel.OptionMaxSpezial);
        DruckeWahl(dialog, QStringLiteral("chkMaxSpezial"));
        QVERIFY(Spiel.OptionMaxSpezial);
    });
}

void IniZaehlerTest::everySpinStopsAtItsBounds_data() {
    QTest::addColumn<QString>("spin");
    QTest::addColumn<QString>("panel");
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("hoechstens");
    QTest::addColumn<QString>("zuWenig");
    QTest::addColumn<QString>("zuViel");
    const QString wenigerFelder = QStringLiteral("Weniger als 0 Felder geht nicht");
    const QString mehrFelder = QStringLiteral("Mehr Felder sind nicht erlaubt");
    const QString wenigerPunkte = QStringLiteral("Weniger als 0 Punkte geht nicht");
    const QString mehrPunkte = QStringLiteral("Mehr Punkte sind nicht erlaubt");
    QTest::newRow("spnFelder") << "spnFelder"
                               << "pnlFelder" << 0 << 5 << wenigerFelder << mehrFelder;
    QTest::newRow("spnFelderV") << "spnFelderV"
                                << "pnlFelderV" << 3 << 5 << wenigerFelder << mehrFelder;
    QTest::newRow("spnPunkte") << "spnPunkte"
                               << "pnlPunkte" << 0 << 20 << wenigerPunkte << mehrPunkte;
    QTest::newRow("spnPunkteV") << "spnPunkteV"
                                << "pnlPunkteV" << 3 << 20 << wenigerPunkte << mehrPunkte;
}

void IniZaehlerTest::everySpinStopsAtItsBounds() {
    QFETCH(QString, spin);
    QFETCH(QString, panel);
    QFETCH(int, tab);
    QFETCH(int, hoechstens);
    QFETCH(QString, zuWenig);
    QFETCH(QString, zuViel);
    Programm programm;
    programm.NeuesQuizformular();
    for (Artwerte* werte : {&Spiel.Punkte, &Spiel.Felder, &Spiel.PunkteV, &Spiel.FelderV}) {
        werte->fill(0);
    }
    Spiel.FelderVE = "0";
    MitAbbrechen(programm, [&](QDialog& dialog, Dialogfolge& dialoge) {
        Register(dialog, tab);
        for (int art = 0; art < 5; ++art) {
            const QString name = QStringLiteral("%1(%2)").arg(panel).arg(art);
            dialoge.meldung(zuWenig, naDenn);
            Drehe(dialog, spin, art, false);
            QCOMPARE(Zahl(dialog, name), QStringLiteral("0"));
            for (int i = 1; i <= hoechstens; ++i) {
                Drehe(dialog, spin, art, true);
                QCOMPARE(Zahl(dialog, name), QString::number(i));
            }
            if (spin == QStringLiteral("spnPunkteV")) { // warned about twice
                dialoge.kasten(QString(), QStringLiteral("Mehr geht nicht !"), QStringLiteral("OK"));
            }
            dialoge.meldung(zuViel, naDenn);
            Drehe(dialog, spin, art, true);
            QCOMPARE(Zahl(dialog, name), QString::number(hoechstens));
        }
    });
}

void IniZaehlerTest::aSpinButtonHeldDownAtItsBoundTellsOnce() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        auto* taste =
            Finden<QToolButton>(Finden(&dialog, QStringLiteral("spnFelderV"), 3), QStringLiteral("hoch"));
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFelderV(3)")), QStringLiteral("4"));
        dialoge.meldung(QStringLiteral("Mehr Felder sind nicht erlaubt"), naDenn);
        QTest::mousePress(taste, Qt::LeftButton); // repeats while it is held
        QTRY_VERIFY(dialoge.fertig());
        UhrenAbwarten(3 * taste->autoRepeatInterval()); // a second message would fail the test
        QTest::mouseRelease(taste, Qt::LeftButton);
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFelderV(3)")), QStringLiteral("5"));
    });
}

void IniZaehlerTest::countsOutOfAWildFileEndInTheErrorReportNotInAWrap() {
    Programm programm;
    programm.NeuesQuizformular();
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Form(20000, 2, true, true);
        dialoge.frage(titelWissen,
                      QStringLiteral("Ich soll drei Wissensgebiete anlegen.") + mitte +
                          QStringLiteral("diesmal keine Felder löschen!"),
                      1);
        dialoge.meldung(QStringLiteral("INI : cmdWissenPlus_Click :\nÜberlauf"),
                        QStringLiteral("Das gefällt mir gar nicht"));
        Druecke(dialog, "cmdWissenPlus");
    });
    QCOMPARE(Spiel.FragenProWissen, std::int16_t(5));
}

QTEST_MAIN(IniZaehlerTest)
#include "inizaehler_test.moc"
