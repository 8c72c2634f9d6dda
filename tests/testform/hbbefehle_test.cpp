// The main window's commands on the test form: making a new one, its toolbar and menus, closing and going
// back.
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "tests/testform/testhilfe.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

class HbBefehleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refusingTheNewFormChangesNothing();
    void theMainMenusEntryPutsTheFormerModeBackWhenRefused();
    void theMainMenusEntryRefusedPutsTheCountsBackAfterAFormHasGone();
    void theMainMenusEntryMakesANewForm();
    void aNewFormAsksAboutUnsavedChanges();
    void aNewTestFormTakesThePlaceOfAQuizForm();
    void aNewQuizFormTakesThePlaceOfATestForm();
    void aTestFormSwapsTheToolbarAndEnablesItsCommands();
    void closingAChangedFormAsksAndAbbrechenKeepsIt();
    void closingAnUnchangedFormAsksNothing();
    void theClosingButtonSpeaksOfTheQuizForm();
    void neinOnTheClosingButtonClosesWithoutSaving();
    void theBackButtonClosesAndReturnsToTheMainToolbar();
    void theBackButtonWithAnotherWindowInFrontOnlySwapsTheToolbar();
    void theFormBringsItsOwnMenus();
    void theBackupSwitchOfTheMenuIsTheOption();
    void theHelpEntryHasItsOwnNumber();
};

void HbBefehleTest::refusingTheNewFormChangesNothing() {
    Programm programm;
    for (const QString& taste : {QStringLiteral("cmdAntwort(2)"), durchRahmen}) {
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmNachricht"), neuTitel + QLatin1Char(' '), neuFrage, {taste}});
        Druecken(programm, QStringLiteral("cmdNeuHB"));
        QVERIFY(dialoge.fertig());
        QVERIFY(HBFragenOffen() == nullptr);
        QCOMPARE(Stand.FormTyp, Formart::Keine);
        QVERIFY(Finden(programm.haupt(), QStringLiteral("picKranz"))->isVisible());
    }
}

void HbBefehleTest::theMainMenusEntryPutsTheFormerModeBackWhenRefused() {
    Programm programm;
    auto* eintrag = Finden<QAction>(programm.haupt(), QStringLiteral("mDatei(2)"));
    {
        Dialogfolge dialoge;
        dialoge.frage(neuTitel, neuFrage, 2);
        eintrag->trigger();
    }
    QCOMPARE(Stand.FormTyp, Formart::Keine);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picKranz"))->isVisible());
    QVERIFY(Finden(programm.haupt(), QStringLiteral("cmdEnde"))->isVisible());
    const frmFKFragen* quiz = programm.NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuFrage, 2);
    eintrag->trigger();
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
    QCOMPARE(FKFragenOffen(), quiz);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picFK"))->isVisible());
    QVERIFY(Finden(programm.haupt(), QStringLiteral("pnlFKFelder"))->isVisible());
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("picHB"))->isVisible());
}

void HbBefehleTest::theMainMenusEntryRefusedPutsTheCountsBackAfterAFormHasGone() {
    Programm programm;
    for (const QString& schliessen : {QStringLiteral("cmdDateiFK(5)"), QStringLiteral("cmdFKZurueck")}) {
        programm.NeuesQuizformular();
        Dialogfolge dialoge;
        if (schliessen == QStringLiteral("cmdFKZurueck")) {
            dialoge.frage(schliessenTitel, QStringLiteral("Ich schließe das Feldkranz-Formular !"), 1);
        }
        Druecken(programm, schliessen);
        QVERIFY(FKFragenOffen() == nullptr);
        const auto gezeigt = [&programm] {
            QStringList namen;
            for (const char* name : {"picKranz", "picFK", "picHB", "cmdEnde", "pnlFKFelder",
                                     "picEingabeFlagGruen", "picEingabeFlagRot"}) {
                if (Finden(programm.haupt(), QLatin1String(name))->isVisible()) {
                    namen << QLatin1String(name);
                }
            }
            return namen;
        };
        const QStringList vorher = gezeigt();
        QVERIFY(vorher.contains(QStringLiteral("pnlFKFelder")));
        dialoge.frage(neuTitel, neuFrage, 2);
        Finden<QAction>(programm.haupt(), QStringLiteral("mDatei(2)"))->trigger();
        QVERIFY(dialoge.fertig());
        QCOMPARE(gezeigt(), vorher);
        QCOMPARE(Stand.FormTyp, Formart::Keine);
    }
}

void HbBefehleTest::theMainMenusEntryMakesANewForm() {
    Programm programm;
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuFrage, 6);
    Finden<QAction>(programm.haupt(), QStringLiteral("mDatei(2)"))->trigger();
    QVERIFY(HBFragenOffen() != nullptr);
    QCOMPARE(Stand.FormTyp, Formart::Test);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picHB"))->isVisible());
}

void HbBefehleTest::aNewFormAsksAboutUnsavedChanges() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->txtFrage.at(1)->setText("geändert");
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuFrage, 6);
    dialoge.frage(neuTitel, neuSpeichernFrage, 2);
    Druecken(programm, QStringLiteral("cmdDateiHB(1)"));
    QCOMPARE(HBFragenOffen(), form);
    QCOMPARE(HB_Frage(1), std::string("geändert"));
    dialoge.frage(neuTitel, neuFrage, 6);
    dialoge.frage(neuTitel, neuSpeichernFrage, 7);
    Druecken(programm, QStringLiteral("cmdDateiHB(1)")); // discarded without a second question
    QVERIFY(dialoge.fertig());
    QCOMPARE(HB_Frage(1), std::string());
    QVERIFY(!Stand.FormGeaendert);
}

void HbBefehleTest::aNewTestFormTakesThePlaceOfAQuizForm() {
    Programm programm;
    programm.NeuesQuizformular();
    ModusHaupt(); // as the back button leaves it while another window is in front
    programm.NeuesTestformular();
    QVERIFY(FKFragenOffen() == nullptr);
    QCOMPARE(Stand.FormTyp, Formart::Test);
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("cmdFKFLaden"))->isEnabled());
    QCOMPARE(Finden<QMdiArea>(programm.haupt(), QStringLiteral("kindflaeche"))->subWindowList().size(), 1);
}

void HbBefehleTest::aNewQuizFormTakesThePlaceOfATestForm() {
    Programm programm;
    programm.NeuesTestformular();
    ModusHaupt();
    programm.NeuesQuizformular();
    QVERIFY(HBFragenOffen() == nullptr);
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("cmdHBFLaden"))->isEnabled());
}

void HbBefehleTest::aTestFormSwapsTheToolbarAndEnablesItsCommands() {
    Programm programm;
    const QList<const char*> befehle{"cmdHBFLaden", "cmdHBFLoeschen", "cmdHBALaden",    "cmdHBALoeschen",
                                     "cmdHBPLaden", "cmdHBPLoeschen", "cmdHBSchliessen"};
    for (const char* name : befehle) {
        QVERIFY2(!Finden(programm.haupt(), QLatin1String(name))->isEnabled(), name);
    }
    programm.NeuesTestformular();
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picHB"))->isVisible());
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("picKranz"))->isVisible());
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("picFK"))->isVisible());
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("cmdEnde"))->isVisible());
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("pnlFKFelder"))->isVisible());
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picEingabeFlagGruen"))->isVisible());
    for (const char* name : befehle) {
        QVERIFY2(Finden(programm.haupt(), QLatin1String(name))->isEnabled(), name);
    }
    HB_Schliessen();
    for (const char* name : befehle) {
        QVERIFY2(!Finden(programm.haupt(), QLatin1String(name))->isEnabled(), name);
    }
}

void HbBefehleTest::closingAChangedFormAsksAndAbbrechenKeepsIt() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->txtFrage.at(1)->setText("offen");
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuSpeichernFrage, 2);
    Druecken(programm, QStringLiteral("cmdDateiHB(5)"));
    QCOMPARE(HBFragenOffen(), form);
    QVERIFY(Stand.FormGeaendert);
    dialoge.frage(neuTitel, neuSpeichernFrage, 7);
    Druecken(programm, QStringLiteral("cmdDateiHB(5)"));
    QVERIFY(HBFragenOffen() == nullptr);
    QCOMPARE(Stand.FormTyp, Formart::Keine);
    QVERIFY(!Stand.FormGeaendert);
}

void HbBefehleTest::closingAnUnchangedFormAsksNothing() {
    Programm programm;
    programm.NeuesTestformular();
    Dialogfolge dialoge;
    Druecken(programm, QStringLiteral("cmdDateiHB(5)"));
    QVERIFY(HBFragenOffen() == nullptr);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picHB"))->isVisible()); // the toolbar stays
}

void HbBefehleTest::theClosingButtonSpeaksOfTheQuizForm() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Dialogfolge dialoge;
    dialoge.frage(schliessenTitel, QStringLiteral("Ich schließe das Feldkranz-Formular !"), 2);
    Druecken(programm, QStringLiteral("cmdHBSchliessen"));
    QCOMPARE(HBFragenOffen(), form);
    dialoge.frage(schliessenTitel, QStringLiteral("Ich schließe das Feldkranz-Formular !"), 1);
    Druecken(programm, QStringLiteral("cmdHBSchliessen"));
    QVERIFY(HBFragenOffen() == nullptr);
}

void HbBefehleTest::neinOnTheClosingButtonClosesWithoutSaving() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->txtFrage.at(1)->setText("weg");
    Dialogfolge dialoge;
    dialoge.frage(schliessenTitel,
                  QStringLiteral("Das Formular wurde möglicherweise verändert\n"
                                 "Soll ich das Formular vorher speichern ?"),
                  7);
    Druecken(programm, QStringLiteral("cmdHBSchliessen"));
    QVERIFY(dialoge.fertig());
    QVERIFY(HBFragenOffen() == nullptr);
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("cmdHBSchliessen"))->isEnabled());
}

void HbBefehleTest::theBackButtonClosesAndReturnsToTheMainToolbar() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Dialogfolge dialoge;
    dialoge.frage(schliessenTitel, QStringLiteral("Ich schließe das Test-Formular !"), 2);
    Druecken(programm, QStringLiteral("cmdHBZurueck"));
    QCOMPARE(HBFragenOffen(), form);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picHB"))->isVisible());
    dialoge.frage(schliessenTitel, QStringLiteral("Ich schließe das Test-Formular !"), 1);
    Druecken(programm, QStringLiteral("cmdHBZurueck"));
    QVERIFY(HBFragenOffen() == nullptr);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picKranz"))->isVisible());
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("picHB"))->isVisible());
    QVERIFY(Finden(programm.haupt(), QStringLiteral("cmdEnde"))->isVisible());
}

void HbBefehleTest::theBackButtonWithAnotherWindowInFrontOnlySwapsTheToolbar() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->txtFrage.at(1)->setText("bleibt");
    auto* anderes = new QWidget;
    KindfensterAufnehmen(anderes);
    anderes->show();
    KindNachVorn(anderes);
    QTRY_COMPARE(AktivesKind(), anderes);
    Dialogfolge dialoge;
    Druecken(programm, QStringLiteral("cmdHBZurueck"));
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picKranz"))->isVisible());
    QCOMPARE(HBFragenOffen(), form);
    QCOMPARE(HB_Frage(1), std::string("bleibt"));
}

void HbBefehleTest::theFormBringsItsOwnMenus() {
    Programm programm;
    const auto sichtbar = [&programm](const char* menue) {
        return Finden<QMenu>(programm.haupt(), QLatin1String(menue))->menuAction()->isVisible();
    };
    QVERIFY(!sichtbar("mDateienHB"));
    programm.NeuesTestformular();
    QTRY_VERIFY(sichtbar("mDateienHB"));
    QVERIFY(sichtbar("mFormularHB"));
    QVERIFY(!sichtbar("mDateien"));
    QVERIFY(!sichtbar("mDateienFK"));
    for (const char* name :
         {"mDateiHB(1)", "mDateiHB(3)", "mDateiHB(5)", "mDateiHB(6)", "mDateiHB(8)", "mDateiHB(9)",
          "mDateiHB(11)", "mHBFragen(1)", "mHBFragen(2)", "mHBAntworten(1)", "mHBAntworten(2)",
          "mHBPunkte(1)", "mHBPunkte(2)", "mHBFormular", "mHBFragenauswahl", "mBackUpHB", "mHilfeHB"}) {
        const auto* eintrag = Finden<QAction>(programm.haupt(), QLatin1String(name));
        QVERIFY2(eintrag->isEnabled() && eintrag->isVisible(), name);
    }
    QVERIFY(!Finden<QAction>(programm.haupt(), QStringLiteral("mBackUp"))->isVisible());
    QVERIFY(!Finden<QAction>(programm.haupt(), QStringLiteral("mHilfen(1)"))->isVisible());
    HB_Schliessen();
    QTRY_VERIFY(sichtbar("mDateien"));
    QVERIFY(!sichtbar("mDateienHB"));
    QVERIFY(Finden<QAction>(programm.haupt(), QStringLiteral("mBackUp"))->isVisible());
}

void HbBefehleTest::theBackupSwitchOfTheMenuIsTheOption() {
    Programm programm;
    programm.NeuesTestformular();
    Spiel.OptionDatei = false;
    auto* eintrag = Finden<QAction>(programm.haupt(), QStringLiteral("mBackUpHB"));
    auto* menue = Finden<QMenu>(programm.haupt(), QStringLiteral("mOptionen"));
    Q_EMIT menue->aboutToShow();
    QVERIFY(!eintrag->isChecked());
    eintrag->trigger();
    QVERIFY(Spiel.OptionDatei);
    QVERIFY(eintrag->isChecked());
    eintrag->trigger();
    QVERIFY(!Spiel.OptionDatei);
    Spiel.OptionDatei = true; // by another switch
    Q_EMIT menue->aboutToShow();
    QVERIFY(eintrag->isChecked());
}

void HbBefehleTest::theHelpEntryHasItsOwnNumber() {
    Programm programm;
    programm.NeuesTestformular();
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmMeldung"),
         {},
         QStringLiteral("Falls erforderlich,\nwird noch ein zusätzliches Hilfesystem implementiert !"),
         {QStringLiteral("Ich glaube, das ist nicht nötig")},
         [](const QDialog& dialog) {
             QCOMPARE(Finden<QLabel>(&dialog, QStringLiteral("lblNr"))->text(), QStringLiteral("21"));
         }});
    Finden<QAction>(programm.haupt(), QStringLiteral("mHilfeHB"))->trigger();
    QVERIFY(dialoge.fertig());
}

QTEST_MAIN(HbBefehleTest)
#include "hbbefehle_test.moc"
