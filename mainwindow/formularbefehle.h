// The commands of the toolbars and menus on an open form, with the questions ahead of them. Those that both
// kinds have are one routine, which works on the form that is open; what blanks and restores a test form is
// mainwindow/testbefehle.h.
#pragma once

#include "core/meldungstext.h"

namespace befehle {

void FormularBeenden(); // by the form's own closing check
void FKSchliessen();
void HBSchliessen();
void FKZurueck();
void HBZurueck();

void FKDrucken();
void FKBlankoDrucken();
void HBDrucken();

void FKFragenLoeschen();
void FKSpezialLoeschen();

// The list of titles follows the switch for its source, or the entry in the menu.
void ThemenquelleUebernehmen();
void ThemenquelleUmschalten();

} // namespace befehle
