// Names of the files that keep an open form's unsaved changes. Looks at no disk.
#pragma once

#include <string>
#include <string_view>

// "UNGESICHERT.BAK" for 0, "UNGESICHERT1.BAK" for 1 and so on.
[[nodiscard]] std::string Rettungsname(int nummer);
// True for such a name, whatever its case.
[[nodiscard]] bool IstRettungsname(std::string_view name);
