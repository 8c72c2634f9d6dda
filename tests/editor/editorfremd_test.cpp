// Saving a catalogue file that another program has changed meanwhile, in the editor's real window. The other
// program is the test, which writes behind the program's back.
#include "tests/editor/editorlauf.h"
#include "tests/persistence/fremdhilfe.h"

#include <QDir>

namespace {

const QString name = QStringLiteral("KN.TXT");
const Fremdfrage fremdfrage{QStringLiteral("Die Fragendatei"), name};
const QByteArray fremd = "von jemand anderem";

} // namespace

class EditorfremdTest : public Editortest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { Aufraeumen(); }
    void cleanupTestCase() { lauf.Beenden(); }

    void anotherProgramsWorkIsReplacedOnJaOnly();
    void abbrechenLeavesTheFileAndIsNoSave();
    void closingTheQuestionByItsFrameDestroysNothing();
    void neinAsksForAnotherName();
    void neinAndACancelledDialogAreNoSave();
    void theSameContentWithAnotherTimeIsNotAskedAbout();
    void aFileThatHasGoneIsWrittenAnew();
    void aFolderInItsPlaceRefusesWithoutAQuestion();
    void aFileThatCanNotBeReadIsAskedAbout();
    void theOwnSavesAreKnownAndOtherFilesToo();
    void aNameThatWasAskedAboutIsNotAskedAboutTwice();
    void aBackupIsMadeOnlyOfWhatIsReplaced();
    void aSaveBeforeClosingIsAskedAndCountsAsCancelled();

private:
    void Fremdschreiben(const QByteArray& bytes = fremd) const { lauf.Schreiben(name, bytes); }
    [[nodiscard]] QString Nativ() const {
        return lauf.programm().ordner().nativ(QStringLiteral("WISSEN/") + name);
    }
    void Gescheitert() const {
        QCOMPARE(lauf.Lesen(name), fremd);
        Unveraendert(QStringLiteral("getippt ") + knotenText, QStringLiteral("KN.TXT "));
    }
    static QByteArray Gespeichert() { return QByteArray(knoten).replace("\n1\r", "\ngetippt 1\r") + "\r\n"; }
};

// The file loaded, with something typed into it.
void EditorfremdTest::init() {
    Anfangen();
    Geladen();
    Tippen(editor, QStringLiteral("getippt "));
    QVERIFY(IstRot(editor));
}

void EditorfremdTest::anotherProgramsWorkIsReplacedOnJaOnly() {
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdErwarten(dialoge, fremdfrage, 6);
    GespeichertErwarten(dialoge, name);
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(name), Gespeichert());
    QVERIFY(IstGruen(editor));
    Tippen(editor, QStringLiteral("!"));
    Sichern(editor, name); // it is the program's own file again
}

void EditorfremdTest::abbrechenLeavesTheFileAndIsNoSave() {
    Fremdschreiben();
    Dialogfolge dialoge;
    for (int mal = 0; mal < 2; ++mal) { // and it is asked about again
        FremdErwarten(dialoge, fremdfrage, 2);
        BleibtErwarten(dialoge, name);
        Druecken(editor, cmdDatei0);
        QVERIFY(dialoge.fertig());
        Gescheitert();
    }
}

void EditorfremdTest::closingTheQuestionByItsFrameDestroysNothing() {
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdGeschlossen(dialoge, fremdfrage);
    BleibtErwarten(dialoge, name);
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    Gescheitert();
}

void EditorfremdTest::neinAsksForAnotherName() {
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdErwarten(dialoge, fremdfrage, 7);
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("zwei"), speichern);
    GespeichertErwarten(dialoge, QStringLiteral("zwei.TXT"));
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(name), fremd);
    QCOMPARE(lauf.Lesen(QStringLiteral("zwei.TXT")), Gespeichert());
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral("zwei.TXT "));
    QVERIFY(IstGruen(editor));
    Sichern(editor, QStringLiteral("zwei.TXT"));
}

void EditorfremdTest::neinAndACancelledDialogAreNoSave() {
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdErwarten(dialoge, fremdfrage, 7);
    DateidialogErwarten(dialoge, titelSpeichernUnter, QString(), abbrechen);
    Druecken(editor, cmdDatei0);
    Gescheitert();
    FremdErwarten(dialoge, fremdfrage, 2); // the editor keeps its file
    BleibtErwarten(dialoge, name);
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
}

void EditorfremdTest::theSameContentWithAnotherTimeIsNotAskedAbout() {
    Beruehren(Nativ());
    QVERIFY(QFile::remove(Nativ()));
    Fremdschreiben(knoten); // another file, as other programs' saves leave it
    Beruehren(Nativ());
    Sichern(editor, name);
    QCOMPARE(lauf.Lesen(name), Gespeichert());
}

void EditorfremdTest::aFileThatHasGoneIsWrittenAnew() {
    QVERIFY(QFile::remove(Nativ()));
    Sichern(editor, name);
    QCOMPARE(lauf.Lesen(name), Gespeichert());
}

void EditorfremdTest::aFolderInItsPlaceRefusesWithoutAQuestion() {
    QVERIFY(QFile::remove(Nativ()));
    lauf.Schreiben(name + QStringLiteral("/drin.txt"), fremd);
    Dialogfolge dialoge;
    FehlerErwarten(dialoge, QStringLiteral("75 : Fehler beim Zugriff auf Pfad oder Datei"));
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(name + QStringLiteral("/drin.txt")), fremd);
    QTRY_VERIFY(QDir(Nativ()).removeRecursively());
}

void EditorfremdTest::aFileThatCanNotBeReadIsAskedAbout() {
    UnlesbarMachen(Nativ());
    Dialogfolge dialoge;
    dialoge.frage(unlesbarTitel, fremdfrage.unlesbar(), 2);
    BleibtErwarten(dialoge, name);
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QVERIFY(IstRot(editor));
    dialoge.frage(unlesbarTitel, fremdfrage.unlesbar(), 6);
    GespeichertErwarten(dialoge, name);
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(name), Gespeichert());
}

void EditorfremdTest::theOwnSavesAreKnownAndOtherFilesToo() {
    Sichern(editor, name);
    Tippen(editor, QStringLiteral("a"));
    Sichern(editor, name);
    Fremdschreiben("Knoten\r\n2\r\n");
    Laden(editor, name); // the other's version is in the field now
    Sichern(editor, name);
    QCOMPARE(lauf.Lesen(name), QByteArray("Knoten\r\n2\r\n\r\n"));
    lauf.Schreiben(QStringLiteral("zwei.TXT"), "Zwei\r\n1\r\n");
    Laden(editor, QStringLiteral("zwei.TXT"));
    Fremdschreiben();                            // no longer the editor's file
    Sichern(editor, QStringLiteral("ZWEI.TXT")); // as the file dialog has it
    QCOMPARE(lauf.Lesen(name), fremd);
}

void EditorfremdTest::aNameThatWasAskedAboutIsNotAskedAboutTwice() {
    Fremdschreiben();
    lauf.Schreiben(QStringLiteral("zwei.TXT"), fremd);
    Dialogfolge dialoge;
    for (const QString& ziel : {name, QStringLiteral("zwei.TXT")}) {
        DateidialogErwarten(dialoge, titelSpeichernUnter, ziel, speichern);
        UeberschreibenErwarten(dialoge, ziel, 6);
        GespeichertErwarten(dialoge, ziel);
        Druecken(editor, cmdDatei2);
        QVERIFY(dialoge.fertig());
        QCOMPARE(lauf.Lesen(ziel), Gespeichert());
    }
}

void EditorfremdTest::aBackupIsMadeOnlyOfWhatIsReplaced() {
    lauf.Schreiben(QStringLiteral("KN.BAK"), "das gute Backup");
    Spiel.OptionDatei = true;
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdErwarten(dialoge, fremdfrage, 2);
    BleibtErwarten(dialoge, name);
    Druecken(editor, cmdDatei0);
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.BAK")), QByteArray("das gute Backup"));
    FremdErwarten(dialoge, fremdfrage, 6);
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ KN.TXT ]"), QStringLiteral("Schön"));
    dialoge.meldung(
        QStringLiteral("BackUp angelegt : \n[ %1.BAK ]").arg(QString::fromStdString(lauf.Pfad("KN"))),
        QStringLiteral("Wirklich ?!"));
    GespeichertErwarten(dialoge, name);
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.BAK")), fremd);
    QCOMPARE(lauf.Lesen(name), Gespeichert());
}

void EditorfremdTest::aSaveBeforeClosingIsAskedAndCountsAsCancelled() {
    Fremdschreiben();
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 6);
    FremdErwarten(dialoge, fremdfrage, 2);
    BleibtErwarten(dialoge, name);
    RahmenSchliessen(editor);
    QVERIFY(dialoge.fertig());
    QVERIFY(editor->isVisible());
    Gescheitert();
}

QTEST_MAIN(EditorfremdTest)
#include "editorfremd_test.moc"
