// The quiz form as the rest of the program sees it: the commands on it and the routines that bring the stored
// copy and the window together. Each does nothing where it needs an open window and there is none.
#pragma once

#include "catalogue/themen.h"

#include <array>
#include <string>
#include <string_view>

class frmFKFragen;

// The quiz form's window, nullptr while none is open.
frmFKFragen* FKFragenOffen();

void FK_Neu();
// Shows the window (making it on first touch) for the stored copy just read, with that caption: all cells
// shown, titles and texts filled in, the rules run, then letters, counts and colours.
void FK_FormularZeigen(std::string_view titel);
// Brings the form's window to the front; makes an empty one where none is open.
void FK_Zeigen();
// Caption of the open form.
void FK_FenstertitelSetzen(std::string_view titel);
// Closes the window with its closing check; true when it is gone.
bool FK_Schliessen();
// Closes the window without asking; what is on it is discarded.
void FK_Entladen();

void FK_Leeren();
void FK_KopfLeeren();
void FK_TitelLeeren();
void FK_ModusSetzen();
void FK_Merken();
// The three boxes of the head into FormNr, FormDatum and FormZeit.
void FK_KopfMerken();
// Typed text of the cell that has the focus reaches the stored copy, as if the cell lost the focus.
void FK_EingabeAbschliessen();
// A command has set the texts: what the cell with the focus shows isn't typed, and leaving it merges nothing.
void FK_EingabeGilt();
void FK_AlleFelderZeigen();
void FK_AlleSpezialZeigen();
void FK_FragenRegel();
void FK_WissenRegel();
void FK_SpezialRegel();
void FK_SpezialWissenRegel();
void FK_FelderFaerben();
void FK_FeldFaerben();
void FK_SpezialZaehlen();
void FK_SpezialFeldZaehlen();
void FK_SpezialMerken();
void FK_RegelHinweis();
void FK_FragenEinfuegen();
void FK_FragenLoeschen();
void FK_SpezialLoeschen();
void FK_SpezialEinfuegen();

// Texts of a cell of the open form, as a drop or the trash needs them; "" without a form.
std::string FK_Frage(int n);
std::string FK_Antwort(int n);
void FK_FeldLeeren(int n);

// Places a question in a cell, as a drop does: asks where the cell is occupied, takes the answer from where
// DragArt and DragFeld say.
void FK_Ablegen(int n, const std::string& frage);

// What of the form the printing needs and only the window knows; false and empty without a form.
bool FK_FrageSichtbar(int n);
bool FK_AntwortSichtbar(int n);
bool FK_GebietBenutzbar(int a);

// Fills the list of titles anew with the twenty entries of a list (index 0 isn't used), without a leading "".
void FK_TitellisteFuellen(const std::array<std::string, anzahlListenplaetze + 1>& liste);
