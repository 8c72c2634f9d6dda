// The commands of the quiz form around its window: a new one, one that was read, its sheet on paper.
#pragma once

#include "persistence/formularwerte.h"

#include <string_view>

void FK_Neu();
// Switches to the quiz form's mode. A shape whose product fits no counter is reported, with ort as its place,
// and gives way to the full board.
void FK_ModusSetzen(std::string_view ort = "FK : FK_ModusSetzen");
// Brings the form's window to the front; makes an empty one where none is open.
void FK_Zeigen();

// Shows the stored copy just read.
void FK_GelesenesZeigen(std::string_view titel);
// What the open quiz form shows into the values; nothing without one.
void FK_InWerte(Formularwerte& werte);
void FK_Drucken(bool blanko);
