// Who sends the events of tests/hilfe/maus.h: a process of its own, or where the system has no such program a
// thread that does the same.
#pragma once

#include "tests/hilfe/versagen.h"

#include <QStringList>

#include <functional>

// Carries out commands as xdotool knows them: mousemove, mousedown, mouseup, click, keydown, keyup, key,
// type, sleep. danach runs when that is done, also inside another event loop.
void Senden(const QStringList& befehle, Stelle aufrufer, const std::function<void()>& danach);
