#include "periphery/dateivorhanden.h"

#include "core/pfad.h"
#include "core/plattform.h"

bool DateiVorhanden(std::string_view pfad) {
    if (pfad.empty() || pfad.back() == ':' || pfad.back() == '\\') {
        return false;
    }
    return plattform::ArtVon(NativerPfad(pfad)) == plattform::Art::Datei;
}
