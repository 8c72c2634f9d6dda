#include "persistence/dateistand.h"

#include <algorithm>
#include <utility>

Dateikenntnis::Dateikenntnis(Dateistand stand) : staende_{std::move(stand)} {}

void Dateikenntnis::Ergaenzen(Dateistand stand) {
    if (std::ranges::find(staende_, stand) == staende_.end()) {
        staende_.push_back(std::move(stand));
    }
}

Fremdes Dateikenntnis::Urteil(const Dateistand& gefunden) const {
    if (gefunden.art == Dateistand::Art::Nichts || gefunden.art == Dateistand::Art::KeineDatei) {
        return Fremdes::Keines; // a file that has gone is written anew
    }
    if (std::ranges::find(staende_, gefunden) != staende_.end()) {
        return Fremdes::Keines;
    }
    return gefunden.art == Dateistand::Art::Unlesbar ? Fremdes::Unlesbar : Fremdes::Geaendert;
}
