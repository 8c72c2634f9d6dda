// The rule document: found or reported, read page by page, searched, and whatever a broken file may do.
#include "core/frmMDI.h"
#include "core/oberflaeche.h"
#include "core/zustand.h"
#include "dialogs/modal.h"
#include "periphery/dokumentansicht.h"
#include "periphery/frmBrowser.h"
#include "periphery/spielregel.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"
#include "tests/periphery/rundgang.h"
#include "tests/periphery/zusatzordner.h"

#include <QBuffer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

namespace {

const QString regel = QStringLiteral("REGEL/Feldkranz.pdf");

// Pages of A4; each has its number, and the word Kranzfeld stands once on the first and twice on the third.
QByteArray Dokument(int seiten) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter schreiber(&puffer);
        schreiber.setPageSize(QPageSize(QPageSize::A4));
        schreiber.setResolution(72);
        QPainter maler(&schreiber);
        maler.setFont(QFont(QStringLiteral("Liberation Sans"), 14));
        for (int seite = 1; seite <= seiten; ++seite) {
            if (seite > 1) {
                schreiber.newPage();
            }
            maler.drawText(40, 60, QStringLiteral("Das ist die Seite Nummer %1.").arg(seite));
            for (int zeile = 0; zeile < 24; ++zeile) {
                maler.drawText(
                    40, 90 + 22 * zeile,
                    QStringLiteral("Die Häuptlinge stellen ihre Fragen reihum, Zeile %1.").arg(zeile));
            }
            if (seite == 1 || seite == 3) {
                maler.drawText(40, 640, QStringLiteral("Ein Kranzfeld mit Glück"));
            }
            if (seite == 3) {
                maler.drawText(40, 680, QStringLiteral("noch ein KRANZFELD"));
            }
        }
    }
    return bytes;
}

// As a file looks whose password nobody knows.
QByteArray Verschluesselt() {
    QByteArray bytes = "%PDF-1.4\n"
                       "1 0 obj <</Type /Catalog /Pages 2 0 R>> endobj\n"
                       "2 0 obj <</Type /Pages /Kids [3 0 R] /Count 1>> endobj\n"
                       "3 0 obj <</Type /Page /Parent 2 0 R /MediaBox [0 0 300 300]>> endobj\n";
    bytes += "4 0 obj <</Filter /Standard /V 1 /R 2 /P -4 /O <" + QByteArray(64, '1') + "> /U <" +
             QByteArray(64, '2') + ">>> endobj\n";
    bytes += "trailer <</Root 1 0 R /Size 5 /Encrypt 4 0 R /ID [<01> <01>]>>\n%%EOF\n";
    return bytes;
}

void Zeigen(const Programm& programm) {
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdSpielregel"))->click();
}

Dokumentansicht* Ansicht() {
    return dynamic_cast<Dokumentansicht*>(Finden(BrowserOffen(), QStringLiteral("seitenansicht")));
}

QString Stand() {
    return Finden<QLabel>(BrowserOffen(), QStringLiteral("lblStand"))->text();
}

void Klick(const char* name) {
    QTest::mouseClick(Finden(BrowserOffen(), QLatin1String(name)), Qt::LeftButton);
}

// Number of the pixels of about that colour in the control's pages.
int Bildpunkte(const QColor& farbe) {
    const QImage bild =
        qobject_cast<QAbstractScrollArea*>(Ansicht()->Steuerelement())->viewport()->grab().toImage();
    int zahl = 0;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const QColor hier = bild.pixelColor(x, y);
            zahl += qAbs(hier.red() - farbe.red()) + qAbs(hier.green() - farbe.green()) +
                                qAbs(hier.blue() - farbe.blue()) <
                            12
                        ? 1
                        : 0;
        }
    }
    return zahl;
}

} // namespace

class FrmBrowserTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMissingRuleDocumentGivesTheMessageWithTheFullPathAndNoWindow();
    void theWindowIsAChildOfTheMainWindowWithItsOneControl();
    void theTitleTakesTheDocumentsLocation();
    void theWindowIsLowerThanTheScreenAndInTheProportionOfAPage();
    void aSmallScreenGivesANarrowBrowserWindow();
    void theControlIsAHundredTwipsSmallerThanTheWindow();
    void pagesAreTurnedByButtonsKeysAndNumber();
    void thePagesAreFittedToWidthShownWholeAndSized();
    void aSearchFindsEveryPlaceWhateverItsCase();
    void ctrlFBeginsASearchAndEscEndsIt();
    void whatIsNowhereIsSaidBelow();
    void aSecondCallUsesTheSameWindow();
    void aDamagedOrEncryptedFileShowsAnEmptyPageAndAWord_data();
    void aDamagedOrEncryptedFileShowsAnEmptyPageAndAWord();
    void withoutThePlugInTheWindowSaysSo();
    void aLongDocumentKeepsFewPicturesAndScrollsToItsEnd();
    void fromASettingsDialogTheRulesCanBeReadBesideIt();
    void theWindowLooksFinished();
};

void FrmBrowserTest::aMissingRuleDocumentGivesTheMessageWithTheFullPathAndNoWindow() {
    const Zusatzordner zusatz;
    Programm programm;
    QFile::remove(programm.ordner().nativ(regel));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Die Datei\n%1/REGEL/Feldkranz.pdf\nscheint nicht vorhanden zu sein.")
                        .arg(Anzeige(AppPfad)),
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
    QCOMPARE(BrowserOffen()->windowTitle(), Anzeige(AppPfad + "\\REGEL\\Feldkranz.pdf"));
    QCOMPARE(Anzeige(SpielregelAdresse()),
             QStringLiteral("file://") + Anzeige(AppPfad) + QStringLiteral("/REGEL/Feldkranz.pdf"));
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

void FrmBrowserTest::pagesAreTurnedByButtonsKeysAndNumber() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(5));
    Zeigen(programm);
    Dokumentansicht* ansicht = Ansicht();
    QCOMPARE(ansicht->Seite(), 1);
    QVERIFY(!Finden(BrowserOffen(), QStringLiteral("cmdSeiteZurueck"))->isEnabled());
    Klick("cmdSeiteWeiter");
    QCOMPARE(ansicht->Seite(), 2);
    Klick("cmdSeiteZurueck");
    QCOMPARE(ansicht->Seite(), 1);
    auto* txtSeite = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSeite"));
    txtSeite->setText(QStringLiteral("4"));
    QTest::keyClick(txtSeite, Qt::Key_Return);
    QCOMPARE(ansicht->Seite(), 4);
    QWidget* seiten = ansicht->Steuerelement();
    QTest::keyClick(seiten, Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(ansicht->Seite(), 3);
    QTest::keyClick(seiten, Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(ansicht->Seite(), 4);
    QTest::keyClick(seiten, Qt::Key_Home);
    QCOMPARE(ansicht->Seite(), 1);
    // The pages go by screenfuls: the same way down as up.
    const auto* leiste = qobject_cast<QAbstractScrollArea*>(seiten)->verticalScrollBar();
    QTest::keyClick(seiten, Qt::Key_PageDown);
    QVERIFY(leiste->value() > 0);
    QTest::keyClick(seiten, Qt::Key_PageUp);
    QCOMPARE(leiste->value(), 0);
    QTest::keyClick(seiten, Qt::Key_End);
    QCOMPARE(ansicht->Seite(), 5);
    QVERIFY(!Finden(BrowserOffen(), QStringLiteral("cmdSeiteWeiter"))->isEnabled());
    QVERIFY2(Stand().startsWith(QStringLiteral(" Seite 5 von 5  -  ")), qPrintable(Stand()));
    QCOMPARE(Finden<QLabel>(BrowserOffen(), QStringLiteral("lblSeiten"))->text(), QStringLiteral("von 5"));
    txtSeite->setText(QStringLiteral("99"));
    QTest::keyClick(txtSeite, Qt::Key_Return);
    QCOMPARE(txtSeite->text(), QStringLiteral("5"));
}

void FrmBrowserTest::thePagesAreFittedToWidthShownWholeAndSized() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(3));
    Zeigen(programm);
    Dokumentansicht* ansicht = Ansicht();
    auto* flaeche = qobject_cast<QAbstractScrollArea*>(ansicht->Steuerelement());
    QCOMPARE(ansicht->Einpassung(), Passung::Breite);
    QVERIFY(Finden<QToolButton>(BrowserOffen(), QStringLiteral("cmdBreite"))->isChecked());
    const double breit = (flaeche->viewport()->width() - 16) / (595.0 * 96 / 72);
    QVERIFY(qAbs(ansicht->Groesse() - breit) < 0.01);
    Klick("cmdGanzeSeite");
    QCOMPARE(ansicht->Einpassung(), Passung::Seite);
    QVERIFY(ansicht->Groesse() * 842 * 96 / 72 <= flaeche->viewport()->height());
    const double ganz = ansicht->Groesse();
    Klick("cmdGroesser");
    QVERIFY(qAbs(ansicht->Groesse() - ganz * 1.25) < 0.01);
    QVERIFY(!Finden<QToolButton>(BrowserOffen(), QStringLiteral("cmdGanzeSeite"))->isChecked());
    for (int i = 0; i < 30; ++i) {
        Klick("cmdGroesser");
    }
    QVERIFY(qAbs(ansicht->Groesse() - 4.0) < 0.01);
    QTRY_VERIFY(flaeche->horizontalScrollBar()->isVisible());
    QVERIFY(!flaeche->grab().isNull()); // a page larger than its picture may be is drawn all the same
    for (int i = 0; i < 40; ++i) {
        Klick("cmdKleiner");
    }
    QVERIFY(qAbs(ansicht->Groesse() - 0.25) < 0.01);
    QTest::keyClick(flaeche, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(ansicht->Einpassung(), Passung::Breite);
}

void FrmBrowserTest::aSearchFindsEveryPlaceWhateverItsCase() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(4));
    Zeigen(programm);
    QCOMPARE(Bildpunkte(QColor(255, 170, 60)), 0);
    auto* txtSuche = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSuche"));
    QTest::keyClicks(txtSuche, QStringLiteral("kranzfeld"));
    QTRY_VERIFY2(Stand().endsWith(QStringLiteral("  -  Fundstelle 1 von 3")), qPrintable(Stand()));
    QCOMPARE(Ansicht()->Seite(), 1);
    QVERIFY(Bildpunkte(QColor(255, 170, 60)) > 200);
    QTest::keyClick(txtSuche, Qt::Key_Return);
    QVERIFY2(Stand().endsWith(QStringLiteral("  -  Fundstelle 2 von 3")), qPrintable(Stand()));
    QCOMPARE(Ansicht()->Seite(), 3);
    QVERIFY(Bildpunkte(QColor(255, 170, 60)) > 200);
    QVERIFY(Bildpunkte(QColor(255, 236, 120)) > 200); // the third place, on the same page
    Klick("cmdFundWeiter");
    Klick("cmdFundWeiter");
    QVERIFY2(Stand().endsWith(QStringLiteral("  -  Fundstelle 1 von 3")), qPrintable(Stand()));
    Klick("cmdFundZurueck");
    QVERIFY2(Stand().endsWith(QStringLiteral("  -  Fundstelle 3 von 3")), qPrintable(Stand()));
    txtSuche->setText(QStringLiteral("Glück"));
    QTest::keyClick(Ansicht()->Steuerelement(), Qt::Key_F3);
    QVERIFY2(Stand().endsWith(QStringLiteral(" von 2")), qPrintable(Stand()));
}

void FrmBrowserTest::ctrlFBeginsASearchAndEscEndsIt() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    Zeigen(programm);
    QWidget* seiten = Ansicht()->Steuerelement();
    QTRY_VERIFY(seiten->hasFocus());
    auto* txtSuche = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSuche"));
    maus::Taste(QStringLiteral("ctrl+f"));
    QTRY_VERIFY(txtSuche->hasFocus());
    maus::Tippen(QStringLiteral("Kranz"));
    QTRY_VERIFY2(Stand().endsWith(QStringLiteral("  -  Fundstelle 1 von 1")), qPrintable(Stand()));
    maus::Taste(QStringLiteral("Escape"));
    QTRY_VERIFY(seiten->hasFocus());
    QCOMPARE(txtSuche->text(), QString());
    QVERIFY2(Stand().startsWith(QStringLiteral(" Seite 1 von 1")) && Stand().endsWith(u'%'),
             qPrintable(Stand()));
    QCOMPARE(Bildpunkte(QColor(255, 170, 60)), 0);
    QVERIFY(BrowserOffen()->isVisible());
}

void FrmBrowserTest::whatIsNowhereIsSaidBelow() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    Zeigen(programm);
    auto* txtSuche = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSuche"));
    txtSuche->setText(QStringLiteral("Krümel"));
    QTest::keyClick(txtSuche, Qt::Key_Return);
    QVERIFY2(Stand().endsWith(QStringLiteral("  -  [ Krümel ] kommt nicht vor.")), qPrintable(Stand()));
    QTest::keyClick(txtSuche, Qt::Key_Return); // nothing to go to
    Klick("cmdFundZurueck");
    QCOMPARE(Ansicht()->Seite(), 1);
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
    QCOMPARE(Stand(),
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

void FrmBrowserTest::withoutThePlugInTheWindowSaysSo() {
    const Zusatzordner zusatz(QStringLiteral("/nirgendwo"));
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    const Dialogfolge dialoge;
    Zeigen(programm);
    QVERIFY(BrowserOffen()->isVisible());
    QCOMPARE(Stand(), QStringLiteral(" Ich kann hier leider keine PDF-Datei zeigen."));
    QTest::keyClick(BrowserOffen(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(BrowserOffen(), Qt::Key_PageDown, Qt::ControlModifier);
    QVERIFY(!Finden(BrowserOffen(), QStringLiteral("txtSuche"))->isEnabled());
}

void FrmBrowserTest::aLongDocumentKeepsFewPicturesAndScrollsToItsEnd() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(60));
    Zeigen(programm);
    for (int seite = 1; seite <= 60; ++seite) {
        Ansicht()->SeiteZeigen(seite);
        QVERIFY(!Ansicht()->Steuerelement()->grab().isNull());
    }
    QCOMPARE(Ansicht()->Seite(), 60);
    QCOMPARE(Ansicht()->Suchen(QStringLiteral("Nummer")), 60);
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
