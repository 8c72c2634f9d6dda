// The path of the open form itself, beside DateiName, which the file dialog, the form list and a refused file
// set as well. A form's tag is "FKFragen" or "HBFragen".
#pragma once

#include <string_view>

// DateiName becomes the path of the open form, together with the very file that it means now.
void FormularpfadMerken(std::string_view tag);

// The open form has no file of its own: the next save asks for a name.
void FormularpfadVergessen(std::string_view tag);

// The open form's path back into DateiName, meaning the same file as when it was noted, also if another file
// that differs only in case was chosen since. "" for a form that has no file yet.
void FormularpfadEinsetzen(std::string_view tag);
