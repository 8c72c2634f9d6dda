// Keeps what an open form hasn't saved before another file takes its place without a question. It goes as
// UNGESICHERT.BAK into the folder of the form's kind, where the list of forms shows it; an older file of that
// name is kept under the next free number. Nothing that is on the disk is lost by it.
#pragma once

#include <string>

// Writes the open form as its window shows it, as durably as a save. name becomes that of the file, "" when
// nothing was unsaved. When UNGESICHERT.BAK is the very file that is going to be read, it stays as it is and
// the form goes under the next free number. False, after a report, when the form could not be written.
[[nodiscard]] bool UngesichertesRetten(const std::string& wirdGelesen, std::string& name);
