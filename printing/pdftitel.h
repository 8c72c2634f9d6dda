// What a PDF file says of itself, by which a form knows its sheets again. Reads as much of the format as that
// takes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Each in UTF-8; nothing where the file doesn't say it, isn't a PDF, or keeps it packed or encrypted, as no
// sheet of ours does.
struct PdfAngaben {
    std::optional<std::string> titel;
    std::optional<std::string> ersteller;  // the program that made the document
    std::optional<std::string> hersteller; // what made a PDF file of it

    friend bool operator==(const PdfAngaben&, const PdfAngaben&) = default;
};
[[nodiscard]] PdfAngaben PdfAngabenLesen(std::string_view bytes);

// What stands in the program's own sheets; behind the second one goes the version.
inline constexpr std::string_view blattersteller = "Feldkranz!";
inline constexpr std::string_view blatthersteller = "Qt ";

// True for a sheet that this program made under that title, and that nobody has worked on since.
[[nodiscard]] bool IstUnserBlatt(std::string_view bytes, std::string_view titel);
