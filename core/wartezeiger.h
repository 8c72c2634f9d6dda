// The wait cursor while a file is read or written. A message in between may already have put the pointer back
// to normal; then nothing is left to do.
#pragma once

#include <QCursor>
#include <QGuiApplication>

class Wartezeiger {
public:
    Wartezeiger() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    Wartezeiger(const Wartezeiger&) = delete;
    Wartezeiger& operator=(const Wartezeiger&) = delete;
    ~Wartezeiger() {
        if (QGuiApplication::overrideCursor() != nullptr) {
            QGuiApplication::restoreOverrideCursor();
        }
    }
};
