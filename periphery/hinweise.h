// What a control tells about itself: the tip beside the pointer with its title, and the line in the help
// panel while the pointer is over it.
#pragma once

#include <string_view>

class QWidget;

// An empty status leaves the last line of the help panel standing. Tips are UTF-8, lines joined by CR LF.
void HinweisSetzen(QWidget* steuerelement, std::string_view tipp, std::string_view titel,
                   std::string_view status);
