// Where the sheet of the open form lies as a PDF: a file that belongs to something else stays as it is.
#pragma once

#include "core/formart.h"

#include <string>
#include <string_view>

// What the sheet of a form of that kind is known by, and the name of the print job: the name of the form's
// file as it is on the disk; for a form without one, "", that of its kind.
// blatt: name of a sheet beside the form's own, "" for that.
[[nodiscard]] std::string Blatttitel(Formart art, const std::string& datei, std::string_view blatt = {});

// Path for the sheet of the open form, which lies in that file, "" for none: beside the form, under its name.
// A file there is replaced only if it is a sheet that this program made for the same form, which it says of
// itself; the title of a form without a file is everybody's, so that it replaces only what was noted for it.
// Otherwise the next free number is taken.
[[nodiscard]] std::string Blattplatz(Formart art, const std::string& datei, std::string_view blatt = {});

// Notes that a sheet of the open form lies there.
void BlattMerken(const std::string& pfad);
