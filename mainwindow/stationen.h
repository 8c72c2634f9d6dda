// By keyboard from one window to the next: F6 goes from the open form to the list of forms, the selection
// dialog and the panels, as far as they are open, and Umschalt+F6 back. A box of the form that the keyboard
// comes to is scrolled into sight.
#pragma once

class QMainWindow;

// Once, after the windows' panels are built.
void StationenEinrichten(QMainWindow& fenster);
