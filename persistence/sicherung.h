// The backup that a save makes of the file it is going to replace, and what the user is told about it.
#pragma once

#include <string>

// For a form and for a catalogue file, if the option is on.
void SicherungAnlegenForm(const std::string& pfad);
// Of a full form that a blanked one is going to replace, option or not; told in the status help.
void SicherungVorLeerung(const std::string& pfad);
void SicherungAnlegenKatalog(const std::string& pfad);
