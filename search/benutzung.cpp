#include "search/benutzung.h"

#include "search/faltung.h"

#include <algorithm>
#include <utility>

std::uint64_t AbdruckVon(std::string_view frage) {
    return Fragenabdruck(Gefaltet(frage));
}

Benutzung::Benutzung(std::vector<Formulareintrag> formulare) : formulare_(std::move(formulare)) {
    std::stable_sort(formulare_.begin(), formulare_.end(),
                     [](const Formulareintrag& a, const Formulareintrag& b) { return a.zeit > b.zeit; });
    for (std::uint32_t i = 0; i < formulare_.size(); ++i) {
        for (const std::uint64_t abdruck : formulare_[i].abdruecke) {
            std::vector<std::uint32_t>& stellen = nach_[abdruck];
            if (stellen.empty() || stellen.back() != i) { // a form that asks twice is one form
                stellen.push_back(i);
            }
        }
    }
}

std::vector<const Formulareintrag*>
Benutzung::Formulare(std::uint64_t abdruck, const Formulareintrag* offenes, std::string_view ausser) const {
    std::vector<const Formulareintrag*> formulare;
    if (abdruck == 0) {
        return formulare;
    }
    if (offenes != nullptr && std::ranges::find(offenes->abdruecke, abdruck) != offenes->abdruecke.end()) {
        formulare.push_back(offenes);
    }
    const auto fund = nach_.find(abdruck);
    if (fund == nach_.end()) {
        return formulare;
    }
    for (const std::uint32_t stelle : fund->second) {
        const Formulareintrag& eintrag = formulare_[stelle];
        const bool ersetzt = offenes != nullptr && !offenes->pfad.empty() && eintrag.pfad == offenes->pfad;
        if (!ersetzt && (ausser.empty() || eintrag.pfad != ausser)) {
            formulare.push_back(&eintrag);
        }
    }
    return formulare;
}

std::string Benutztspalte(std::span<const Formulareintrag* const> formulare) {
    if (formulare.empty()) {
        return {};
    }
    const Formulareintrag& erstes = *formulare.front();
    return erstes.datum.empty() ? erstes.name : erstes.name + " (" + erstes.datum + ')';
}

std::string Benutzttext(std::span<const Formulareintrag* const> formulare) {
    if (formulare.empty()) {
        return {};
    }
    const std::size_t weitere = formulare.size() - 1;
    const std::string text = "schon benutzt in " + Benutztspalte(formulare);
    return weitere == 0 ? text : text + " und " + std::to_string(weitere) + " weiteren";
}
