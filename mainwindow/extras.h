// The menu of what stands beside the told commands: undo and redo, with what they would do. Which steps there
// are is forms/verlauf.h.
#pragma once

class QMainWindow;

// Once, after the menu bar is built: keeps texts and state of the entries true.
void ExtrasEinrichten(QMainWindow& fenster);
// Once, when the main window goes.
void ExtrasAbbauen(QMainWindow& fenster);

namespace befehle {

// On the form in front; with another window in front, in the text box that has the focus there.
void Rueckgaengig();
void Wiederherstellen();

} // namespace befehle
