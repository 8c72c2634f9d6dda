#include "tests/hilfe/versagen.h"

#include <QTest>
#include <QTimer>

#include <stdexcept>

void Versagen(const QString& grund, Stelle stelle) {
    QTest::qFail(qPrintable(grund), stelle.datei, stelle.zeile);
}

void VersagenUndEnde(const QString& grund, Stelle stelle) {
    Versagen(grund, stelle);
    throw std::runtime_error(grund.toStdString());
}

bool WartenBis(const std::function<bool()>& bedingung, int frist) {
    return QTest::qWaitFor(bedingung, frist);
}

void UhrenAbwarten(int millisekunden, Stelle aufrufer) {
    QTimer uhr;
    uhr.setSingleShot(true);
    uhr.setTimerType(Qt::PreciseTimer); // never ahead of its time, as a coarse one may be
    uhr.start(millisekunden);
    if (!WartenBis([&uhr] { return !uhr.isActive(); })) {
        Versagen(QStringLiteral("A timer of %1 ms doesn't run out").arg(millisekunden), aufrufer);
    }
}
