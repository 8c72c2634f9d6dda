#include "persistence/rettungsname.h"

#include "core/pfadname.h"

#include <algorithm>

namespace {

constexpr std::string_view anfang = "UNGESICHERT";
constexpr std::string_view endung = ".BAK";

} // namespace

std::string Rettungsname(int nummer) {
    return std::string(anfang) + (nummer > 0 ? std::to_string(nummer) : std::string()) + std::string(endung);
}

bool IstRettungsname(std::string_view name) {
    const std::string gross = Grossschreiben(name);
    if (!gross.starts_with(anfang) || !gross.ends_with(endung) ||
        gross.size() < anfang.size() + endung.size()) {
        return false;
    }
    const std::string_view nummer =
        std::string_view(gross).substr(anfang.size(), gross.size() - anfang.size() - endung.size());
    return std::ranges::all_of(nummer, [](char ziffer) { return ziffer >= '0' && ziffer <= '9'; });
}
