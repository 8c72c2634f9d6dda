// The path of the file that the editor has. Files that differ in case only share a path, so it is kept
// together with the very file that it means.
#pragma once

#include <string>

// The editor has that file now: the one that the path means at this moment.
void EditorpfadMerken(const std::string& pfad);
// The editor has no file any more.
void EditorpfadVergessen();
// Makes the path mean the editor's file again, also if another file that differs only in case was chosen
// since.
void EditorpfadEinsetzen();
// The path, put in force as above. "" while the editor has no file, and where it has gone and another one
// answers to its name: a save asks for one then.
[[nodiscard]] std::string Editorpfad();
// Folder of the editor's file in the program's own notation, "" while it has none.
[[nodiscard]] std::string Editorordner();
