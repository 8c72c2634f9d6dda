// Putting the main window away into the tray and getting it back. The record of the icon and the rule for its
// events are in periphery/traydaten.h.
#pragma once

// Hides the main window with its tool windows and puts the icon into the tray. Where the desktop has no tray
// the window is minimised instead.
void AbInDenTray();

// A message of the icon, by its number.
void TrayNachricht(int nummer);

// Takes the icon away, whether or not it was ever there.
void TrayEntfernen();

// The double click on the main window's background that leads here.
class QMdiArea;
void TrayVerbinden(QMdiArea* kindflaeche);
