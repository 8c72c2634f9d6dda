// The test form as the rest of the program sees it. Its window isn't built yet: a test form that is read
// stays in the shared data, and the user is told. The routines that need an open window do nothing, since
// none can be open.
#pragma once

#include <string_view>

// True while the test form's window is open.
bool HBFragenOffen();
// Shows the window for the stored copy just read, with that caption.
void HB_FormularZeigen(std::string_view titel);
// Caption of the open form.
void HB_FenstertitelSetzen(std::string_view titel);
// Window into stored copy, the whole form.
void HB_Merken();
