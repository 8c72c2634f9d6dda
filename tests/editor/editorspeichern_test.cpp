// Saving in the editor's real window, with every question, message and failure on the way.
#include "tests/editor/editorlauf.h"

#include <QDir>
#include <QListWidget>

class EditorspeichernTest : public Editortest {
    Q_OBJECT

private Q_SLOTS:
    void init() { Anfangen(); }
    void cleanup() { Aufraeumen(); }
    void cleanupTestCase() { lauf.Beenden(); }

    // --- Saving ---
    void aSavedFileIsByteForByteTheLoadedOneAndAnEmptyLine();
    void everyLoadAndSaveCycleMakesTheFileOneEmptyLineLonger();
    void everyByteSurvivesTheField();
    void theSaveKeysSaveWithoutADialog();
    void aTextWithoutAFileAsksForANameOnlyOnce();
    void aNewTextHasItsFilesNameAsHeaderAndNotTheFormerFiles();
    void aHeaderThatWasLoadedGoesWithTheTextAlsoAnEmptyOne();
    void aNameGetsItsExtensionAndKeepsOneInSmallLetters();
    void theQuestionIsAskedUnderTheNameThatWillBeWritten();
    void neinAtTheOverwriteQuestionLeavesTheOldFile();
    void closingTheOverwriteQuestionByItsFrameDestroysNothing();
    void anEmptyNameSavesNothing();
    void aNameThatNoListWouldShowIsABadName();
    void aCancelledSaveClaimsNothingAndKeepsTheEditorsFile();
    void aFailedSaveIsToldAndTheTextStaysUnsaved();
    void aFailedSaveOfUnchangedTextCountsAsUnsaved();
    void aTwinInOtherLettersIsNotWrittenForAFileThatHasGone();
    void aSaveGoesIntoTheFolderShownWhateverWasTypedBefore();
    void theBackupIsTheVersionOfTheSaveBefore();
    void withoutAnOldFileNoBackupIsMadeAndTheSaveGoesOn();
};

// --- Saving ---

void EditorspeichernTest::aSavedFileIsByteForByteTheLoadedOneAndAnEmptyLine() {
    Geladen();
    Sichern(editor, QStringLiteral("KN.TXT"));
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten + "\r\n");
    QVERIFY(IstGruen(editor));
}

void EditorspeichernTest::everyLoadAndSaveCycleMakesTheFileOneEmptyLineLonger() {
    lauf.Schreiben(QStringLiteral("KN.TXT"), knoten);
    for (int runde = 1; runde <= 3; ++runde) {
        Laden(editor, QStringLiteral("KN.TXT"));
        Sichern(editor, QStringLiteral("KN.TXT"));
        QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten + QByteArray("\r\n").repeated(runde));
    }
    Sichern(editor, QStringLiteral("KN.TXT")); // a save alone adds nothing
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten + QByteArray("\r\n").repeated(3));
}

void EditorspeichernTest::everyByteSurvivesTheField() {
    QByteArray zeile;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') {
            zeile += static_cast<char>(byte);
        }
    }
    const QByteArray bytes = "Kopf\r\n" + zeile + "\r\n\r\n" + zeile + "\r\n";
    Geladen(QStringLiteral("KN.TXT"), bytes);
    QTest::keyClick(editor->txtNotiz, Qt::Key_End, Qt::ControlModifier);
    Tippen(editor, QStringLiteral("Ende"));
    Sichern(editor, QStringLiteral("KN.TXT"));
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), bytes + "Ende\r\n");
}

void EditorspeichernTest::theSaveKeysSaveWithoutADialog() {
    Geladen();
    Tippen(editor, QStringLiteral("neu"));
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("KN.TXT"));
    QTest::keyClick(editor->txtNotiz, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(dialoge.fertig());
    QVERIFY(IstGruen(editor));
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).contains("neu1"));
}

void EditorspeichernTest::aTextWithoutAFileAsksForANameOnlyOnce() {
    Tippen(editor, QStringLiteral("1\nWer?"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("neu.TXT"), speichern);
    GespeichertErwarten(dialoge, QStringLiteral("neu.TXT"));
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("neu.TXT")), QByteArray("neu\r\n1\r\nWer?\r\n"));
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral("neu.TXT "));
    QVERIFY(IstGruen(editor));
    Tippen(editor, QStringLiteral("!"));
    Sichern(editor, QStringLiteral("neu.TXT"));
    QCOMPARE(lauf.Lesen(QStringLiteral("neu.TXT")), QByteArray("neu\r\n1\r\nWer?!\r\n"));
}

void EditorspeichernTest::aNewTextHasItsFilesNameAsHeaderAndNotTheFormerFiles() {
    Geladen();
    RahmenSchliessen(editor);
    editor = lauf.Oeffnen();
    Tippen(editor, QStringLiteral("1"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("nicht\\da.TXT"), speichern);
    FehlerErwarten(dialoge, QStringLiteral("76 : Pfad nicht gefunden"));
    Druecken(editor, cmdDatei0);
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("zwei.TXT"), speichern);
    GespeichertErwarten(dialoge, QStringLiteral("zwei.TXT"));
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("zwei.TXT")), QByteArray("zwei\r\n1\r\n"));
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral("zwei "));
}

void EditorspeichernTest::aHeaderThatWasLoadedGoesWithTheTextAlsoAnEmptyOne() {
    for (const QByteArray& kopf : {QByteArray("Knoten"), QByteArray()}) {
        Geladen(QStringLiteral("KN.TXT"), kopf + "\r\n1\r\n");
        QFile::remove(lauf.programm().ordner().nativ(QStringLiteral("WISSEN/zwei.TXT")));
        Dialogfolge dialoge;
        DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("zwei.TXT"), speichern);
        GespeichertErwarten(dialoge, QStringLiteral("zwei.TXT"));
        Druecken(editor, cmdDatei2);
        QVERIFY(dialoge.fertig());
        QCOMPARE(lauf.Lesen(QStringLiteral("zwei.TXT")), kopf + "\r\n1\r\n\r\n");
    }
}

void EditorspeichernTest::aNameGetsItsExtensionAndKeepsOneInSmallLetters() {
    Tippen(editor, QStringLiteral("a"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("zwei"), speichern);
    GespeichertErwarten(dialoge, QStringLiteral("zwei.TXT"));
    Druecken(editor, cmdDatei2);
    QVERIFY(!lauf.Lesen(QStringLiteral("zwei.TXT")).isNull());
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("neu.txt"), speichern);
    GespeichertErwarten(dialoge, QStringLiteral("neu.txt"));
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    QVERIFY(!lauf.Lesen(QStringLiteral("neu.txt")).isNull());
}

void EditorspeichernTest::theQuestionIsAskedUnderTheNameThatWillBeWritten() {
    lauf.Schreiben(QStringLiteral("NEU.TXT"), "alt");
    Tippen(editor, QStringLiteral("a"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("NEU"), speichern);
    UeberschreibenErwarten(dialoge, QStringLiteral("NEU.TXT"), 6);
    GespeichertErwarten(dialoge, QStringLiteral("NEU.TXT"));
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("NEU.TXT")), QByteArray("NEU\r\na\r\n"));
}

void EditorspeichernTest::neinAtTheOverwriteQuestionLeavesTheOldFile() {
    Geladen();
    lauf.Schreiben(QStringLiteral("NEU.TXT"), "alt");
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("NEU.TXT"), speichern);
    UeberschreibenErwarten(dialoge, QStringLiteral("NEU.TXT"), 7);
    dialoge.meldung(QStringLiteral("Speichern unter... abgebrochen"), QStringLiteral("OK"));
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("NEU.TXT")), QByteArray("alt"));
    Unveraendert(QStringLiteral("x") + knotenText, QStringLiteral("KN.TXT "));
    QCOMPARE(Editor.Pfad, lauf.Pfad("KN.TXT"));
}

void EditorspeichernTest::closingTheOverwriteQuestionByItsFrameDestroysNothing() {
    lauf.Schreiben(QStringLiteral("NEU.TXT"), "alt");
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("NEU.TXT"), speichern);
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}});
    UeberschreibenErwarten(dialoge, QStringLiteral("NEU.TXT"), 7); // asked again
    dialoge.meldung(QStringLiteral("Speichern unter... abgebrochen"), QStringLiteral("OK"));
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("NEU.TXT")), QByteArray("alt"));
}

void EditorspeichernTest::anEmptyNameSavesNothing() {
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("*.TXT"), speichern);
    dialoge.kasten(QStringLiteral("Feldkranz!"),
                   QStringLiteral("SpeichernUnter abgebrochen\nwegen fehlendem Dateinamen !"),
                   QStringLiteral("OK"));
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    Unveraendert(QStringLiteral("x"), QStringLiteral(" "));
}

void EditorspeichernTest::aNameThatNoListWouldShowIsABadName() {
    Tippen(editor, QStringLiteral("x"));
    for (const QString& name : {QStringLiteral("   "), QStringLiteral(".TXT"), QStringLiteral(".neu.TXT")}) {
        Dialogfolge dialoge;
        DateidialogErwarten(dialoge, titelSpeichernUnter, name, speichern);
        FehlerErwarten(dialoge, QStringLiteral("Dateiname !?"));
        Druecken(editor, cmdDatei2);
        QVERIFY(dialoge.fertig());
        Unveraendert(QStringLiteral("x"), QStringLiteral(" "));
        QVERIFY(lauf.Lesen(name).isNull());
        QVERIFY(lauf.Lesen(name + QStringLiteral(".TXT")).isNull());
    }
}

void EditorspeichernTest::aCancelledSaveClaimsNothingAndKeepsTheEditorsFile() {
    Geladen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("NEU.TXT"), abbrechen);
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    Unveraendert(QStringLiteral("x") + knotenText, QStringLiteral("KN.TXT "));
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten);
    QVERIFY(lauf.Lesen(QStringLiteral("NEU.TXT")).isNull());
    Sichern(editor, QStringLiteral("KN.TXT"));
}

void EditorspeichernTest::aFailedSaveIsToldAndTheTextStaysUnsaved() {
    Geladen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QString(300, QLatin1Char('n')), speichern);
    FehlerErwarten(dialoge, QStringLiteral("Dateiname !?"));
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    Unveraendert(QStringLiteral("x") + knotenText, QStringLiteral("KN.TXT "));
    // The file has become a folder meanwhile.
    const QString nativ = lauf.programm().ordner().nativ(QStringLiteral("WISSEN/KN.TXT"));
    QVERIFY(QFile::remove(nativ) && QDir().mkdir(nativ));
    FehlerErwarten(dialoge, QStringLiteral("75 : Fehler beim Zugriff auf Pfad oder Datei"));
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    Unveraendert(QStringLiteral("x") + knotenText, QStringLiteral("KN.TXT "));
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    QVERIFY(QDir().rmdir(nativ));
    Sichern(editor, QStringLiteral("KN.TXT"));
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).contains("x1"));
}

void EditorspeichernTest::aFailedSaveOfUnchangedTextCountsAsUnsaved() {
    Geladen();
    const QString nativ = lauf.programm().ordner().nativ(QStringLiteral("WISSEN/KN.TXT"));
    QVERIFY(QFile::remove(nativ) && QDir().mkdir(nativ));
    Dialogfolge dialoge;
    FehlerErwarten(dialoge, QStringLiteral("75 : Fehler beim Zugriff auf Pfad oder Datei"));
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QVERIFY(IstRot(editor));
    SpeichernFrageErwarten(dialoge, 2);
    RahmenSchliessen(editor);
    QVERIFY(dialoge.fertig());
    QCOMPARE(Text(editor), knotenText);
    QVERIFY(QDir().rmdir(nativ));
}

void EditorspeichernTest::aTwinInOtherLettersIsNotWrittenForAFileThatHasGone() {
    lauf.Schreiben(QStringLiteral("kn.txt"), "klein\r\nk\r\n");
    lauf.Schreiben(QStringLiteral("KN.TXT"), knoten);
    if (lauf.Lesen(QStringLiteral("kn.txt")) == knoten) {
        QSKIP("this file system takes both for one");
    }
    Laden(editor, QStringLiteral("kn.txt"));
    QVERIFY(QFile::remove(lauf.programm().ordner().nativ(QStringLiteral("WISSEN/kn.txt"))));
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QString(), abbrechen);
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten);
    QVERIFY(IstRot(editor));
}

void EditorspeichernTest::aSaveGoesIntoTheFolderShownWhateverWasTypedBefore() {
    lauf.Schreiben(QStringLiteral("LAGER/X.TXT"), knoten);
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelOeffnen, QStringLiteral("LAGER\\"), laden);
    dialoge.erwarte({QStringLiteral("frmMeldung"), {}, {}, {QStringLiteral("cmdKenntnis")}}); // a folder
    Druecken(editor, cmdDatei1);
    Tippen(editor, QStringLiteral("x"));
    dialoge.erwarte(
        {QStringLiteral("frmDatei"), titelSpeichernUnter, {}, {speichern}, [](QDialog& dialog) {
             auto* ordner = Finden<QListWidget>(&dialog, QStringLiteral("dirVerzeichnisliste"));
             ordner->setFocus();
             ordner->setCurrentItem(ordner->findItems(QStringLiteral("LAGER"), Qt::MatchExactly).value(0));
             QTest::keyClick(ordner, Qt::Key_Return);
             Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"))->setText(QStringLiteral("NEU.TXT"));
         }});
    GespeichertErwarten(dialoge, QStringLiteral("NEU.TXT"));
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    QVERIFY(!lauf.Lesen(QStringLiteral("LAGER/NEU.TXT")).isNull());
    QVERIFY(lauf.Lesen(QStringLiteral("NEU.TXT")).isNull());
    // The journal's thread may be removing its file from there just now.
    QTRY_VERIFY(QDir(lauf.programm().ordner().nativ(QStringLiteral("WISSEN/LAGER"))).removeRecursively());
}

void EditorspeichernTest::theBackupIsTheVersionOfTheSaveBefore() {
    Geladen();
    Spiel.OptionDatei = true;
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    const auto erwarten = [&] {
        dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ KN.TXT ]"), QStringLiteral("Schön"));
        dialoge.meldung(
            QStringLiteral("BackUp angelegt : \n[ %1.BAK ]").arg(QString::fromStdString(lauf.Pfad("KN"))),
            QStringLiteral("Wirklich ?!"));
        GespeichertErwarten(dialoge, QStringLiteral("KN.TXT"));
    };
    erwarten();
    Druecken(editor, cmdDatei0);
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.BAK")), knoten);
    const QByteArray erster = lauf.Lesen(QStringLiteral("KN.TXT"));
    Tippen(editor, QStringLiteral("y"));
    erwarten();
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.BAK")), erster);
    QVERIFY(erster.contains("x1") && !erster.contains("xy1"));
}

void EditorspeichernTest::withoutAnOldFileNoBackupIsMadeAndTheSaveGoesOn() {
    Spiel.OptionDatei = true;
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("neu"), speichern);
    dialoge.meldung(QStringLiteral("Ich konnte kein BackUp anlegen von : \n[ neu.TXT ]"),
                    QStringLiteral("Das finde ich nicht so gut"));
    GespeichertErwarten(dialoge, QStringLiteral("neu.TXT"));
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QVERIFY(!lauf.Lesen(QStringLiteral("neu.TXT")).isNull());
}

QTEST_MAIN(EditorspeichernTest)
#include "editorspeichern_test.moc"
