// What the windows beside the told ones keep between two evenings: options and last entries, in EXTRAS.INI in
// the folder \CONFIG, a line "name=value" each, UTF-8. A missing or damaged file means the defaults, without
// a word; one that can't be written costs the entry alone.
#pragma once

#include <string>
#include <string_view>

// "" where nothing is kept under the name.
[[nodiscard]] std::string ExtraWert(std::string_view name);
// Writes the file when the value is another.
void ExtraSetzen(std::string_view name, std::string_view wert);
