// The look at a file's content on the disk, and the write after which it is known. What follows from it is
// persistence/dateistand.h, who asks the person persistence/fremdfrage.h.
#pragma once

#include "persistence/dateistand.h"

#include <string_view>

// The content that these bytes are.
[[nodiscard]] Dateistand StandVon(std::string_view bytes);
// The content of the file as it is now. Never throws a Laufzeitfehler: a file that can't be read counts as
// unreadable, and only one that the system says isn't there as gone.
[[nodiscard]] Dateistand StandAuf(std::string_view pfad);

// Writes as DateiSchreiben does, with its Laufzeitfehler; then the bytes are all that is known of the file.
// After a failure they are known beside the rest: the new file may stand in its place all the same.
void BekanntSchreiben(std::string_view pfad, std::string_view bytes, Dateikenntnis& kenntnis);
