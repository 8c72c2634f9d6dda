// The journal of the editor's text in the real windows.
#include "tests/editor/editorlauf.h"

namespace {

// What a killed program's journal bears beside it: a process that nobody has.
const QByteArray marke = "999999999\nfeldkranz\n\n\n\n";

QString Hilfe() {
    return Anzeige(HilfeStand()).trimmed();
}

} // namespace

class EditorjournalTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { lauf.Vorbereiten(); }
    void cleanupTestCase() { lauf.Beenden(); }

    void theEditorWritesAJournalAndTakesItAway();
    void theEditorShowsTheTextOfAJournal();
    void aJournalLoadedByItselfBelongsToNoFile();

private:
    Editorlauf lauf;
};

void EditorjournalTest::theEditorWritesAJournalAndTakesItAway() {
    const Programmordner& ordner = lauf.programm().ordner();
    const QString journal = QStringLiteral("WISSEN/~NEU.BAK");
    const frmEditor* editor = lauf.Oeffnen();
    QTest::keyClicks(editor->txtNotiz, QStringLiteral("Knoten"));
    QTRY_VERIFY(ordner.vorhanden(journal));
    QVERIFY(ordner.lesen(journal).contains("Knoten"));
    EditorEntladen();
    QTRY_VERIFY(!ordner.vorhanden(journal));
}

void EditorjournalTest::theEditorShowsTheTextOfAJournal() {
    const Programmordner& ordner = lauf.programm().ordner();
    ordner.schreiben(QStringLiteral("WISSEN/KN.TXT"), knoten);
    ordner.schreiben(QStringLiteral("WISSEN/~KN.BAK"), QByteArray(knoten) + "noch eine ?\r\n");
    ordner.schreiben(QStringLiteral("WISSEN/.~KN.BAK.lock"), marke);
    const frmEditor* editor = lauf.Oeffnen();
    Laden(editor, QStringLiteral("KN.TXT"));
    QCOMPARE(Text(editor), knotenText + QStringLiteral("noch eine ?\n"));
    QVERIFY(IstRot(editor));
    QCOMPARE(Hilfe(),
             QStringLiteral("Ich wurde abgewürgt - hier ist dein ungespeicherter Text von [ KN.TXT ]."));
    Sichern(editor, QStringLiteral("KN.TXT"));
    QVERIFY(ordner.lesen(QStringLiteral("WISSEN/KN.TXT")).contains("noch eine ?"));
    QTRY_VERIFY(!ordner.vorhanden(QStringLiteral("WISSEN/~KN.BAK")));
    QTRY_VERIFY(!ordner.vorhanden(QStringLiteral("WISSEN/.~KN.BAK.lock")));
    EditorEntladen();
}

void EditorjournalTest::aJournalLoadedByItselfBelongsToNoFile() {
    const Programmordner& ordner = lauf.programm().ordner();
    ordner.schreiben(QStringLiteral("WISSEN/~NEU.BAK"), knoten);
    ordner.schreiben(QStringLiteral("WISSEN/.~NEU.BAK.lock"), marke);
    const frmEditor* editor = lauf.Oeffnen();
    Laden(editor, QStringLiteral("~NEU.BAK"));
    QCOMPARE(Text(editor), knotenText);
    QVERIFY(IstRot(editor));
    QCOMPARE(Editor.Pfad, std::string());
    QTest::keyClicks(editor->txtNotiz, QStringLiteral("x"));
    QTRY_VERIFY(ordner.vorhanden(QStringLiteral("WISSEN/~NEU1.BAK")));
    EditorEntladen();
    QTRY_VERIFY(!ordner.vorhanden(QStringLiteral("WISSEN/~NEU.BAK")));
    QTRY_VERIFY(!ordner.vorhanden(QStringLiteral("WISSEN/~NEU1.BAK")));
}

QTEST_MAIN(EditorjournalTest)
#include "editorjournal_test.moc"
