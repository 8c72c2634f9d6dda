#include "persistence/abschnitt.h"

#include <algorithm>

namespace {

struct Lesen {
    WertLeser& leser;
    void operator()(Blindwert) const { leser.Token(); }
    void operator()(bool* wert) const { *wert = leser.Ganzzahl() == 1; }
    void operator()(std::int16_t* wert) const { *wert = leser.Ganzzahl(); }
    void operator()(float* wert) const { *wert = leser.Einfach(); }
    void operator()(std::string* wert) const { *wert = leser.Text(); }
    void operator()(std::optional<std::string>* wert) const { *wert = leser.Variant(); }
};

struct Schreiben {
    WertSchreiber& schreiber;
    void operator()(Blindwert wert) const { schreiber.Text(wert.text); }
    void operator()(const bool* wert) const { schreiber.Ganzzahl(*wert ? 1 : 0); }
    void operator()(const std::int16_t* wert) const { schreiber.Ganzzahl(*wert); }
    void operator()(const float* wert) const { schreiber.Einfach(*wert); }
    void operator()(const std::string* wert) const { schreiber.Text(*wert); }
    void operator()(const std::optional<std::string>* wert) const { schreiber.Variant(*wert); }
};

} // namespace

void PlaetzeLesen(WertLeser& leser, std::span<const Platz> plaetze) {
    for (const Platz& platz : plaetze) {
        std::visit(Lesen{leser}, platz);
    }
}

void PlaetzeSchreiben(WertSchreiber& schreiber, std::span<const Platz> plaetze) {
    for (const Platz& platz : plaetze) {
        std::visit(Schreiben{schreiber}, platz);
    }
}

void AbschnitteLesen(WertLeser& leser, std::span<const Abschnitt> abschnitte) {
    while (!leser.AmEnde()) {
        const std::string_view token = leser.Token();
        const auto fund = std::find_if(abschnitte.begin(), abschnitte.end(),
                                       [token](const Abschnitt& a) { return IstMarke(token, a.marke); });
        if (fund != abschnitte.end()) {
            fund->lesen(leser);
        }
    }
}
