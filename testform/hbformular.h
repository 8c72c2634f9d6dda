// The test form as the rest of the program sees it: its window and the routines that bring the stored copy
// and the window together. Each does nothing where it needs an open window and there is none. Making, opening
// and saving a form is forms/.
#pragma once

#include "core/ziehwert.h"
#include "testform/testblatt.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

class frmHBFragen;

// The test form's window, nullptr while none is open.
frmHBFragen* HBFragenOffen();

// The window, made on first touch. darfSchliessen is asked when the user closes it, geschlossen runs when it
// is about to go.
struct HBAnlass {
    std::function<bool()> darfSchliessen;
    std::function<void()> geschlossen;
};
frmHBFragen& HB_Fenster(const HBAnlass& anlass);
// Fills the window from the stored copy just read.
void HB_FormularZeigen();
// Shows the window and brings it to the front.
void HB_NachVorn();
// Caption of the open form.
void HB_FenstertitelSetzen(std::string_view titel);
// Closes the window with its closing check; true when it is gone.
bool HB_Schliessen();
// Closes the window without asking; what is on it is discarded.
void HB_Entladen();

// Window into stored copy: the whole form; one row; the three captions of the head.
void HB_Merken();
void HB_FeldMerken(int n);
void HB_KopfMerken();
void HB_FelderFaerben();
// What the form shows, as a value; the stored copy stays as it is. Without a form the stored copy.
[[nodiscard]] Testformular HB_Ablesen();

// The points as they stand on the screen; none without a form.
[[nodiscard]] Punktanzeige HB_PunkteAblesen();
// Shows a form that was read off this window once, and puts the stored copy of that moment back with it.
void HB_StandZeigen(const Testformular& gezeigt, const Punktanzeige& punkte, const Testformular& gemerkt);

// Blanking on the screen and putting the stored copy back. The totals stay as they are.
void HB_FragenLoeschen();
void HB_FragenEinfuegen();
void HB_AntwortenLoeschen();
void HB_AntwortenEinfuegen();
void HB_PunkteLoeschen();
void HB_PunkteEinfuegen();

// Texts of a row of the open form; "" without a form.
std::string HB_Frage(int n);
std::string HB_Antwort(int n);
void HB_FeldLeeren(int n);
// Puts texts, or points, into a row on the screen and into its stored copy; the total follows.
void HB_FeldSetzen(int n, std::string_view frage, std::string_view antwort);
void HB_PunkteSetzen(int n, std::int16_t punkte);

// The sheet of the form on the screen; the stored copy stays as it is. An untouched form where none is open.
[[nodiscard]] Testblatt HB_Bildschirm();

// Places a question in a row, as a drop does: asks where the row is occupied, and empties the place that a
// move came from.
void HB_Ablegen(int n, const Ziehwert& wert);
