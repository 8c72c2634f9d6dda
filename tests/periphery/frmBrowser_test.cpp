// The rule document: found or reported, its window, and whatever a broken file may do.
#include "tests/periphery/regelhilfe.h"

class FrmBrowserTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMissingRuleDocumentGivesTheMessageWithTheFullPathAndNoWindow();
    void theWindowIsAChildOfTheMainWindowWithItsOneControl();
    void theTitleTakesTheDocumentsLocation();
    void theWindowIsLowerThanTheScreenAndInTheProportionOfAPage();
    void aSmallScreenGivesANarrowBrowserWindow();
    void theControlIsAHundredTwipsSmallerThanTheWindow();
    void aSecondCallUsesTheSameWindow();
    void aDamagedOrEncryptedFileShowsAnEmptyPageAndAWord_data();
    void aDamagedOrEncryptedFileShowsAnEmptyPageAndAWord();
    void itsKeyForSearchingStaysItsOwn();
    void withoutThePlugInTheWindowSaysSo();
    void whyThereIsNothingToReadIsInSightBesideTheListOfForms_data();
    void whyThereIsNothingToReadIsInSightBesideTheListOfForms();
    void fromASettingsDialogTheRulesCanBeReadBesideIt();
    void theWindowLooksFinished();
};

void FrmBrowserTest::aMissingRuleDocumentGivesTheMessageWithTheFullPathAndNoWindow() {
    const Zusatzordner zusatz;
    Programm programm;
    QFile::remove(programm.ordner().nativ(regel));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Die Datei\n%1/REGEL/Feldkranz.pdf\nscheint nicht vorhanden zu sein.")
                        .arg(Anzeige(Stand.AppPfad)),
                    QStringLiteral("Dann brich ab !"));
    Zeigen(programm);
    QVERIFY(dialoge.fertig());
    QVERIFY(BrowserOffen() == nullptr);
}

void FrmBrowserTest::theWindowIsAChildOfTheMainWindowWithItsOneControl() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(2));
    Zeigen(programm);
    frmBrowser* fenster = BrowserOffen();
    QVERIFY(fenster != nullptr && fenster->isVisible());
    QVERIFY(qobject_cast<QMdiSubWindow*>(fenster->parentWidget()) != nullptr);
    QCOMPARE(programm.haupt()->Kindflaeche()->activeSubWindow()->widget(), fenster);
    QCOMPARE(fenster->parentWidget()->pos(), QPoint(0, 0));
    QVERIFY(Finden(fenster, QStringLiteral("brwWebBrowser"))->isVisible());
    QVERIFY(!Finden(fenster, QStringLiteral("picAddress"))->isVisible());
    QVERIFY(!Finden(fenster, QStringLiteral("imlIcons"))->isVisible());
    QCOMPARE(Ansicht()->Seiten(), 2);
}

void FrmBrowserTest::theTitleTakesTheDocumentsLocation() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    QCOMPARE(frmBrowser().windowTitle(), QStringLiteral(" Spielregel"));
    Zeigen(programm);
    QCOMPARE(BrowserOffen()->windowTitle(), Anzeige(Stand.AppPfad + "\\REGEL\\Feldkranz.pdf"));
    QCOMPARE(Anzeige(SpielregelAdresse()),
             QStringLiteral("file://") + Anzeige(Stand.AppPfad) + QStringLiteral("/REGEL/Feldkranz.pdf"));
}

void FrmBrowserTest::theWindowIsLowerThanTheScreenAndInTheProportionOfAPage() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    Zeigen(programm);
    // 1024 pixels are 15360 twips; 13260 are left, and 0.68 of them.
    QCOMPARE(BrowserOffen()->parentWidget()->size(), QSize(601, 884));
}

void FrmBrowserTest::aSmallScreenGivesANarrowBrowserWindow() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    BildschirmgroesseVorgeben(QSize(800, 600));
    Zeigen(programm);
    QCOMPARE(BrowserOffen()->parentWidget()->size(), QSize(313, 460));
    // What the bar has no room for is in its menu, and the pages are there.
    QVERIFY(Finden(BrowserOffen(), QStringLiteral("qt_toolbar_ext_button"))->isVisible());
    QVERIFY(Ansicht()->Steuerelement()->height() > 250);
    BildVon(BrowserOffen()->parentWidget(), QStringLiteral("frmBrowser_schmal"));
}

void FrmBrowserTest::theControlIsAHundredTwipsSmallerThanTheWindow() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    Zeigen(programm);
    const auto* steuerelement = Finden(BrowserOffen(), QStringLiteral("brwWebBrowser"));
    for (const QSize groesse : {QSize(500, 700), QSize(650, 400)}) {
        BrowserOffen()->parentWidget()->resize(groesse);
        const QSize innen = BrowserOffen()->size();
        QVERIFY(qAbs(innen.width() * 15 - 100 - steuerelement->width() * 15) <= 15);
        QVERIFY(qAbs(innen.height() * 15 - 100 - steuerelement->height() * 15) <= 15);
    }
}

void FrmBrowserTest::aSecondCallUsesTheSameWindow() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(2));
    Zeigen(programm);
    const frmBrowser* fenster = BrowserOffen();
    Ansicht()->SeiteZeigen(2);
    programm.ordner().schreiben(regel, Dokument(3));
    Zeigen(programm);
    QCOMPARE(BrowserOffen(), fenster);
    QCOMPARE(Ansicht()->Seiten(), 3);
    QCOMPARE(Ansicht()->Seite(), 1);
    QCOMPARE(programm.haupt()->Kindflaeche()->subWindowList().size(), 1);
    BrowserOffen()->parentWidget()->close();
    QTRY_VERIFY(BrowserOffen() == nullptr);
    Zeigen(programm);
    QCOMPARE(Ansicht()->Seiten(), 3);
}

void FrmBrowserTest::aDamagedOrEncryptedFileShowsAnEmptyPageAndAWord_data() {
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray ganz = Dokument(3);
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no PDF") << QByteArray("Das ist keine PDF-Datei.\r\n");
    QTest::newRow("head only") << ganz.left(40);
    QTest::newRow("zeros") << QByteArray(5000, '\0');
    QTest::newRow("encrypted") << Verschluesselt();
    QTest::newRow("no pages") << QByteArray("%PDF-1.4\n1 0 obj <</Type /Catalog /Pages 2 0 R>> endobj\n"
                                            "2 0 obj <</Type /Pages /Kids [] /Count 0>> endobj\n"
                                            "trailer <</Root 1 0 R /Size 3>>\n%%EOF\n");
}

void FrmBrowserTest::aDamagedOrEncryptedFileShowsAnEmptyPageAndAWord() {
    QFETCH(const QByteArray, bytes);
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(2));
    Zeigen(programm);
    programm.ordner().schreiben(regel, bytes);
    const Dialogfolge dialoge; // no message
    Zeigen(programm);
    QVERIFY(BrowserOffen()->isVisible());
    QCOMPARE(Ansicht()->Seiten(), 0);
    QCOMPARE(BrowserOffen()->windowTitle(), QStringLiteral(" Spielregel"));
    QCOMPARE(Regelstand(),
             QStringLiteral(" Diese Datei kann ich nicht lesen: sie ist beschädigt oder verschlüsselt."));
    QVERIFY(!Finden(BrowserOffen(), QStringLiteral("cmdSeiteWeiter"))->isEnabled());
    QWidget* seiten = Ansicht()->Steuerelement();
    for (const auto taste : {Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_F3}) {
        QTest::keyClick(seiten, taste);
        QTest::keyClick(seiten, taste, Qt::ControlModifier);
    }
    QTest::keyClick(seiten, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(Bildpunkte(Qt::white), 0);
    programm.ordner().schreiben(regel, Dokument(2)); // and it recovers
    Zeigen(programm);
    QCOMPARE(Ansicht()->Seiten(), 2);
}

void FrmBrowserTest::itsKeyForSearchingStaysItsOwn() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(2));
    Zeigen(programm);
    auto* zeile = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSuche"));
    QTRY_VERIFY(BrowserOffen()->isAncestorOf(QApplication::focusWidget()));
    maus::Taste(QStringLiteral("ctrl+f"));
    QTRY_VERIFY(zeile->hasFocus());
    QVERIFY(FensterOderNichts(QStringLiteral("frmSuche")) == nullptr);
}

void FrmBrowserTest::withoutThePlugInTheWindowSaysSo() {
    const Zusatzordner zusatz(QStringLiteral("/nirgendwo"));
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    const Dialogfolge dialoge;
    Zeigen(programm);
    QVERIFY(BrowserOffen()->isVisible());
    QCOMPARE(Regelstand(), QStringLiteral(" Ich kann hier leider keine PDF-Datei zeigen."));
    QTest::keyClick(BrowserOffen(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(BrowserOffen(), Qt::Key_PageDown, Qt::ControlModifier);
    QVERIFY(!Finden(BrowserOffen(), QStringLiteral("txtSuche"))->isEnabled());
}

void FrmBrowserTest::whyThereIsNothingToReadIsInSightBesideTheListOfForms_data() {
    QTest::addColumn<QString>("ordner");
    QTest::newRow("damaged") << QStringLiteral(FELDKRANZ_PROGRAMM);
    QTest::newRow("without the plug-in") << QStringLiteral("/nirgendwo");
}

// The list stays above the window's foot, where the page's number stands otherwise.
void FrmBrowserTest::whyThereIsNothingToReadIsInSightBesideTheListOfForms() {
    QFETCH(const QString, ordner);
    const Zusatzordner zusatz(ordner);
    Programm programm;
    QVERIFY(FensterAbwarten(QStringLiteral("frmFKformulare"))->isVisible());
    programm.ordner().schreiben(regel, "kein PDF");
    Zeigen(programm);
    QWidget* schild = Finden(BrowserOffen(), QStringLiteral("lblStand"));
    QTRY_VERIFY(schild->isVisible());
    QVERIFY(Regelstand().startsWith(QStringLiteral(" ")) && Regelstand().endsWith(QStringLiteral(".")));
    const auto obenauf = [schild](QPoint stelle) {
        return QApplication::widgetAt(schild->mapToGlobal(stelle)) == schild;
    };
    QTRY_VERIFY(obenauf({5, schild->height() / 2}));
    QVERIFY(obenauf(schild->rect().center()));
}

void FrmBrowserTest::fromASettingsDialogTheRulesCanBeReadBesideIt() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(3));
    programm.NeuesQuizformular();
    Dialogfolge dialoge;
    ErwarteterDialog ini;
    ini.name = QStringLiteral("frmIni");
    ini.tasten = {QStringLiteral("cmdEinOK")};
    ini.vorher = [](QDialog& dialog) {
        Finden<QAbstractButton>(&dialog, QStringLiteral("cmdSpielregel"))->click();
        QVERIFY(QTest::qWaitForWindowExposed(BrowserOffen()));
        QVERIFY(BrowserOffen()->isWindow());
        maus::Klicken(Finden(BrowserOffen(), QStringLiteral("cmdSeiteWeiter"))); // not blocked by the dialog
        QTRY_COMPARE(Ansicht()->Seite(), 2);
        // The dialog's own button must be free again.
        BrowserOffen()->move(0, 0);
        dialog.move(640, 300);
        dialog.raise();
    };
    dialoge.erwarte(ini);
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdIni"))->click();
    QVERIFY(dialoge.fertig());
    QVERIFY(BrowserOffen() != nullptr && BrowserOffen()->isVisible());
    QVERIFY(qobject_cast<QMdiSubWindow*>(BrowserOffen()->parentWidget()) != nullptr);
    QCOMPARE(Ansicht()->Seite(), 2);
}

void FrmBrowserTest::theWindowLooksFinished() {
    const Zusatzordner zusatz;
    Programm programm;
    if (!programm.ordner().vorhanden(regel)) {
        programm.ordner().schreiben(regel, Dokument(5));
    }
    Zeigen(programm);
    auto* txtSuche = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSuche"));
    txtSuche->setText(QStringLiteral("Frage"));
    QTest::keyClick(txtSuche, Qt::Key_Return);
    for (const char* name : {"cmdSeiteZurueck", "cmdSeiteWeiter", "cmdKleiner", "cmdGroesser", "cmdBreite",
                             "cmdGanzeSeite", "cmdFundZurueck", "cmdFundWeiter"}) {
        auto* taste = Finden<QToolButton>(BrowserOffen(), QLatin1String(name));
        QVERIFY2(taste->isVisible(), name);
        QVERIFY2(taste->width() >= taste->sizeHint().width(), name); // nothing is cut off
    }
    QCOMPARE(rundgang::Maengel(*BrowserOffen()), QStringList()); // everything tells about itself
    BildVon(programm.haupt(), QStringLiteral("frmBrowser"));
}

QTEST_MAIN(FrmBrowserTest)
#include "frmBrowser_test.moc"
