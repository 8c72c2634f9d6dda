// The editor's window: what it is made of, its lamps and its lock, what its text may hold.
#include "forms/oeffnen.h"
#include "quizform/frmFKFragen.h"
#include "tests/editor/editorlauf.h"
#include "tests/hilfe/bild.h"

class FrmEditorTest : public Editortest {
    Q_OBJECT

private Q_SLOTS:
    void init() { Anfangen(); }
    void cleanup() { Aufraeumen(); }
    void cleanupTestCase() { lauf.Beenden(); }

    // --- The window ---
    void theButtonAndTheMenuEntryOpenTheEditorWithItsCaption();
    void openingItAgainBringsTheSameWindowToTheFront();
    void everyControlHasItsNameAndItsTip();
    void theStatusTextOfAButtonShowsInTheHelpPanel();
    void anEmptyEditorShowsNoNameWhateverWasOpenedBefore();
    void theToolbarBreaksIntoRowsWhereTheWindowIsNarrow();
    void theHelpButtonHasNoAction();
    void tabVisitsTheToolbarAndComesBackToTheText();

    // --- Change mark, lock, what the text may hold ---
    void everyChangeLightsTheRedLamp();
    void theLockKeepsKeysAndButtonsFromTheTextUntilItIsFreed();
    void theBackupSwitchIsTheOption();
    void aCharacterThatTheFilesCantHoldGetsItsEquivalentOrStaysOutside();
    void aLineLongerThanAFormsTextIsCutAndToldAbout();
};

// --- The window ---

void FrmEditorTest::theButtonAndTheMenuEntryOpenTheEditorWithItsCaption() {
    QCOMPARE(editor->windowTitle(), QStringLiteral(" Feldkranz! - Fragensammlung"));
    QCOMPARE(EditorFenster(), editor);
    QVERIFY(AktivesKind() == editor);
    QVERIFY(IstGruen(editor));
    QCOMPARE(Text(editor), QString());
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral(" "));
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral(" "));
    QVERIFY(Taste(editor, QStringLiteral("cmdSchreiben"))->isVisible());
    QVERIFY(!Taste(editor, QStringLiteral("cmdNichtSchreiben"))->isVisible());
    QVERIFY(editor->txtNotiz->isEnabled());
    RahmenSchliessen(editor);
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) == nullptr);
    QVERIFY(EditorFenster() == nullptr);
    Finden<QAction>(lauf.haupt(), QStringLiteral("mEditorKranz"))->trigger();
    QVERIFY(FensterAbwarten(QStringLiteral("frmEditor")) != nullptr);
}

void FrmEditorTest::openingItAgainBringsTheSameWindowToTheFront() {
    Tippen(editor, QStringLiteral("bleibt"));
    const frmFKFragen* form = lauf.programm().NeuesQuizformular();
    QVERIFY(AktivesKind() == form);
    QCOMPARE(lauf.Oeffnen(), editor);
    QTRY_VERIFY(AktivesKind() == editor);
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

void FrmEditorTest::anEmptyEditorShowsNoNameWhateverWasOpenedBefore() {
    Geladen();
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral("Knoten "));
    EditorEntladen();
    lauf.programm().NeuesQuizformular();
    lauf.programm().ordner().schreiben(QStringLiteral("KRANZ/BRIEF.FKR"), "Liebe Oma");
    Dialogfolge dialoge; // a file that was opened last, and isn't the editor's
    dialoge.meldung(QStringLiteral("Evtl. keine Feldkranz-Datei !"), QStringLiteral("Grrr"));
    FormularLaden(Stand.AppPfad + "\\KRANZ\\BRIEF.FKR");
    editor = lauf.Oeffnen();
    QCOMPARE(editor->pnlLaufname->caption(), QStringLiteral(" "));
    QCOMPARE(editor->pnlDatei->caption(), QStringLiteral(" "));
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
    QVERIFY(Finden(editor, QStringLiteral("pnlToolbar"))->height() > hoehe);
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

// --- Change mark, lock, what the text may hold ---

void FrmEditorTest::everyChangeLightsTheRedLamp() {
    QVERIFY(IstGruen(editor));
    Tippen(editor, QStringLiteral("x"));
    QVERIFY(IstRot(editor));
    QVERIFY(Stand.EditorGeaendert);
    EditorStatusSetzen(false);
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
    EditorStatusSetzen(false);
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
    QVERIFY(Spiel.OptionDatei);
    Druecken(editor, QStringLiteral("grpBackUp"));
    QVERIFY(!Spiel.OptionDatei);
    // The file dialog's own switch is the same option.
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("frmDatei"),
         titelSpeichernUnter,
         {},
         {QStringLiteral("cmdAbbrechen")},
         [](QDialog& dialog) { Finden<QAbstractButton>(&dialog, QStringLiteral("chkBackUp"))->click(); }});
    Druecken(editor, QStringLiteral("cmdDatei(2)"));
    QVERIFY(Spiel.OptionDatei);
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
    QCOMPARE(hilfe->caption(),
             QStringLiteral(" Nicht speichern kann ich  雨, U+0000 . Ersetzt habe ich  Ł durch "
                            "L, ź durch z, → durch -> . "));
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
