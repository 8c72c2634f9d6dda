// The selection dialog as the rest of the program sees it: one window beside the open form, the source of
// every question that is dragged out of the catalogue. The window itself is catalogue/frmAuswahl.h.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

class frmAuswahl;

// Shows the window, making it on first use, and brings it to the front.
void AuswahlZeigen();
// The window, nullptr while none is open.
[[nodiscard]] frmAuswahl* AuswahlOffen();
// Text of its txtAntwort, as a drop reads it; "" without a window.
[[nodiscard]] std::string AuswahlAntwort();
// Text of its txtFrage; "" without a window.
[[nodiscard]] std::string AuswahlFrage();

// Shows the window with a question picked: theme and sub-theme by name, the question by its place in the
// file, from 0, where its text must be that. What the lists don't have stays unpicked.
void AuswahlFrageZeigen(std::string_view thema, std::string_view unterthema, std::string_view frage,
                        std::size_t nr);

// Runs whenever a question is picked in the window; a later one replaces it.
void BeiAuswahl(std::function<void(const std::string& frage)> gewaehlt);
