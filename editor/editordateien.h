// Loading a catalogue file into the editor and saving it, with the questions and messages on the way, and the
// question about unsaved text. The bytes are editor/katalogtext.h, the writing core/datei.h.
#pragma once

#include <cstdint>

class frmEditor;

// Asks about unsaved text, then for a file, and shows it. Whatever fails is told. A file that
// can't be read changes nothing on the screen; a text that the field can't take leaves it empty, without a
// file.
void KatalogLaden(frmEditor& editor);

// When a save asks for a name: only where the editor has no file to save to, or in any case.
enum class Namensfrage : std::uint8_t { NurOhneDatei, Immer };

// Saves the field's text. False when nothing was saved; the text stays unsaved then.
bool KatalogSpeichern(frmEditor& editor, Namensfrage wann);

// Asks about unsaved text, if there is any. False when the user cancelled or the save did not come about: the
// text has to stay, and so has the window.
[[nodiscard]] bool TextGesichert(frmEditor& editor);
