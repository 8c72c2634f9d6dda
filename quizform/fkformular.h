// The quiz form as the rest of the program sees it: its window and the routines that bring the stored copy
// and the window together. Each does nothing where it needs an open window and there is none. Making, opening
// and saving a form is forms/.
#pragma once

#include "catalogue/themen.h"
#include "core/ziehwert.h"
#include "quizform/quizformular.h"

#include <functional>
#include <string>
#include <string_view>

class frmFKFragen;

// The quiz form's window, nullptr while none is open.
frmFKFragen* FKFragenOffen();

// The window, made on first touch with the rules run on it. darfSchliessen is asked when the user closes it,
// geschlossen runs when it is about to go.
struct FKAnlass {
    std::function<bool()> darfSchliessen;
    std::function<void()> geschlossen;
};
frmFKFragen& FK_Fenster(const FKAnlass& anlass);
// Fills the window from the stored copy just read: all cells shown, titles and texts filled in, the rules
// run, then letters, counts and colours.
void FK_FormularZeigen();
// Shows the window and brings it to the front.
void FK_NachVorn();
// Caption of the open form.
void FK_FenstertitelSetzen(std::string_view titel);
// Closes the window with its closing check; true when it is gone.
bool FK_Schliessen();
// Closes the window without asking; what is on it is discarded.
void FK_Entladen();

void FK_Leeren();
void FK_KopfLeeren();
void FK_TitelLeeren();
void FK_Merken();
// The three boxes of the head into FormNr, FormDatum and FormZeit.
void FK_KopfMerken();
// What the form shows, as a value; the stored copy stays as it is. Without a form the stored copy.
[[nodiscard]] Quizformular FK_Ablesen();
// Shows a form that was read off this window once, and puts the stored copy of that moment back with it.
void FK_StandZeigen(const Quizformular& gezeigt, const Quizformular& gemerkt);
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

// The rules in force on the board, in their fixed order: cells that they close lose their contents.
void FK_VorgabenAnwenden();
// Letters, counts, colours and tips anew, for other points and limits.
void FK_Auffrischen();
// Paints the background for that index of the colours.
void FK_HintergrundMalen(int farbe);

// Texts of a cell of the open form; "" without a form.
std::string FK_Frage(int n);
std::string FK_Antwort(int n);
void FK_FeldLeeren(int n);
// Puts texts into a cell on the screen; the stored copy stays as it is.
void FK_FeldSetzen(int n, std::string_view frage, std::string_view antwort);

// Places a question in a cell, as a drop does: asks where the cell is occupied, and empties the place that a
// move came from.
void FK_Ablegen(int n, const Ziehwert& wert);

// Fills the list of titles anew with the twenty entries of a list (index 0 isn't used), without a leading "".
void FK_TitellisteFuellen(const Namensliste& liste);
