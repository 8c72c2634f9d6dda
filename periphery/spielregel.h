// The command that opens the game's rule document.
#pragma once

#include <string>

// Path of the document, and the address to which the window is led.
[[nodiscard]] std::string SpielregelPfad();
[[nodiscard]] std::string SpielregelAdresse();

// Shows the document in frmBrowser; a missing one is reported, and no window comes.
void SpielregelZeigen();
