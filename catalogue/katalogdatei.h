// The catalogue's three formats on bytes in memory: theme list, sub-theme list, question file. All throw
// Laufzeitfehler 62 where the bytes end too early, with what was read so far in place. Finds no file and says
// nothing: that is catalogue/katalogladen.h.
#pragma once

#include "catalogue/fragenliste.h"
#include "catalogue/themen.h"

#include <functional>
#include <string_view>

// Header, then twenty lines, each taken whole, into places 1 to 20.
void ThemenlisteLesen(std::string_view bytes, Namensliste& liste);

// Header, then twenty tokens: a comma ends a name and quotes around it fall away.
void UnterthemenlisteLesen(std::string_view bytes, Namensliste& liste);

// Header, then four lines a question, appended to the liste. A record cut short is not appended. A line
// of more than 64 KiB is no text for the screen: its record is left out, and weggelassen gets the number of
// the line. With kommentarzeilen, lines that begin with an apostrophe are skipped ahead of each line of a
// record.
void FragenLesen(std::string_view bytes, bool kommentarzeilen, Fragenliste& liste,
                 const std::function<void(int zeile)>& weggelassen = {});
