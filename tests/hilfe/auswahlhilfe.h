// The selection dialog as a test of a drag needs it: open, out of the form's way, with a question picked.
#pragma once

#include "tests/hilfe/versagen.h"

#include <QString>

#include <cstdint>

class Programm;
class QComboBox;
class QWidget;

// Opens a list and chooses the entry with that text by key, as a user would.
void ListeWaehlen(QComboBox* liste, const QString& text, Stelle aufrufer = Stelle::hier());

// Picks a question in the dialog: theme and sub-theme where they aren't picked yet, then the question by its
// place in the list, from 0.
void FrageWaehlen(const QWidget* auswahl, const QString& thema, const QString& unterthema, int frage,
                  Stelle aufrufer = Stelle::hier());

// The dialog by the command button with that name, moved to the right edge of a screen of 1600 pixels and up
// or down, away from the form; gewaehlt: with the first question about pets picked. Never a null pointer.
enum class Ecke : std::uint8_t { Oben, Unten };
QWidget* AuswahlOeffnen(const Programm& programm, const QString& taste, Ecke ecke, bool gewaehlt,
                        Stelle aufrufer = Stelle::hier());
