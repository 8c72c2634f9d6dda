// What must hold whatever the hands do. Each routine gives what is wrong, in words; nothing is right.
#pragma once

#include <QStringList>

// Toolbar, flags, menus and titles agree with the form that is open. Only while no dialog, menu or drag is:
// a command that asks a question is half done.
[[nodiscard]] QStringList AnzeigeMaengel();
// The form on the screen, written and read again, is the same form, but for straight quotation marks.
[[nodiscard]] QStringList FormularMaengel();
// The dialog that is open has a button in use.
[[nodiscard]] QStringList DialogMaengel();
