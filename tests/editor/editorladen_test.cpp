// Loading in the editor's real window: what is shown, what can't be loaded, and what the selection dialog
// sees.
#include "catalogue/frmAuswahl.h"
#include "tests/editor/editorlauf.h"
#include "tests/hilfe/bild.h"

#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QScrollBar>

#include <unistd.h>

namespace {

// Counts how often a control paints itself.
class Malzaehler : public QObject {
public:
    explicit Malzaehler(QWidget* element) { element->installEventFilter(this); }
    [[nodiscard]] int anzahl() const { return anzahl_; }

protected:
    bool eventFilter(QObject*, QEvent* ereignis) override {
        anzahl_ += ereignis->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int anzahl_ = 0;
};

} // namespace

class EditorladenTest : public Editortest {
    Q_OBJECT

private Q_SLOTS:
    void init() { Anfangen(); }
    void cleanup() { Aufraeumen(); }
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

    // --- With the rest ---
    void aCorrectedQuestionShowsWhenItsSubThemeIsPickedAgain();
    void aLargeFileOpensScrollsTypesAndSaves();
};

// --- Loading ---

void EditorladenTest::aFileIsShownWithoutItsFirstToken() {
    Geladen();
    QCOMPARE(Text(editor), knotenText);
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral("Knoten "));
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral("KN.TXT "));
    QCOMPARE(Editor.Bemerkung, std::string("1\r\nWas hält fest?\r\nPalstek\r\n10\r\n"));
    QCOMPARE(Editor.BemerkungMarke, std::string("Knoten"));
    QCOMPARE(Editor.Pfad, lauf.Pfad("KN.TXT"));
    QCOMPARE(editor->txtNotiz->textCursor().position(), 0);
    QVERIFY(IstGruen(editor));
    QVERIFY(!Stand.EditorGeaendert);
    QTest::keyClick(editor->txtNotiz, Qt::Key_Z, Qt::ControlModifier); // the load itself can't be undone
    QCOMPARE(Text(editor), knotenText);
}

void EditorladenTest::theDialogForLoadingIsSetUpForQuestions() {
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
    QCOMPARE(ordner, Anzeige(Stand.AppPfad + "\\WISSEN"));
}

void EditorladenTest::theDialogForSavingHasTwoNamesAndThreePatterns() {
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

void EditorladenTest::cancellingTheDialogSaysThatNoFileWasChosenAndChangesNothing() {
    Geladen();
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelOeffnen, QString(), abbrechen);
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Is' wahr"));
    Druecken(editor, cmdDatei1);
    QVERIFY(dialoge.fertig());
    QCOMPARE(Text(editor), knotenText);
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral("KN.TXT "));
    QCOMPARE(Editor.Pfad, lauf.Pfad("KN.TXT"));
    QVERIFY(IstGruen(editor));
    Sichern(editor, QStringLiteral("KN.TXT")); // the editor still has its file
}

void EditorladenTest::aCommaEndsTheFirstTokenAndTheRestIsTheFirstLine() {
    Geladen(QStringLiteral("KN.TXT"), "\"Knoten, alle\", Seile\r\n1\r\n");
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral("Knoten, alle "));
    QCOMPARE(Text(editor), QStringLiteral(" Seile\n1\n"));
    Geladen(QStringLiteral("KN.TXT"), "Knoten, Seile\r\n1\r\n");
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral("Knoten "));
    QCOMPARE(Text(editor), QStringLiteral(" Seile\n1\n"));
}

void EditorladenTest::whatCantBeLoadedIsToldAndChangesNothing_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("meldung");
    QTest::addColumn<QString>("taste");
    const QString grr = QStringLiteral("Grrr.. *~§§°");
    const QString zuViel =
        QStringLiteral("DATEI : Oeffnen_Fragen :\nIch brauche mehr Platz ! (Out of Memory)");
    const QString kracht = QStringLiteral("Grrr !*?~");
    QTest::newRow("empty") << QByteArray("")
                           << QStringLiteral(
                                  "DATEI : Oeffnen_Fragen :\nIch müsste noch Daten einlesen, aber die "
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
                               << QStringLiteral("DATEI : Oeffnen_Fragen :\n53 : Datei nicht gefunden")
                               << grr;
    QTest::newRow("folder") << QByteArray("(folder)")
                            << QStringLiteral("DATEI : Oeffnen_Fragen :\nDateiname !?") << grr;
}

void EditorladenTest::whatCantBeLoadedIsToldAndChangesNothing() {
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

void EditorladenTest::aFileWithoutPermissionIsToldAndChangesNothing() {
    if (::geteuid() == 0) {
        QSKIP("The superuser may read every file.");
    }
    lauf.Schreiben(QStringLiteral("NEU.TXT"), knoten);
    QFile::setPermissions(lauf.programm().ordner().nativ(QStringLiteral("WISSEN/NEU.TXT")), {});
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, titelOeffnen, QStringLiteral("NEU.TXT"), laden);
    dialoge.meldung(QStringLiteral("DATEI : Oeffnen_Fragen :\nDateiname !?"), QStringLiteral("Grrr.. *~§§°"));
    Druecken(editor, cmdDatei1);
    QCOMPARE(Text(editor), QString());
}

void EditorladenTest::unsavedTextIsAskedAboutBeforeAnotherFileComes() {
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

// --- With the rest ---

void EditorladenTest::aCorrectedQuestionShowsWhenItsSubThemeIsPickedAgain() {
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
    Sichern(editor, QStringLiteral("LE_ERFIN.TXT"));

    auto* unter = Finden<QComboBox>(auswahl, QStringLiteral("cmbUnter"));
    unter->setFocus();
    Q_EMIT unter->activated(unter->currentIndex()); // the same one is picked again in its list
    QCOMPARE(fragen->itemText(0), QStringLiteral("Wer erfand die Glühbirne?"));
}

void EditorladenTest::aLargeFileOpensScrollsTypesAndSaves() {
    QByteArray bytes = "Gro\xDF\r\n";
    for (int i = 1; bytes.size() < 20'000'000; ++i) {
        bytes += QByteArray::number(i) + "\r\nWelches Tier h\xF6rt man in dieser Nacht am Flu\xDF rufen?\r\n";
        bytes += "Die Eule\r\n10\r\n";
    }
    auto* balken = Finden<Panel>(lauf.haupt(), QStringLiteral("pnlKaro"));
    const Malzaehler gemalt(balken);
    QElapsedTimer uhr;
    uhr.start();
    Geladen(QStringLiteral("NEU.TXT"), bytes);
    QVERIFY2(gemalt.anzahl() > 50, qPrintable(QString::number(gemalt.anzahl()))); // the bar moved
    QVERIFY(!balken->isVisible());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    QVERIFY(IstGruen(editor));
    QCoreApplication::processEvents();
    const qint64 ladezeit = uhr.restart();
    QScrollBar* rollen = editor->txtNotiz->verticalScrollBar();
    for (const int teil : {1, 2, 3, 4}) {
        rollen->setValue(rollen->maximum() / 4 * teil);
        QCoreApplication::processEvents();
    }
    QTest::keyClick(editor->txtNotiz, Qt::Key_End, Qt::ControlModifier);
    Tippen(editor, QStringLiteral("Ende"));
    const qint64 dauer = uhr.elapsed();
    BildVon(lauf.haupt(), QStringLiteral("frmEditor-gross"));
    // Against the time that the same machine, as busy as it is now, has taken for the whole text.
    QVERIFY2(dauer < ladezeit / 4, qPrintable(QStringLiteral("%1 of %2 ms").arg(dauer).arg(ladezeit)));
    QVERIFY(IstRot(editor));
    Sichern(editor, QStringLiteral("NEU.TXT"));
    QVERIFY(lauf.Lesen(QStringLiteral("NEU.TXT")) == bytes + "Ende\r\n");
}

QTEST_MAIN(EditorladenTest)
#include "editorladen_test.moc"
