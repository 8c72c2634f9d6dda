// The state of the program that is not the content of a form: where it runs, which kind of form is open,
// which file it belongs to and whether it has unsaved changes. It lives as long as the process. The rule
// values are in settings/einstellungen.h, the forms' content in quizform/formdaten.h and
// testform/formdaten.h.
#pragma once

#include <cstdint>
#include <string>

// Folder of the program in the program's own notation (backslashes), without a trailing backslash.
// Set once when the start window loads.
inline std::string AppPfad;

// Mode of the open form: "FK", "Test" or "". Written by the mode switches and by the form file's reader.
inline std::string FormTyp;

// Path that the file dialog, the form list or the editor chose last, in the program's own notation.
// The path of the open form itself is FKDateiName or HBDateiName.
inline std::string DateiName;

// Copy of a path from which a caption is made.
inline std::string DateiAlt;

// 1 after the file dialog was cancelled; while the list of the last files is updated, 1 for "stands in it".
inline std::int16_t DateiAbbruch = 0;

// Number of the one file in use, 0 for none. Written by core/datei only.
inline std::int16_t DateiNr = 0;

// 1 while the open form has unsaved changes. Written by FormStatusSetzen and by the closing commands.
inline std::int16_t FormGeaendert = 0;

// 1 while the catalogue editor has unsaved changes. Written by EditorStatusSetzen.
inline std::int16_t EditorGeaendert = 0;
