// The sheet for the helpers: questions, answers and points as plain text, in the order of the form, on as
// many pages as it takes.
#pragma once

#include "printing/seitenlayout.h"
#include "printing/testseite.h"
#include "sheets/blattsatz.h"

// From the sheets' corners.
[[nodiscard]] Blattsatz AntwortBlaetter(const FKDruckdaten& daten, const Schriftmass& mass);
[[nodiscard]] Blattsatz AntwortBlaetter(const Testdruckdaten& daten, const Schriftmass& mass);
