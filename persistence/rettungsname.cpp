#include "persistence/rettungsname.h"

#include "core/pfadname.h"
#include "persistence/journalname.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr std::string_view anfang = "UNGESICHERT";
constexpr std::string_view endung = ".BAK";

// The digits between the two; "" for none.
std::string_view Nummer(std::string_view name) {
    return IstJournalname(name) ? std::string_view()
                                : name.substr(anfang.size(), name.size() - anfang.size() - endung.size());
}

struct Rettung {
    std::int64_t zeit;
    std::string name;
};

bool StehtDavor(const Rettung& links, const Rettung& rechts) {
    const std::string_view l = Nummer(links.name);
    const std::string_view r = Nummer(rechts.name);
    if (links.zeit != rechts.zeit) {
        return links.zeit > rechts.zeit;
    }
    if (l.empty() || r.empty()) {
        return l.empty() && !r.empty();
    }
    return l.size() != r.size() ? l.size() > r.size() : l > r;
}

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
    return std::ranges::all_of(Nummer(gross), [](char ziffer) { return ziffer >= '0' && ziffer <= '9'; });
}

void RettungenVoranstellen(std::vector<std::string>& namen,
                           const std::function<std::int64_t(const std::string& name)>& geaendert) {
    std::vector<Rettung> rettungen;
    std::erase_if(namen, [&](const std::string& name) {
        if (!IstRettungsname(name) && !IstJournalname(name)) {
            return false;
        }
        rettungen.push_back({geaendert(name), name});
        return true;
    });
    std::ranges::stable_sort(rettungen, StehtDavor);
    std::vector<std::string> geordnet;
    geordnet.reserve(rettungen.size() + namen.size());
    std::ranges::transform(rettungen, std::back_inserter(geordnet), &Rettung::name);
    std::ranges::move(namen, std::back_inserter(geordnet));
    namen = std::move(geordnet);
}
