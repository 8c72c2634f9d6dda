#include "persistence/dateiliste.h"

#include "core/pfad.h"
#include "core/pfadname.h"

#include <algorithm>

namespace {

bool DieselbeDatei(std::string_view links, std::string_view rechts) {
    return links == rechts ||
           (Grossschreiben(links) == Grossschreiben(rechts) && NativerPfad(links) == NativerPfad(rechts));
}

} // namespace

void DateilisteErgaenzen(std::array<std::string, 4>& liste, std::string_view pfad) {
    if (std::ranges::any_of(liste, [pfad](const std::string& da) { return DieselbeDatei(da, pfad); })) {
        return;
    }
    const std::string neu(pfad); // may be one of those that move
    std::rotate(liste.begin(), liste.end() - 1, liste.end());
    liste.front() = neu;
}
