// The window of the test form: what a new one holds, the head, typing, points and totals, its layout.
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/bild.h"
#include "tests/testform/testhilfe.h"

class FrmHBFragenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewFormStartsEmpty();
    void everyControlOfTheFormIsThere();
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
    void theBackgroundIsTheColourOfTheSettings();
    void theWindowFitsTheScreen_data();
    void theWindowFitsTheScreen();
    void tabFollowsTheEye();
};

void FrmHBFragenTest::aNewFormStartsEmpty() {
    Programm programm;
    HBForm.HBFrageText.fill("alt");
    HBForm.HBPunkte.fill(9);
    HBForm.HBFach = " alt";
    HBForm.HBGesamtpunkte = 90;
    const frmHBFragen* form = programm.NeuesTestformular();
    QCOMPARE(form->windowTitle(), QStringLiteral(" Neues Testformular"));
    QCOMPARE(Stand.FormTyp, Formart::Test);
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(Stand.HBDateiName, std::string());
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
        QCOMPARE(HBForm.HBFrageText.at(Nr(n)), std::string());
        QCOMPARE(HBForm.HBPunkte.at(Nr(n)), std::int16_t(0));
    }
    QCOMPARE(HBForm.HBFach, std::string());
    QCOMPARE(HBForm.HBGesamtpunkte, std::int16_t(0));
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
    QVERIFY(Stand.FormGeaendert);
    QVERIFY(Finden(programm.haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible());
    KopfWaehlen(form->gruppe, QStringLiteral("IV"), false);
    QCOMPARE(form->lblGruppe->text(), QStringLiteral(" IV"));
}

void FrmHBFragenTest::choosingTitleAndSubject() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    for (const bool mitTaste : {true, false}) {
        form->titel.panel->setCaption(QString());
        form->fach.panel->setCaption(QString());
        FormStatusSetzen(false);
        KopfWaehlen(form->titel, QStringLiteral("Späherprüfung"), mitTaste);
        QCOMPARE(form->titel.panel->caption(), QStringLiteral(" Späherprüfung"));
        QVERIFY(Stand.FormGeaendert);
        FormStatusSetzen(false);
        KopfWaehlen(form->fach, QStringLiteral("Knoten"), mitTaste);
        QCOMPARE(form->fach.panel->caption(), QStringLiteral(" Knoten"));
        QVERIFY(Stand.FormGeaendert);
    }
    HB_Merken();
    QCOMPARE(HBForm.HBFach, std::string(" Knoten"));
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
    QVERIFY(!Stand.FormGeaendert);
}

void FrmHBFragenTest::typingPaintsTheRowAndMarksTheForm() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Textfeld* frage = form->txtFrage.at(4);
    Textfeld* antwort = form->txtAntwort.at(4);
    antwort->setFocus();
    QTRY_VERIFY(antwort->hasFocus());
    QTest::keyClicks(antwort, QStringLiteral("Ja"));
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(Grund(antwort), Systemflaeche()); // the question decides
    FormStatusSetzen(false);
    frage->setFocus();
    QTRY_VERIFY(frage->hasFocus());
    QTest::keyClicks(frage, QStringLiteral("W"));
    QVERIFY(Stand.FormGeaendert);
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
    QCOMPARE(form->HBAlterText, std::string("Wozu?"));
    QCOMPARE(HBForm.HBFrageText.at(2), std::string());
    form->txtFrage.at(1)->setFocus();
    QTRY_COMPARE(form->HBAlterText, form->txtAntwort.at(5)->text());
    HB_Merken();
    QCOMPARE(HBForm.HBFrageText.at(2), std::string("Wozu?"));
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
    QCOMPARE(HBForm.HBPunkte.at(2), std::int16_t(0));
    QCOMPARE(Summenfeld(programm), QStringLiteral("3"));
    QCOMPARE(HBForm.HBGesamtpunkte, std::int16_t(3));
}

void FrmHBFragenTest::aRowAt0GoesDownTo20() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Drehen(form, 7, "runter");
    QCOMPARE(form->pnlPunkte.at(7)->caption(), QStringLiteral("20"));
    QCOMPARE(HBForm.HBPunkte.at(7), std::int16_t(20));
    Drehen(form, 7, "runter");
    QCOMPARE(form->pnlPunkte.at(7)->caption(), QStringLiteral("19"));
    QVERIFY(Stand.FormGeaendert);
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
    QCOMPARE(HBForm.HBGesamtpunkte, std::int16_t(1));
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

void FrmHBFragenTest::theBackgroundIsTheColourOfTheSettings() {
    struct Zeile {
        std::int16_t nummer = 0;
        QColor farbe;
    };
    for (const auto& [nummer, farbe] :
         {Zeile{7, {188, 184, 176}}, Zeile{0, {188, 184, 176}}, Zeile{4, {128, 0, 0}},
          Zeile{8, {128, 128, 128}}, Zeile{15, {255, 255, 255}}}) {
        Programm programm;
        Spiel.FarbeHintergrund = nummer;
        const frmHBFragen* form = programm.NeuesTestformular();
        QCOMPARE(form->palette().color(QPalette::Window), farbe);
        QCOMPARE(Spiel.FarbeHintergrund, nummer == 0 ? std::int16_t(7) : nummer);
    }
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
