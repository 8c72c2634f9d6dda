// How large the open form stands on the screen: the commands for it, and the form that follows the main
// window. What was chosen holds for both kinds of form and is kept between two evenings. A form's window
// scales itself (core/massfenster.h), which size serves is core/massstab.h.
#pragma once

class QMainWindow;

// Once, after the menu bar is built: from then on a form follows the size of the child area.
void FormulargroesseEinrichten(QMainWindow& fenster);
// State of the menu's entries.
void FormulargroesseZeigen();

namespace befehle {

// One step; the form doesn't follow the main window any more.
void FormularGroesser();
void FormularKleiner();
void FormularOriginal();
// Whether it follows: turned over.
void FormularAnpassen();

} // namespace befehle
