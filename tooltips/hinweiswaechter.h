// Watches pointer and focus for the whole program and lets the controls speak: one filter on the application,
// so that a control costs nothing while nobody points at it, and so that controls out of use, which get no
// events themselves, tell why they are there too.
#pragma once

class QWidget;

// Begins to watch; a second call does nothing. It ends with the application.
void HinweiswaechterEinrichten();

[[nodiscard]] bool IstHauptfenster(const QWidget& fenster);
