// The commands of the test form around its window: a new one, one that was read, its sheet on paper.
#pragma once

#include "persistence/formularwerte.h"

#include <string_view>

// The command for a new test form, with its questions. False when it was refused.
bool HB_Neu();

// Shows the stored copy just read.
void HB_GelesenesZeigen(std::string_view titel);
// What the open test form shows into the values; nothing without one.
void HB_InWerte(Formularwerte& werte);
void HB_Drucken();
