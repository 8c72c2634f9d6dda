// The list of forms and the disk: files and folders that come and go while it is open, and files that are no
// form, damaged, huge or out of reach. And where the list stands on the screen.
#include "listenhilfe.h"
#include "tests/hilfe/dateidialoghilfe.h"

#include <QScreen>

class FormularlisteDateienTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void filesThatAppearAndVanishShowWithoutARestart();
    void aMarkedFileStaysMarkedWhileOthersComeAndGo();
    void aFolderThatVanishesAndComesBackIsShownAgain();
    void aFolderThatIsMissingIsReportedOnACommandAndNotByItself();
    void theSameFormByListAndByDialogIsOneRecentEntry();
    void aTextFileIsNoForm();
    void aBinaryFileIsNoForm();
    void aFileCutShortIsReported();
    void aFolderWithTheNameOfAFormIsNotListed();
    void aHugeFileIsReportedAndNotSearched();
    void aFileThatVanishesBetweenMarkingAndOpeningChangesNothing();
    void anUnreadableFileInThePreviewIsReportedAndChangesNoNumber();
    void aFileCutShortInThePreviewIsReportedAndChangesNoNumber();
    void aLongListIsReadAndWalkedThroughWithoutAWait();
    void theListIsClearOfToolbarsAndPanels_data();
    void theListIsClearOfToolbarsAndPanels();
    void pictures();
};

void FormularlisteDateienTest::filesThatAppearAndVanishShowWithoutARestart() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/B.FKR"), Quizdatei("b"));
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    QCOMPARE(Listenlauf::Namen(), (QStringList{QStringLiteral("A.FKR"), QStringLiteral("B.FKR")}));
    DateiLoeschen(Stand.AppPfad + "\\KRANZ\\A.FKR");
    QTRY_COMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("B.FKR")});
    DateiSchreiben(Stand.AppPfad + "\\KRANZ\\C.FKR", "neu"); // as a save does it
    QTRY_COMPARE(Listenlauf::Namen(), (QStringList{QStringLiteral("B.FKR"), QStringLiteral("C.FKR")}));
}

void FormularlisteDateienTest::aMarkedFileStaysMarkedWhileOthersComeAndGo() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/M.FKR"), Quizdatei("m", 12, 4, 3));
    Listenlauf::Anklicken(QStringLiteral("M.FKR"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    QCOMPARE(Listenlauf::Markiert(), QStringLiteral("M.FKR"));
    QCOMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
    DateiLoeschen(Stand.AppPfad + "\\KRANZ\\M.FKR");
    QTRY_COMPARE(Listenlauf::Markiert(), QString());
    QCOMPARE(Listenlauf::Info(), QStringLiteral("Datei mit Linksklick auswählen."));
}

void FormularlisteDateienTest::aFolderThatVanishesAndComesBackIsShownAgain() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    QDir oben(lauf.programm().ordner().nativ());
    QVERIFY(oben.rename(QStringLiteral("KRANZ"), QStringLiteral("WEG")));
    QTRY_VERIFY(Listenlauf::Namen().isEmpty());
    QVERIFY(oben.rename(QStringLiteral("WEG"), QStringLiteral("KRANZ")));
    QTRY_COMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("A.FKR")});
    QTRY_VERIFY(QDir(oben.filePath(QStringLiteral("KRANZ"))).removeRecursively());
    QTRY_VERIFY(Listenlauf::Namen().isEmpty());
    lauf.Anlegen(QStringLiteral("KRANZ/B.FKR"), Quizdatei("b")); // with a new folder
    lauf.Anlegen(QStringLiteral("KRANZ/C.FKR"), Quizdatei("c"));
}

void FormularlisteDateienTest::aFolderThatIsMissingIsReportedOnACommandAndNotByItself() {
    Listenlauf lauf;
    QDir oben(lauf.programm().ordner().nativ());
    QVERIFY(oben.rmdir(QStringLiteral("TEST")));
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmMeldung"),
                     std::nullopt,
                     QStringLiteral("FKFORMULARE : filDateiliste :\n76 : Pfad nicht gefunden"),
                     {QStringLiteral("cmdKenntnis")}});
    Listenlauf::Druecken("cmdNeuHB");
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(Listenlauf::Namen().isEmpty());
    lauf.Anlegen(QStringLiteral("TEST/T.FKR"), Testdatei("t")); // it comes, and is shown
}

void FormularlisteDateienTest::theSameFormByListAndByDialogIsOneRecentEntry() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/Abend.fkr"), Quizdatei("a"));
    Spiel.Datei = {};
    Listenlauf::Doppelklicken(QStringLiteral("Abend.fkr"));
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    const std::array<std::string, 4> einmal{Stand.AppPfad + "\\KRANZ\\Abend.fkr"};
    QVERIFY(Spiel.Datei == einmal);
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, {}, QStringLiteral("Abend.fkr"), QStringLiteral("cmdLaden"));
    QTest::mouseClick(Finden<QAbstractButton>(lauf.programm().haupt(), QStringLiteral("cmdDateiFK(2)")),
                      Qt::LeftButton);
    QVERIFY(dialoge.fertig());
    QVERIFY(Spiel.Datei == einmal);
}

void FormularlisteDateienTest::aTextFileIsNoForm() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/Brief.FKR"), "Liebe Eltern,\r\n");
    const frmFKFragen* form = lauf.programm().NeuesQuizformular();
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Evtl. keine Feldkranz-Datei !"), QStringLiteral("Grrr"));
    Listenlauf::Doppelklicken(QStringLiteral("Brief.FKR"));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(FKFragenOffen(), form);
    QCOMPARE(form->windowTitle(), QStringLiteral(" Neues Feldkranz-Formular"));
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
}

void FormularlisteDateienTest::aBinaryFileIsNoForm() {
    const Listenlauf lauf;
    QByteArray bytes;
    for (int i = 0; i < 200000; ++i) {
        bytes += static_cast<char>((i * 7919) % 256);
    }
    lauf.Anlegen(QStringLiteral("KRANZ/Bild.FKR"), bytes);
    Spiel.FelderGesamt = 30;
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Evtl. keine Feldkranz-Datei !"), QStringLiteral("Grrr"));
    Listenlauf::Doppelklicken(QStringLiteral("Bild.FKR"));
    QTRY_VERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() == nullptr);
    QCOMPARE(Spiel.FelderGesamt, std::int16_t(30));
}

void FormularlisteDateienTest::aFileCutShortIsReported() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/Kurz.FKR"), Quizdatei("kurz").left(300));
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("QMessageBox"),
                     QStringLiteral("Fehler beim Laden !"),
                     std::nullopt,
                     {QStringLiteral("OK")}});
    dialoge.kasten(QStringLiteral("Fehler beim Laden !"),
                   QStringLiteral("Dateilänge nicht korrekt oder so ..."), QStringLiteral("OK"));
    Listenlauf::Doppelklicken(QStringLiteral("Kurz.FKR"));
    QTRY_VERIFY(dialoge.fertig());
}

void FormularlisteDateienTest::aFolderWithTheNameOfAFormIsNotListed() {
    Listenlauf lauf;
    QVERIFY(QDir(lauf.programm().ordner().nativ(QStringLiteral("KRANZ"))).mkdir(QStringLiteral("O.FKR")));
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    QCOMPARE(Listenlauf::Namen(), QStringList{QStringLiteral("A.FKR")});
}

void FormularlisteDateienTest::aHugeFileIsReportedAndNotSearched() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/Film.FKR"), "Film");
    QVERIFY(QFile::resize(lauf.programm().ordner().nativ(QStringLiteral("KRANZ/Film.FKR")),
                          qint64{3} << 30)); // 3 GiB of nothing
    Spiel.FelderGesamt = 30;
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("DATEI : Oeffnen_Vorschau :\nIch brauche mehr Platz ! (Out of Memory)"),
                    QStringLiteral("Grrr !*?~"));
    Listenlauf::Anklicken(QStringLiteral("Film.FKR"));
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(Spiel.FelderGesamt, std::int16_t(30));
}

void FormularlisteDateienTest::aFileThatVanishesBetweenMarkingAndOpeningChangesNothing() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a"));
    Listenlauf::Anklicken(QStringLiteral("A.FKR"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(30, 6, 5));
    frmFKFragen* form = lauf.programm().NeuesQuizformular();
    form->txtFrage.at(1)->setText("noch da");
    Dialogfolge dialoge;
    dialoge.kasten(QStringLiteral("Fehler beim Laden !"),
                   QStringLiteral("Fehler Nummer 53 occurred at line 0"), QStringLiteral("OK"));
    dialoge.kasten(QStringLiteral("Fehler beim Laden !"),
                   QStringLiteral("Mit dem Dateinamen stimmt etwas nicht !"), QStringLiteral("OK"));
    // The other file that may be chosen instead comes with the question about unsaved changes.
    dialoge.frage(QStringLiteral("Auswertung speichern !"),
                  QStringLiteral("Soll das aktuelle Feldkranz-Formular\ngespeichert werden ?"), 2);
    QFile::remove(lauf.programm().ordner().nativ(QStringLiteral("KRANZ/A.FKR")));
    // At once: the list hasn't heard of it yet.
    QTest::mouseDClick(Listenlauf::Liste()->viewport(), Qt::LeftButton, {},
                       Listenlauf::Liste()->visualItemRect(Listenlauf::Liste()->item(0)).center());
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(FK_Frage(1), std::string("noch da"));
    QVERIFY(Stand.FormGeaendert);
    QVERIFY(lauf.Lesen(QStringLiteral("KRANZ/UNGESICHERT.BAK")).isNull());
}

void FormularlisteDateienTest::anUnreadableFileInThePreviewIsReportedAndChangesNoNumber() {
    Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/A.FKR"), Quizdatei("a", 12, 4, 3));
    lauf.Anlegen(QStringLiteral("KRANZ/B.FKR"), Quizdatei("b"));
    const Spielwerte vorher = Spiel;
    Listenlauf::Anklicken(QStringLiteral("A.FKR"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
    // A link that leads nowhere can be opened by nobody, the super-user included.
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmMeldung"),
                     std::nullopt,
                     QStringLiteral("DATEI : Oeffnen_Vorschau :\n53 : Datei nicht gefunden"),
                     {QStringLiteral("cmdKenntnis")}});
    const QPoint ort = Listenlauf::Ort(QStringLiteral("B.FKR"));
    QFile::remove(lauf.programm().ordner().nativ(QStringLiteral("KRANZ/B.FKR")));
    QTest::mouseClick(Listenlauf::Liste()->viewport(), Qt::LeftButton, {},
                      ort); // before the list hears of it
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
    QVERIFY(Spiel == vorher);
}

void FormularlisteDateienTest::aFileCutShortInThePreviewIsReportedAndChangesNoNumber() {
    const Listenlauf lauf;
    lauf.Anlegen(QStringLiteral("KRANZ/KURZ.FKR"), "\"Feldkranz\"\r\n\"FK\"\r\n[FKINI]\r\nFK\r\n30\r\n5\r\n");
    Spiel.FelderGesamt = 12;
    Spiel.AnzahlWissen = 3;
    Spiel.FragenProWissen = 4;
    const Spielwerte vorher = Spiel;
    Dialogfolge dialoge;
    dialoge.meldung(
        QStringLiteral("DATEI : Oeffnen_Vorschau :\nIch müsste noch Daten einlesen, aber die Datei ist "
                       "zu Ende !?"),
        QStringLiteral("Grrr.. *~§§°"));
    // On a busy machine the dialog comes before the release of a real click, and would get it.
    QTest::mouseClick(Listenlauf::Liste()->viewport(), Qt::LeftButton, {},
                      Listenlauf::Ort(QStringLiteral("KURZ.FKR")));
    QTRY_VERIFY(dialoge.fertig());
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(12, 3, 4));
    QVERIFY(Spiel == vorher);
    QCOMPARE(Stand.FormTyp, Formart::Keine);
}

void FormularlisteDateienTest::aLongListIsReadAndWalkedThroughWithoutAWait() {
    constexpr int anzahl = 2000;
    const Listenlauf lauf;
    for (int i = 0; i < anzahl; ++i) {
        lauf.Schreiben(QStringLiteral("KRANZ/Form %1.FKR").arg(i, 4, 10, QLatin1Char('0')), Quizdatei("a"));
    }
    QTRY_COMPARE(Listenlauf::Liste()->count(), anzahl);
    QElapsedTimer uhr;
    uhr.start();
    for (int i = 0; i < anzahl; ++i) {
        QTest::keyClick(Listenlauf::Liste(), Qt::Key_Down);
    }
    QTRY_COMPARE(Listenlauf::Markiert(), QStringLiteral("Form 1999.FKR"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(30, 6, 5));
    QVERIFY2(uhr.elapsed() < 10000, "a held arrow key must not pile up previews");
}

void FormularlisteDateienTest::theListIsClearOfToolbarsAndPanels_data() {
    QTest::addColumn<QSize>("schirm");
    QTest::newRow("640x480") << QSize(640, 480);
    QTest::newRow("800x600") << QSize(800, 600);
    QTest::newRow("1024x768") << QSize(1024, 768);
    QTest::newRow("1280x1024") << QSize(1280, 1024);
}

void FormularlisteDateienTest::theListIsClearOfToolbarsAndPanels() {
    QFETCH(QSize, schirm);
    Programm programm;
    Listenlauf::Fenster()->close();
    QTRY_VERIFY(Listenlauf::Fenster() == nullptr);
    BildschirmgroesseVorgeben(schirm);
    FormularlisteZeigen();
    QVERIFY(QTest::qWaitForWindowActive(Listenlauf::Fenster()));
    QRect rahmen;
    QTRY_VERIFY((rahmen = Listenlauf::Fenster()->frameGeometry()).top() > 0);
    QVERIFY(QRect(QPoint(0, 0), schirm).contains(rahmen));
    // On the real screen of this test the toolbars are on top and the panels in the last line.
    const QWidget* kranz = Finden(programm.haupt(), QStringLiteral("pnlKranz"));
    QVERIFY(rahmen.top() > kranz->mapToGlobal(QPoint(0, kranz->height())).y());
    QVERIFY(rahmen.bottom() <
            schirm.height() - Finden(programm.haupt(), QStringLiteral("pnlHilfe"))->height());
    for (QWidget* teil :
         Listenlauf::Fenster()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        QVERIFY2(Listenlauf::Fenster()->rect().contains(teil->geometry()), qPrintable(teil->objectName()));
    }
    QVERIFY(Listenlauf::Liste()->height() >= 80);
}

// For people to look at.
void FormularlisteDateienTest::pictures() {
    Listenlauf lauf;
    for (const char* name :
         {"Bibelabend.FKR", "Sommerlager 2026.FKR", "Überraschung.FKR", "Nachtwanderung.FKR"}) {
        lauf.Anlegen(QStringLiteral("KRANZ/") + QString::fromUtf8(name), Quizdatei("a", 24, 4, 6));
    }
    Listenlauf::Anklicken(QStringLiteral("Nachtwanderung.FKR"));
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(24, 6, 4));
    BildVon(Listenlauf::Fenster(), QStringLiteral("frmFKformulare"));
    BildVomBildschirm(QStringLiteral("frmFKformulare-start"));
    lauf.programm().NeuesQuizformular();
    QCoreApplication::processEvents();
    BildVomBildschirm(QStringLiteral("frmFKformulare-mit-formular"));
}

QTEST_MAIN(FormularlisteDateienTest)
#include "formularlistedateien_test.moc"
