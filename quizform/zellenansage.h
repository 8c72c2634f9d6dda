// What a screen reader calls the parts of a quiz form's cell: "Natur, Zeile 3, Frage". Pure.
#pragma once

#include <string>
#include <string_view>

// titel: caption of the area; one without a title is called by its number. n: the cell; was: the part.
[[nodiscard]] std::string Zellenansage(std::string_view titel, int n, std::string_view was);
