// Where a sheet lies that is printed into a PDF file: beside its form, under the form's name. Paths are in
// the program's notation. Writes nothing.
#pragma once

#include <string>
#include <string_view>

// The form's path with the extension .pdf; ohneNamen for a form without a path. A form that itself ends in
// .pdf is never named.
[[nodiscard]] std::string PdfPfadZu(std::string_view formular, std::string_view ohneNamen);

// For the open quiz form and for the open test form.
[[nodiscard]] std::string PdfPfadFK();
[[nodiscard]] std::string PdfPfadHB();
