// The main window's menu bar, with the menus that the forms bring in place of the file menu. What an
// entry does is in core/befehle.cpp under its name.
#pragma once

#include <string_view>

class QMainWindow;

void MenueleisteBauen(QMainWindow& fenster);
// Shows the menus of the form with that tag ("FKFragen", "HBFragen") instead of the main window's file menu;
// any other tag brings that back.
void FormularmenueZeigen(QMainWindow& fenster, std::string_view tag);
