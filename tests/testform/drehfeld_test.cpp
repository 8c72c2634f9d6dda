// The spin control: its two buttons, its keys, and that it leaves the wheel to others.
#include "core/drehfeld.h"

#include <QAbstractButton>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

class DrehfeldTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aClickOnEachButtonTellsItsDirection();
    void arrowsAndPlusAndMinusStepWithTheFocus();
    void theButtonsFillTheControlOneAboveTheOther();
    void theWheelChangesNothing();
    void everyPartHasAnAccessibleName();
};

namespace {

struct Probe {
    Drehfeld feld{nullptr, QStringLiteral("spn(1)"), QStringLiteral("Punkte")};
    QSignalSpy hoch{&feld, &Drehfeld::hoch};
    QSignalSpy runter{&feld, &Drehfeld::runter};

    Probe() {
        feld.resize(22, 60);
        feld.show();
        feld.activateWindow();
    }
    QAbstractButton* taste(const char* name) { return feld.findChild<QAbstractButton*>(QLatin1String(name)); }
};

} // namespace

void DrehfeldTest::aClickOnEachButtonTellsItsDirection() {
    Probe probe;
    QVERIFY(QTest::qWaitForWindowActive(&probe.feld));
    QTest::mouseClick(probe.taste("hoch"), Qt::LeftButton);
    QCOMPARE(probe.hoch.count(), 1);
    QCOMPARE(probe.runter.count(), 0);
    QTest::mouseClick(probe.taste("runter"), Qt::LeftButton);
    QCOMPARE(probe.hoch.count(), 1);
    QCOMPARE(probe.runter.count(), 1);
}

void DrehfeldTest::arrowsAndPlusAndMinusStepWithTheFocus() {
    Probe probe;
    QVERIFY(QTest::qWaitForWindowActive(&probe.feld));
    probe.feld.setFocus();
    QTRY_VERIFY(probe.feld.hasFocus());
    for (const Qt::Key taste : {Qt::Key_Up, Qt::Key_Plus, Qt::Key_Down, Qt::Key_Minus, Qt::Key_A}) {
        QTest::keyClick(&probe.feld, taste);
    }
    QCOMPARE(probe.hoch.count(), 2);
    QCOMPARE(probe.runter.count(), 2);
}

void DrehfeldTest::theButtonsFillTheControlOneAboveTheOther() {
    Probe probe;
    const QRect oben = probe.taste("hoch")->geometry();
    const QRect unten = probe.taste("runter")->geometry();
    QCOMPARE(oben, QRect(1, 1, 20, 29));
    QCOMPARE(unten, QRect(1, 30, 20, 29));
}

void DrehfeldTest::theWheelChangesNothing() {
    Probe probe;
    QWheelEvent rad(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&probe.feld, &rad);
    QCOMPARE(probe.hoch.count() + probe.runter.count(), 0);
    QVERIFY(!rad.isAccepted());
}

void DrehfeldTest::everyPartHasAnAccessibleName() {
    Probe probe;
    QCOMPARE(probe.feld.accessibleName(), QStringLiteral("Punkte"));
    QCOMPARE(probe.taste("hoch")->accessibleName(), QStringLiteral("Punkte erhöhen"));
    QCOMPARE(probe.taste("runter")->accessibleName(), QStringLiteral("Punkte verringern"));
}

QTEST_MAIN(DrehfeldTest)
#include "drehfeld_test.moc"
