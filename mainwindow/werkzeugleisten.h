// The three toolbars of the main window and the buttons that are always there, with the miniature and the two
// flags. Which buttons there are is mainwindow/schaltflaechen.h, what they do mainwindow/befehle.h.
#pragma once

class QWidget;

void WerkzeugleistenBauen(QWidget* pnlKranz);
// Places everything for the present width of pnlKranz.
void WerkzeugleistenAnordnen(QWidget* pnlKranz);
