// The main window's commands that act on an open form: saving, closing, going back, blanking and the theme
// source. The work itself is the forms' and the services'.
#pragma once

struct NachrichtText;

namespace befehle {

// Asks as the closing buttons of both forms do and closes the form. True when it is gone.
bool NachFrageSchliessen(const NachrichtText& frage, void (*speichern)(), bool (*schliessen)());
// Asks before something is blanked; closing the question by its frame counts as Abbrechen.
bool Gefragt(const NachrichtText& frage);

void FKSpeichern();
void FKSpeichernUnter();
void FKBeenden();    // closes with the form's own check
void FKSchliessen(); // closes after a question, the toolbar stays
void FKZurueck();    // the same, and back to the main toolbar
void FKFragenLoeschen();
void FKSpezialLoeschen();
void FKBlankoDrucken();

// The theme source: the switch on the toolbar and the check mark of the menu entry follow each other.
void ThemenquelleUmschalten();  // the entry mThemenHB
void ThemenquelleUebernehmen(); // the switch grpFKHB

} // namespace befehle
