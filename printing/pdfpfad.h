// Where a sheet lies that is printed into a PDF file: beside its form, under the form's name. Paths are in
// the program's notation. Writes nothing.
#pragma once

#include "core/formart.h"

#include <string>
#include <string_view>

// The form's path with the extension .pdf; ohneNamen for a form without a path. A form that itself ends in
// .pdf is never named.
[[nodiscard]] std::string PdfPfadZu(std::string_view formular, std::string_view ohneNamen);

// For a form of that kind; one without a path lies in the folder of its kind under appPfad. blatt: name of a
// sheet beside the form's own, which stands behind the form's name.
[[nodiscard]] std::string PdfPfad(Formart art, std::string_view formular, std::string_view appPfad,
                                  std::string_view blatt = {});
