// Keeps what an open form hasn't saved before another file takes its place without a question. It goes as
// UNGESICHERT.BAK into the folder of the form's kind, where the list of forms shows it; an older file of that
// name is kept under the next free number. Nothing that is on the disk is lost by it.
#pragma once

#include <string>

// Merges the open form's window and writes it, as durably as a save. name becomes that of the file, "" when
// nothing was unsaved. When UNGESICHERT.BAK is the very file that DateiName names, it stays as it is and the
// form goes under the next free number. False, after a report, when the form could not be written; then the
// stored copy is as before.
[[nodiscard]] bool UngesichertesRetten(std::string& name);
