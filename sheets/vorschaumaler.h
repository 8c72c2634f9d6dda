// Paints a sheet for the preview: its pages, the margins that the printer leaves, and boxes around what has
// no room.
#pragma once

#include "sheets/blattausgabe.h"

class Druckschriften;
class QPrinter;

// schriften: those of the preview's printer.
void VorschauMalen(QPrinter& drucker, const Fertigblatt& fertig, const Druckschriften& schriften);
