// The ways of opening a form: from the file dialog, from a path, and reading only its numbers.
#pragma once

// Asks about unsaved changes, opens the file dialog and loads.
void FormularOeffnen();
// Loads the file that DateiName names into a form.
void FormularLaden();
// The same without a question, for the list of forms: what an open form hasn't saved is put into a file of
// its own before the other one takes its place (rettung.h); when that fails the form stays. True when the
// file was taken.
bool FormularErsetzen();
// Reads only the "[FKINI]" section of DateiName into FormTyp, FelderGesamt, FragenProWissen and AnzahlWissen.
// A file without one, as a test form is, changes nothing; an unreadable one is reported and changes nothing.
void FormularInfoLesen();

// Reads the file that DateiName names into the shared variables: 0 read to the end, 1 no form file, 2 refused
// because a form of the other kind is open, -1 after a run-time error that the user was told of.
int FormularLesen();
