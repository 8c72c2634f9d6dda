#include "search/zielfeld.h"

#include <cstddef>

int Zielfeld(const std::vector<bool>& leer, int zuletzt) {
    const int anzahl = static_cast<int>(leer.size()) - 1;
    const int ab = zuletzt >= 1 && zuletzt <= anzahl ? zuletzt : 1;
    for (int i = 0; i < anzahl; ++i) {
        const int feld = (ab - 1 + i) % anzahl + 1;
        if (leer[static_cast<std::size_t>(feld)]) {
            return feld;
        }
    }
    return 0;
}
