// What the desktop asks of all programs for those who don't see well: larger letters and high contrast. The
// windows that are laid out by their contents follow both; the told windows and the forms, whose places are
// given to the pixel, follow the contrast, and their size is core/massstab.h's affair. Colours that mean
// something stay.
#pragma once

#include <QPalette>

class QWidget;

// How much larger than usual letters of that size are, from 1 to 1.3; a size in points. 11 is the largest
// that a desktop has without being asked.
[[nodiscard]] constexpr double Schriftfaktor(double punkte) {
    return punkte <= 11.0 ? 1.0 : punkte >= 14.3 ? 1.3 : punkte / 11.0;
}

// Once, while the application still has the desktop's font: keeps how large it is, and follows the desktop's
// wish for contrast from then on.
void LesehilfeEinrichten();
// For tests, instead of the desktop's; 1 is none.
void SchriftfaktorVorgeben(double wert);
// Gives a window letters as large as the desktop's.
void SystemschriftGeben(QWidget& fenster);

// The program's palette; with high contrast black on white, with black edges.
[[nodiscard]] QPalette Programmpalette(bool hoherKontrast);
// All windows get it at once.
void KontrastSetzen(bool hoch);
