#include "persistence/dateiliste.h"

#include "settings/einstellungen.h"

#include <algorithm>
#include <array>

void DateilisteErgaenzen(std::string_view pfad) {
    const std::array<std::string*, 4> liste{&Datei1, &Datei2, &Datei3, &Datei4};
    if (std::any_of(liste.begin(), liste.end(),
                    [pfad](const std::string* datei) { return *datei == pfad; })) {
        return;
    }
    const std::string neu(pfad);
    for (std::size_t i = liste.size() - 1; i > 0; --i) {
        *liste[i] = *liste[i - 1];
    }
    *liste[0] = neu;
}
