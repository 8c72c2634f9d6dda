// Whether a file is there. Opens nothing.
#pragma once

#include <string_view>

// False at once for a path that ends in a colon or a backslash, and for any error; else whether the file
// system knows a file of that name. A folder is no file.
[[nodiscard]] bool DateiVorhanden(std::string_view pfad);
