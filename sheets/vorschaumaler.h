// Paints a sheet for the preview: its pages, the margins that the printer leaves, and boxes around what has
// no room.
#pragma once

#include "sheets/blattausgabe.h"

class QPrinter;

void VorschauMalen(QPrinter& drucker, const Fertigblatt& fertig);
