// The one way in which a modal dialog comes on the screen: the program's own dialogs, the stock message boxes
// and the toolkit's print dialog all pass here. Tests put a handler in and answer a dialog without showing
// it.
#pragma once

#include <functional>
#include <string>

class QDialog;

// Puts the status line back to what it showed before, when the dialog that is open meanwhile has gone.
class Hilfewahrer {
public:
    Hilfewahrer();
    ~Hilfewahrer();
    Hilfewahrer(const Hilfewahrer&) = delete;
    Hilfewahrer& operator=(const Hilfewahrer&) = delete;

private:
    std::string vorher_;
};

// Runs the dialog, keeps the status line over it, and returns its result code.
int ModalZeigen(QDialog& dialog);

// A handler that answers dialogs in place of a user; true when it has. Empty in the program itself.
using ModalHandler = std::function<bool(QDialog&)>;
void ModalHandlerSetzen(ModalHandler handler);
