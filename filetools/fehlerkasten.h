// Failures of files and folders in the file dialog: told in the run time's words, and the dialog stays open.
#pragma once

#include "core/laufzeitfehler.h"

#include <functional>

// Shows a run-time error in a box.
void Fehlerkasten(const Laufzeitfehler& fehler);

// Runs an action and returns its answer; a run-time error is shown in a box and counts as false.
bool Versuchen(const std::function<bool()>& aktion);
