// What the program says about test forms.
#pragma once

#include "dialogs/texte.h"

namespace hbtexte {

inline constexpr MeldungsText nochNicht{
    4, "Testformulare kann ich noch nicht zeigen !\r\nGelesen habe ich es aber, ganz ehrlich.", "1",
    "Dann warte ich eben"};

} // namespace hbtexte
