#include "core/schritt.h"

#include <utility>

namespace {

Schrittbeobachter beobachter;
int tiefe = 0;

} // namespace

Schritt::Schritt(std::string_view name, int gruppe) : name_(name), gruppe_(gruppe) {
    if (tiefe == 0 && beobachter.beginnt) {
        beobachter.beginnt();
    }
    ++tiefe;
}

Schritt::~Schritt() {
    --tiefe;
    if (tiefe == 0 && beobachter.endet) {
        beobachter.endet(name_, gruppe_);
    }
}

void SchritteBeobachten(Schrittbeobachter neuer) {
    beobachter = std::move(neuer);
}

bool SchrittLaeuft() {
    return tiefe > 0;
}
