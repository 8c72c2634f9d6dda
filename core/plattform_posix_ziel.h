// Where a save ends up on a POSIX system: the target behind its links, the folder it lies in, and what a new
// file takes over from the old one. Writes no bytes: that is core/plattform_posix_sichern.cpp.
#pragma once

#include "core/plattform_posix.h"

#include <string>

#include <sys/stat.h>

namespace plattform {

// The file that a save replaces: its folder stays open, so that neither a long path nor a folder renamed
// meanwhile comes between the steps.
struct Zielort {
    std::string pfad;
    std::string name;
    Deskriptor ordner;
    bool vorhanden = false;
    struct stat zustand {};
};

// The target of a save. A folder, a pipe or a device is 75, a file that the user may not write 70: renaming
// over it would pass by a write protection that he has put there.
[[nodiscard]] Zielort ZielFinden(const QString& ziel);

[[nodiscard]] Deskriptor OrdnerOeffnen(const std::string& pfad);

// Opens a regular file for writing, without cutting it off.
[[nodiscard]] Deskriptor ZumSchreibenOeffnen(int ordner, const std::string& name);

// Gives the new file (a descriptor) the old one's owner, group, permissions, access list and user attributes,
// as far as the system lets the user do so.
void EigenschaftenUebernehmen(const Zielort& ort, int neu);

} // namespace plattform
