// Calls that only one system has, behind one face; one source file a system. The rest of the program knows
// neither POSIX nor Windows. Paths here are the file system's own.
#pragma once

#include "core/laufzeitfehler.h"

#include <QString>

#include <string_view>

namespace plattform {

// Writes the bytes to a new file beside ziel, forces them to the disk and renames it over ziel. Throws
// Laufzeitfehler; the old file is whole then and no scrap is left behind where the system lets us remove it.
void DauerhaftErsetzen(const QString& ziel, std::string_view bytes);

// True when a failure of DauerhaftErsetzen means that the folder takes no new file although ziel itself may
// be written.
[[nodiscard]] bool OrdnerVerschlossen(const QString& ziel);

// Overwrites an existing file in place and forces it to the disk.
void AnOrtUeberschreiben(const QString& ziel, std::string_view bytes);

// Starts the system's text editor with a file and comes back at once. False when none could be started.
bool TexteditorStarten(const QString& datei);

// Plays a wave file and waits for its end. False when it could not be played.
bool KlangAbspielen(const QString& datei);

} // namespace plattform
