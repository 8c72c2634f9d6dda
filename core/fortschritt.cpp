#include "core/fortschritt.h"

#include <algorithm>

float FortschrittProzent(float wert) {
    return std::min(wert * 2.6F, 100.0F);
}

Farbe FortschrittFarbe(float prozent) {
    if (prozent >= 75.0F) {
        return {0, 223, 0};
    }
    if (prozent <= 50.0F) {
        return {223, 0, 0};
    }
    return {223, 223, 0};
}
