// The order of a PDF file. The toolkit numbers and names the parts of its fonts by lots that are drawn anew
// in each run, and says neither in which language a sheet is written nor that its title is to stand in the
// viewer's frame.
#pragma once

#include <string>

// The file with its objects in the order in which they are first named, counted from the trailer on, and
// numbered by it; the letters before the fonts' names follow that order, too. Where it says nothing of them,
// German is its language, and its title is to be shown. A file that isn't understood (see
// printing/pdfaufbau.h) comes back as it was, and a file of ours a second time.
[[nodiscard]] std::string PdfOrdnen(std::string bytes);
