// The tip object: its operations, its window, the standard styles and which window's object they act on.
#include "core/oberflaeche.h"
#include "dialogs/eingabe.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/frmStart.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"
#include "tooltips/hinweise.h"
#include "tooltips/tooltipps.h"

#include <QAccessible>
#include <QPushButton>
#include <QTest>

namespace {

constexpr std::string_view langerText =
    "Dialogbox für die Auswahl der :\r\n- Themen (Wissensgebiete)\r\n- Unterthemen\r\n- Fragen und "
    "Antworten\r\naufrufen.";

// A window with one button and its tip object, made in the order that is fixed.
struct Tippfall {
    explicit Tippfall(bool ballon = false) : taste(&fenster), objekt(&fenster) {
        fenster.setObjectName(QStringLiteral("frmProbe"));
        fenster.setGeometry(300, 300, 300, 100);
        objekt.Create(&fenster, ballon);
        objekt.VisibleTime(20000);
        objekt.DelayTime(200);
        objekt.MaxWidth(180);
        objekt.AddControl(&taste, langerText);
    }
    QImage Zeigen(const QString& text) {
        fenster.show();
        [[maybe_unused]] const bool da = QTest::qWaitForWindowExposed(&fenster);
        objekt.Zeigen(taste, text, false);
        return const_cast<Tippfenster*>(objekt.tippfenster())->grab().toImage(); // NOLINT: to look at only
    }

    QWidget fenster;
    QPushButton taste;
    clsToolTipDeluxe objekt;
};

// Letters are smoothed, so their colour is met nearly.
bool EnthaeltBlau(const QImage& bild) {
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const QColor farbe = bild.pixelColor(x, y);
            if (farbe.blue() > 180 && farbe.red() < 60 && farbe.green() < 100) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

class TooltipTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { OberflaecheEinrichten(); }

    void aNewObjectBreaksLinesAt150Pixels();
    void timesAreHeldToTheirLimits();
    void theEndOfAnObjectWithoutAWindowDoesNothing();
    void aControlThatIsntThereGetsNoTipAndNothingIsReported();
    void theControlIsGivenItsTextForEverybody();
    void theTipIsAsWideAsItsLongestLineAtMost();
    void aWordWiderThanTheTipIsBroken();
    void blanksAtTheBeginningOfALineStay();
    void backAndTextColourAreShown();
    void whatIsSetWhileATipStandsShowsAtOnce();
    void aBalloonIsRounded();
    void theTipTakesNoInputAndNoFocus();
    void destroyTakesTheTipAwayAndCreateBringsItBack();
    void anEmptyTextShowsNoTip();
    void theCentreFlagPutsTheTipBelowTheMiddle();
    void theStandardStylesActOnTheCurrentObject();
    void withoutAnObjectTheStandardStylesDoNothing();
    void theStartWindowHasItsSettings();
    void theMainWindowHoldsItsOwnObject();
    void afterADialogTheCurrentObjectIsTheDialogs();
};

void TooltipTest::aNewObjectBreaksLinesAt150Pixels() {
    clsToolTipDeluxe objekt;
    QCOMPARE(objekt.breite(), 150);
    objekt.MaxWidth(180); // kept although there is no window yet
    QCOMPARE(objekt.breite(), 180);
    objekt.Create(nullptr, false);
    QCOMPARE(objekt.breite(), 180);
}

void TooltipTest::timesAreHeldToTheirLimits() {
    clsToolTipDeluxe objekt;
    objekt.VisibleTime(20000);
    QCOMPARE(objekt.sichtzeit(), 16000);
    objekt.DelayTime(1000);
    QCOMPARE(objekt.wartezeit(), 500);
    objekt.VisibleTime(-5);
    objekt.DelayTime(-5);
    QCOMPARE(objekt.sichtzeit(), 0);
    QCOMPARE(objekt.wartezeit(), 0);
}

void TooltipTest::theEndOfAnObjectWithoutAWindowDoesNothing() {
    QWidget element;
    {
        clsToolTipDeluxe objekt;
        objekt.Zeigen(element, QStringLiteral("Text"), true);
        objekt.Verbergen();
        objekt.Destroy();
        QVERIFY(!objekt.sichtbar());
        QVERIFY(objekt.tippfenster() == nullptr);
    }
    for (const QWidget* fenster : QApplication::topLevelWidgets()) {
        QVERIFY(fenster->objectName() != QLatin1String("tippfenster"));
    }
}

void TooltipTest::aControlThatIsntThereGetsNoTipAndNothingIsReported() {
    clsToolTipDeluxe objekt;
    const Dialogfolge dialoge; // a message would fail the test
    objekt.AddControl(nullptr, "Text");
    objekt.Create(nullptr, false);
    objekt.AddControl(nullptr, "Text", true);
    QVERIFY(dialoge.fertig());
}

void TooltipTest::theControlIsGivenItsTextForEverybody() {
    const Tippfall fall;
    QCOMPARE(fall.taste.toolTip(), Anzeige(langerText));
    QCOMPARE(fall.taste.accessibleDescription(), Anzeige(langerText));
    const QAccessibleInterface* ansage = QAccessible::queryAccessibleInterface(
        const_cast<QPushButton*>(&fall.taste)); // NOLINT: the toolkit asks for it, nothing is changed
    QCOMPARE(ansage->text(QAccessible::Description), Anzeige(langerText));
}

void TooltipTest::theTipIsAsWideAsItsLongestLineAtMost() {
    Tippfall fall;
    fall.Zeigen(Anzeige(langerText));
    constexpr int raender = 12;
    QVERIFY(fall.objekt.tippfenster()->width() <= 180 + raender);
    const int einmal = fall.objekt.tippfenster()->height();
    fall.objekt.MaxWidth(60);
    QVERIFY(fall.objekt.tippfenster()->width() <= 60 + raender);
    QVERIFY(fall.objekt.tippfenster()->height() > einmal);
    fall.Zeigen(QStringLiteral("Ja"));
    QVERIFY(fall.objekt.tippfenster()->width() < 60);
}

void TooltipTest::aWordWiderThanTheTipIsBroken() {
    Tippfall fall;
    fall.Zeigen(QString(200, u'W'));
    QVERIFY(fall.objekt.tippfenster()->width() <= 180 + 12);
    QVERIFY(fall.objekt.tippfenster()->height() > 10 * QFontMetrics(Schrift(8.25)).height());
}

void TooltipTest::blanksAtTheBeginningOfALineStay() {
    Tippfall fall;
    const QImage ohne = fall.Zeigen(QStringLiteral("x"));
    const QImage mit = fall.Zeigen(QStringLiteral("     x"));
    QVERIFY(mit.width() > ohne.width() + 8);
}

void TooltipTest::backAndTextColourAreShown() {
    Tippfall fall;
    fall.objekt.ToolTipBackColor({10, 200, 30});
    fall.objekt.ToolTipTextColor({0, 0, 255});
    const QImage bild = fall.Zeigen(QStringLiteral("IIIIII"));
    QCOMPARE(bild.pixelColor(3, 3), QColor(10, 200, 30));
    QVERIFY(EnthaeltBlau(bild));
}

void TooltipTest::whatIsSetWhileATipStandsShowsAtOnce() {
    Tippfall fall;
    fall.objekt.SetToolTipTitle("Eins", 1);
    fall.Zeigen(QStringLiteral("Text"));
    const int schmal = fall.objekt.tippfenster()->width();
    fall.objekt.SetToolTipTitle("Ein sehr viel längerer Titel", 2);
    QVERIFY(fall.objekt.tippfenster()->width() > schmal);
    QCOMPARE(fall.objekt.tippfenster()->text(), QStringLiteral("Text"));
    QCOMPARE(fall.objekt.tippfenster()->accessibleName(), QStringLiteral("Ein sehr viel längerer Titel"));
}

void TooltipTest::aBalloonIsRounded() {
    Tippfall eckig;
    eckig.Zeigen(Anzeige(langerText));
    QVERIFY(eckig.objekt.tippfenster()->mask().isEmpty());
    Tippfall rund(true);
    rund.fenster.move(700, 300);
    rund.objekt.SetToolTipTitle("Hinweis", 1);
    rund.Zeigen(Anzeige(langerText));
    QVERIFY(QTest::qWaitForWindowExposed(rund.objekt.tippfenster()->windowHandle()));
    BildVomBildschirm(QStringLiteral("tipp-ballon"));
    const QRegion flaeche = rund.objekt.tippfenster()->mask();
    const QRect ganz = rund.objekt.tippfenster()->rect();
    for (const QPoint ecke : {ganz.topLeft(), ganz.topRight(), ganz.bottomLeft(), ganz.bottomRight()}) {
        QVERIFY(!flaeche.contains(ecke));
    }
    QVERIFY(flaeche.contains(ganz.center()));
}

void TooltipTest::theTipTakesNoInputAndNoFocus() {
    Tippfall fall;
    fall.Zeigen(Anzeige(langerText));
    const Tippfenster* tipp = fall.objekt.tippfenster();
    QCOMPARE(tipp->windowType(), Qt::ToolTip);
    QVERIFY(tipp->windowFlags().testFlag(Qt::WindowTransparentForInput));
    QVERIFY(QTest::qWaitForWindowExposed(tipp->windowHandle()));
    QVERIFY(!tipp->isActiveWindow());
    QVERIFY(QApplication::widgetAt(tipp->geometry().center()) != tipp);
}

void TooltipTest::destroyTakesTheTipAwayAndCreateBringsItBack() {
    Tippfall fall;
    fall.Zeigen(QStringLiteral("Text"));
    QVERIFY(fall.objekt.sichtbar());
    fall.objekt.Destroy();
    QVERIFY(!fall.objekt.sichtbar());
    fall.objekt.Zeigen(fall.taste, QStringLiteral("Text"), false);
    QVERIFY(!fall.objekt.sichtbar());
    fall.objekt.Create(&fall.fenster, false);
    fall.objekt.Zeigen(fall.taste, QStringLiteral("Text"), false);
    QVERIFY(fall.objekt.sichtbar());
}

void TooltipTest::anEmptyTextShowsNoTip() {
    Tippfall fall;
    fall.fenster.show();
    fall.objekt.SetToolTipTitle("Nur ein Titel", 1);
    fall.objekt.Zeigen(fall.taste, QString(), false);
    QVERIFY(!fall.objekt.sichtbar());
}

void TooltipTest::theCentreFlagPutsTheTipBelowTheMiddle() {
    Tippfall fall;
    fall.taste.setGeometry(20, 20, 260, 30);
    fall.Zeigen(QStringLiteral("Text"));
    const QPoint links = fall.taste.mapToGlobal(QPoint(0, 0));
    QCOMPARE(fall.objekt.tippfenster()->x(), links.x());
    QCOMPARE(fall.objekt.tippfenster()->y(), links.y() + 32);
    fall.objekt.AddControl(&fall.taste, "Text", true);
    fall.Zeigen(QStringLiteral("Text"));
    const int mitte = links.x() + 130 - fall.objekt.tippfenster()->width() / 2;
    QVERIFY(std::abs(fall.objekt.tippfenster()->x() - mitte) <= 1);
}

void TooltipTest::theStandardStylesActOnTheCurrentObject() {
    const Tippfall anderer;
    Tippfall fall;
    ToolTip = &fall.objekt;
    const auto stil = [&fall] { return fall.objekt.aussehen().stil; };
    const auto titel = [&fall] { return fall.objekt.aussehen().titel; };
    ToolTipStandard();
    QCOMPARE(titel(), QStringLiteral("Hinweis"));
    QVERIFY(stil() == (tipp::Stil{{255, 255, 223}, {0, 0, 0}, 1}));
    ToolTipHilfe();
    QCOMPARE(titel(), QStringLiteral("Hiiiilfee !"));
    QVERIFY(stil() == (tipp::Stil{{255, 255, 127}, {0, 0, 0}, 1}));
    ToolTipSchliessen();
    QCOMPARE(titel(), QStringLiteral("Schließen"));
    QVERIFY(stil() == (tipp::Stil{{255, 0, 0}, {255, 255, 255}, 2}));
    ToolTipTitel("Löschen");
    QCOMPARE(titel(), QStringLiteral("Löschen"));
    QVERIFY(stil() == (tipp::Stil{{255, 255, 223}, {0, 0, 0}, 1}));
    QVERIFY(anderer.objekt.aussehen().titel.isEmpty());
}

void TooltipTest::withoutAnObjectTheStandardStylesDoNothing() {
    {
        const Tippfall fall;
        ToolTip = const_cast<clsToolTipDeluxe*>(&fall.objekt); // NOLINT: only to see it end
    }
    QVERIFY(ToolTip == nullptr); // it went with its window
    ToolTipStandard();
    ToolTipTitel("Titel");
    ToolTipHilfe();
    ToolTipSchliessen();
}

void TooltipTest::theStartWindowHasItsSettings() {
    const Programmordner ordner;
    frmStart fenster;
    const clsToolTipDeluxe& objekt = Tippobjekt(fenster);
    QCOMPARE(ToolTip.data(), &objekt);
    QCOMPARE(objekt.breite(), 300);
    QCOMPARE(objekt.sichtzeit(), 16000);
    QCOMPARE(objekt.wartezeit(), 200);
}

void TooltipTest::theMainWindowHoldsItsOwnObject() {
    ToolTip = nullptr;
    const Programm programm;
    const clsToolTipDeluxe& objekt = Tippobjekt(*programm.haupt());
    QVERIFY(ToolTip.data() != &objekt);
    QCOMPARE(objekt.parent(), programm.haupt());
    QCOMPARE(objekt.breite(), 180);
    QCOMPARE(objekt.sichtzeit(), 16000);
    QCOMPARE(objekt.wartezeit(), 200);
    ToolTipSchliessen();
    QVERIFY(objekt.aussehen().titel != QLatin1String("Schließen"));
}

void TooltipTest::afterADialogTheCurrentObjectIsTheDialogs() {
    const Programm programm;
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmInput"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdOK")},
                     [](QDialog& dialog) {
                         QCOMPARE(ToolTip.data(), &Tippobjekt(dialog));
                         QCOMPARE(ToolTip->breite(), 300);
                     }});
    Eingabe(1, "Titel", "Text", "Vorgabe");
    QVERIFY(dialoge.fertig());
    QCOMPARE(ToolTip->parent()->objectName(), QStringLiteral("frmInput"));
    ToolTipHilfe();
    QCOMPARE(ToolTip->aussehen().titel, QStringLiteral("Hiiiilfee !"));
    QVERIFY(Tippobjekt(*programm.haupt()).aussehen().titel != QLatin1String("Hiiiilfee !"));
}

QTEST_MAIN(TooltipTest)
#include "tooltip_test.moc"
