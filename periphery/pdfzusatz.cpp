#include "periphery/pdfzusatz.h"

#include "periphery/seitenansicht.h"

Dokumentansicht* Pdfzusatz::Bauen(QWidget* eltern) {
    return new Seitenansicht(eltern);
}
