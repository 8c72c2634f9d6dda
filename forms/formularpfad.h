// The path of the open form itself, together with the very file that it means and what is known of its
// content, and where a form without one goes.
#pragma once

#include "core/formart.h"
#include "persistence/dateistand.h"

#include <QString>

#include <string>

// The open form's file is that path, exactly as it is found now.
void FormularpfadMerken(Formart art, const std::string& pfad);

// What the program has read from that file or written to it; who does either sets it.
[[nodiscard]] Dateikenntnis& Formularkenntnis();

// The open form has no file of its own: the next save asks for a name.
void FormularpfadVergessen(Formart art);
// And proposes that of a file, until the form has one of its own or goes.
void NamenVorschlagen(const std::string& pfad);
// What the save dialog proposes for the open form: its own file, the one proposed, or "".
[[nodiscard]] std::string Namensvorschlag(Formart art);

// The open form's path, meaning the same file as when it was noted, also if another file that differs only in
// case was chosen since. "" for a form that has no file yet.
[[nodiscard]] std::string Formularpfad(Formart art);

// Folder in which the save dialog of a form of that kind without a file starts: the one that the person chose
// The open form's file as it was noted, as the file system names it; "" for none. Asks no disk where it was
// noted.
[[nodiscard]] QString NativesFormular(Formart art);
// for the kind by opening or saving such a form there in the file dialog, or else the kind's own.
[[nodiscard]] std::string Startordner(Formart art);
