#include "sheets/blattart.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array alle{Blattart::Bogen,   Blattart::Antwortbogen, Blattart::BrettA4,
                          Blattart::BrettA3, Blattart::BrettA2,      Blattart::BrettA1,
                          Blattart::BrettA0, Blattart::Karten8,      Blattart::Karten16};
constexpr std::size_t fuerTests = 2; // a test has neither board nor cards

} // namespace

std::span<const Blattart> Blattarten(Formart art) {
    return art == Formart::Test ? std::span(alle).first(fuerTests) : std::span(alle);
}

std::string_view Blattname(Blattart blatt) {
    constexpr std::array<std::string_view, alle.size()> namen{"Bogen",    "Antwortbogen", "Brett A4",
                                                              "Brett A3", "Brett A2",     "Brett A1",
                                                              "Brett A0", "8 Karten",     "16 Karten"};
    return namen.at(static_cast<std::size_t>(blatt));
}

Blattart BlattartAus(Formart art, std::string_view name) {
    const std::span<const Blattart> arten = Blattarten(art);
    const auto fund = std::ranges::find(arten, name, Blattname);
    return fund == arten.end() ? Blattart::Bogen : *fund;
}
