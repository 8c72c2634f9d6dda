// Reading, durable saving and the small file operations, on paths in the program's own notation. Every
// failure leaves as a Laufzeitfehler with a number that tells a lasting reason (52, 53, 70, 75, 76) from a
// device that may come back (57, 68, 71, 72); a full disk is 61. Knows no format and asks nobody.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A larger file is none of ours, and its text in the model would fill the memory.
inline constexpr std::size_t groessteDatei = std::size_t{256} << 20U;

// The bytes of a whole file. A missing file is 53; a folder, a pipe, a device, an impossible name or a file
// without permission is 52; a file of more bytes than hoechstens is 7.
[[nodiscard]] std::string DateiLesen(std::string_view pfad, std::size_t hoechstens = groessteDatei);

// Writes the bytes so that at every moment either the old or the new file stands whole: a new file in the
// same folder, forced to the disk, renamed over the old one. Permissions of an existing file are kept, owner
// and access list where the system allows it, and a link goes on pointing to the file. A file that the user
// may not write is 70. Where the folder takes no new file but the file can be written, it is overwritten in
// place, and until that is done a copy of the old one stands in the folder for temporary files (/var/tmp
// first) under "Feldkranz-", the file's name and a number. A killed process can leave that copy, or a scrap
// ".feldkranz-<number>.neu" beside the file, which ResteEntfernen takes away.
void DateiSchreiben(std::string_view pfad, std::string_view bytes);

// Removes from a folder and all beneath it what the saves of killed programs left. Those of running programs
// stay, and so does what can't be removed.
void ResteEntfernen(std::string_view ordner);

[[nodiscard]] bool DateiDa(std::string_view pfad);  // anything existing that is no folder
[[nodiscard]] bool OrdnerDa(std::string_view pfad); // an existing folder

// True where a folder takes a new file. Only trying tells: what the system says of rights leaves out half of
// what may be in the way.
[[nodiscard]] bool OrdnerBeschreibbar(std::string_view pfad);

// Copies a file as DateiLesen and DateiSchreiben do; an existing target is replaced.
void DateiKopieren(std::string_view quelle, std::string_view ziel);
void DateiLoeschen(std::string_view pfad);  // a missing file is 53
void OrdnerAnlegen(std::string_view pfad);  // an existing one is 75
void OrdnerLoeschen(std::string_view pfad); // only an empty one, else 75

[[nodiscard]] std::int64_t DateiGroesse(std::string_view pfad); // bytes
// Seconds since 1970 of the last change, and its date and time as "dd.mm.yyyy hh:mm:ss" in local time.
[[nodiscard]] std::int64_t DateiZeit(std::string_view pfad);
[[nodiscard]] std::string DateiDatum(std::string_view pfad);

// True for a name that matches one of the patterns ("*.FKR"; several joined by ";") without regard to case;
// "*" stands for any characters, "?" for one, and "*.*" for every name.
[[nodiscard]] bool MusterPasst(std::string_view name, std::string_view muster);

// Names of the regular files in a folder that match one of the patterns, and of its sub-folders, sorted as a
// German reader expects. What the system hides (a point in front) is left out. A missing folder is 76, an
// unreadable one 70.
[[nodiscard]] std::vector<std::string> DateienIn(std::string_view ordner, std::string_view muster);
[[nodiscard]] std::vector<std::string> OrdnerIn(std::string_view ordner);
