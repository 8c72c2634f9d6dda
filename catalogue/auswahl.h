// The selection dialog as the rest of the program sees it: one window beside the open form, the source of
// every question that is dragged out of the catalogue. The window itself is catalogue/frmAuswahl.h.
#pragma once

#include <string>

class frmAuswahl;

// Shows the window, making it on first use, and brings it to the front.
void AuswahlZeigen();
// The window, nullptr while none is open.
[[nodiscard]] frmAuswahl* AuswahlOffen();
// Text of its txtAntwort, as a drop reads it; "" without a window.
[[nodiscard]] std::string AuswahlAntwort();
