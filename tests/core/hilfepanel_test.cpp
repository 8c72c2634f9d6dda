// Where a file lies, told in the help panel: its name whole and first, its folder as far as two lines take
// it, the whole path in the panel's tip.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "core/programmstand.h"
#include "forms/formulare.h"
#include "mainwindow/frmMDI.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"
#include "tooltips/hinweise.h"
#include "tooltips/tooltip.h"

#include <QAbstractButton>
#include <QDir>
#include <QMdiArea>
#include <QTest>
#include <QTextLayout>

namespace {

Panel* Hilfe(const Programm& programm) {
    return Finden<Panel>(programm.haupt(), QStringLiteral("pnlHilfe"));
}

// Lines that a text takes in the room ahead of the clipboard panels, in the smaller of the two sizes.
int Zeilen(const QString& text) {
    QTextOption umbruch;
    umbruch.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout satz(text, Schrift(7.5_pt));
    satz.setTextOption(umbruch);
    satz.beginLayout();
    for (QTextLine zeile = satz.createLine(); zeile.isValid(); zeile = satz.createLine()) {
        zeile.setLineWidth(236);
    }
    satz.endLayout();
    return satz.lineCount();
}

// A new quiz form printed as the one of that file.
void Drucken(Programm& programm, const std::string& datei) {
    programm.NeuesQuizformular();
    Spiel.Papierformat = "A4 quer";
    Stand.FKDateiName = datei;
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(4)")}});
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdDruckenFK(2)"))->click();
}

} // namespace

class HilfepanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); }
    void theNameComesFirstAndTheFolderTakesWhatIsLeftOfTwoLines();
    void aShortFolderStandsWhole();
    void aNameThatFillsThePanelStandsAlone();
    void theTipTellsTheWholePathAlsoUnderThePointer();
    void aLongStatusTextShowsItsBeginning();
};

void HilfepanelTest::theNameComesFirstAndTheFolderTakesWhatIsLeftOfTwoLines() {
    Programm programm;
    const QString ordner =
        QStringLiteral("Jugendarbeit der Gemeinde/Zeltlager am großen See/Quizabende der Häuptlinge/2026");
    QVERIFY(QDir(programm.ordner().nativ()).mkpath(ordner));
    const QString eigen = QString(ordner).replace(u'/', u'\\');
    Drucken(programm, Stand.AppPfad + "\\" + Modelltext(eigen) + "\\Runde am Freitag.FKR");
    const QString text = Hilfe(programm)->caption();
    QVERIFY2(text.startsWith(QStringLiteral(" Runde am Freitag.pdf ")), qPrintable(text));
    QVERIFY2(Zeilen(text) <= 2, qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("…")), qPrintable(text));
    QVERIFY2(text.endsWith(QStringLiteral("\\2026 ")), qPrintable(text)); // both ends of the folder stay
    QVERIFY2(text.contains(Anzeige(Stand.AppPfad).left(5)), qPrintable(text));
    BildVon(Hilfe(programm), QStringLiteral("hilfepanel-blatt"));
}

void HilfepanelTest::aShortFolderStandsWhole() {
    Programm programm;
    HilfeDatei(" {} liegt in {}", "\\home\\lager\\Runde.pdf");
    QCOMPARE(Hilfe(programm)->caption(), QStringLiteral(" Runde.pdf liegt in \\home\\lager "));
}

void HilfepanelTest::aNameThatFillsThePanelStandsAlone() {
    Programm programm;
    const std::string name(70, 'W');
    HilfeDatei(" {} liegt in {}", "\\home\\lager\\" + name.substr(0, 30) + ".pdf");
    QVERIFY(Hilfe(programm)->caption().startsWith(u' ' + QString(30, u'W') + QStringLiteral(".pdf")));
    QVERIFY2(Zeilen(Hilfe(programm)->caption()) <= 2, qPrintable(Hilfe(programm)->caption()));
    HilfeDatei(" {} liegt in {}", "\\home\\lager\\" + name + ".pdf");
    const QString text = Hilfe(programm)->caption();
    QVERIFY2(Zeilen(text) <= 2, qPrintable(text));
    QVERIFY2(text.startsWith(QStringLiteral(" WWWWWWWW")), qPrintable(text));
    QVERIFY2(text.endsWith(QStringLiteral("W.pdf ")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("…")), qPrintable(text));
}

void HilfepanelTest::theTipTellsTheWholePathAlsoUnderThePointer() {
    Programm programm;
    maus::Bewegen(programm.haupt()->Kindflaeche(), QPoint(20, 300));
    const QString gesagt = Hilfe(programm)->toolTip();
    Drucken(programm, Stand.AppPfad + "\\KRANZ\\Runde.FKR");
    const QString pfad = Anzeige(Stand.AppPfad) + QStringLiteral("\\KRANZ\\Runde.pdf");
    maus::Bewegen(Hilfe(programm), QPoint(30, 10));
    QTRY_VERIFY(Tippobjekt(*Hilfe(programm)).sichtbar());
    const QString tipp = Tippobjekt(*Hilfe(programm)).tippfenster()->text();
    QVERIFY2(tipp.startsWith(gesagt), qPrintable(tipp));
    QVERIFY2(tipp.endsWith(pfad), qPrintable(tipp));
    HilfeDatei(" {} liegt in {}", "\\home\\lager\\Runde.pdf"); // the next one takes its place
    QVERIFY(!Hilfe(programm)->toolTip().contains(pfad));
    QVERIFY(Hilfe(programm)->toolTip().startsWith(gesagt));
}

void HilfepanelTest::aLongStatusTextShowsItsBeginning() {
    Programm programm;
    HilfeText(" eins");
    Panel* panel = Hilfe(programm);
    panel->setCaption(QStringLiteral("Wort ").repeated(60));
    const QImage lang = panel->grab().toImage();
    panel->setCaption(QStringLiteral("Wort ").repeated(14)); // two lines
    const QRect ersteZeile(2, 2, 200, 9);
    QCOMPARE(lang.copy(ersteZeile), panel->grab().toImage().copy(ersteZeile));
}

QTEST_MAIN(HilfepanelTest)
#include "hilfepanel_test.moc"
