// The main window's menu bar, with the menus that the forms bring in place of the file menu. What an
// entry does is in mainwindow/befehle.cpp under its name.
#pragma once

#include "core/formart.h"

class QMainWindow;

void MenueleisteBauen(QMainWindow& fenster);
// Shows the menus of that kind of form instead of the main window's file menu; no kind brings that back.
void FormularmenueZeigen(QMainWindow& fenster, Formart formart);
