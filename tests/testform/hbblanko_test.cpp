// Blanking questions, answers and points of the test form and putting them back.
#include "tests/testform/testhilfe.h"

#include <QAction>

namespace {

const QString wiederEinfuegen = QStringLiteral("\n(Ich kann sie später wieder problemlos einfügen.)");

struct Inhalt {
    const char* loeschen;
    const char* laden;
    const char* eintrag;
    QString titel;
    QString frage;
};

const std::array<Inhalt, 3> inhalte{
    {{"cmdHBFLoeschen", "cmdHBFLaden", "mHBFragen", QStringLiteral("Fragen löschen"),
      QStringLiteral("Soll ich die Fragen aus dem Formular löschen ?")},
     {"cmdHBALoeschen", "cmdHBALaden", "mHBAntworten", QStringLiteral("Antworten löschen"),
      QStringLiteral("Soll ich die Antworten aus dem Formular löschen ?")},
     {"cmdHBPLoeschen", "cmdHBPLaden", "mHBPunkte", QStringLiteral("Punkte löschen"),
      QStringLiteral("Soll ich die Punkte aus dem Formular löschen ?")}}};

frmHBFragen* Gefuellt(Programm& programm) {
    frmHBFragen* form = programm.NeuesTestformular();
    Fuellen(form, 1, "Frage eins", "Antwort eins");
    Fuellen(form, 10, "Frage zehn", "Antwort zehn");
    Drehen(form, 1, "hoch", 5);
    FormStatusSetzen(false);
    return form;
}

// What rows 1 and 10 show: question, answer, points.
QStringList Gezeigt(const frmHBFragen* form) {
    QStringList texte;
    for (const int n : {1, 10}) {
        texte << Anzeige(HB_Frage(n)) << Anzeige(HB_Antwort(n)) << form->pnlPunkte.at(Nr(n))->caption();
    }
    return texte;
}

QStringList Ohne(QStringList texte, int spalte) {
    texte[spalte].clear();
    texte[spalte + 3].clear();
    return texte;
}

} // namespace

class HbBlankoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachContentIsBlankedAndPutBackByItsButtons();
    void eachContentIsBlankedAndPutBackByItsMenuEntries();
    void abbrechenAndTheFrameBlankNothing();
    void aMergeAfterTheBlankingLosesTheStoredTexts();
    void typedTextThatWasNeverMergedDoesntComeBack();
    void restoringPointsOfAFormWithoutAnyShows0InAllTenRows();
    void theTotalsStayAsTheyStand();
    void blankedQuestionsTurnTheRowGrey();
    void aSecondBlankingAsksAgainAndChangesNothing();
};

void HbBlankoTest::eachContentIsBlankedAndPutBackByItsButtons() {
    Programm programm;
    const frmHBFragen* form = Gefuellt(programm);
    HB_PunkteEinfuegen(); // row 10 shows its 0
    const QStringList vorher = Gezeigt(form);
    for (int spalte = 0; spalte < 3; ++spalte) {
        const Inhalt& inhalt = inhalte.at(Nr(spalte));
        FormStatusSetzen(false);
        Dialogfolge dialoge;
        dialoge.frage(inhalt.titel, inhalt.frage + wiederEinfuegen, 6);
        Druecken(programm, QLatin1String(inhalt.loeschen));
        QCOMPARE(Gezeigt(form), Ohne(vorher, spalte));
        QVERIFY(Stand.FormGeaendert); // it isn't what was saved
        QCOMPARE(HBForm.HBFrageText.at(1), std::string("Frage eins"));
        QCOMPARE(HBForm.HBAntwortText.at(10), std::string("Antwort zehn"));
        QCOMPARE(HBForm.HBPunkte.at(1), std::int16_t(5));
        Druecken(programm, QLatin1String(inhalt.laden));
        QCOMPARE(Gezeigt(form), vorher);
        Druecken(programm, QLatin1String(inhalt.laden));
        QCOMPARE(Gezeigt(form), vorher);
    }
}

void HbBlankoTest::eachContentIsBlankedAndPutBackByItsMenuEntries() {
    Programm programm;
    const frmHBFragen* form = Gefuellt(programm);
    HB_PunkteEinfuegen();
    const QStringList vorher = Gezeigt(form);
    for (int spalte = 0; spalte < 3; ++spalte) {
        const Inhalt& inhalt = inhalte.at(Nr(spalte));
        Dialogfolge dialoge;
        dialoge.frage(inhalt.titel, inhalt.frage + wiederEinfuegen, 6);
        Finden<QAction>(programm.haupt(), QStringLiteral("%1(1)").arg(QLatin1String(inhalt.eintrag)))
            ->trigger();
        QCOMPARE(Gezeigt(form), Ohne(vorher, spalte));
        Finden<QAction>(programm.haupt(), QStringLiteral("%1(2)").arg(QLatin1String(inhalt.eintrag)))
            ->trigger();
        QCOMPARE(Gezeigt(form), vorher);
    }
}

void HbBlankoTest::abbrechenAndTheFrameBlankNothing() {
    Programm programm;
    const frmHBFragen* form = Gefuellt(programm);
    const QStringList vorher = Gezeigt(form);
    for (const Inhalt& inhalt : inhalte) {
        for (const QString& taste : {QStringLiteral("cmdAntwort(2)"), durchRahmen}) {
            Dialogfolge dialoge;
            dialoge.erwarte({QStringLiteral("frmNachricht"), {}, inhalt.frage + wiederEinfuegen, {taste}});
            Druecken(programm, QLatin1String(inhalt.loeschen));
            QVERIFY(dialoge.fertig());
            QCOMPARE(Gezeigt(form), vorher);
        }
    }
    QVERIFY(!Stand.FormGeaendert);
}

void HbBlankoTest::aMergeAfterTheBlankingLosesTheStoredTexts() {
    Programm programm;
    Gefuellt(programm);
    HB_FragenLoeschen();
    HB_Merken();
    HB_FragenEinfuegen();
    QCOMPARE(HB_Frage(1), std::string());
    QCOMPARE(HB_Antwort(1), std::string("Antwort eins"));
}

void HbBlankoTest::typedTextThatWasNeverMergedDoesntComeBack() {
    Programm programm;
    frmHBFragen* form = Gefuellt(programm);
    for (Textfeld* feld : {form->txtFrage.at(4), form->txtAntwort.at(10)}) {
        feld->setFocus();
        QTRY_VERIFY(feld->hasFocus());
        QTest::keyClicks(feld, QStringLiteral("getippt"));
    }
    form->txtFrage.at(1)->setFocus(); // leaving a box merges nothing
    QCOMPARE(HB_Frage(4), std::string("getippt"));
    for (const std::size_t spalte : {std::size_t(0), std::size_t(1)}) {
        Dialogfolge dialoge;
        dialoge.frage(inhalte.at(spalte).titel, inhalte.at(spalte).frage + wiederEinfuegen, 6);
        Druecken(programm, QLatin1String(inhalte.at(spalte).loeschen));
        Druecken(programm, QLatin1String(inhalte.at(spalte).laden));
    }
    QCOMPARE(HB_Frage(4), std::string());
    QCOMPARE(HB_Antwort(10), std::string("Antwort zehn"));
    QCOMPARE(HB_Frage(1), std::string("Frage eins"));
}

void HbBlankoTest::restoringPointsOfAFormWithoutAnyShows0InAllTenRows() {
    Programm programm;
    const frmHBFragen* form = programm.NeuesTestformular();
    Dialogfolge dialoge;
    dialoge.frage(inhalte[2].titel, inhalte[2].frage + wiederEinfuegen, 6);
    Druecken(programm, QStringLiteral("cmdHBPLoeschen"));
    Druecken(programm, QStringLiteral("cmdHBPLaden"));
    for (int n = 1; n <= 10; ++n) {
        QCOMPARE(form->pnlPunkte.at(Nr(n))->caption(), QStringLiteral("0"));
    }
}

void HbBlankoTest::theTotalsStayAsTheyStand() {
    Programm programm;
    const frmHBFragen* form = Gefuellt(programm);
    HB_PunkteLoeschen();
    QCOMPARE(form->pnlPunktkontrolle->caption(), QStringLiteral(" Gesamtpunkte : 5"));
    QCOMPARE(Summenfeld(programm), QStringLiteral("5"));
    HB_PunkteEinfuegen();
    QCOMPARE(form->pnlGesamtpunkte->caption(), QStringLiteral(" Punkte :           / 5"));
}

void HbBlankoTest::blankedQuestionsTurnTheRowGrey() {
    Programm programm;
    const frmHBFragen* form = Gefuellt(programm);
    QCOMPARE(Grund(form->txtAntwort.at(10)), QColor(Qt::white));
    HB_FragenLoeschen();
    QCOMPARE(Grund(form->txtFrage.at(10)), Systemflaeche());
    QCOMPARE(Grund(form->txtAntwort.at(10)), Systemflaeche());
    HB_FragenEinfuegen();
    QCOMPARE(Grund(form->txtFrage.at(10)), QColor(Qt::white));
}

void HbBlankoTest::aSecondBlankingAsksAgainAndChangesNothing() {
    Programm programm;
    const frmHBFragen* form = Gefuellt(programm);
    HB_FragenLoeschen();
    const QStringList vorher = Gezeigt(form);
    Dialogfolge dialoge;
    dialoge.frage(inhalte[0].titel, inhalte[0].frage + wiederEinfuegen, 6);
    Druecken(programm, QStringLiteral("cmdHBFLoeschen"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(Gezeigt(form), vorher);
    HB_FragenEinfuegen();
    QCOMPARE(HB_Frage(1), std::string("Frage eins"));
}

QTEST_MAIN(HbBlankoTest)
#include "hbblanko_test.moc"
