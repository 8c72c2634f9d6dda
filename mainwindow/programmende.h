// The end of the program: its questions and the way out. ProgrammEnde itself is declared in
// core/hauptfenster.h.
#pragma once

#include <functional>

// What ends the process after the last question. Tests put something else in; empty is the program's own way.
void ProgrammBeendenDurch(std::function<void()> ende);
