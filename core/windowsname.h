// Which names of files and folders Windows can't bear. A name alone, no path; looks at no disk.
#pragma once

#include <string_view>

// False for a name that the system refuses, or that it takes for something else than a file of this name:
// devices (also with an extension, in any case), a point or a blank at the end, signs with a meaning of their
// own, and control characters. None at all is none either.
[[nodiscard]] bool WindowsnameErlaubt(std::string_view name);
