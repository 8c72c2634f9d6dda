#include "persistence/dateiliste.h"

#include <algorithm>

void DateilisteErgaenzen(std::array<std::string, 4>& liste, std::string_view pfad) {
    if (std::ranges::find(liste, pfad) != liste.end()) {
        return;
    }
    const std::string neu(pfad); // may be one of those that move
    std::rotate(liste.begin(), liste.end() - 1, liste.end());
    liste.front() = neu;
}
