// What opening forms leaves behind: no control, and no picture of one for the style to keep.
#include "core/bilder.h"
#include "core/oberflaeche.h"
#include "core/palettenstil.h"
#include "core/programmstand.h"
#include "forms/formulare.h"
#include "forms/oeffnen.h"
#include "mainwindow/frmMDI.h"
#include "tests/hilfe/programm.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTest>

#include <set>

namespace {

// Notes the numbers of the palettes that reach the toolkit's style.
class Spur : public QProxyStyle {
public:
    Spur() : QProxyStyle(QStringLiteral("Fusion")) {}
    void drawPrimitive(PrimitiveElement element, const QStyleOption* angaben, QPainter* maler,
                       const QWidget* fuer) const override {
        nummern.insert(angaben->palette.cacheKey());
        QProxyStyle::drawPrimitive(element, angaben, maler, fuer);
    }
    mutable std::set<qint64> nummern;
};

// Opens a quiz form and a test in turn, each in a window of its own.
void Oeffnen(int male) {
    for (int i = 0; i < male; ++i) {
        FormulareEntladen();
        FormularLaden(Stand.AppPfad + (i % 2 == 0 ? "\\KRANZ\\Bibelabend.FKR" : "\\TEST\\Lagerleben.FKR"));
        MDIFenster()->grab(); // paints everything
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

qsizetype Objekte() {
    qsizetype anzahl = qApp->findChildren<QObject*>().size();
    for (const QWidget* fenster : QApplication::topLevelWidgets()) {
        anzahl += fenster->findChildren<QObject*>().size() + 1;
    }
    return anzahl;
}

} // namespace

class PalettenstilTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalPalettesReachTheStyleAsOne();
    void aPaletteKeepsItsColoursAndItsGroup();
    void aPictureIsOneIconForAllItsWindows();
    void twentyOpenedFormsLeaveNoMoreBehindThanFive();
};

void PalettenstilTest::equalPalettesReachTheStyleAsOne() {
    auto* spur = new Spur; // goes with the style
    Palettenstil stil(spur);
    QPixmap flaeche(40, 20);
    QPainter maler(&flaeche);
    for (int i = 0; i < 40; ++i) {
        QStyleOptionButton angaben;
        angaben.rect = QRect(0, 0, 40, 20);
        angaben.palette.setColor(QPalette::Window, i % 2 == 0 ? Qt::red : Qt::blue);
        stil.drawPrimitive(QStyle::PE_PanelButtonCommand, &angaben, &maler, nullptr);
    }
    QCOMPARE(spur->nummern.size(), std::size_t(2));
}

void PalettenstilTest::aPaletteKeepsItsColoursAndItsGroup() {
    Palettenstil stil(QStyleFactory::create(QStringLiteral("Fusion")));
    QPixmap flaeche(40, 20);
    QPainter maler(&flaeche);
    for (const auto gruppe : {QPalette::Active, QPalette::Disabled, QPalette::Inactive}) {
        QStyleOptionButton angaben;
        angaben.rect = QRect(0, 0, 40, 20);
        angaben.palette.setColor(QPalette::Disabled, QPalette::Button, Qt::green);
        angaben.palette.setCurrentColorGroup(gruppe);
        const QPalette vorher = angaben.palette;
        stil.drawPrimitive(QStyle::PE_PanelButtonCommand, &angaben, &maler, nullptr);
        QCOMPARE(angaben.palette, vorher);
        QCOMPARE(angaben.palette.currentColorGroup(), gruppe);
        QCOMPARE(angaben.palette.color(QPalette::Button), vorher.color(QPalette::Button));
    }
}

void PalettenstilTest::aPictureIsOneIconForAllItsWindows() {
    QCOMPARE(Bildzeichen("leiste/feldkranz").cacheKey(), Bildzeichen("leiste/feldkranz").cacheKey());
    QVERIFY(Bildzeichen("leiste/feldkranz").cacheKey() != Bildzeichen("leiste/test").cacheKey());
    QVERIFY(!Bildzeichen("leiste/test").isNull());
}

void PalettenstilTest::twentyOpenedFormsLeaveNoMoreBehindThanFive() {
    const Programm programm;
    auto* stil = qobject_cast<QProxyStyle*>(QApplication::style());
    QVERIFY(stil != nullptr);
    auto* spur = new Spur;
    stil->setBaseStyle(spur);
    Oeffnen(6);
    const auto nummern = spur->nummern.size();
    const qsizetype objekte = Objekte();
    QVERIFY(nummern > 0);
    Oeffnen(20);
    QCOMPARE(spur->nummern.size(), nummern);
    QCOMPARE(Objekte(), objekte);
}

QTEST_MAIN(PalettenstilTest)
#include "palettenstil_test.moc"
