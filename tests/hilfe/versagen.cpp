#include "tests/hilfe/versagen.h"

#include <QTest>

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
