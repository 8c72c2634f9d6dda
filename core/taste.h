// A button of the windows beside the told ones, with its picture in front of the caption.
#pragma once

#include <string_view>

class QPushButton;
class QWidget;

// bild: see core/bilder.h. Enter presses it while it has the focus.
[[nodiscard]] QPushButton* TasteBauen(const char* name, std::string_view aufschrift, std::string_view bild,
                                      QWidget* eltern);
