// What of a form stands on its paper: from the form's value to the values that the layouts take. Pure.
#pragma once

#include "printing/seitenlayout.h"
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"

// blanko: without the titles of the Wissensgebiete.
[[nodiscard]] FKDruckdaten DruckdatenAus(const Quizformular& form, const Spielwerte& spiel, bool blanko);
