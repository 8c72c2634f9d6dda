// The menu at the end of the toolbars, cmdMehr: the buttons that the window is too narrow for. Which ones
// these are is mainwindow/werkzeugleisten.h's affair.
#pragma once

class QAbstractButton;
class QWidget;

// Its width in the row of buttons, in pixels.
inline constexpr int mehrBreite = 24;

void MehrBauen(QWidget* pnlKranz);
// The button goes out of the row into the menu, or back.
void InsMenue(QAbstractButton& taste, bool hinein);
[[nodiscard]] bool ImMenue(const QAbstractButton& taste);
// Places the button of the menu; it shows while there is something in it.
void MehrAnordnen(QWidget* pnlKranz, int x, int y, int hoehe);
