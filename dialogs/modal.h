// The one way in which a modal dialog comes on the screen: the program's own dialogs, the stock message boxes
// and the toolkit's print dialog all pass here. Tests put a handler in and answer a dialog without showing
// it.
#pragma once

#include <functional>

class QDialog;

// Runs the dialog and returns its result code.
int ModalZeigen(QDialog& dialog);

// A handler that answers dialogs in place of a user; true when it has. Empty in the program itself.
using ModalHandler = std::function<bool(QDialog&)>;
void ModalHandlerSetzen(ModalHandler handler);
