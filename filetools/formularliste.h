// The list of forms as the rest of the program sees it. One window, made on first touch and gone when it is
// closed; the window itself is filetools/frmFKformulare.h. Each routine does nothing without a main window.
#pragma once

#include <string_view>

class frmFKformulare;

// Shows the list and gives it the focus.
void FormularlisteZeigen();
// The same as the main window starts: the focus stays there, and a folder that can't be read is no message.
void FormularlisteMitStartZeigen();

// The list's two buttons follow the form in work, by its mode tag: "FK" takes the button of the quiz forms
// into use and the other out of use, "Test" the reverse. Makes the window, without showing it, where it
// isn't.
void FormularlisteTastenSetzen(std::string_view formTyp);

// The window, nullptr while there is none.
[[nodiscard]] frmFKformulare* FormularlisteOffen();
