// Loading and saving in the editor's real window, with every question, message and failure on the way.
#include "catalogue/frmAuswahl.h"
#include "tests/editor/editorlauf.h"
#include "tests/hilfe/bild.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QScrollBar>

#include <unistd.h>

namespace {

const QString cmdDatei0 = QStringLiteral("cmdDatei(0)");
const QString cmdDatei1 = QStringLiteral("cmdDatei(1)");
const QString cmdDatei2 = QStringLiteral("cmdDatei(2)");
const QString laden = QStringLiteral("cmdLaden");
const QString speichern = QStringLiteral("cmdSpeichern");
const QString abbrechen = QStringLiteral("cmdAbbrechen");

// What the field shows of the file with the knots.
const QString knotenText = QStringLiteral("1\nWas hält fest?\nPalstek\n10\n");

void UeberschreibenErwarten(Dialogfolge& dialoge, const QString& name, int antwort,
                            Stelle stelle = Stelle::hier()) {
    dialoge.frage(QStringLiteral(" Speichern unter ..."),
                  QStringLiteral("Die Datei\n[ %1 ]\nist bereits vorhanden !\nSoll ich diese Datei "
                                 "überschreiben ?")
                      .arg(name),
                  antwort, stelle);
}

void FehlerErwarten(Dialogfolge& dialoge, const QString& text,
                    const QString& taste = QStringLiteral("Grrr.. *~§§°"), Stelle stelle = Stelle::hier()) {
    dialoge.meldung(QStringLiteral("Notiz : cmdDatei :\n") + text, taste, stelle);
}

} // namespace

class EditordateienTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { EditorEntladen(); }
    void cleanupTestCase() { lauf.Beenden(); }

    // --- Loading ---
    void aFileIsShownWithoutItsFirstToken();
    void theDialogForLoadingIsSetUpForQuestions();
    void theDialogForSavingHasTwoNamesAndThreePatterns();
    void cancellingTheDialogSaysThatNoFileWasChosenAndChangesNothing();
    void aCommaEndsTheFirstTokenAndTheRestIsTheFirstLine();
    void whatCantBeLoadedIsToldAndChangesNothing_data();
    void whatCantBeLoadedIsToldAndChangesNothing();
    void aFileWithoutPermissionIsToldAndChangesNothing();
    void unsavedTextIsAskedAboutBeforeAnotherFileComes();

    // --- Saving ---
    void aSavedFileIsByteForByteTheLoadedOneAndAnEmptyLine();
    void everyLoadAndSaveCycleMakesTheFileOneEmptyLineLonger();
    void everyByteSurvivesTheField();
    void theSaveKeysSaveWithoutADialog();
    void aTextWithoutAFileAsksForANameOnlyOnce();
    void aNameGetsItsExtensionAndKeepsOneInSmallLetters();
    void theQuestionIsAskedUnderTheNameThatWillBeWritten();
    void neinAtTheOverwriteQuestionLeavesTheOldFile();
    void closingTheOverwriteQuestionByItsFrameDestroysNothing();
    void anEmptyNameSavesNothing();
    void aCancelledSaveClaimsNothingAndKeepsTheEditorsFile();
    void aFailedSaveIsToldAndTheTextStaysUnsaved();
    void theBackupIsTheVersionOfTheSaveBefore();
    void withoutAnOldFileNoBackupIsMadeAndTheSaveGoesOn();

    // --- The editor's own file ---
    void theEditorSavesToItsOwnFileWhateverWasChosenSince();
    void filesThatDifferInCaseOnlyStayApart();
    void aFormsFileIsNeverTakenForTheEditors();
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

    // --- With the rest ---
    void aCorrectedQuestionShowsWhenItsSubThemeIsPickedAgain();
    void aLargeFileOpensScrollsTypesAndSaves();

private:
    void Geladen(const QString& name = QStringLiteral("KN.TXT"), const QByteArray& bytes = knoten);
    void Unveraendert(const QString& text, const QString& name) const;

    Editorlauf lauf;
    frmEditor* editor = nullptr;
};

void EditordateienTest::init() {
    lauf.Vorbereiten();
    for (const char* name : {"KN.TXT", "KN.BAK", "kn.txt", "NEU.TXT", "neu.TXT", "neu.txt", "zwei.TXT"}) {
        QFile::remove(lauf.programm().ordner().nativ(QStringLiteral("WISSEN/") + QLatin1String(name)));
    }
    editor = lauf.Oeffnen();
    QVERIFY(editor != nullptr);
    QTRY_VERIFY(editor->txtNotiz->hasFocus());
}

void EditordateienTest::Geladen(const QString& name, const QByteArray& bytes) {
    lauf.Schreiben(name, bytes);
    Laden(editor, name);
}

// The window as it was: nothing that failed may change it.
void EditordateienTest::Unveraendert(const QString& text, const QString& name) const {
    QCOMPARE(Text(editor), text);
    QCOMPARE(editor->pnlDatei->caption(), name);
    QVERIFY(IstRot(editor));
    QCOMPARE(EditorGeaendert, std::int16_t(1));
}

// --- Loading ---

void EditordateienTest::aFileIsShownWithoutItsFirstToken() {
    Geladen();
    QCOMPARE(Text(editor), knotenText);
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral("Knoten "));
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral("KN.TXT "));
    QCOMPARE(Bemerkung, std::string("1\r\nWas hält fest?\r\nPalstek\r\n10\r\n"));
    QCOMPARE(BemerkungMarke, std::string("Knoten"));
    QCOMPARE(DateiName, lauf.Pfad("KN.TXT"));
    QCOMPARE(DateiAlt, std::string());
    QCOMPARE(editor->txtNotiz->textCursor().position(), 0);
    QVERIFY(IstGruen(editor));
    QCOMPARE(EditorGeaendert, std::int16_t(0));
    QTest::keyClick(editor->txtNotiz, Qt::Key_Z, Qt::ControlModifier); // the load itself can't be undone
    QCOMPARE(Text(editor), knotenText);
}

void EditordateienTest::theDialogForLoadingIsSetUpForQuestions() {
    QStringList filter;
    QString muster;
    QString ordner;
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmDatei"), titelOeffnen, {}, {abbrechen}, [&](QDialog& dialog) {
                         const auto* liste = Finden<QComboBox>(&dialog, QStringLiteral("cmbAppend"));
                         for (int i = 0; i < liste->count(); ++i) {
                             filter << liste->itemText(i);
                         }
                         muster = Finden<QLineEdit>(&dialog, QStringLiteral("txtDateiname"))->text();
                         ordner = Finden<QLabel>(&dialog, QStringLiteral("lblDir"))->text();
                     }});
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Is' wahr"));
    Druecken(editor, cmdDatei1);
    QCOMPARE(filter,
             (QStringList{QStringLiteral("Feldkranz-Fragen (*.TXT)"),
                          QStringLiteral("Feldkranz-Fragen (*.BAK)"), QStringLiteral("Alle Dateien (*.*)")}));
    QCOMPARE(muster, QStringLiteral("*.TXT"));
    QCOMPARE(ordner, Anzeige(AppPfad + "\\WISSEN"));
}

void EditordateienTest::theDialogForSavingHasTwoNamesAndThreePatterns() {
    QStringList filter;
    int muster = 0;
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmDatei"), titelSpeichernUnter, {}, {abbrechen}, [&](QDialog& dialog) {
                         const auto* liste = Finden<QComboBox>(&dialog, QStringLiteral("cmbAppend"));
                         for (int i = 0; i < liste->count(); ++i) {
                             filter << liste->itemText(i);
                         }
                         while (dialog.findChild<QWidget*>(QStringLiteral("optAppend(%1)").arg(muster)) !=
                                nullptr) {
                             ++muster;
                         }
                     }});
    Druecken(editor, cmdDatei2);
    QCOMPARE(filter,
             (QStringList{QStringLiteral("Feldkranz-Fragen (*.TXT)"), QStringLiteral("Alle Dateien (*.*)")}));
    QCOMPARE(muster, 3);
}

void EditordateienTest::cancellingTheDialogSaysThatNoFileWasChosenAndChangesNothing() {
    Geladen();
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelOeffnen, QString(), abbrechen);
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Is' wahr"));
    Druecken(editor, cmdDatei1);
    QVERIFY(dialoge.fertig());
    QCOMPARE(Text(editor), knotenText);
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral("KN.TXT "));
    QCOMPARE(DateiAbbruch, std::int16_t(0));
    QVERIFY(IstGruen(editor));
    Sichern(editor, QStringLiteral("KN.TXT")); // the editor still has its file
}

void EditordateienTest::aCommaEndsTheFirstTokenAndTheRestIsTheFirstLine() {
    Geladen(QStringLiteral("KN.TXT"), "\"Knoten, alle\", Seile\r\n1\r\n");
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral("Knoten, alle "));
    QCOMPARE(Text(editor), QStringLiteral(" Seile\n1\n"));
    Geladen(QStringLiteral("KN.TXT"), "Knoten, Seile\r\n1\r\n");
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral("Knoten "));
    QCOMPARE(Text(editor), QStringLiteral(" Seile\n1\n"));
}

void EditordateienTest::whatCantBeLoadedIsToldAndChangesNothing_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("meldung");
    QTest::addColumn<QString>("taste");
    const QString grr = QStringLiteral("Grrr.. *~§§°");
    const QString zuViel = QStringLiteral("Notiz : cmdDatei :\nIch brauche mehr Platz ! (Out of Memory)");
    const QString kracht = QStringLiteral("Grrr !*?~");
    QTest::newRow("empty") << QByteArray("")
                           << QStringLiteral("Notiz : cmdDatei :\nIch müsste noch Daten einlesen, aber die "
                                             "Datei ist zu Ende !?")
                           << grr;
    QTest::newRow("picture") << QByteArray("BM\x8e\0\0\0\0\0\r\n", 10)
                             << QStringLiteral("Evtl. keine Textdatei !\n[ SCHLECHT.TXT ]")
                             << QStringLiteral("Grrr");
    QTest::newRow("zero byte at the end")
        << QByteArray("Kopf\r\n1\r\n\0", 10) << QStringLiteral("Evtl. keine Textdatei !\n[ SCHLECHT.TXT ]")
        << QStringLiteral("Grrr");
    QTest::newRow("an open quote and no end of it")
        << QByteArray("\"") + QByteArray(70000, 'x') << zuViel << kracht;
    QTest::newRow("a line without end")
        << QByteArray("k\r\n") + QByteArray(2'000'000, 'x') << zuViel << kracht;
    QTest::newRow("millions of lines")
        << QByteArray("k\r\n") + QByteArray(3'000'000, '\n') << zuViel << kracht;
    QTest::newRow("larger than a text may be")
        << QByteArray("k\r\n") + QByteArray(34'000'000, 'x') << zuViel << kracht;
    QTest::newRow("not there") << QByteArray()
                               << QStringLiteral("Notiz : cmdDatei :\n53 : Datei nicht gefunden") << grr;
    QTest::newRow("folder") << QByteArray("(folder)") << QStringLiteral("Notiz : cmdDatei :\nDateiname !?")
                            << grr;
}

void EditordateienTest::whatCantBeLoadedIsToldAndChangesNothing() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, meldung);
    QFETCH(const QString, taste);
    Geladen();
    Tippen(editor, QStringLiteral("neu"));
    const QString nativ = lauf.programm().ordner().nativ(QStringLiteral("WISSEN/SCHLECHT.TXT"));
    if (bytes == "(folder)") {
        QVERIFY(QDir().mkpath(nativ));
    } else if (!bytes.isNull()) {
        lauf.Schreiben(QStringLiteral("SCHLECHT.TXT"), bytes);
    }
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 7);
    dialoge.meldung(QStringLiteral("Text nicht gespeichert !"), QStringLiteral("Damit kann ich leben"));
    DateidialogErwarten(dialoge, titelOeffnen, QStringLiteral("SCHLECHT.TXT"), laden);
    dialoge.meldung(meldung, taste);
    Druecken(editor, cmdDatei1);
    QVERIFY(dialoge.fertig());
    Unveraendert(QStringLiteral("neu") + knotenText, QStringLiteral("KN.TXT "));
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    Sichern(editor, QStringLiteral("KN.TXT"));
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).startsWith("Knoten\r\nneu1\r\n"));
    QVERIFY(QFile::remove(nativ) || QDir().rmdir(nativ) || !QFile::exists(nativ));
}

void EditordateienTest::aFileWithoutPermissionIsToldAndChangesNothing() {
    if (::geteuid() == 0) {
        QSKIP("The superuser may read every file.");
    }
    lauf.Schreiben(QStringLiteral("NEU.TXT"), knoten);
    QFile::setPermissions(lauf.programm().ordner().nativ(QStringLiteral("WISSEN/NEU.TXT")), {});
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelOeffnen, QStringLiteral("NEU.TXT"), laden);
    FehlerErwarten(dialoge, QStringLiteral("Dateiname !?"));
    Druecken(editor, cmdDatei1);
    QCOMPARE(Text(editor), QString());
}

void EditordateienTest::unsavedTextIsAskedAboutBeforeAnotherFileComes() {
    Geladen();
    lauf.Schreiben(QStringLiteral("NEU.TXT"), "Neues\r\nzwei\r\n");
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 2);
    Druecken(editor, cmdDatei1);
    Unveraendert(QStringLiteral("x") + knotenText, QStringLiteral("KN.TXT "));
    SpeichernFrageErwarten(dialoge, 6);
    GespeichertErwarten(dialoge, QStringLiteral("KN.TXT"));
    DateidialogErwarten(dialoge, titelOeffnen, QStringLiteral("NEU.TXT"), laden);
    Druecken(editor, cmdDatei1);
    QVERIFY(dialoge.fertig());
    QCOMPARE(Text(editor), QStringLiteral("zwei\n"));
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).startsWith("Knoten\r\nx1\r\n"));
}

// --- Saving ---

void EditordateienTest::aSavedFileIsByteForByteTheLoadedOneAndAnEmptyLine() {
    Geladen();
    Sichern(editor, QStringLiteral("KN.TXT"));
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten + "\r\n");
    QVERIFY(IstGruen(editor));
}

void EditordateienTest::everyLoadAndSaveCycleMakesTheFileOneEmptyLineLonger() {
    lauf.Schreiben(QStringLiteral("KN.TXT"), knoten);
    for (int runde = 1; runde <= 3; ++runde) {
        Laden(editor, QStringLiteral("KN.TXT"));
        Sichern(editor, QStringLiteral("KN.TXT"));
        QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten + QByteArray("\r\n").repeated(runde));
    }
    Sichern(editor, QStringLiteral("KN.TXT")); // a save alone adds nothing
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten + QByteArray("\r\n").repeated(3));
}

void EditordateienTest::everyByteSurvivesTheField() {
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

void EditordateienTest::theSaveKeysSaveWithoutADialog() {
    Geladen();
    Tippen(editor, QStringLiteral("neu"));
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, QStringLiteral("KN.TXT"));
    QTest::keyClick(editor->txtNotiz, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(dialoge.fertig());
    QVERIFY(IstGruen(editor));
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).contains("neu1"));
}

void EditordateienTest::aTextWithoutAFileAsksForANameOnlyOnce() {
    Tippen(editor, QStringLiteral("1\nWer?"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("neu.TXT"), speichern);
    GespeichertErwarten(dialoge, QStringLiteral("neu.TXT"));
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("neu.TXT")), QByteArray("\r\n1\r\nWer?\r\n"));
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral("neu.TXT "));
    QVERIFY(IstGruen(editor));
    Tippen(editor, QStringLiteral("!"));
    Sichern(editor, QStringLiteral("neu.TXT"));
    QCOMPARE(lauf.Lesen(QStringLiteral("neu.TXT")), QByteArray("\r\n1\r\nWer?!\r\n"));
}

void EditordateienTest::aNameGetsItsExtensionAndKeepsOneInSmallLetters() {
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

void EditordateienTest::theQuestionIsAskedUnderTheNameThatWillBeWritten() {
    lauf.Schreiben(QStringLiteral("NEU.TXT"), "alt");
    Tippen(editor, QStringLiteral("a"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("NEU"), speichern);
    UeberschreibenErwarten(dialoge, QStringLiteral("NEU.TXT"), 6);
    GespeichertErwarten(dialoge, QStringLiteral("NEU.TXT"));
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("NEU.TXT")), QByteArray("\r\na\r\n"));
}

void EditordateienTest::neinAtTheOverwriteQuestionLeavesTheOldFile() {
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
    QCOMPARE(DateiName, lauf.Pfad("KN.TXT"));
}

void EditordateienTest::closingTheOverwriteQuestionByItsFrameDestroysNothing() {
    lauf.Schreiben(QStringLiteral("NEU.TXT"), "alt");
    Tippen(editor, QStringLiteral("x"));
    NachrichtAntwort = 6; // left by an older question
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QStringLiteral("NEU.TXT"), speichern);
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}});
    UeberschreibenErwarten(dialoge, QStringLiteral("NEU.TXT"), 7); // asked again
    dialoge.meldung(QStringLiteral("Speichern unter... abgebrochen"), QStringLiteral("OK"));
    Druecken(editor, cmdDatei2);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("NEU.TXT")), QByteArray("alt"));
}

void EditordateienTest::anEmptyNameSavesNothing() {
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

void EditordateienTest::aCancelledSaveClaimsNothingAndKeepsTheEditorsFile() {
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

void EditordateienTest::aFailedSaveIsToldAndTheTextStaysUnsaved() {
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

void EditordateienTest::theBackupIsTheVersionOfTheSaveBefore() {
    Geladen();
    OptionDatei = 1;
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

void EditordateienTest::withoutAnOldFileNoBackupIsMadeAndTheSaveGoesOn() {
    OptionDatei = 1;
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

// --- The editor's own file ---

void EditordateienTest::theEditorSavesToItsOwnFileWhateverWasChosenSince() {
    Geladen();
    lauf.programm().ordner().schreiben(QStringLiteral("KRANZ/FREMD.FKR"), "fremd");
    DateiName = AppPfad + "\\KRANZ\\FREMD.FKR";
    DateiAlt = DateiName;
    Tippen(editor, QStringLiteral("x"));
    Sichern(editor, QStringLiteral("KN.TXT"));
    QCOMPARE(lauf.programm().ordner().lesen(QStringLiteral("KRANZ/FREMD.FKR")), QByteArray("fremd"));
    QVERIFY(lauf.Lesen(QStringLiteral("KN.TXT")).contains("x1"));
}

void EditordateienTest::filesThatDifferInCaseOnlyStayApart() {
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

void EditordateienTest::aFormsFileIsNeverTakenForTheEditors() {
    EditorEntladen();
    lauf.programm().ordner().schreiben(QStringLiteral("KRANZ/FORM.FKR"), "ein Formular");
    DateiName = AppPfad + "\\KRANZ\\FORM.FKR"; // as an opened form leaves it
    editor = lauf.Oeffnen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelSpeichernUnter, QString(), abbrechen);
    Druecken(editor, cmdDatei0);
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.programm().ordner().lesen(QStringLiteral("KRANZ/FORM.FKR")), QByteArray("ein Formular"));
}

void EditordateienTest::theFormsDialogStartsWhereTheFormsWere() {
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

void EditordateienTest::aClosedEditorForgetsItsFile() {
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

void EditordateienTest::endeWithUnchangedTextAsksNothing() {
    Geladen();
    const Dialogfolge dialoge;
    Druecken(editor, QStringLiteral("cmdEnde"));
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) == nullptr);
    QCOMPARE(EditorText, std::string("1\r\nWas hält fest?\r\nPalstek\r\n10\r\n"));
}

void EditordateienTest::endeWithAbbrechenKeepsTheWindowAndTheText() {
    Geladen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 2);
    Druecken(editor, QStringLiteral("cmdEnde"));
    QVERIFY(dialoge.fertig());
    QVERIFY(editor->isVisible());
    Unveraendert(QStringLiteral("x") + knotenText, QStringLiteral("KN.TXT "));
}

void EditordateienTest::endeWithNeinSaysSoAndGoes() {
    Geladen();
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 7);
    dialoge.meldung(QStringLiteral("Text nicht gespeichert !"), QStringLiteral("Damit kann ich leben"));
    Druecken(editor, QStringLiteral("cmdEnde"));
    QVERIFY(dialoge.fertig());
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) == nullptr);
    QCOMPARE(EditorGeaendert, std::int16_t(0));
    QCOMPARE(lauf.Lesen(QStringLiteral("KN.TXT")), knoten);
}

void EditordateienTest::endeWithJaSavesAndGoes() {
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

void EditordateienTest::aSaveThatDidNotComeAboutKeepsTheWindow() {
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

void EditordateienTest::theFramesCloseBoxAsksTheSame() {
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 2);
    RahmenSchliessen(editor);
    QVERIFY(editor->isVisible());
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}}); // counts as Abbrechen
    NachrichtAntwort = 7;
    RahmenSchliessen(editor);
    QVERIFY(dialoge.fertig());
    Unveraendert(QStringLiteral("x"), QStringLiteral(" "));
}

void EditordateienTest::theEndOfTheProgramAsksAboutTheText() {
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

void EditordateienTest::theMainWindowsFrameAsksAboutTheText() {
    Tippen(editor, QStringLiteral("x"));
    Dialogfolge dialoge;
    SpeichernFrageErwarten(dialoge, 2);
    lauf.haupt()->close();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.haupt()->isVisible());
    Unveraendert(QStringLiteral("x"), QStringLiteral(" "));
}

// --- With the rest ---

void EditordateienTest::aCorrectedQuestionShowsWhenItsSubThemeIsPickedAgain() {
    lauf.Schreiben(QStringLiteral("LEUTE/LE_ERFIN.TXT"),
                   "Kopf\r\n1\r\nWer erfand die Gl\xFChbrine?\r\nE.\r\n1\r\n");
    Finden<QAction>(lauf.haupt(), QStringLiteral("mAuswahl(1)"))->trigger();
    const QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    const auto waehlen = [auswahl](const char* name, const QString& text) {
        auto* liste = Finden<QComboBox>(auswahl, QLatin1String(name));
        QVERIFY2(liste->findText(text) >= 0, qPrintable(text));
        liste->setCurrentIndex(-1);
        liste->setFocus();
        while (liste->currentText() != text) {
            QTest::keyClick(liste, Qt::Key_Down);
        }
    };
    waehlen("cmbThemen", QStringLiteral("Leute"));
    waehlen("cmbUnter", QStringLiteral("Erfinder"));
    const auto* fragen = Finden<QComboBox>(auswahl, QStringLiteral("cmbFrage"));
    QCOMPARE(fragen->itemText(0), QStringLiteral("Wer erfand die Glühbrine?"));

    Laden(editor, QStringLiteral("LEUTE/LE_ERFIN.TXT"));
    maus::Klicken(editor->txtNotiz->viewport(), Qt::NoModifier, QPoint(200, 40));
    QTest::keyClick(editor->txtNotiz, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(editor->txtNotiz, Qt::Key_Down);
    QTest::keyClick(editor->txtNotiz, Qt::Key_End);
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(editor->txtNotiz, Qt::Key_Backspace);
    }
    Tippen(editor, QStringLiteral("irne?"));
    Sichern(editor, QStringLiteral("LEUTE/LE_ERFIN.TXT"));

    auto* unter = Finden<QComboBox>(auswahl, QStringLiteral("cmbUnter"));
    unter->setFocus();
    Q_EMIT unter->activated(unter->currentIndex()); // the same one is picked again in its list
    QCOMPARE(fragen->itemText(0), QStringLiteral("Wer erfand die Glühbirne?"));
}

void EditordateienTest::aLargeFileOpensScrollsTypesAndSaves() {
    QByteArray bytes = "Gro\xDF\r\n";
    for (int i = 1; bytes.size() < 20'000'000; ++i) {
        bytes += QByteArray::number(i) + "\r\nWelches Tier h\xF6rt man in dieser Nacht am Flu\xDF rufen?\r\n";
        bytes += "Die Eule\r\n10\r\n";
    }
    Geladen(QStringLiteral("NEU.TXT"), bytes);
    QVERIFY(!Finden(lauf.haupt(), QStringLiteral("pnlKaro"))->isVisible());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    QVERIFY(IstGruen(editor));
    QElapsedTimer uhr;
    uhr.start();
    QScrollBar* rollen = editor->txtNotiz->verticalScrollBar();
    for (const int teil : {1, 2, 3, 4}) {
        rollen->setValue(rollen->maximum() / 4 * teil);
        QCoreApplication::processEvents();
    }
    QTest::keyClick(editor->txtNotiz, Qt::Key_End, Qt::ControlModifier);
    Tippen(editor, QStringLiteral("Ende"));
    const qint64 dauer = uhr.elapsed();
    BildVon(lauf.haupt(), QStringLiteral("frmEditor-gross"));
    QVERIFY2(dauer < 2000, qPrintable(QStringLiteral("%1 ms").arg(dauer))); // some hundred in a slow build
    QVERIFY(IstRot(editor));
    Sichern(editor, QStringLiteral("NEU.TXT"));
    QVERIFY(lauf.Lesen(QStringLiteral("NEU.TXT")) == bytes + "Ende\r\n");
}

QTEST_MAIN(EditordateienTest)
#include "editordateien_test.moc"
