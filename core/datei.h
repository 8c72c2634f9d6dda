// Reading, durable saving and the small file operations, on paths in the program's own notation. Every
// failure leaves as a Laufzeitfehler with a number that tells a lasting reason (52, 53, 70, 75, 76) from a
// device that may come back (57, 68, 71, 72). Knows no format and asks nobody.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The bytes of a whole file. A missing file is 53, a folder, an impossible name or one without permission 52,
// a file beyond 1 GiB is 7.
[[nodiscard]] std::string DateiLesen(std::string_view pfad);

// Writes the bytes so that at every moment either the old or the new file stands whole: a new file in the
// same folder, forced to the disk, renamed over the old one; where the folder takes no new file but the file
// can be written, in place after a copy has been kept. The permissions of an existing file are kept.
void DateiSchreiben(std::string_view pfad, std::string_view bytes);

[[nodiscard]] bool DateiDa(std::string_view pfad);  // an existing file, no folder
[[nodiscard]] bool OrdnerDa(std::string_view pfad); // an existing folder

// Copies a file durably over the target; an existing target is replaced.
void DateiKopieren(std::string_view quelle, std::string_view ziel);
void DateiLoeschen(std::string_view pfad);
void OrdnerAnlegen(std::string_view pfad);
void OrdnerLoeschen(std::string_view pfad); // only an empty one

[[nodiscard]] std::int64_t DateiGroesse(std::string_view pfad);
// Date and time of the last change, as "dd.mm.yyyy hh:mm:ss" in local time.
[[nodiscard]] std::string DateiDatum(std::string_view pfad);

// Names of the files in a folder that match one of the patterns ("*.FKR"; several joined by ";"), without
// regard to case, sorted; and of its sub-folders. An unreadable folder is a Laufzeitfehler.
[[nodiscard]] std::vector<std::string> DateienIn(std::string_view ordner, std::string_view muster);
[[nodiscard]] std::vector<std::string> OrdnerIn(std::string_view ordner);
