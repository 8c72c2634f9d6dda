#include "testform/punkte.h"

#include "core/laufzeitfehler.h"

namespace {

bool Ziffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

} // namespace

std::int16_t PunkteWert(std::string_view aufschrift) {
    const auto anfang = aufschrift.find_first_not_of(' ');
    if (anfang == std::string_view::npos) {
        return 0;
    }
    aufschrift.remove_prefix(anfang);
    const bool negativ = aufschrift.front() == '-';
    if (negativ || aufschrift.front() == '+') {
        aufschrift.remove_prefix(1);
    }
    int wert = 0;
    for (const char zeichen : aufschrift) {
        if (!Ziffer(zeichen)) {
            break;
        }
        wert = 10 * wert + (zeichen - '0');
        static_cast<void>(Zaehler(negativ ? -wert : wert)); // too many digits end here
    }
    return Zaehler(negativ ? -wert : wert);
}

std::string PunkteNachSchritt(std::string_view aufschrift, int schritt) {
    const int neu = PunkteWert(aufschrift) + schritt;
    if (schritt > 0 && neu > hoechstePunkte) {
        return "0";
    }
    if (schritt < 0 && neu < 0) {
        return std::to_string(hoechstePunkte);
    }
    return std::to_string(neu);
}

std::int16_t PunkteSumme(std::span<const std::string> aufschriften) {
    std::int16_t summe = 0;
    for (const std::string& aufschrift : aufschriften) {
        try {
            summe = Zaehler(summe + PunkteWert(aufschrift));
        } catch (const Laufzeitfehler&) {
            continue; // the sum so far stands
        }
    }
    return summe;
}
