// Where a question goes that somebody puts into the form by key: which cell or row. Puts nothing anywhere.
#pragma once

#include <vector>

// leer: by cell or row from 1 (index 0 isn't used), true for one that is in play and empty. The one visited
// last if it is empty, else the next one behind it in their order, round the end; 0 when none is empty.
[[nodiscard]] int Zielfeld(const std::vector<bool>& leer, int zuletzt);
