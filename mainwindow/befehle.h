// Command routing: which routine a button or a menu entry runs, found by the control's name. A name without a
// routine belongs to a command that is out of use.
#pragma once

#include <string_view>

class QAction;

// The routine behind a control, nullptr for none.
using Befehl = void (*)();
[[nodiscard]] Befehl BefehlFuer(std::string_view name);

// Connects an entry with its routine, or takes it out of use where there is none. Buttons are connected by
// the routine of the same name in core/hauptfenster.h.
void BefehlVerbinden(QAction* eintrag);
