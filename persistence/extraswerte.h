// The format of EXTRAS.INI on bytes in memory: a line "name=value" each, UTF-8. Opens no file: that is
// persistence/extrasdatei.h.
#pragma once

#include <map>
#include <string>
#include <string_view>

using Extraswerte = std::map<std::string, std::string, std::less<>>;

// Lines without a name and an equals sign, or that are no UTF-8, are passed over; of two with one name the
// last counts.
[[nodiscard]] Extraswerte ExtraswerteAusBytes(std::string_view bytes);
// Line ends within a value become blanks.
[[nodiscard]] std::string ExtraswerteBytes(const Extraswerte& werte);
