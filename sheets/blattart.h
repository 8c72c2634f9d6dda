// The sheets that can be made of a form, by name.
#pragma once

#include "core/formart.h"

#include <cstdint>
#include <span>
#include <string_view>

enum class Blattart : std::uint8_t {
    Bogen, // the form as it has always been printed
    Antwortbogen,
    BrettA4,
    BrettA3,
    BrettA2,
    BrettA1,
    BrettA0,
    Karten8,
    Karten16
};

// In the order in which they are offered.
[[nodiscard]] std::span<const Blattart> Blattarten(Formart art);
[[nodiscard]] std::string_view Blattname(Blattart blatt);
// The kind of that name among a form's; its Bogen for any other.
[[nodiscard]] Blattart BlattartAus(Formart art, std::string_view name);
