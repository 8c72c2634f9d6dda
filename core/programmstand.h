// The state of the program that is not the content of a form: where it runs, which kind of form is open,
// which file it belongs to and whether it has unsaved changes. It lives as long as the process. The rule
// values are in rules/spielwerte.h, the forms' content in quizform/quizformular.h and
// testform/testformular.h.
#pragma once

#include "core/formart.h"

#include <string>

struct Programmstand {
    // Folder of the program in the program's own notation (backslashes), without a trailing backslash.
    // Set once when the start window loads.
    std::string AppPfad;

    // Kind of the open form. Written by the mode switches and by the form file's reader.
    Formart FormTyp = Formart::Keine;

    // The open form has unsaved changes. Written by FormStatusSetzen and by the closing commands.
    bool FormGeaendert = false;

    // The catalogue editor has unsaved changes. Written by EditorStatusSetzen.
    bool EditorGeaendert = false;

    // Path that the open form of either kind was opened from or saved to, "" for none.
    std::string FKDateiName, HBDateiName;

    friend bool operator==(const Programmstand&, const Programmstand&) = default;
};

inline Programmstand Stand;
