// The ways of saving: under the old name, under a new one, with a backup, and the questions about unsaved
// changes. The bytes come from persistence/formulardatei.h, the writing from core/datei.h.
#pragma once

#include <string_view>

// Saves the open form under its own name, or asks for one. A failure is reported here. False when nothing was
// saved.
bool Speichern();
// Asks for a name and saves. art: 1 names an .INI file, 2 a form. False when nothing was saved.
bool SpeichernUnter(int art);

void SicherungAnlegenForm();
void SicherungAnlegenKatalog();

// The question about unsaved changes before a file is opened or the program ends. 1 when the user cancelled
// or the save did not come about, else 0.
int AuswertungSpeichernFragen();

// The closing check of a form, by its tag "FKFragen" or "HBFragen": 1 when it stays open, 2 when it may go.
int SchliessenPruefen(std::string_view tag);
