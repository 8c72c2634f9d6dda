// The test form as the rest of the program sees it: the commands on it and the routines that bring the stored
// copy and the window together. Each does nothing where it needs an open window and there is none.
#pragma once

#include <string>
#include <string_view>

class frmHBFragen;

// The test form's window, nullptr while none is open.
frmHBFragen* HBFragenOffen();

// The command for a new test form, with its questions. False when it was refused.
bool HB_Neu();
// Shows the window (making it on first touch) for the stored copy just read, with that caption.
void HB_FormularZeigen(std::string_view titel);
// Caption of the open form.
void HB_FenstertitelSetzen(std::string_view titel);
// Closes the window with its closing check; true when it is gone.
bool HB_Schliessen();
// Closes the window without asking; what is on it is discarded.
void HB_Entladen();

void HB_ModusSetzen();
// Window into stored copy: the whole form; the row AktuellesFeld; the three captions of the head.
void HB_Merken();
void HB_FeldMerken();
void HB_KopfMerken();
void HB_FelderFaerben();

// Blanking on the screen and putting the stored copy back. The totals stay as they are.
void HB_FragenLoeschen();
void HB_FragenEinfuegen();
void HB_AntwortenLoeschen();
void HB_AntwortenEinfuegen();
void HB_PunkteLoeschen();
void HB_PunkteEinfuegen();

// Texts of a row of the open form, as a drop or the trash needs them; "" without a form.
std::string HB_Frage(int n);
std::string HB_Antwort(int n);
void HB_FeldLeeren(int n);

// Places a question in a row, as a drop does: asks where the row is occupied, takes the answer from where
// DragArt and DragFeld say.
void HB_Ablegen(int n, const std::string& frage);
