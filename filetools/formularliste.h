// The list of forms as the rest of the program sees it. One window, made on first touch and gone when it is
// closed; the window itself is filetools/frmFKformulare.h. Each routine does nothing without a main window.
#pragma once

#include "core/formart.h"

#include <string>

class frmFKformulare;

// Shows the list and gives it the focus.
void FormularlisteZeigen();
// The same as the main window starts: the focus stays there, and a folder that can't be read is no message.
void FormularlisteMitStartZeigen();

// The list's two buttons follow the form in work: its own kind's comes into use and the other out of use.
// Makes the window, without showing it, where it isn't.
void FormularlisteTastenSetzen(Formart art);

// What opens the file chosen in the list, by its path; true when it was taken. Without one nothing happens.
using Formularoeffner = bool (*)(const std::string& pfad);
void FormularlisteOeffnetMit(Formularoeffner oeffner);

// The window, nullptr while there is none.
[[nodiscard]] frmFKformulare* FormularlisteOffen();
