// The ways of opening a form: from the file dialog, from a path, in place of one that is open.
#pragma once

#include <string>

// Asks about unsaved changes, opens the file dialog and loads.
void FormularOeffnen();
// Loads a file into a form; "" is told as no file chosen.
void FormularLaden(const std::string& pfad);
// A file of the list of the last files, opened as if it had been chosen in the file dialog.
void GelistetesOeffnen(const std::string& pfad);
// The same without a question, for the list of forms: what an open form hasn't saved is put into a file of
// its own before the other one takes its place (rettung.h); when that fails the form stays. True when the
// file was taken.
bool FormularErsetzen(const std::string& pfad);
