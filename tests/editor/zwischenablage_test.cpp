// The editor's eight clipboard commands and when they are in use.
#include "tests/editor/editorlauf.h"

#include <QMimeData>

namespace {

QString Ablage() {
    return QGuiApplication::clipboard()->text();
}

void AblageFrageErwarten(Dialogfolge& dialoge, int antwort) {
    dialoge.frage(QStringLiteral("Zwischenablage löschen !"),
                  QStringLiteral("Soll die Zwischenablage gelöscht werden ?"), antwort);
}

void TextFrageErwarten(Dialogfolge& dialoge, int antwort) {
    dialoge.frage(QStringLiteral("Text löschen !"), QStringLiteral("Soll der Text gelöscht werden ?"),
                  antwort);
}

} // namespace

class EditorablageTest : public Editortest {
    Q_OBJECT

private Q_SLOTS:
    void init() { Anfangen(); }
    void cleanup() { Aufraeumen(); }
    void cleanupTestCase() { lauf.Beenden(); }

    // --- Clipboard ---
    void theButtonsFollowSelectionAndClipboard();
    void aClickBackIntoTheTextSelectsNothing();
    void copyingReplacesTheClipboard();
    void appendingToAnEmptyClipboardGivesTheSelectionAlone();
    void appendingPutsTheSelectionBehindTheClipboardsText();
    void cuttingTakesTheSelectionAwayAndMarksTheText();
    void cuttingWithAppendDoesBoth();
    void pastingReplacesTheSelectionWithPlainText();
    void deletingTheWholeTextFromItsBeginningLeavesAnEmptyField();
    void deletingLeavesTheClipboardAloneAndTheCursorInItsPlace();
    void whatWasDeletedCanBeTakenBack();
    void afterEmptyingTheClipboardNothingCanBePastedUntilSomethingIsCopied();
    void aClipboardQuestionAnsweredNeinKeepsTheClipboard();
    void emptyingTheTextAsksFirst();
    void aQuestionClosedByItsFrameDestroysNothingAndComesAgain();
    void realMouseAndKeysSelectCopyAndPaste();
    void protectedBlanksSurviveTheClipboard();
    void pastingFromAClipboardThatOffersNothingChangesNothing();
};

// --- Clipboard ---

void EditorablageTest::theButtonsFollowSelectionAndClipboard() {
    Tippen(editor, QStringLiteral("Eule am Fluss"));
    QCOMPARE(Benutzbar(editor), QStringLiteral("7"));
    Markieren(editor, 0, 4);
    QCOMPARE(Benutzbar(editor), QStringLiteral("012357"));
    Druecken(editor, Copy(0));
    QCOMPARE(Benutzbar(editor), QStringLiteral("01234567"));
    QTest::keyClick(editor->txtNotiz, Qt::Key_End);
    QCOMPARE(Benutzbar(editor), QStringLiteral("467"));
    QTest::mouseDClick(editor->txtNotiz->viewport(), Qt::LeftButton, {},
                       editor->txtNotiz->cursorRect().center() - QPoint(10, 0));
    QCOMPARE(Benutzbar(editor), QStringLiteral("01234567"));
    QGuiApplication::clipboard()->clear();
    QCOMPARE(Benutzbar(editor), QStringLiteral("012357"));
}

void EditorablageTest::aClickBackIntoTheTextSelectsNothing() {
    Tippen(editor, QStringLiteral("Eule am Fluss"));
    Markieren(editor, 0, 4);
    editor->txtNotiz->clearFocus();
    QTRY_VERIFY(!editor->txtNotiz->hasFocus());
    QCOMPARE(editor->txtNotiz->textCursor().selectedText(), QStringLiteral("Eule")); // for the buttons
    maus::Klicken(editor->txtNotiz->viewport(), Qt::NoModifier, QPoint(40, 8));
    QTRY_VERIFY(editor->txtNotiz->hasFocus());
    QTRY_COMPARE(editor->txtNotiz->textCursor().selectedText(), QString());
}

void EditorablageTest::copyingReplacesTheClipboard() {
    QGuiApplication::clipboard()->setText(QStringLiteral("alt"));
    Tippen(editor, QStringLiteral("Eule am Fluss"));
    EditorStatusSetzen(false);
    Markieren(editor, 5, 2);
    Druecken(editor, Copy(0));
    QCOMPARE(Ablage(), QStringLiteral("am"));
    QCOMPARE(Text(editor), QStringLiteral("Eule am Fluss"));
    QVERIFY(IstGruen(editor)); // nothing has changed
    QVERIFY(editor->txtNotiz->hasFocus());
}

void EditorablageTest::appendingToAnEmptyClipboardGivesTheSelectionAlone() {
    Tippen(editor, QStringLiteral("Eule"));
    Markieren(editor, 0, 4);
    Druecken(editor, Copy(1));
    QCOMPARE(Ablage(), QStringLiteral("Eule"));
    QVERIFY(Taste(editor, Copy(4))->isEnabled());
    QVERIFY(Taste(editor, Copy(6))->isEnabled());
}

void EditorablageTest::appendingPutsTheSelectionBehindTheClipboardsText() {
    QGuiApplication::clipboard()->setText(QStringLiteral("Die "));
    Tippen(editor, QStringLiteral("Eule\nruft"));
    Markieren(editor, 0, 9);
    Druecken(editor, Copy(1));
    QCOMPARE(Ablage(), QStringLiteral("Die Eule\nruft"));
}

void EditorablageTest::cuttingTakesTheSelectionAwayAndMarksTheText() {
    Tippen(editor, QStringLiteral("Eule am Fluss"));
    Markieren(editor, 4, 3);
    EditorStatusSetzen(false);
    Druecken(editor, Copy(2));
    QCOMPARE(Ablage(), QStringLiteral(" am"));
    QCOMPARE(Text(editor), QStringLiteral("Eule Fluss"));
    QVERIFY(IstRot(editor));
    QCOMPARE(Benutzbar(editor), QStringLiteral("467"));
    Tippen(editor, QStringLiteral("!")); // the cursor stands where the text was
    QCOMPARE(Text(editor), QStringLiteral("Eule! Fluss"));
}

void EditorablageTest::cuttingWithAppendDoesBoth() {
    QGuiApplication::clipboard()->setText(QStringLiteral("Die "));
    Tippen(editor, QStringLiteral("Eule ruft"));
    Markieren(editor, 0, 4);
    Druecken(editor, Copy(3));
    QCOMPARE(Ablage(), QStringLiteral("Die Eule"));
    QCOMPARE(Text(editor), QStringLiteral(" ruft"));
    QVERIFY(Stand.EditorGeaendert);
}

void EditorablageTest::pastingReplacesTheSelectionWithPlainText() {
    auto* daten = new QMimeData; // the clipboard takes it over
    daten->setText(QStringLiteral("Kauz\nund "));
    daten->setHtml(QStringLiteral("<b>fett</b>"));
    QGuiApplication::clipboard()->setMimeData(daten);
    Tippen(editor, QStringLiteral("Eule ruft"));
    Markieren(editor, 0, 5);
    EditorStatusSetzen(false);
    Druecken(editor, Copy(4));
    QCOMPARE(Text(editor), QStringLiteral("Kauz\nund ruft"));
    QVERIFY(IstRot(editor));
}

void EditorablageTest::deletingTheWholeTextFromItsBeginningLeavesAnEmptyField() {
    Tippen(editor, QStringLiteral("Eule\nruft"));
    QTest::keyClick(editor->txtNotiz, Qt::Key_A, Qt::ControlModifier);
    Druecken(editor, Copy(5));
    QCOMPARE(Text(editor), QString());
    QCOMPARE(editor->txtNotiz->textCursor().position(), 0);
    QVERIFY(!editor->txtNotiz->textCursor().hasSelection());
}

void EditorablageTest::deletingLeavesTheClipboardAloneAndTheCursorInItsPlace() {
    QGuiApplication::clipboard()->setText(QStringLiteral("bleibt"));
    Tippen(editor, QStringLiteral("Eule am Fluss"));
    Markieren(editor, 4, 3);
    EditorStatusSetzen(false);
    Druecken(editor, Copy(5));
    QCOMPARE(Text(editor), QStringLiteral("Eule Fluss"));
    QCOMPARE(editor->txtNotiz->textCursor().position(), 4);
    QCOMPARE(Ablage(), QStringLiteral("bleibt"));
    QVERIFY(IstRot(editor));
}

void EditorablageTest::whatWasDeletedCanBeTakenBack() {
    Tippen(editor, QStringLiteral("Eule"));
    Markieren(editor, 0, 4);
    Druecken(editor, Copy(5));
    QTest::keyClick(editor->txtNotiz, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Text(editor), QStringLiteral("Eule"));
}

void EditorablageTest::afterEmptyingTheClipboardNothingCanBePastedUntilSomethingIsCopied() {
    Tippen(editor, QStringLiteral("Eule"));
    Markieren(editor, 0, 4);
    Druecken(editor, Copy(0));
    Dialogfolge dialoge;
    AblageFrageErwarten(dialoge, 6);
    Druecken(editor, Copy(6));
    QVERIFY(dialoge.fertig());
    QCOMPARE(Ablage(), QString());
    QVERIFY(!Taste(editor, Copy(4))->isEnabled());
    QVERIFY(!Taste(editor, Copy(6))->isEnabled());
    QTest::keyClick(editor->txtNotiz, Qt::Key_Shift);
    QVERIFY(!Taste(editor, Copy(4))->isEnabled());
    Druecken(editor, Copy(0));
    QVERIFY(Taste(editor, Copy(4))->isEnabled());
}

void EditorablageTest::aClipboardQuestionAnsweredNeinKeepsTheClipboard() {
    QGuiApplication::clipboard()->setText(QStringLiteral("bleibt"));
    Dialogfolge dialoge;
    AblageFrageErwarten(dialoge, 7);
    Druecken(editor, Copy(6));
    QCOMPARE(Ablage(), QStringLiteral("bleibt"));
    QVERIFY(Taste(editor, Copy(4))->isEnabled());
    QVERIFY(IstGruen(editor));
}

void EditorablageTest::emptyingTheTextAsksFirst() {
    Tippen(editor, QStringLiteral("Eule"));
    EditorStatusSetzen(false);
    Dialogfolge dialoge;
    TextFrageErwarten(dialoge, 7);
    Druecken(editor, Copy(7));
    QCOMPARE(Text(editor), QStringLiteral("Eule"));
    QVERIFY(IstRot(editor)); // the mark is set ahead of the question
    TextFrageErwarten(dialoge, 6);
    Druecken(editor, Copy(7));
    QVERIFY(dialoge.fertig());
    QCOMPARE(Text(editor), QString());
}

void EditorablageTest::aQuestionClosedByItsFrameDestroysNothingAndComesAgain() {
    QGuiApplication::clipboard()->setText(QStringLiteral("bleibt"));
    Tippen(editor, QStringLiteral("Eule"));
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}});
    TextFrageErwarten(dialoge, 7);
    Druecken(editor, Copy(7));
    QCOMPARE(Text(editor), QStringLiteral("Eule"));
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}});
    AblageFrageErwarten(dialoge, 7);
    Druecken(editor, Copy(6));
    QVERIFY(dialoge.fertig());
    QCOMPARE(Ablage(), QStringLiteral("bleibt"));
}

void EditorablageTest::realMouseAndKeysSelectCopyAndPaste() {
    maus::Tippen(QStringLiteral("Kauz und "));
    maus::Taste(QStringLiteral("shift+Home"));
    QTRY_VERIFY(Taste(editor, Copy(0))->isEnabled());
    maus::Klicken(Taste(editor, Copy(0)));
    QTRY_COMPARE(Ablage(), QStringLiteral("Kauz und "));
    maus::Taste(QStringLiteral("End"));
    maus::Klicken(Taste(editor, Copy(4)));
    QTRY_COMPARE(Text(editor), QStringLiteral("Kauz und Kauz und "));
    maus::Tippen(QStringLiteral("Eule")); // the click left the cursor in the text
    QTRY_COMPARE(Text(editor), QStringLiteral("Kauz und Kauz und Eule"));
}

void EditorablageTest::protectedBlanksSurviveTheClipboard() {
    const QString text = QStringLiteral("5\u00a0km");
    QGuiApplication::clipboard()->setText(text);
    Druecken(editor, Copy(4));
    QTest::keyClick(editor->txtNotiz, Qt::Key_A, Qt::ControlModifier);
    QGuiApplication::clipboard()->clear();
    Druecken(editor, Copy(0));
    QCOMPARE(Ablage(), text);
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(editor->txtNotiz, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(Ablage(), text);
    QCOMPARE(editor->txtNotiz->text(), text.toStdString());
}

void EditorablageTest::pastingFromAClipboardThatOffersNothingChangesNothing() {
    Tippen(editor, QStringLiteral("Eule"));
    QGuiApplication::clipboard()->setMimeData(new QMimeData);
    QTest::keyClick(editor->txtNotiz, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(editor->txtNotiz->text(), std::string("Eule"));
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(editor->txtNotiz, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(editor->txtNotiz->text(), std::string("Eule"));
    QGuiApplication::clipboard()->setText(QStringLiteral("n"));
    QTest::keyClick(editor->txtNotiz, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(editor->txtNotiz->text(), std::string("Eulen"));
}

QTEST_MAIN(EditorablageTest)
#include "zwischenablage_test.moc"
