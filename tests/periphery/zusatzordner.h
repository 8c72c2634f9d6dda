// Where the tests find the plug-ins: beside the program, not beside the test.
#pragma once

#include "periphery/zusatz.h"

class Zusatzordner {
public:
    explicit Zusatzordner(const QString& ordner = QStringLiteral(FELDKRANZ_PROGRAMM)) {
        ZusatzordnerVorgeben(ordner);
    }
    ~Zusatzordner() { ZusatzordnerVorgeben({}); }
    Zusatzordner(const Zusatzordner&) = delete;
    Zusatzordner& operator=(const Zusatzordner&) = delete;
};
