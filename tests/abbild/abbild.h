// A window as plain text: one line a control in the order in which they were made, then the order in which
// Tab visits them, keys, and the menus. Two descriptions are the same where a user, sighted or not, finds the
// same window.
#pragma once

#include <QString>

class QWidget;

namespace abbild {

// Paths of the program folder stand as <AppPfad>; windows within the window have one line, and a description
// of their own.
[[nodiscard]] QString Beschreibung(QWidget& fenster);

} // namespace abbild
