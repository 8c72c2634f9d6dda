// A dialog that is made at its first use and kept to the end of the program.
#pragma once

#include "dialogs/dialoggrund.h"

#include <QCoreApplication>
#include <QPointer>

#include <string_view>

// The one window of that class. Making it reports a missing background once, under the picture's name.
template <class Fenster>
Fenster& Einzelfenster(std::string_view bild) {
    static QPointer<Fenster> fenster;
    if (fenster == nullptr) {
        fenster = new Fenster;
        // No widget may outlive the application object.
        qAddPostRoutine([] { delete fenster.data(); });
        BildfehlerMelden(bild, fenster->bildfehler());
    }
    return *fenster;
}
