// Names of the journals: the copies of unsaved work beside the files that it belongs to. Looks at no disk.
#pragma once

#include <string>
#include <string_view>

// "~ABEND.BAK" for "ABEND.FKR", "~NEU.BAK" for a text without a file; with a number behind the name for one
// above 0, where another journal has that name.
[[nodiscard]] std::string Journalname(std::string_view dateiname, int nummer = 0);
// True for such a name, whatever its case.
[[nodiscard]] bool IstJournalname(std::string_view name);
// True for a name that a journal of that file may have, with a number or without.
[[nodiscard]] bool IstJournalVon(std::string_view name, std::string_view dateiname);
