#include "rules/skalierung.h"

#include "core/laufzeitfehler.h"

#include <cmath>

namespace {

constexpr double vollesBrett = 30.0;
constexpr double volleSpalte = 5.0;

Artwerte Umrechnen(const Artwerte& standard, double teiler, double faktor) {
    Artwerte ergebnis;
    std::ranges::transform(standard.werte, ergebnis.werte.begin(),
                           [=](std::int16_t wert) { return Runden(wert / teiler * faktor); });
    return ergebnis;
}

} // namespace

std::int16_t Runden(double wert) {
    constexpr double grenze = 1.0e9; // keeps the conversion to a whole number defined
    if (!(std::abs(wert) < grenze)) {
        throw Laufzeitfehler(Fehler::Ueberlauf);
    }
    const double unten = std::floor(wert);
    const double rest = wert - unten;
    auto ganz = static_cast<long long>(unten);
    if (rest > 0.5 || (rest == 0.5 && ganz % 2 != 0)) {
        ++ganz;
    }
    return Zaehler(ganz);
}

Artwerte FelderUmrechnen(const Artwerte& standard, int felderGesamt) {
    return Umrechnen(standard, vollesBrett, felderGesamt);
}

Artwerte PunkteUmrechnen(const Artwerte& standard, int fragenProWissen) {
    switch (fragenProWissen) {
    case 1:
        return Umrechnen(standard, volleSpalte, 3.0);
    case 2:
        return Umrechnen(standard, volleSpalte, 4.0);
    default:
        return standard;
    }
}
