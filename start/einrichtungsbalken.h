// The bar in the start window while the person's program folder is made: it does the work itself, between the
// window's events.
#pragma once

#include "core/panel.h"
#include "start/einrichtung.h"

#include <QTimer>

class Einrichtungsbalken : public Panel {
    Q_OBJECT

public:
    Einrichtungsbalken(Einrichtung einrichtung, QWidget* eltern);

Q_SIGNALS:
    // All is done, and what failed has been told. Comes once.
    void fertig();

private:
    void Weiter();

    Einrichtung einrichtung_;
    QTimer uhr_;
};

// Tells, once, in the status help which files of the person's have a new version beside them.
void DanebenliegendesMelden();
