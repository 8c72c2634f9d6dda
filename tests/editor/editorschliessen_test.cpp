// Which file is the editor's own, and the questions before its text goes.
#include "quizform/frmFKFragen.h"
#include "tests/editor/editorlauf.h"

#include <QLabel>
#include <QMdiSubWindow>

class EditorschliessenTest : public Editortest {
    Q_OBJECT

private Q_SLOTS:
    void init() { Anfangen(); }
    void cleanup() { Aufraeumen(); }
    void cleanupTestCase() { lauf.Beenden(); }

    // --- The editor's own file ---
    void theEditorSavesToItsOwnFileWhateverWasChosenSince();
    void filesThatDifferInCaseOnlyStayApart();
    void aFormsFileIsNeverTakenForTheEditors();
    void aFormAndTheEditorSaveEachToItsOwnFile();
    void theFormsDialogStartsWhereTheFormsWere();
    void aClosedEditorForgetsItsFile();

    // --- Leaving ---
    void endeWithUnchangedTextAsksNothing();
    void endeWithAbbrechenKeepsTheWindowAndTheText();
    void endeWithNeinSaysSoAndGoes();
    void endeWithJaSavesAndGoes();
    void aSaveThatDidNotComeAboutKeepsTheWindow();
    void theFramesCloseBoxAsksTheSame();
    void theEndOfTheProgramAsksAboutTheText();
    void theMainWindowsFrameAsksAboutTheText();
    void aFormThatStaysKeepsTheTextThatWasLetGo();
};

// --- The editor's own file ---

void EditorschliessenTest::theEditorSavesToItsOwnFileWhateverWasChosenSince() {
    Geladen();
    lauf.programm().ordner().schreiben(QStringLiteral("KRANZ/FREMD.FKR"), "fremd");
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\FREMD.FKR"; // as an opened form leaves it
    Tippen(editor, QStringLiteral("x"));
    Sichern(editor, QStringLiteral("KN.TXT"));
    QCOMPARE(lauf.programm().ordner().lesen(QStringLiteral("KRANZ/FREMD.FKR")), QByteArray("fremd"));
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).contains("x1"));
}

void EditorschliessenTest::filesThatDifferInCaseOnlyStayApart() {
    lauf.Schreiben(QStringLiteral("kn.txt"), "klein\r\nk\r\n");
    lauf.Schreiben(QStringLiteral("KN.TXT"), QByteArray("zu\0", 3));
    if (lauf.Lesen(QStringLiteral("kn.txt")) != "klein\r\nk\r\n") {
        QSKIP("this file system takes both for one");
    }
    Laden(editor, QStringLiteral("kn.txt"));
    QCOMPARE(Text(editor), QStringLiteral("k\n"));
    Dialogfolge dialoge; // the other one is chosen since, under the same name in capitals, and refused
    DateidialogErwarten(dialoge, titelOeffnen, QStringLiteral("KN.TXT"), laden);
    dialoge.meldung(QStringLiteral("Evtl. keine Textdatei !\n[ KN.TXT ]"), QStringLiteral("Grrr"));
    Druecken(editor, cmdDatei1);
    Tippen(editor, QStringLiteral("x"));
    Sichern(editor, QStringLiteral("KN.TXT"));
    QCOMPARE(lauf.Lesen(QStringLiteral("kn.txt")), QByteArray("klein\r\nxk\r\n\r\n"));
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), QByteArray("zu\0", 3));
}

void EditorschliessenTest::aFormsFileIsNeverTakenForTheEditors() {
    EditorEntladen();
    lauf.programm().ordner().schreiben(QStringLiteral("KRANZ/FORM.FKR"), "ein Formular");
    Stand.FKDateiName = Stand.AppPfad + "\\KRANZ\\FORM.FKR"; // as an opened form leaves it
    editor = lauf.Oeffnen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QString(), abbrechen);
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.programm().ordner().lesen(QStringLiteral("KRANZ/FORM.FKR")), QByteArray("ein Formular"));
}

void EditorschliessenTest::aFormAndTheEditorSaveEachToItsOwnFile() {
    frmFKFragen* form = lauf.programm().NeuesQuizformular();
    const auto formSichern = [&](const QString& text, bool erstes) {
        form->txtFrage.at(1)->setText(text.toStdString());
        Dialogfolge dialoge;
        if (erstes) {
            DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("F.FKR"), speichern);
        }
        dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ F.FKR ]"), QStringLiteral("Schön"));
        QTest::mouseClick(Finden(lauf.haupt(), QStringLiteral("cmdDateiFK(3)")), Qt::LeftButton);
    };
    const auto formdatei = [this] { return lauf.programm().ordner().lesen(QStringLiteral("KRANZ/F.FKR")); };
    formSichern(QStringLiteral("Eins"), true);
    QVERIFY(formdatei().contains("\"Eins\""));
    QCOMPARE(lauf.Oeffnen(), editor);
    Geladen();
    Tippen(editor, QStringLiteral("x"));
    Sichern(editor, QStringLiteral("KN.TXT"));
    formSichern(QStringLiteral("Zwei"), false);
    QVERIFY(formdatei().contains("\"Zwei\""));
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).startsWith("Knoten\r\nx1\r\n"));
    QCOMPARE(lauf.Oeffnen(), editor);
    Tippen(editor, QStringLiteral("y"));
    Sichern(editor, QStringLiteral("KN.TXT"));
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).startsWith("Knoten\r\nxy1\r\n"));
    QVERIFY(formdatei().contains("\"Zwei\""));
}

void EditorschliessenTest::theFormsDialogStartsWhereTheFormsWere() {
    const auto ordnerBeimOeffnen = [this] {
        QString ordner;
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmDatei"), {}, {}, {abbrechen}, [&ordner](QDialog& dialog) {
                             ordner = Finden<QLabel>(&dialog, QStringLiteral("lblDir"))->text();
                         }});
        dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
        QTest::mouseClick(Finden(lauf.haupt(), laden), Qt::LeftButton);
        return ordner;
    };
    const QString vorher = ordnerBeimOeffnen();
    Geladen();
    QCOMPARE(ordnerBeimOeffnen(), vorher);
    QVERIFY(!vorher.contains(QLatin1String("WISSEN")));
}

void EditorschliessenTest::aClosedEditorForgetsItsFile() {
    Geladen();
    RahmenSchliessen(editor);
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) == nullptr);
    editor = lauf.Oeffnen();
    QCOMPARE(Text(editor), QString());
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QString(), abbrechen);
    Druecken(editor, cmdDatei0); // never over the old file, unasked
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten);
}

// --- Leaving ---

void EditorschliessenTest::endeWithUnchangedTextAsksNothing() {
    Geladen();
    const Dialogfolge dialoge;
    Druecken(editor, QStringLiteral("cmdEnde"));
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) == nullptr);
}

void EditorschliessenTest::endeWithAbbrechenKeepsTheWindowAndTheText() {
    Geladen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 2);
    Druecken(editor, QStringLiteral("cmdEnde"));
    QVERIFY(dialoge.fertig());
    QVERIFY(editor->isVisible());
    Unveraendert(QStringLiteral("x") + knotenText, QStringLiteral("KN.TXT "));
}

void EditorschliessenTest::endeWithNeinSaysSoAndGoes() {
    Geladen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 7);
    dialoge.meldung(QStringLiteral("Text nicht gespeichert !"), QStringLiteral("Damit kann ich leben"));
    Druecken(editor, QStringLiteral("cmdEnde"));
    QVERIFY(dialoge.fertig());
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) == nullptr);
    QVERIFY(!Stand.EditorGeaendert);
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten);
}

void EditorschliessenTest::endeWithJaSavesAndGoes() {
    Geladen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 6);
    GespeichertErwarten(dialoge, QStringLiteral("KN.TXT"));
    maus::Klicken(Taste(editor, QStringLiteral("cmdEnde")));
    QTRY_VERIFY(dialoge.fertig());
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) == nullptr);
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).contains("x1"));
}

void EditorschliessenTest::aSaveThatDidNotComeAboutKeepsTheWindow() {
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 6);
    DateidialogErwarten(dialoge, titelSpeichernUnter, QString(), abbrechen);
    Druecken(editor, QStringLiteral("cmdEnde"));
    SpeichernFrageErwarten(dialoge, 6);
    DateidialogErwarten(dialoge, titelSpeichernUnter, QString(300, QLatin1Char('n')), speichern);
    FehlerErwarten(dialoge, QStringLiteral("Dateiname !?"));
    Druecken(editor, QStringLiteral("cmdEnde"));
    QVERIFY(dialoge.fertig());
    QVERIFY(editor->isVisible());
    Unveraendert(QStringLiteral("x"), QStringLiteral(" "));
}

void EditorschliessenTest::theFramesCloseBoxAsksTheSame() {
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 2);
    RahmenSchliessen(editor);
    QVERIFY(editor->isVisible());
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}}); // counts as Abbrechen
    RahmenSchliessen(editor);
    QVERIFY(dialoge.fertig());
    Unveraendert(QStringLiteral("x"), QStringLiteral(" "));
}

void EditorschliessenTest::theEndOfTheProgramAsksAboutTheText() {
    Geladen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 2);
    ProgrammEnde();
    QVERIFY(dialoge.fertig());
    Unveraendert(QStringLiteral("x") + knotenText, QStringLiteral("KN.TXT "));
    SpeichernFrageErwarten(dialoge, 7);
    dialoge.meldung(QStringLiteral("Text nicht gespeichert !"), QStringLiteral("Damit kann ich leben"));
    dialoge.frage(QStringLiteral("Feldkranz! beenden - Ini-Datei speichern !"),
                  QStringLiteral("Sollen die aktuellen Einstellungen\ngespeichert werden ?"), 2);
    ProgrammEnde(); // refused later on: the text is still there, and still unsaved
    QVERIFY(dialoge.fertig());
    Unveraendert(QStringLiteral("x") + knotenText, QStringLiteral("KN.TXT "));
}

void EditorschliessenTest::theMainWindowsFrameAsksAboutTheText() {
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 2);
    lauf.haupt()->close();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.haupt()->isVisible());
    Unveraendert(QStringLiteral("x"), QStringLiteral(" "));
}

void EditorschliessenTest::aFormThatStaysKeepsTheTextThatWasLetGo() {
    Tippen(editor, QStringLiteral("x"));
    frmFKFragen* form = lauf.programm().NeuesQuizformular();
    form->txtFrage.at(1)->setText("Bleibt");
    FormStatusSetzen(true);
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 7);
    dialoge.meldung(QStringLiteral("Text nicht gespeichert !"), QStringLiteral("Damit kann ich leben"));
    dialoge.frage(QStringLiteral("Neues Test-Formular"),
                  QStringLiteral("Soll ich das vorhandene Formular vorher speichern ?"), 2);
    lauf.haupt()->close();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.haupt()->isVisible());
    Unveraendert(QStringLiteral("x"), QStringLiteral(" "));
    QCOMPARE(form->txtFrage.at(1)->text(), std::string("Bleibt"));
}

QTEST_MAIN(EditorschliessenTest)
#include "editorschliessen_test.moc"
