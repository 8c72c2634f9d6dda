#include "mainwindow/dateihinweis.h"

#include "core/meldungstext.h"

#include <vector>

namespace {

constexpr std::string_view auslassung = "…";

// Where the characters begin, and the end behind them.
std::vector<std::size_t> Anfaenge(const std::string& text) {
    std::vector<std::size_t> anfaenge;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if ((static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U) {
            anfaenge.push_back(i);
        }
    }
    anfaenge.push_back(text.size());
    return anfaenge;
}

} // namespace

std::string MitteGekuerzt(const std::string& text, const Passend& passt) {
    if (passt(text)) {
        return text;
    }
    const std::vector<std::size_t> anfaenge = Anfaenge(text);
    const std::size_t zeichen = anfaenge.size() - 1;
    for (std::size_t bleiben = zeichen; bleiben-- > 2;) {
        const std::size_t hinten = bleiben / 2;
        std::string kurz = text.substr(0, anfaenge[bleiben - hinten]);
        kurz.append(auslassung).append(text, anfaenge[zeichen - hinten]);
        if (passt(kurz)) {
            return kurz;
        }
    }
    return {};
}

std::string Dateihinweis(std::string_view text, const std::string& name, const std::string& ordner,
                         const Passend& passt) {
    const auto mit = [&](const std::string& kurz) { return Einsetzen(text, {name, kurz}); };
    if (const std::string kurz = MitteGekuerzt(ordner, [&](const auto& o) { return passt(mit(o)); });
        !kurz.empty()) {
        return mit(kurz);
    }
    const auto allein = [](const std::string& kurz) { return " " + kurz; };
    return allein(MitteGekuerzt(name, [&](const auto& n) { return passt(allein(n)); }));
}
