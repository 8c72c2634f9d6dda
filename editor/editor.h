// The editor's window as others see it: shown by its command, asked at the end of the program.
#pragma once

class frmEditor;

// Shows the editor, made on first use, in front of the other child windows.
void EditorZeigen();
// The window, nullptr while there is none.
[[nodiscard]] frmEditor* EditorFenster();
// Asks about unsaved text as the closing of the editor does. False when the user cancelled.
[[nodiscard]] bool EditorTextGesichert();
// Takes the window away without its closing question.
void EditorEntladen();
// Lights the lamp for unsaved changes, or the other one.
void EditorLampenZeigen(bool rot);
