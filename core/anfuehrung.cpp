#include "core/anfuehrung.h"

#include "core/meldungstext.h"

namespace {

// Short, for the two lines of the panel.
constexpr std::string_view hinweis = " {}: Was hinter \" steht, geht verloren. Nimm „ und “.";

} // namespace

bool HatAnfuehrung(std::string_view text) {
    return text.find('"') != std::string_view::npos;
}

std::string AnfuehrungHinweis(std::span<const std::string> orte) {
    if (orte.empty()) {
        return {};
    }
    std::string wo = orte.front();
    if (const std::size_t weitere = orte.size() - 1; weitere == 1) {
        wo += " und " + orte.back();
    } else if (weitere > 1) {
        wo += " und " + std::to_string(weitere) + " weitere";
    }
    return Einsetzen(hinweis, {wo});
}
