// Finding windows, controls and menu entries by the objectName that is their contract. A name that isn't
// there ends the test with the names that are.
#pragma once

#include "tests/hilfe/versagen.h"

#include <QAction>
#include <QApplication>
#include <QWidget>

// For the failure: the names of the objects of one class beneath another.
[[nodiscard]] QString VorhandeneNamen(const QObjectList& objekte);

// The control with that name beneath unter; never a null pointer.
template <class T = QWidget>
[[nodiscard]] T* Finden(const QObject* unter, const QString& name, Stelle stelle = Stelle::hier()) {
    if (unter == nullptr) {
        VersagenUndEnde(QStringLiteral("No window to find %1 in").arg(name), stelle);
    }
    if (T* gefunden = unter->findChild<T*>(name); gefunden != nullptr) {
        return gefunden;
    }
    QObjectList andere;
    for (T* objekt : unter->findChildren<T*>()) {
        andere.append(objekt);
    }
    VersagenUndEnde(QStringLiteral("%1 has no %2 named %3; it has %4")
                        .arg(unter->objectName(), QLatin1String(T::staticMetaObject.className()), name,
                             VorhandeneNamen(andere)),
                    stelle);
}

// The member index of a control array: name(index).
template <class T = QWidget>
[[nodiscard]] T* Finden(const QObject* unter, const QString& name, int index,
                        Stelle stelle = Stelle::hier()) {
    return Finden<T>(unter, QStringLiteral("%1(%2)").arg(name).arg(index), stelle);
}

// A window of the program by its name, wherever it hangs; nullptr when none has that name.
[[nodiscard]] QWidget* FensterOderNichts(const QString& name);
// The same; never a null pointer.
[[nodiscard]] QWidget* Fenster(const QString& name, Stelle stelle = Stelle::hier());
// Waits until the window is there and on the screen; never a null pointer.
QWidget* FensterAbwarten(const QString& name, Stelle stelle = Stelle::hier());
