// How paper that is printed on both sides is turned.
#pragma once

#include <cstdint>

enum class Wenden : std::uint8_t { Nicht, LangeKante, KurzeKante };
