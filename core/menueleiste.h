// The main window's menu bar, with the menu that the quiz form brings in place of the file menu. What an
// entry does is in core/befehle.cpp under its name.
#pragma once

class QMainWindow;

void MenueleisteBauen(QMainWindow& fenster);
// Shows the menus of the quiz form instead of the main window's file menu, or takes them away.
void MenueFKZeigen(QMainWindow& fenster, bool zeigen);
