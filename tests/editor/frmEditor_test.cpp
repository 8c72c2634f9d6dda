// The editor's window: what it is made of, its clipboard commands, lock and lamps.
#include "tests/editor/editorlauf.h"
#include "tests/hilfe/bild.h"

#include <QMdiSubWindow>

namespace {

QString Ablage() {
    return QGuiApplication::clipboard()->text();
}

QString Copy(int index) {
    return QStringLiteral("cmdCopy(%1)").arg(index);
}

// The members of cmdCopy that are in use, as "01...7".
QString Benutzbar(const frmEditor* editor) {
    QString ziffern;
    for (int i = 0; i < 8; ++i) {
        if (Taste(editor, Copy(i))->isEnabled()) {
            ziffern += QString::number(i);
        }
    }
    return ziffern;
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

class FrmEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void cleanupTestCase() { lauf.Beenden(); }

    // --- The window ---
    void theButtonAndTheMenuEntryOpenTheEditorWithItsCaption();
    void openingItAgainBringsTheSameWindowToTheFront();
    void everyControlHasItsNameAndItsTip();
    void theStatusTextOfAButtonShowsInTheHelpPanel();
    void theNamesThatWereLeftStandOnThePanels();
    void theToolbarBreaksIntoRowsWhereTheWindowIsNarrow();
    void theHelpButtonHasNoAction();
    void tabVisitsTheToolbarAndComesBackToTheText();

    // --- Clipboard ---
    void theButtonsFollowSelectionAndClipboard();
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

    // --- Change mark, lock, what the text may hold ---
    void everyChangeLightsTheRedLamp();
    void theLockKeepsKeysAndButtonsFromTheTextUntilItIsFreed();
    void theBackupSwitchIsTheOption();
    void aCharacterThatTheFilesCantHoldGetsItsEquivalentOrStaysOutside();
    void aLineLongerThanAFormsTextIsCutAndToldAbout();

private:
    Editorlauf lauf;
    frmEditor* editor = nullptr;
};

void FrmEditorTest::init() {
    lauf.Vorbereiten();
    editor = lauf.Oeffnen();
    QVERIFY(editor != nullptr);
    QTRY_VERIFY(editor->txtNotiz->hasFocus());
}

void FrmEditorTest::cleanup() {
    EditorEntladen();
    editor = nullptr;
}

// --- The window ---

void FrmEditorTest::theButtonAndTheMenuEntryOpenTheEditorWithItsCaption() {
    QCOMPARE(editor->windowTitle(), QStringLiteral(" Feldkranz! - Fragensammlung"));
    QCOMPARE(EditorOffen, std::int16_t(1));
    QCOMPARE(AktivesKind(), std::string("Editor"));
    QVERIFY(IstGruen(editor));
    QCOMPARE(Text(editor), QString());
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral(" "));
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral(" "));
    QVERIFY(Taste(editor, QStringLiteral("cmdSchreiben"))->isVisible());
    QVERIFY(!Taste(editor, QStringLiteral("cmdNichtSchreiben"))->isVisible());
    QVERIFY(editor->txtNotiz->isEnabled());
    RahmenSchliessen(editor);
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) == nullptr);
    QCOMPARE(EditorOffen, std::int16_t(0));
    Finden<QAction>(lauf.haupt(), QStringLiteral("mEditorKranz"))->trigger();
    QVERIFY(FensterAbwarten(QStringLiteral("frmEditor")) != nullptr);
}

void FrmEditorTest::openingItAgainBringsTheSameWindowToTheFront() {
    Tippen(editor, QStringLiteral("bleibt"));
    lauf.programm().NeuesQuizformular();
    QCOMPARE(AktivesKind(), std::string("FKFragen"));
    QCOMPARE(lauf.Oeffnen(), editor);
    QTRY_COMPARE(AktivesKind(), std::string("Editor"));
    QCOMPARE(Text(editor), QStringLiteral("bleibt"));
}

void FrmEditorTest::everyControlHasItsNameAndItsTip() {
    struct Zeile {
        QString name, tipp;
    };
    const QList<Zeile> zeilen{
        {Copy(0), QStringLiteral("Markierten Text in die Zwischenablage kopieren.")},
        {Copy(1), QStringLiteral("Markierten Text an die Zwischenablage anhängen.")},
        {Copy(2), QStringLiteral("Markierten Text ausschneiden und in die Zwischenablage kopieren.")},
        {Copy(3), QStringLiteral("Markierten Text ausschneiden und an die Zwischenablage anhängen.")},
        {Copy(4), QStringLiteral("Text aus der Zwischenablage an Cursorposition einfügen.")},
        {Copy(5), QStringLiteral("Markierten Text löschen.")},
        {Copy(6), QStringLiteral("Zwischenablage leeren.")},
        {Copy(7), QStringLiteral("Textfenster leeren.")},
        {QStringLiteral("cmdDatei(0)"), QStringLiteral("Text im Textfenster speichern.")},
        {QStringLiteral("cmdDatei(1)"), QStringLiteral("Text ins Textfenster laden.")},
        {QStringLiteral("cmdDatei(2)"),
         QStringLiteral("Text im Textfenster speichern unter einem anderen Namen.")},
        {QStringLiteral("grpBackUp"),
         QStringLiteral("BackUp der geladenen Datei anlegen und Text speichern.")},
        {QStringLiteral("cmdSchreiben"), QStringLiteral("Text für Bearbeiten sperren.")},
        {QStringLiteral("cmdNichtSchreiben"), QStringLiteral("Text für Bearbeiten freigeben.")},
        {QStringLiteral("cmdEnde"), QStringLiteral("Editor schließen.")},
        {QStringLiteral("cmdHilfe"),
         QStringLiteral("Wenn erforderlich, wird hier ein Hilfesystem implementiert.")},
        {QStringLiteral("pnlLaufname"), QStringLiteral("Bezeichnung der Auswertung.")},
        {QStringLiteral("pnlDatei"), QStringLiteral("Name der geladenen/abgespeicherten Datei.")},
        {QStringLiteral("pnlEdit"), QStringLiteral("Textfenster für Texteingabe.")},
        {QStringLiteral("pnlNotiz"), QStringLiteral("Textfenster für Texteingabe.")},
        {QStringLiteral("txtNotiz"), QStringLiteral("Textfenster für Texteingabe.")},
    };
    for (const auto& [name, tipp] : zeilen) {
        QCOMPARE(Finden(editor, name)->toolTip(), tipp);
    }
    QVERIFY(Finden<Panel>(editor, QStringLiteral("pnlToolbar"))->isVisible());
    for (const auto* taste : editor->findChildren<QAbstractButton*>()) {
        QVERIFY2(!taste->accessibleName().isEmpty(), qPrintable(taste->objectName()));
    }
}

void FrmEditorTest::theStatusTextOfAButtonShowsInTheHelpPanel() {
    auto* hilfe = Finden<Panel>(lauf.haupt(), QStringLiteral("pnlHilfe"));
    maus::Bewegen(Taste(editor, Copy(7)));
    QTRY_COMPARE(hilfe->caption(), QStringLiteral(" Notizfenster leeren "));
    maus::Bewegen(Taste(editor, QStringLiteral("cmdDatei(2)"))); // has none and leaves the last one
    QCOMPARE(hilfe->caption(), QStringLiteral(" Notizfenster leeren "));
    maus::Bewegen(Taste(editor, QStringLiteral("cmdHilfe")));
    QTRY_COMPARE(hilfe->caption(), QStringLiteral(" Hilfe zur Bemerkung aufrufen "));
}

void FrmEditorTest::theNamesThatWereLeftStandOnThePanels() {
    EditorEntladen();
    BemerkungMarke = "Bäume";
    DateiAlt = "/x\\WISSEN\\PF_BAUM.TXT";
    editor = lauf.Oeffnen();
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral("Bäume "));
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral("PF_BAUM.TXT "));
}

void FrmEditorTest::theToolbarBreaksIntoRowsWhereTheWindowIsNarrow() {
    const auto ganzZuSehen = [this] {
        const QRect leiste = Finden(editor, QStringLiteral("pnlToolbar"))->rect();
        QRegion belegt;
        for (const auto* taste : editor->findChildren<QAbstractButton*>()) {
            if (taste->isVisible() &&
                (!leiste.contains(taste->geometry()) || belegt.intersects(taste->geometry()))) {
                return false;
            }
            belegt += taste->isVisible() ? QRegion(taste->geometry()) : QRegion();
        }
        return editor->rect().contains(Finden(editor, QStringLiteral("pnlEdit"))->geometry());
    };
    QVERIFY(ganzZuSehen());
    Laden(editor, QStringLiteral("HB/HB_KN.TXT"));
    Markieren(editor, 0, 4);
    BildVon(lauf.haupt(), QStringLiteral("frmEditor"));
    const int hoehe = Finden(editor, QStringLiteral("pnlToolbar"))->height();
    for (const int breite : {900, 640, 460, 320}) {
        editor->parentWidget()->resize(breite, 500);
        QTRY_VERIFY(editor->width() <= breite);
        QVERIFY2(ganzZuSehen(), qPrintable(QString::number(breite)));
        BildVon(editor, QStringLiteral("frmEditor-%1").arg(breite));
    }
    QVERIFY(Finden(editor, QStringLiteral("pnlToolbar"))->height() >= 2 * hoehe);
}

void FrmEditorTest::theHelpButtonHasNoAction() {
    Tippen(editor, QStringLiteral("abc"));
    Druecken(editor, QStringLiteral("cmdHilfe"));
    QCOMPARE(Text(editor), QStringLiteral("abc"));
    QCOMPARE(EditorFenster(), editor);
}

void FrmEditorTest::tabVisitsTheToolbarAndComesBackToTheText() {
    QStringList besucht;
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        besucht << QApplication::focusWidget()->objectName();
        if (besucht.last() == QLatin1String("txtNotiz")) {
            break;
        }
    }
    QCOMPARE(besucht, (QStringList{QStringLiteral("cmdDatei(1)"), QStringLiteral("cmdDatei(0)"),
                                   QStringLiteral("cmdDatei(2)"), QStringLiteral("grpBackUp"),
                                   QStringLiteral("cmdSchreiben"), QStringLiteral("cmdHilfe"),
                                   QStringLiteral("cmdEnde"), Copy(7), QStringLiteral("txtNotiz")}));
    QCOMPARE(Text(editor), QString());
}

// --- Clipboard ---

void FrmEditorTest::theButtonsFollowSelectionAndClipboard() {
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

void FrmEditorTest::copyingReplacesTheClipboard() {
    QGuiApplication::clipboard()->setText(QStringLiteral("alt"));
    Tippen(editor, QStringLiteral("Eule am Fluss"));
    EditorStatusSetzen(0);
    Markieren(editor, 5, 2);
    Druecken(editor, Copy(0));
    QCOMPARE(Ablage(), QStringLiteral("am"));
    QCOMPARE(Text(editor), QStringLiteral("Eule am Fluss"));
    QVERIFY(IstGruen(editor)); // nothing has changed
    QVERIFY(editor->txtNotiz->hasFocus());
}

void FrmEditorTest::appendingToAnEmptyClipboardGivesTheSelectionAlone() {
    Tippen(editor, QStringLiteral("Eule"));
    Markieren(editor, 0, 4);
    Druecken(editor, Copy(1));
    QCOMPARE(Ablage(), QStringLiteral("Eule"));
    QVERIFY(Taste(editor, Copy(4))->isEnabled());
    QVERIFY(Taste(editor, Copy(6))->isEnabled());
}

void FrmEditorTest::appendingPutsTheSelectionBehindTheClipboardsText() {
    QGuiApplication::clipboard()->setText(QStringLiteral("Die "));
    Tippen(editor, QStringLiteral("Eule\nruft"));
    Markieren(editor, 0, 9);
    Druecken(editor, Copy(1));
    QCOMPARE(Ablage(), QStringLiteral("Die Eule\nruft"));
}

void FrmEditorTest::cuttingTakesTheSelectionAwayAndMarksTheText() {
    Tippen(editor, QStringLiteral("Eule am Fluss"));
    Markieren(editor, 4, 3);
    EditorStatusSetzen(0);
    Druecken(editor, Copy(2));
    QCOMPARE(Ablage(), QStringLiteral(" am"));
    QCOMPARE(Text(editor), QStringLiteral("Eule Fluss"));
    QVERIFY(IstRot(editor));
    QCOMPARE(Benutzbar(editor), QStringLiteral("467"));
    Tippen(editor, QStringLiteral("!")); // the cursor stands where the text was
    QCOMPARE(Text(editor), QStringLiteral("Eule! Fluss"));
}

void FrmEditorTest::cuttingWithAppendDoesBoth() {
    QGuiApplication::clipboard()->setText(QStringLiteral("Die "));
    Tippen(editor, QStringLiteral("Eule ruft"));
    Markieren(editor, 0, 4);
    Druecken(editor, Copy(3));
    QCOMPARE(Ablage(), QStringLiteral("Die Eule"));
    QCOMPARE(Text(editor), QStringLiteral(" ruft"));
    QCOMPARE(EditorGeaendert, std::int16_t(1));
}

void FrmEditorTest::pastingReplacesTheSelectionWithPlainText() {
    auto* daten = new QMimeData;
    daten->setText(QStringLiteral("Kauz\nund "));
    daten->setHtml(QStringLiteral("<b>fett</b>"));
    QGuiApplication::clipboard()->setMimeData(daten);
    Tippen(editor, QStringLiteral("Eule ruft"));
    Markieren(editor, 0, 5);
    EditorStatusSetzen(0);
    Druecken(editor, Copy(4));
    QCOMPARE(Text(editor), QStringLiteral("Kauz\nund ruft"));
    QVERIFY(IstRot(editor));
}

void FrmEditorTest::deletingTheWholeTextFromItsBeginningLeavesAnEmptyField() {
    Tippen(editor, QStringLiteral("Eule\nruft"));
    QTest::keyClick(editor->txtNotiz, Qt::Key_A, Qt::ControlModifier);
    Druecken(editor, Copy(5));
    QCOMPARE(Text(editor), QString());
    QCOMPARE(editor->txtNotiz->textCursor().position(), 0);
    QVERIFY(!editor->txtNotiz->textCursor().hasSelection());
}

void FrmEditorTest::deletingLeavesTheClipboardAloneAndTheCursorInItsPlace() {
    QGuiApplication::clipboard()->setText(QStringLiteral("bleibt"));
    Tippen(editor, QStringLiteral("Eule am Fluss"));
    Markieren(editor, 4, 3);
    EditorStatusSetzen(0);
    Druecken(editor, Copy(5));
    QCOMPARE(Text(editor), QStringLiteral("Eule Fluss"));
    QCOMPARE(editor->txtNotiz->textCursor().position(), 4);
    QCOMPARE(Ablage(), QStringLiteral("bleibt"));
    QVERIFY(IstRot(editor));
}

void FrmEditorTest::whatWasDeletedCanBeTakenBack() {
    Tippen(editor, QStringLiteral("Eule"));
    Markieren(editor, 0, 4);
    Druecken(editor, Copy(5));
    QTest::keyClick(editor->txtNotiz, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Text(editor), QStringLiteral("Eule"));
}

void FrmEditorTest::afterEmptyingTheClipboardNothingCanBePastedUntilSomethingIsCopied() {
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

void FrmEditorTest::aClipboardQuestionAnsweredNeinKeepsTheClipboard() {
    QGuiApplication::clipboard()->setText(QStringLiteral("bleibt"));
    Dialogfolge dialoge;
    AblageFrageErwarten(dialoge, 7);
    Druecken(editor, Copy(6));
    QCOMPARE(Ablage(), QStringLiteral("bleibt"));
    QVERIFY(Taste(editor, Copy(4))->isEnabled());
    QVERIFY(IstGruen(editor));
}

void FrmEditorTest::emptyingTheTextAsksFirst() {
    Tippen(editor, QStringLiteral("Eule"));
    EditorStatusSetzen(0);
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

void FrmEditorTest::aQuestionClosedByItsFrameDestroysNothingAndComesAgain() {
    QGuiApplication::clipboard()->setText(QStringLiteral("bleibt"));
    Tippen(editor, QStringLiteral("Eule"));
    NachrichtAntwort = 6; // left by an older question
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}});
    TextFrageErwarten(dialoge, 7);
    Druecken(editor, Copy(7));
    QCOMPARE(Text(editor), QStringLiteral("Eule"));
    NachrichtAntwort = 6;
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {durchRahmen}});
    AblageFrageErwarten(dialoge, 7);
    Druecken(editor, Copy(6));
    QVERIFY(dialoge.fertig());
    QCOMPARE(Ablage(), QStringLiteral("bleibt"));
}

void FrmEditorTest::realMouseAndKeysSelectCopyAndPaste() {
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

void FrmEditorTest::protectedBlanksSurviveTheClipboard() {
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

// --- Change mark, lock, what the text may hold ---

void FrmEditorTest::everyChangeLightsTheRedLamp() {
    QVERIFY(IstGruen(editor));
    Tippen(editor, QStringLiteral("x"));
    QVERIFY(IstRot(editor));
    QCOMPARE(EditorGeaendert, std::int16_t(1));
    EditorStatusSetzen(0);
    QVERIFY(IstGruen(editor));
    QTest::keyClick(editor->txtNotiz, Qt::Key_Left); // no change
    QVERIFY(IstGruen(editor));
    QTest::keyClick(editor->txtNotiz, Qt::Key_Delete);
    QVERIFY(IstRot(editor));
}

void FrmEditorTest::theLockKeepsKeysAndButtonsFromTheTextUntilItIsFreed() {
    QGuiApplication::clipboard()->setText(QStringLiteral("Kauz"));
    Tippen(editor, QStringLiteral("Eule"));
    Markieren(editor, 0, 4);
    EditorStatusSetzen(0);
    maus::Klicken(Taste(editor, QStringLiteral("cmdSchreiben")));
    QTRY_VERIFY(!editor->txtNotiz->isEnabled());
    QVERIFY(!Taste(editor, QStringLiteral("cmdSchreiben"))->isVisible());
    QVERIFY(Taste(editor, QStringLiteral("cmdNichtSchreiben"))->isVisible());
    QCOMPARE(Benutzbar(editor), QStringLiteral("016"));
    maus::Tippen(QStringLiteral("xyz"));
    maus::Klicken(editor->txtNotiz->viewport());
    maus::Tippen(QStringLiteral("xyz"));
    QCOMPARE(Text(editor), QStringLiteral("Eule"));
    QVERIFY(IstGruen(editor));
    maus::Klicken(Taste(editor, QStringLiteral("cmdNichtSchreiben")));
    QTRY_VERIFY(editor->txtNotiz->hasFocus());
    QVERIFY(Taste(editor, QStringLiteral("cmdSchreiben"))->isVisible());
    QVERIFY(!Taste(editor, QStringLiteral("cmdNichtSchreiben"))->isVisible());
    QCOMPARE(Benutzbar(editor), QStringLiteral("01234567"));
    maus::Taste(QStringLiteral("End"));
    maus::Tippen(QStringLiteral("n"));
    QTRY_COMPARE(Text(editor), QStringLiteral("Eulen"));
}

void FrmEditorTest::theBackupSwitchIsTheOption() {
    QAbstractButton* schalter = Taste(editor, QStringLiteral("grpBackUp"));
    QVERIFY(!schalter->isChecked());
    Druecken(editor, QStringLiteral("grpBackUp"));
    QCOMPARE(OptionDatei, std::int16_t(1));
    Druecken(editor, QStringLiteral("grpBackUp"));
    QCOMPARE(OptionDatei, std::int16_t(0));
    // The file dialog's own switch is the same option.
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmDatei"),
         titelSpeichernUnter,
         {},
         {QStringLiteral("cmdAbbrechen")},
         [](QDialog& dialog) { Finden<QAbstractButton>(&dialog, QStringLiteral("chkBackUp"))->click(); }});
    Druecken(editor, QStringLiteral("cmdDatei(2)"));
    QCOMPARE(OptionDatei, std::int16_t(1));
    QTRY_VERIFY(schalter->isChecked());
    EditorEntladen();
    editor = lauf.Oeffnen();
    QVERIFY(Taste(editor, QStringLiteral("grpBackUp"))->isChecked());
}

void FrmEditorTest::aCharacterThatTheFilesCantHoldGetsItsEquivalentOrStaysOutside() {
    auto* hilfe = Finden<Panel>(lauf.haupt(), QStringLiteral("pnlHilfe"));
    QGuiApplication::clipboard()->setText(QStringLiteral("Łódź → 雨 5 €") + QChar(QChar::Null));
    Druecken(editor, Copy(4));
    QTRY_COMPARE(Text(editor), QStringLiteral("Lódz ->  5 €"));
    QVERIFY(hilfe->caption().contains(QStringLiteral("kann ich nicht speichern")));
}

void FrmEditorTest::aLineLongerThanAFormsTextIsCutAndToldAbout() {
    auto* hilfe = Finden<Panel>(lauf.haupt(), QStringLiteral("pnlHilfe"));
    const QString halb(40000, QLatin1Char('x'));
    QGuiApplication::clipboard()->setText(halb + QStringLiteral("\nzwei\n") + halb);
    Druecken(editor, Copy(4));
    QCoreApplication::processEvents();
    QCOMPARE(Text(editor).size(), 80006); // the whole text has no limit
    QGuiApplication::clipboard()->setText(halb + QStringLiteral("\nEnde"));
    Druecken(editor, Copy(4));
    QTRY_COMPARE(Text(editor), halb + QStringLiteral("\nzwei\n") + QString(65536, QLatin1Char('x')) +
                                   QStringLiteral("\nEnde"));
    QVERIFY(hilfe->caption().contains(QStringLiteral("Der Text ist mir zu lang")));
}

QTEST_MAIN(FrmEditorTest)
#include "frmEditor_test.moc"
