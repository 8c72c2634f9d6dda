// Command routing: which routine a button or a menu entry runs, found by the control's name. A name without a
// routine belongs to a command that is out of use.
#pragma once

#include <string_view>

class QAbstractButton;
class QAction;

// The routine behind a control, nullptr for none.
using Befehl = void (*)();
[[nodiscard]] Befehl BefehlFuer(std::string_view name);

// Connects a control with its routine, or takes it out of use where there is none.
void BefehlVerbinden(QAbstractButton* schaltflaeche);
void BefehlVerbinden(QAction* eintrag);
