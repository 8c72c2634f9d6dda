#include "persistence/extrasdatei.h"

#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "core/programmstand.h"
#include "persistence/extraswerte.h"

#include <optional>

namespace {

// A larger file is none of ours.
constexpr std::size_t groessteExtras = std::size_t{1} << 16U;

struct Gelesen {
    std::string pfad;
    Extraswerte werte;
};
std::optional<Gelesen> gelesen;

Extraswerte& Werte() {
    const std::string pfad = Stand.AppPfad + "\\CONFIG\\EXTRAS.INI";
    if (!gelesen || gelesen->pfad != pfad) {
        gelesen = Gelesen{pfad, {}};
        try {
            gelesen->werte = ExtraswerteAusBytes(DateiLesen(pfad, groessteExtras));
        } catch (const Laufzeitfehler&) {
            // Without the file there are the defaults.
        }
    }
    return gelesen->werte;
}

} // namespace

std::string ExtraWert(std::string_view name) {
    const Extraswerte& werte = Werte();
    const auto fund = werte.find(name);
    return fund == werte.end() ? std::string() : fund->second;
}

void ExtraSetzen(std::string_view name, std::string_view wert) {
    Extraswerte& werte = Werte();
    std::string& platz = werte[std::string(name)];
    if (platz == wert) {
        return;
    }
    platz = wert;
    try {
        DateiSchreiben(gelesen->pfad, ExtraswerteBytes(werte));
    } catch (const Laufzeitfehler&) {
        // It costs a window's last entries, and those are typed again sooner than a message is read.
    }
}
