// The main window's commands on the test form: making, saving, closing, going back, blanking. The work itself
// is the form's and the services'.
#pragma once

namespace befehle {

void HBNeu();
void HBNeuMitModus(); // the main menu's entry: the toolbar first, and back again when refused
void HBFragenLoeschen();
void HBFragenEinfuegen();
void HBAntwortenLoeschen();
void HBAntwortenEinfuegen();
void HBPunkteLoeschen();
void HBSicherungUmschalten(); // the backup switch of the test form's menu

} // namespace befehle
