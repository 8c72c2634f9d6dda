#include "core/windowsname.h"

#include "core/pfadname.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

constexpr std::array<std::string_view, 6> geraete{"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
constexpr std::array<std::string_view, 2> gezaehlteGeraete{"COM", "LPT"};
// The digits from 1 to 9, and the raised ones that the system takes for them.
constexpr std::array<std::string_view, 12> nummern{"1", "2", "3", "4", "5", "6",
                                                   "7", "8", "9", "¹", "²", "³"};

bool IstGeraet(std::string_view name) {
    const std::string stamm = Grossschreiben(Getrimmt(name.substr(0, name.find('.'))));
    return std::ranges::find(geraete, stamm) != geraete.end() ||
           std::ranges::any_of(gezaehlteGeraete, [&](std::string_view geraet) {
               return stamm.starts_with(geraet) &&
                      std::ranges::find(nummern, stamm.substr(geraet.size())) != nummern.end();
           });
}

bool ZeichenErlaubt(char zeichen) {
    constexpr std::string_view verboten = "<>:\"/\\|?*";
    return static_cast<unsigned char>(zeichen) >= ' ' && verboten.find(zeichen) == std::string_view::npos;
}

} // namespace

bool WindowsnameErlaubt(std::string_view name) {
    return !name.empty() && !name.ends_with('.') && !name.ends_with(' ') &&
           std::ranges::all_of(name, ZeichenErlaubt) && !IstGeraet(name);
}
