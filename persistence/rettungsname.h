// Names of the files that keep an open form's unsaved changes. Looks at no disk.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// "UNGESICHERT.BAK" for 0, "UNGESICHERT1.BAK" for 1 and so on.
[[nodiscard]] std::string Rettungsname(int nummer);
// True for such a name, whatever its case.
[[nodiscard]] bool IstRettungsname(std::string_view name);
// Puts such names and those of journals ahead of the others, the one changed last first; of those of the same
// time the one without a number, then the higher number. The others keep their order. geaendert gives a
// file's time.
void RettungenVoranstellen(std::vector<std::string>& namen,
                           const std::function<std::int64_t(const std::string& name)>& geaendert);
