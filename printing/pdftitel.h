// The title in a PDF file, by which a form knows its sheets again. Reads as much of the format as that takes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// The title in UTF-8; nothing where the file has none, isn't a PDF, or keeps it packed or encrypted, as no
// sheet of ours does.
[[nodiscard]] std::optional<std::string> PdfTitel(std::string_view bytes);
