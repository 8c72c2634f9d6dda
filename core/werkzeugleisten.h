// The three toolbars of the main window and the buttons that are always there, with the miniature and the two
// flags. Which buttons there are is core/schaltflaechen.h, what they do core/befehle.h.
#pragma once

class QWidget;

void WerkzeugleistenBauen(QWidget* pnlKranz);
// Places everything for the present width of pnlKranz.
void WerkzeugleistenAnordnen(QWidget* pnlKranz);
