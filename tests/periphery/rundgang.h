// A walk through the controls of a window: which of them has nothing to tell to a user who points at it, and
// which of them has nothing for good reason.
#pragma once

#include <QStringList>
#include <QWidget>

namespace rundgang {

// One line for each control of the window that has no tip, no title, no status text, or one that doesn't fit
// the help panel.
[[nodiscard]] QStringList Maengel(const QWidget& fenster);
// How many controls the walk looks at.
[[nodiscard]] int Anzahl(const QWidget& fenster);

} // namespace rundgang
