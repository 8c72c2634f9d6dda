// Loading a catalogue file into the editor and saving it, with the questions and messages on the way, and the
// question about unsaved text. The bytes are editor/katalogtext.h, the writing core/datei.h.
#pragma once

class frmEditor;

// Asks about unsaved text, then for a file, and shows it. Whatever fails is told. A file that
// can't be read changes nothing on the screen; a text that the field can't take leaves it empty, without a
// file.
void KatalogLaden(frmEditor& editor);

// Saves the field's text. mitDialog: 1 asks for a name; 0 goes to the file that the editor has, and asks for
// a name if it has none. False when nothing was saved; the text stays unsaved then.
bool KatalogSpeichern(frmEditor& editor, int mitDialog);

// Asks about unsaved text, if there is any. False when the user cancelled or the save did not come about: the
// text has to stay.
[[nodiscard]] bool TextGesichert(frmEditor& editor);

// The check before the window goes: keeps a copy of the text in EditorText and asks as above.
[[nodiscard]] bool DarfSchliessen(frmEditor& editor);
