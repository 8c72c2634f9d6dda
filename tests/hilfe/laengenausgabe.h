// Lengths in the messages of a test that failed: as their numbers, without the unit that both sides share.
#pragma once

#include "core/laenge.h"

#include <ostream>

template <typename Einheit>
void PrintTo(Laenge<Einheit> laenge, std::ostream* strom) {
    *strom << laenge.zahl();
}
