#include "persistence/journalname.h"

#include "core/pfadname.h"

#include <algorithm>

namespace {

constexpr std::string_view anfang = "~";
constexpr std::string_view endung = ".BAK";

std::string Stamm(std::string_view dateiname) {
    if (dateiname.empty()) {
        return std::string(anfang) + "NEU";
    }
    const std::size_t ende = Dateiendung(std::string(dateiname)).size();
    return std::string(anfang) + std::string(dateiname.substr(0, dateiname.size() - ende));
}

} // namespace

std::string Journalname(std::string_view dateiname, int nummer) {
    return Stamm(dateiname) + (nummer > 0 ? std::to_string(nummer) : std::string()) + std::string(endung);
}

bool IstJournalname(std::string_view name) {
    return name.size() > anfang.size() + endung.size() && name.starts_with(anfang) &&
           Grossschreiben(std::string(name)).ends_with(endung);
}

bool IstJournalVon(std::string_view name, std::string_view dateiname) {
    if (!IstJournalname(name)) {
        return false;
    }
    const std::string gross = Grossschreiben(std::string(name));
    const std::string stamm = Grossschreiben(Stamm(dateiname));
    if (!gross.starts_with(stamm)) {
        return false;
    }
    const std::string_view nummer =
        std::string_view(gross).substr(stamm.size(), gross.size() - stamm.size() - endung.size());
    return std::ranges::all_of(nummer, [](char ziffer) { return ziffer >= '0' && ziffer <= '9'; });
}
