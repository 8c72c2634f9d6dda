#include "tests/hilfe/finden.h"

#include <QStringList>

QString VorhandeneNamen(const QObjectList& objekte) {
    QStringList namen;
    for (const QObject* objekt : objekte) {
        // Names that the toolkit gives its own inner parts are of no help.
        if (const QString name = objekt->objectName(); !name.isEmpty() && !name.startsWith(u"qt_")) {
            namen.append(name);
        }
    }
    namen.sort();
    namen.removeDuplicates();
    return namen.isEmpty() ? QStringLiteral("none with a name") : namen.join(u' ');
}

QWidget* FensterOderNichts(const QString& name) {
    QWidget* gefunden = nullptr;
    for (QWidget* fenster : QApplication::allWidgets()) {
        if (fenster->objectName() == name && (gefunden == nullptr || fenster->isVisible())) {
            gefunden = fenster;
        }
    }
    return gefunden;
}

QWidget* Fenster(const QString& name, Stelle stelle) {
    if (QWidget* fenster = FensterOderNichts(name); fenster != nullptr) {
        return fenster;
    }
    QObjectList offene;
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
        offene.append(fenster);
    }
    VersagenUndEnde(QStringLiteral("No window %1; there is %2").arg(name, VorhandeneNamen(offene)), stelle);
}

QWidget* FensterAbwarten(const QString& name, Stelle stelle) {
    const bool da = WartenBis([&name] {
        const QWidget* fenster = FensterOderNichts(name);
        return fenster != nullptr && fenster->isVisible();
    });
    if (!da) {
        Versagen(QStringLiteral("%1 didn't come on the screen").arg(name), stelle);
    }
    return Fenster(name, stelle);
}
