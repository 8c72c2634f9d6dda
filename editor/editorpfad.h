// The path of the file that the editor has, beside DateiName, which forms, the file dialog and the form list
// set as well.
#pragma once

#include <string>

// DateiName becomes the editor's file, together with the very file that it means now.
void EditorpfadMerken();
// The editor's path back into DateiName, meaning the same file as when it was noted, also if another file
// that differs only in case was chosen since. "" while the editor has no file.
void EditorpfadEinsetzen();
// The editor has no file any more.
void EditorpfadVergessen();
// Folder of the editor's file in the program's own notation, "" while it has none.
[[nodiscard]] std::string Editorordner();
