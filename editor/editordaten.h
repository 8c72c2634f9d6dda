// The text that travels between the catalogue's files and the editor, and the note a form file may hold. The
// text being edited stands in the window's field alone; here are the copies that a load or a save takes.
#pragma once

#include <cstdint>
#include <string>

// The text of the file behind its first token, UTF-8 with CR LF. Opening a form sets it as well.
inline std::string Bemerkung;
inline std::string BemerkungMarke; // first token of the catalogue file

// Copy of the field's text, taken when the editor is left.
inline std::string EditorText;

// 1: the next save of the editor asks for a name; 0: it goes to the file that the editor has.
inline std::int16_t SpeichernMitDialog = 0;

// 1 while the editor's window exists. Written by the window.
inline std::int16_t EditorOffen = 0;
