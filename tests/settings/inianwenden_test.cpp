// What applying the settings dialog does to the real quiz form, and what cancelling it puts back.
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "forms/verlauf.h"
#include "tests/settings/inihilfe.h"

namespace {

const QString titelFragen = QStringLiteral("Fragen pro Wissensgebiet");
const QString mitte = QStringLiteral("\nDa Du die Spielregeln einhalten willst, muß ich\n");

const QString vier = QStringLiteral("Ich soll vier Fragen pro Wissensgebiet anlegen.") + mitte +
                     QStringLiteral("die Felder 3 jetzt löschen!");
const QString drei = QStringLiteral("Ich soll drei Fragen pro Wissensgebiet anlegen.") + mitte +
                     QStringLiteral("die Felder 2 und 4 jetzt löschen!");

// Whether the cell has lost, or kept, all it held.
bool Leer(const frmFKFragen* form, int n) {
    return form->txtFrage.at(Nr(n))->text().empty() && form->txtAntwort.at(Nr(n))->text().empty() &&
           FKForm.FrageText.at(Nr(n)).empty() && FKForm.AntwortText.at(Nr(n)).empty() &&
           FKForm.FeldSpezial.at(Nr(n)).empty();
}
bool Ganz(const frmFKFragen* form, int n) {
    return form->txtFrage.at(Nr(n))->text() == "Frage " + std::to_string(n) &&
           FKForm.AntwortText.at(Nr(n)) == "Antwort " + std::to_string(n);
}

// Rows that a number of questions leaves, written down apart from the program.
bool ZeileSollBleiben(int fragen, int zeile) {
    static const std::array<QByteArray, 6> muster{"", "..x..", ".x.x.", "x.x.x", "xx.xx", "xxxxx"};
    return muster.at(Nr(fragen)).at(zeile - 1) == 'x';
}

} // namespace

class IniAnwendenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromFiveToThreeAppliedTwoAndFourOfEveryAreaLoseTheirQuestions();
    void fromThreeToFourAppliedThreeIsClearedAndTwoAndFourComeBackEmpty();
    void withTheRuleOffAndTwoQuestionsAllThirtyCellsStand();
    void applyingShapesTheBoardForEveryNumberOfQuestionsAndAreas();
    void applyingWithTheAreasRuleOffOpensTheTitlesAgain();
    void blankedLettersComeBackAfterApplyingTheLastOneToo();
    void nothingReachesTheSettingsBeforeItIsApplied();
    void applyingMarksTheFormAndRefreshesPointsCountsAndTips();
    void applyingBringsABlankedFormsQuestionsBack();
    void enterAppliesButNotFromASpin();
    void anOpenListGoesWithTheBoardItStoodOver();
    void cancellingPutsTheFiveValuesBackAndDropsTheEdits();
    void abbrechenAnsweredAbbrechenKeepsTheDialogWithAllItsEdits();
    void escapeAndTheFrameAreTheCancelButton();
    void tickingARuleNamesTheCountAndOKKeepsTheTick();
    void theWholeDialogIsOneStepThatBringsTheClosedCellsBack();
};

void IniAnwendenTest::fromFiveToThreeAppliedTwoAndFourOfEveryAreaLoseTheirQuestions() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(5, 6, true, true);
    BrettFuellen(form);
    MitOK(programm, [form](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(titelFragen, vier, 1);
        Druecke(dialog, "cmdFragenMinus");
        dialoge.frage(titelFragen, drei, 1);
        Druecke(dialog, "cmdFragenMinus");
        for (int n = 1; n <= anzahlFelder; ++n) {
            QVERIFY(Ganz(form, n)); // the steps touch nothing yet
        }
    });
    for (int n = 1; n <= anzahlFelder; ++n) {
        const bool weg = ZeileVon(n) == 2 || ZeileVon(n) == 4;
        QVERIFY2(weg ? Leer(form, n) : Ganz(form, n), qPrintable(QString::number(n)));
        QCOMPARE(form->txtFrage.at(Nr(n))->isVisible(), !weg);
    }
}

void IniAnwendenTest::theWholeDialogIsOneStepThatBringsTheClosedCellsBack() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(5, 6, true, true);
    BrettFuellen(form);
    FormularWechselt(); // as if it had been read like that
    FormStatusSetzen(false);
    const Spielwerte vorher = Spiel;
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(titelFragen, vier, 1);
        Druecke(dialog, "cmdFragenMinus");
        dialoge.frage(titelFragen, drei, 1);
        Druecke(dialog, "cmdFragenMinus");
        Finden(&dialog, QStringLiteral("cmdFragenPlus"))->setFocus(); // the counters are in force already
    });
    QVERIFY(Leer(form, 2));
    QCOMPARE(Rueckschritt(), std::string("Einstellungen ändern"));
    RueckgaengigMachen();
    QCOMPARE(Rueckschritt(), std::string());
    QVERIFY(Spiel == vorher);
    for (int n = 1; n <= anzahlFelder; ++n) {
        QVERIFY2(Ganz(form, n) && form->txtFrage.at(Nr(n))->isVisible(), qPrintable(QString::number(n)));
    }
    QVERIFY(!Stand.FormGeaendert);
    form->txtFrage.at(2)->setFocus(); // it goes with its cell
    QTRY_VERIFY(form->txtFrage.at(2)->hasFocus());
    Wiederholen();
    QVERIFY(Leer(form, 2));
    QVERIFY(!form->txtFrage.at(2)->isVisible());
    QCOMPARE(Rueckschritt(), std::string("Einstellungen ändern"));
    RueckgaengigMachen();
    QVERIFY(Ganz(form, 2));
    QCOMPARE(Vorschritt(), std::string("Einstellungen ändern"));
    QVERIFY(Spiel == vorher);
}

void IniAnwendenTest::fromThreeToFourAppliedThreeIsClearedAndTwoAndFourComeBackEmpty() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(3, 6, true, true);
    BrettFuellen(form);
    FK_FragenRegel();
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(titelFragen, vier, 1);
        Druecke(dialog, "cmdFragenPlus");
    });
    for (int n = 1; n <= anzahlFelder; ++n) {
        const int zeile = ZeileVon(n);
        QCOMPARE(form->txtFrage.at(Nr(n))->isVisible(), zeile != 3);
        QVERIFY2(zeile == 1 || zeile == 5 ? Ganz(form, n) : Leer(form, n), qPrintable(QString::number(n)));
    }
}

void IniAnwendenTest::withTheRuleOffAndTwoQuestionsAllThirtyCellsStand() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(2, 6, true, true);
    FK_FragenRegel();
    QCOMPARE(SichtbareZellen(form).size(), std::size_t(12));
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 5);
        DruckeWahl(dialog, QStringLiteral("chkMaxFelder"));
        QVERIFY(!Spiel.OptionMaxFelder);
    });
    QCOMPARE(SichtbareZellen(form).size(), std::size_t(30));
    BrettFuellen(form);
    MitOK(programm, [](QDialog&, Dialogfolge&) {});
    for (int n = 1; n <= anzahlFelder; ++n) {
        QVERIFY(Ganz(form, n));
        QVERIFY(form->pnlPunkte.at(Nr(n))->isVisible());
    }
}

void IniAnwendenTest::applyingShapesTheBoardForEveryNumberOfQuestionsAndAreas() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    for (int fragen = 1; fragen <= 5; ++fragen) {
        for (int wissen = 1; wissen <= 6; ++wissen) {
            FK_AlleFelderZeigen();
            BrettFuellen(form);
            Form(fragen, wissen, true, true);
            MitOK(programm, [](QDialog&, Dialogfolge&) {});
            for (int n = 1; n <= anzahlFelder; ++n) {
                const bool bleibt = GebietVon(n) <= wissen && ZeileSollBleiben(fragen, ZeileVon(n));
                const QByteArray fall =
                    QStringLiteral("%1 x %2, cell %3").arg(fragen).arg(wissen).arg(n).toUtf8();
                QVERIFY2(form->txtFrage.at(Nr(n))->isVisible() == bleibt, fall.constData());
                QVERIFY2(form->txtAntwort.at(Nr(n))->isVisible() == bleibt, fall.constData());
                QVERIFY2(form->pnlSpezial.at(Nr(n))->isVisible() == bleibt, fall.constData());
                QVERIFY2(form->pnlPunkte.at(Nr(n))->isVisible() == (bleibt && fragen != 1), fall.constData());
                QVERIFY2(bleibt ? Ganz(form, n) : Leer(form, n), fall.constData());
            }
            for (int a = 1; a <= anzahlGebiete; ++a) {
                QCOMPARE(form->pnlWissen.at(Nr(a))->isEnabled(), a <= wissen);
            }
        }
    }
}

void IniAnwendenTest::applyingWithTheAreasRuleOffOpensTheTitlesAgain() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(5, 3, true, true);
    form->pnlWissen.at(5)->setCaption(QStringLiteral("Tiere"));
    MitOK(programm, [](QDialog&, Dialogfolge&) {});
    QVERIFY(!form->pnlWissen.at(5)->isEnabled());
    QCOMPARE(form->pnlWissen.at(5)->caption(), QStringLiteral("Wissen"));
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 5);
        DruckeWahl(dialog, QStringLiteral("chkMaxWissen"));
    });
    QVERIFY(form->pnlWissen.at(5)->isEnabled());
    QCOMPARE(SichtbareZellen(form).size(), std::size_t(30));
}

void IniAnwendenTest::blankedLettersComeBackAfterApplyingTheLastOneToo() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(5, 6, false, false);
    SpezialWaehlen(form, 4, 3);
    SpezialWaehlen(form, 9, 4);
    QCOMPARE(FKForm.FeldSpezial.at(9), std::string("A"));
    FK_SpezialLoeschen();
    QCOMPARE(form->pnlSpezial.at(9)->caption(), QString());
    MitOK(programm, [](QDialog&, Dialogfolge&) {});
    FK_SpezialEinfuegen();
    QCOMPARE(form->pnlSpezial.at(4)->caption(), QStringLiteral("R"));
    QCOMPARE(form->pnlSpezial.at(9)->caption(), QStringLiteral("A"));
}

void IniAnwendenTest::nothingReachesTheSettingsBeforeItIsApplied() {
    Programm programm;
    programm.NeuesQuizformular();
    MitOK(programm, [](QDialog& dialog, Dialogfolge&) {
        Register(dialog, 0);
        for (int art = 0; art < 5; ++art) {
            Drehe(dialog, QStringLiteral("spnPunkte"), art, true);
            Drehe(dialog, QStringLiteral("spnFelder"), art, false);
        }
        Register(dialog, 3);
        for (int art = 0; art < 5; ++art) {
            Drehe(dialog, QStringLiteral("spnPunkteV"), art, true);
            Drehe(dialog, QStringLiteral("spnFelderV"), art, false);
        }
        QCOMPARE(Spiel.Punkte[Spezialart::Aktion], std::int16_t(5));
        QCOMPARE(Spiel.Felder[Spezialart::Joker], std::int16_t(4));
        QCOMPARE(Spiel.PunkteV[Spezialart::Glueck], std::int16_t(10));
        QCOMPARE(Spiel.FelderV[Spezialart::Risiko], std::int16_t(2));
    });
    QCOMPARE(Spiel.Punkte, (Artwerte{6, 11, 11, 6, 1}));
    QCOMPARE(Spiel.Felder, (Artwerte{1, 1, 1, 3, 1}));
    QCOMPARE(Spiel.PunkteV, Spiel.Punkte);
    QCOMPARE(Spiel.FelderV[Spezialart::Aktion], std::int16_t(1));
    QCOMPARE(Spiel.FelderVE.value_or(""), std::string("1"));
    QCOMPARE(Spiel.FelderV[Spezialart::Joker], std::int16_t(3));
}

void IniAnwendenTest::applyingMarksTheFormAndRefreshesPointsCountsAndTips() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(5, 6, true, true);
    SpezialWaehlen(form, 2, 1);
    SpezialWaehlen(form, 8, 1);
    FormStatusSetzen(false);
    QCOMPARE(form->pnlPunkte.at(2)->caption(), QStringLiteral("5"));
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Register(dialog, 0);
        Drehe(dialog, QStringLiteral("spnPunkte"), 3, true);
        Drehe(dialog, QStringLiteral("spnFelder"), 3, false);
        Register(dialog, 3);
        dialoge.frage(titelFragen, vier, 1);
        Druecke(dialog, "cmdFragenMinus");
    });
    QVERIFY(Stand.FormGeaendert);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible());
    QCOMPARE(form->pnlPunkte.at(2)->caption(), QStringLiteral("6"));
    QCOMPARE(SpezialAnzahl(FKForm.FeldSpezial)[Spezialart::Joker],
             std::int16_t(1)); // the Joker on the third row has gone
    QCOMPARE(Miniatur(programm, 8), Systemflaeche());
    QVERIFY(form->pnlSpezial.at(1)->toolTip().contains(QStringLiteral("- 3 Jokerfelder")));
    QCOMPARE(Finden<Panel>(programm.haupt(), QStringLiteral("pnlFKFelder"))->caption(),
             QStringLiteral(" 24 Fragen : je 4 Fragen aus 6 Wissensgebieten"));
}

void IniAnwendenTest::applyingBringsABlankedFormsQuestionsBack() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(5, 6, true, true);
    BrettFuellen(form);
    FK_FragenLoeschen();
    QVERIFY(form->txtFrage.at(17)->text().empty());
    MitOK(programm, [](QDialog&, Dialogfolge&) {});
    for (int n = 1; n <= anzahlFelder; ++n) {
        QVERIFY2(Ganz(form, n), qPrintable(QString::number(n)));
    }
}

void IniAnwendenTest::enterAppliesButNotFromASpin() {
    Programm programm;
    programm.NeuesQuizformular();
    Dialogfolge dialoge;
    bool nochDa = false;
    dialoge.erwarte({QStringLiteral("frmIni"), std::nullopt, std::nullopt, {}, [&](QDialog& dialog) {
                         auto* spin = Finden(&dialog, QStringLiteral("spnFelderV"), 0);
                         spin->setFocus();
                         QTRY_VERIFY(spin->hasFocus());
                         QTest::keyClick(spin, Qt::Key_Up);
                         QTest::keyClick(spin, Qt::Key_Return);
                         QTest::keyClick(spin, Qt::Key_Enter);
                         nochDa = dialog.isVisible();
                         Register(dialog, 5);
                         auto* kasten = Finden(&dialog, QStringLiteral("chkMaxSpezial"));
                         kasten->setFocus();
                         QTRY_VERIFY(kasten->hasFocus());
                         QTest::keyClick(kasten, Qt::Key_Return);
                     }});
    QTest::mouseClick(Finden(programm.haupt(), QStringLiteral("cmdIni")), Qt::LeftButton);
    QVERIFY(nochDa);
    QCOMPARE(Spiel.FelderV[Spezialart::Aktion], std::int16_t(3)); // applied
}

void IniAnwendenTest::anOpenListGoesWithTheBoardItStoodOver() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(5, 4, true, true);
    QTest::mouseClick(form->pnlSpezial.at(28), Qt::LeftButton);
    QTRY_VERIFY(form->cmbSpezial->isVisible());
    form->cmbSpezial->hidePopup();
    MitOK(programm, [](QDialog&, Dialogfolge&) {});
    QVERIFY(!form->cmbSpezial->isVisible());
    QVERIFY(!form->pnlSpezial.at(28)->isVisible());
}

void IniAnwendenTest::cancellingPutsTheFiveValuesBackAndDropsTheEdits() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(5, 6, true, true);
    BrettFuellen(form);
    FormStatusSetzen(false);
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        dialoge.frage(titelFragen, vier, 1);
        Druecke(dialog, "cmdFragenMinus");
        Register(dialog, 0);
        Drehe(dialog, QStringLiteral("spnFelder"), 2, true);
        Register(dialog, 5);
        for (const char* name : {"chkMaxFelder", "chkMaxWissen", "chkMaxSpezial"}) {
            DruckeWahl(dialog, QLatin1String(name));
        }
        QVERIFY(!Spiel.OptionMaxWissen);
    });
    QCOMPARE(Spiel.FragenProWissen, std::int16_t(5));
    QCOMPARE(Spiel.AnzahlWissen, std::int16_t(6));
    QCOMPARE(Spiel.FelderGesamt, std::int16_t(30));
    QVERIFY(Spiel.OptionMaxFelder);
    QVERIFY(Spiel.OptionMaxWissen);
    QVERIFY(Spiel.OptionMaxSpezial);
    QCOMPARE(Spiel.Felder[Spezialart::Glueck], std::int16_t(2));
    QVERIFY(!Stand.FormGeaendert);
    QVERIFY(Ganz(form, 3));
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge&) {
        QCOMPARE(Zahlen(dialog, QStringLiteral("pnlFelder")), QStringList({"2", "2", "2", "4", "2"}));
    });
}

void IniAnwendenTest::abbrechenAnsweredAbbrechenKeepsTheDialogWithAllItsEdits() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(5, 6, true, true);
    MitAbbrechen(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Drehe(dialog, QStringLiteral("spnPunkteV"), 3, true);
        dialoge.frage(titelFragen, vier, 1);
        Druecke(dialog, "cmdFragenMinus");
        dialoge.frage(verwerfenTitel, verwerfenFrage, 2);
        Druecke(dialog, "cmdAbbrechen");
        QVERIFY(dialog.isVisible());
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlPunkteV(3)")), QStringLiteral("6"));
        QCOMPARE(Zahl(dialog, QStringLiteral("pnlFragenFKF")), QStringLiteral("4"));
        QCOMPARE(Spiel.FragenProWissen, std::int16_t(4));
        dialoge.erwarte(
            {QStringLiteral("frmNachricht"), verwerfenTitel + u' ', verwerfenFrage, {durchRahmen}});
        Druecke(dialog, "cmdAbbrechen");
        QVERIFY(dialog.isVisible());
    });
    QCOMPARE(Spiel.FragenProWissen, std::int16_t(5));
}

void IniAnwendenTest::escapeAndTheFrameAreTheCancelButton() {
    Programm programm;
    programm.NeuesQuizformular();
    Form(5, 6, true, true);
    ImDialog(programm,
             [](QDialog& dialog, Dialogfolge& dialoge) {
                 dialoge.frage(verwerfenTitel, verwerfenFrage, 2);
                 QTest::keyClick(&dialog, Qt::Key_Escape);
                 QVERIFY(dialog.isVisible());
                 dialoge.frage(verwerfenTitel, verwerfenFrage, 2);
                 dialog.close();
                 QVERIFY(dialog.isVisible());
                 Spiel.FragenProWissen = 2;
                 dialoge.frage(verwerfenTitel, verwerfenFrage, 6);
             },
             {durchRahmen});
    QCOMPARE(Spiel.FragenProWissen, std::int16_t(5));
}

void IniAnwendenTest::tickingARuleNamesTheCountAndOKKeepsTheTick() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Form(5, 2, false, false);
    BrettFuellen(form);
    MitOK(programm, [](QDialog& dialog, Dialogfolge& dialoge) {
        Register(dialog, 5);
        DruckeWahl(dialog, QStringLiteral("chkMaxFelder")); // a full column: nothing to ask
        QVERIFY(Spiel.OptionMaxFelder);
        dialoge.frage(QStringLiteral("Spielregeln einhalten"),
                      QStringLiteral("Du hast die Anzahl der Wissensgebiete auf  [ 2 ]  begrenzt.\n"
                                     "Wenn Du die Spielregeln einhalten willst, muß ich\n"
                                     "die restlichen Felder jetzt löschen!"),
                      1);
        DruckeWahl(dialog, QStringLiteral("chkMaxWissen"));
        QVERIFY(Finden<QCheckBox>(&dialog, QStringLiteral("chkMaxWissen"))->isChecked());
    });
    QVERIFY(Spiel.OptionMaxWissen);
    QCOMPARE(SichtbareZellen(form).size(), std::size_t(10));
    QVERIFY(Leer(form, 11));
}

QTEST_MAIN(IniAnwendenTest)
#include "inianwenden_test.moc"
