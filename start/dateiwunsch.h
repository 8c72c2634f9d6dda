// Files that are to be opened from outside: by the command line, or by a second start. They wait until the
// main window is there and nobody is asked anything, and are opened one after the other, as if they had been
// chosen in the file dialog.
#pragma once

#include <QString>

// A native, absolute path.
void DateiWuenschen(const QString& nativ);
// The window in which the person works comes to the front, out of the tray too.
void NachVornHolen();
// Opens what waits, where it may; by itself this is tried again and again. True when nothing is left.
bool WuenscheErfuellen();
