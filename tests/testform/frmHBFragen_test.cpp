// The window of the test form: making a new one, the head, typing, points and totals, closing, its menu.
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "settings/einstellungen.h"
#include "tests/hilfe/bild.h"
#include "tests/testform/testhilfe.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

class FrmHBFragenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewFormStartsEmpty();
    void everyControlOfTheFormIsThere();
    void refusingTheNewFormChangesNothing();
    void theMainMenusEntryPutsTheFormerModeBackWhenRefused();
    void theMainMenusEntryMakesANewForm();
    void aNewFormAsksAboutUnsavedChanges();
    void aNewTestFormTakesThePlaceOfAQuizForm();
    void aNewQuizFormTakesThePlaceOfATestForm();
    void aTestFormSwapsTheToolbarAndEnablesItsCommands();
    void theListsOfTheHeadHaveTheirEntries();
    void choosingAGroupShowsItBehindOneBlank();
    void choosingTitleAndSubject();
    void aListLeftWithoutAChoiceGivesWayToItsPanel();
    void typingPaintsTheRowAndMarksTheForm();
    void typedTextReachesTheArraysOnlyWithTheMerge();
    void takingTheFocusSelectsTheText();
    void aRowAt20BeginsAgainAt0();
    void aRowAt0GoesDownTo20();
    void afterBlankingAllPointsOneStepMakesATotalOf1();
    void tenRowsAt20Make200InAllThreePlaces();
    void theArrowKeysStepAsWell();
    void closingAChangedFormAsksAndAbbrechenKeepsIt();
    void closingAnUnchangedFormAsksNothing();
    void theClosingButtonSpeaksOfTheQuizForm();
    void neinOnTheClosingButtonClosesWithoutSaving();
    void theBackButtonClosesAndReturnsToTheMainToolbar();
    void theBackButtonWithAnotherWindowInFrontOnlySwapsTheToolbar();
    void theFormBringsItsOwnMenus();
    void theBackupSwitchOfTheMenuIsTheOption();
    void theHelpEntryHasItsOwnNumber();
    void theWindowFitsTheScreen_data();
    void theWindowFitsTheScreen();
    void tabFollowsTheEye();
};

void FrmHBFragenTest::aNewFormStartsEmpty() {
    Programm programm;
    HBFrageText.fill("alt");
    HBPunkte.fill(9);
    HBFach = " alt";
    HBGesamtpunkte = 90;
    const frmHBFragen* form = programm.NeuesTestformular();
    QCOMPARE(form->windowTitle(), QStringLiteral(" Neues Testformular"));
    QCOMPARE(FormTyp, std::string("Test"));
    QCOMPARE(FormGeaendert, std::int16_t(0));
    QCOMPARE(DateiName, std::string());
    QCOMPARE(form->titel.panel->caption(), QStringLiteral(" TEST  HFZ"));
    QCOMPARE(form->fach.panel->caption(), QStringLiteral(" Fach"));
    QCOMPARE(form->gruppe.panel->caption(), QStringLiteral(" Gruppe :"));
    QCOMPARE(form->lblGruppe->text(), QString());
    QCOMPARE(form->pnlPunktkontrolle->caption(), QStringLiteral(" Gesamtpunkte :"));
    QCOMPARE(form->pnlGesamtpunkte->caption(), QStringLiteral(" Punkte :"));
    QCOMPARE(Summenfeld(programm), QString());
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        QCOMPARE(form->pnlNr.at(Nr(n))->caption(), QString::number(n));
        QCOMPARE(HB_Frage(n), std::string());
        QCOMPARE(HB_Antwort(n), std::string());
        QCOMPARE(form->pnlPunkte.at(Nr(n))->caption(), QString());
        QCOMPARE(Grund(form->txtFrage.at(Nr(n))), Systemflaeche());
        QCOMPARE(HBFrageText.at(Nr(n)), std::string());
        QCOMPARE(HBPunkte.at(Nr(n)), std::int16_t(0));
    }
    QCOMPARE(HBFach, std::string());
    QCOMPARE(HBGesamtpunkte, std::int16_t(0));
}

void FrmHBFragenTest::everyControlOfTheFormIsThere() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    for (const char* name :
         {"pnlTitel", "cmdTitel", "pnlFach", "cmdFach", "pnlGruppe", "lblGruppe", "cmdGruppe", "pnlTest",
          "pnlName", "pnlBewertet", "pnlNote", "pnlPunktkontrolle", "pnlGesamtpunkte"}) {
        QVERIFY2(Finden(form, QLatin1String(name))->isVisible(), name);
    }
    for (const char* name : {"cmbTitel", "cmbFach", "cmbGruppe"}) {
        QVERIFY2(!Finden(form, QLatin1String(name))->isVisible(), name);
    }
    for (int n = 1; n <= 10; ++n) {
        for (const char* name : {"pnlNr", "txtFrage", "txtAntwort", "pnlPunkte", "spnPunkte"}) {
            QVERIFY2(Finden(form, QLatin1String(name), n)->isVisible(), name);
        }
    }
    QCOMPARE(form->pnlTest->caption(), QStringLiteral(" Nr. :"));
    QCOMPARE(form->pnlName->caption(), QStringLiteral(" Name :"));
    QCOMPARE(form->pnlBewertet->caption(), QStringLiteral(" Bewertet :"));
    QCOMPARE(form->pnlNote->caption(), QStringLiteral(" Note :"));
}

void FrmHBFragenTest::refusingTheNewFormChangesNothing() {
    Programm programm;
    for (const QString& taste : {QStringLiteral("cmdAntwort(2)"), durchRahmen}) {
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmNachricht"), neuTitel + QLatin1Char(' '), neuFrage, {taste}});
        Druecken(programm, QStringLiteral("cmdNeuHB"));
        QVERIFY(dialoge.fertig());
        QVERIFY(HBFragenOffen() == nullptr);
        QCOMPARE(FormTyp, std::string());
        QVERIFY(Finden(programm.haupt(), QStringLiteral("picKranz"))->isVisible());
    }
}

void FrmHBFragenTest::theMainMenusEntryPutsTheFormerModeBackWhenRefused() {
    Programm programm;
    auto* eintrag = Finden<QAction>(programm.haupt(), QStringLiteral("mDatei(2)"));
    {
        Dialogfolge dialoge;
        dialoge.frage(neuTitel, neuFrage, 2);
        eintrag->trigger();
    }
    QCOMPARE(FormTyp, std::string());
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picKranz"))->isVisible());
    QVERIFY(Finden(programm.haupt(), QStringLiteral("cmdEnde"))->isVisible());
    const frmFKFragen* quiz = programm.NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuFrage, 2);
    eintrag->trigger();
    QCOMPARE(FormTyp, std::string("FK"));
    QCOMPARE(FKFragenOffen(), quiz);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picFK"))->isVisible());
    QVERIFY(Finden(programm.haupt(), QStringLiteral("pnlFKFelder"))->isVisible());
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("picHB"))->isVisible());
}

void FrmHBFragenTest::theMainMenusEntryMakesANewForm() {
    Programm programm;
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuFrage, 6);
    Finden<QAction>(programm.haupt(), QStringLiteral("mDatei(2)"))->trigger();
    QVERIFY(HBFragenOffen() != nullptr);
    QCOMPARE(FormTyp, std::string("Test"));
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picHB"))->isVisible());
}

void FrmHBFragenTest::aNewFormAsksAboutUnsavedChanges() {
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
    QCOMPARE(FormGeaendert, std::int16_t(0));
}

void FrmHBFragenTest::aNewTestFormTakesThePlaceOfAQuizForm() {
    Programm programm;
    programm.NeuesQuizformular();
    ModusHaupt(); // as the back button leaves it while another window is in front
    programm.NeuesTestformular();
    QVERIFY(FKFragenOffen() == nullptr);
    QCOMPARE(FormTyp, std::string("Test"));
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("cmdFKFLaden"))->isEnabled());
    QCOMPARE(Finden<QMdiArea>(programm.haupt(), QStringLiteral("kindflaeche"))->subWindowList().size(), 1);
}

void FrmHBFragenTest::aNewQuizFormTakesThePlaceOfATestForm() {
    Programm programm;
    programm.NeuesTestformular();
    ModusHaupt();
    programm.NeuesQuizformular();
    QVERIFY(HBFragenOffen() == nullptr);
    QCOMPARE(FormTyp, std::string("FK"));
    QVERIFY(!Finden(programm.haupt(), QStringLiteral("cmdHBFLaden"))->isEnabled());
}

void FrmHBFragenTest::aTestFormSwapsTheToolbarAndEnablesItsCommands() {
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

void FrmHBFragenTest::theListsOfTheHeadHaveTheirEntries() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    const auto eintraege = [](const QComboBox* liste) {
        QStringList texte;
        for (int i = 0; i < liste->count(); ++i) {
            texte << liste->itemText(i);
        }
        return texte;
    };
    QCOMPARE(eintraege(form->titel.liste),
             QStringList({QStringLiteral("TEST Häuptlingsfreizeit"), QStringLiteral("TEST Häuptlingsprüfung"),
                          QStringLiteral("Lernzielkontrolle Häuptlingsfreizeit"),
                          QStringLiteral("Späherprüfung")}));
    QCOMPARE(eintraege(form->gruppe.liste), QStringList({QStringLiteral("I"), QStringLiteral("II"),
                                                         QStringLiteral("III"), QStringLiteral("IV")}));
    QCOMPARE(form->fach.liste->count(), 20);
    QCOMPARE(form->fach.liste->itemText(0), QStringLiteral("Andacht"));
    QVERIFY(form->fach.liste->findText(QStringLiteral("Knoten")) > 0);
}

void FrmHBFragenTest::choosingAGroupShowsItBehindOneBlank() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    KopfWaehlen(form->gruppe, QStringLiteral("II"), true);
    QCOMPARE(form->lblGruppe->text(), QStringLiteral(" II"));
    QCOMPARE(form->gruppe.panel->caption(), QStringLiteral(" Gruppe :"));
    QCOMPARE(FormGeaendert, std::int16_t(1));
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible());
    KopfWaehlen(form->gruppe, QStringLiteral("IV"), false);
    QCOMPARE(form->lblGruppe->text(), QStringLiteral(" IV"));
}

void FrmHBFragenTest::choosingTitleAndSubject() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    for (const bool mitTaste : {true, false}) {
        FormStatusSetzen(0);
        KopfWaehlen(form->titel, QStringLiteral("Späherprüfung"), mitTaste);
        QCOMPARE(form->titel.panel->caption(), QStringLiteral(" Späherprüfung"));
        QCOMPARE(FormGeaendert, std::int16_t(1));
        FormStatusSetzen(0);
        KopfWaehlen(form->fach, QStringLiteral("Knoten"), mitTaste);
        QCOMPARE(form->fach.panel->caption(), QStringLiteral(" Knoten"));
        QCOMPARE(FormGeaendert, std::int16_t(1));
    }
    HB_Merken();
    QCOMPARE(HBFach, std::string(" Knoten"));
}

void FrmHBFragenTest::aListLeftWithoutAChoiceGivesWayToItsPanel() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    QTest::mouseClick(form->fach.taste, Qt::LeftButton);
    QTRY_VERIFY(form->fach.liste->view()->isVisible());
    form->fach.liste->hidePopup();
    QTest::keyClick(form->fach.liste, Qt::Key_Escape);
    QTRY_VERIFY(form->fach.panel->isVisible());
    QVERIFY(!form->fach.liste->isVisible());
    QTest::mouseClick(form->titel.taste, Qt::LeftButton);
    QTRY_VERIFY(form->titel.liste->view()->isVisible());
    form->titel.liste->hidePopup();
    form->txtFrage.at(1)->setFocus();
    QTRY_VERIFY(form->titel.panel->isVisible());
    QVERIFY(!form->titel.liste->isVisible());
    QCOMPARE(FormGeaendert, std::int16_t(0));
}

void FrmHBFragenTest::typingPaintsTheRowAndMarksTheForm() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Textfeld* frage = form->txtFrage.at(4);
    Textfeld* antwort = form->txtAntwort.at(4);
    antwort->setFocus();
    QTRY_VERIFY(antwort->hasFocus());
    QTest::keyClicks(antwort, QStringLiteral("Ja"));
    QCOMPARE(FormGeaendert, std::int16_t(1));
    QCOMPARE(Grund(antwort), Systemflaeche()); // the question decides
    FormStatusSetzen(0);
    frage->setFocus();
    QTRY_VERIFY(frage->hasFocus());
    QTest::keyClicks(frage, QStringLiteral("W"));
    QCOMPARE(FormGeaendert, std::int16_t(1));
    QCOMPARE(Grund(frage), QColor(Qt::white));
    QCOMPARE(Grund(antwort), QColor(Qt::white));
    QTest::keyClick(frage, Qt::Key_Backspace);
    QCOMPARE(Grund(frage), Systemflaeche());
    QCOMPARE(Grund(antwort), Systemflaeche());
}

void FrmHBFragenTest::typedTextReachesTheArraysOnlyWithTheMerge() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->txtFrage.at(2)->setFocus();
    QTRY_VERIFY(form->txtFrage.at(2)->hasFocus());
    QTest::keyClicks(form->txtFrage.at(2), QStringLiteral("Wozu?"));
    form->txtAntwort.at(5)->setFocus();
    QTRY_VERIFY(form->txtAntwort.at(5)->hasFocus());
    QCOMPARE(AktuellesFeld, std::int16_t(2));
    QCOMPARE(form->HBAlterText, std::string("Wozu?"));
    QCOMPARE(HBFrageText.at(2), std::string());
    form->txtFrage.at(1)->setFocus();
    QTRY_COMPARE(AktuellesFeld, std::int16_t(5));
    HB_Merken();
    QCOMPARE(HBFrageText.at(2), std::string("Wozu?"));
}

void FrmHBFragenTest::takingTheFocusSelectsTheText() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Fuellen(form, 3, "alles", "markiert");
    for (Textfeld* feld : {form->txtFrage.at(3), form->txtAntwort.at(3)}) {
        feld->setFocus();
        QTRY_COMPARE(feld->textCursor().selectedText(), feld->toPlainText());
    }
}

void FrmHBFragenTest::aRowAt20BeginsAgainAt0() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Drehen(form, 1, "hoch", 3);
    Drehen(form, 2, "hoch", 20);
    QCOMPARE(form->pnlPunkte.at(2)->caption(), QStringLiteral("20"));
    QCOMPARE(Summenfeld(programm), QStringLiteral("23"));
    Drehen(form, 2, "hoch");
    QCOMPARE(form->pnlPunkte.at(2)->caption(), QStringLiteral("0"));
    QCOMPARE(HBPunkte.at(2), std::int16_t(0));
    QCOMPARE(Summenfeld(programm), QStringLiteral("3"));
    QCOMPARE(HBGesamtpunkte, std::int16_t(3));
}

void FrmHBFragenTest::aRowAt0GoesDownTo20() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Drehen(form, 7, "runter");
    QCOMPARE(form->pnlPunkte.at(7)->caption(), QStringLiteral("20"));
    QCOMPARE(HBPunkte.at(7), std::int16_t(20));
    Drehen(form, 7, "runter");
    QCOMPARE(form->pnlPunkte.at(7)->caption(), QStringLiteral("19"));
    QCOMPARE(FormGeaendert, std::int16_t(1));
}

void FrmHBFragenTest::afterBlankingAllPointsOneStepMakesATotalOf1() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    for (int n = 1; n <= 10; ++n) {
        Drehen(form, n, "hoch", 2);
    }
    HB_PunkteLoeschen();
    QCOMPARE(form->pnlPunktkontrolle->caption(), QStringLiteral(" Gesamtpunkte : 20")); // still
    Drehen(form, 3, "hoch");
    for (int n = 1; n <= 10; ++n) {
        QCOMPARE(form->pnlPunkte.at(Nr(n))->caption(), n == 3 ? QStringLiteral("1") : QString());
    }
    QCOMPARE(form->pnlPunktkontrolle->caption(), QStringLiteral(" Gesamtpunkte : 1"));
    QCOMPARE(HBGesamtpunkte, std::int16_t(1));
}

void FrmHBFragenTest::tenRowsAt20Make200InAllThreePlaces() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    for (int n = 1; n <= 10; ++n) {
        Drehen(form, n, "runter");
    }
    QCOMPARE(form->pnlPunktkontrolle->caption(), QStringLiteral(" Gesamtpunkte : 200"));
    QCOMPARE(form->pnlGesamtpunkte->caption(), QStringLiteral(" Punkte :           / 200"));
    QCOMPARE(Summenfeld(programm), QStringLiteral("200"));
}

void FrmHBFragenTest::theArrowKeysStepAsWell() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->spnPunkte.at(1)->setFocus();
    QTRY_VERIFY(form->spnPunkte.at(1)->hasFocus());
    maus::Taste(QStringLiteral("Up"));
    maus::Taste(QStringLiteral("Up"));
    maus::Taste(QStringLiteral("Down"));
    QTRY_COMPARE(form->pnlPunkte.at(1)->caption(), QStringLiteral("1"));
}

void FrmHBFragenTest::closingAChangedFormAsksAndAbbrechenKeepsIt() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->txtFrage.at(1)->setText("offen");
    Dialogfolge dialoge;
    dialoge.frage(neuTitel, neuSpeichernFrage, 2);
    Druecken(programm, QStringLiteral("cmdDateiHB(5)"));
    QCOMPARE(HBFragenOffen(), form);
    QCOMPARE(FormGeaendert, std::int16_t(1));
    dialoge.frage(neuTitel, neuSpeichernFrage, 7);
    Druecken(programm, QStringLiteral("cmdDateiHB(5)"));
    QVERIFY(HBFragenOffen() == nullptr);
    QCOMPARE(FormTyp, std::string());
    QCOMPARE(FormGeaendert, std::int16_t(0));
}

void FrmHBFragenTest::closingAnUnchangedFormAsksNothing() {
    Programm programm;
    programm.NeuesTestformular();
    Dialogfolge dialoge;
    Druecken(programm, QStringLiteral("cmdDateiHB(5)"));
    QVERIFY(HBFragenOffen() == nullptr);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picHB"))->isVisible()); // the toolbar stays
}

void FrmHBFragenTest::theClosingButtonSpeaksOfTheQuizForm() {
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

void FrmHBFragenTest::neinOnTheClosingButtonClosesWithoutSaving() {
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

void FrmHBFragenTest::theBackButtonClosesAndReturnsToTheMainToolbar() {
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

void FrmHBFragenTest::theBackButtonWithAnotherWindowInFrontOnlySwapsTheToolbar() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->txtFrage.at(1)->setText("bleibt");
    auto* anderes = new QWidget;
    anderes->setProperty("tag", QStringLiteral("Editor"));
    KindfensterAufnehmen(anderes);
    anderes->show();
    KindNachVorn("Editor");
    QTRY_COMPARE(AktivesKind(), std::string("Editor"));
    Dialogfolge dialoge;
    Druecken(programm, QStringLiteral("cmdHBZurueck"));
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picKranz"))->isVisible());
    QCOMPARE(HBFragenOffen(), form);
    QCOMPARE(HB_Frage(1), std::string("bleibt"));
}

void FrmHBFragenTest::theFormBringsItsOwnMenus() {
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

void FrmHBFragenTest::theBackupSwitchOfTheMenuIsTheOption() {
    Programm programm;
    programm.NeuesTestformular();
    OptionDatei = 0;
    auto* eintrag = Finden<QAction>(programm.haupt(), QStringLiteral("mBackUpHB"));
    auto* menue = Finden<QMenu>(programm.haupt(), QStringLiteral("mOptionen"));
    Q_EMIT menue->aboutToShow();
    QVERIFY(!eintrag->isChecked());
    eintrag->trigger();
    QCOMPARE(OptionDatei, std::int16_t(1));
    QVERIFY(eintrag->isChecked());
    eintrag->trigger();
    QCOMPARE(OptionDatei, std::int16_t(0));
    OptionDatei = 1; // by another switch
    Q_EMIT menue->aboutToShow();
    QVERIFY(eintrag->isChecked());
}

void FrmHBFragenTest::theHelpEntryHasItsOwnNumber() {
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

void FrmHBFragenTest::theWindowFitsTheScreen_data() {
    QTest::addColumn<QSize>("schirm");
    QTest::newRow("small") << QSize(1024, 768);
    QTest::newRow("large") << QSize(1280, 1024);
}

// What stands above and below the child area takes 135 pixels at most, the window's own frame 34.
void FrmHBFragenTest::theWindowFitsTheScreen() {
    QFETCH(QSize, schirm);
    Programm programm;
    BildschirmgroesseVorgeben(schirm);
    frmHBFragen* form = programm.NeuesTestformular();
    QVERIFY2(form->width() <= schirm.width() - 20, qPrintable(QString::number(form->width())));
    QVERIFY2(form->height() <= schirm.height() - 135, qPrintable(QString::number(form->height())));
    for (const QWidget* teil : form->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        QVERIFY2(form->rect().contains(teil->geometry()), qPrintable(teil->objectName()));
    }
    for (const Panel* panel : form->findChildren<Panel*>()) {
        QVERIFY2(panel->fontMetrics().horizontalAdvance(panel->caption()) <= panel->width() - 4,
                 qPrintable(panel->objectName()));
    }
    for (int n = 1; n <= 4; ++n) {
        Fuellen(form, n, "Wie heißt der Knoten, mit dem man zwei gleich starke Taue verbindet?",
                "Kreuzknoten");
        Drehen(form, n, "hoch", n);
    }
    BildVon(programm.haupt(), QStringLiteral("testformular-%1").arg(schirm.width()));
}

void FrmHBFragenTest::tabFollowsTheEye() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->titel.taste->setFocus();
    QTRY_VERIFY(form->titel.taste->hasFocus());
    QStringList folge;
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        folge << QApplication::focusWidget()->objectName();
    }
    QCOMPARE(folge, QStringList({QStringLiteral("cmdFach"), QStringLiteral("cmdGruppe"),
                                 QStringLiteral("txtFrage(1)"), QStringLiteral("txtAntwort(1)"),
                                 QStringLiteral("spnPunkte(1)"), QStringLiteral("txtFrage(2)"),
                                 QStringLiteral("txtAntwort(2)"), QStringLiteral("spnPunkte(2)")}));
}

QTEST_MAIN(FrmHBFragenTest)
#include "frmHBFragen_test.moc"
