// One row of a window's table of tips: what a control tells about itself. The rows stand with the texts of
// their subsystem; tooltips/hinweise.h gives them to the controls.
#pragma once

#include <string_view>

struct Hinweistext {
    std::string_view name;   // of the control; without an index for all members of an array
    std::string_view tipp;   // lines joined by CR LF
    std::string_view titel;  // above the tip; tells its style, too
    std::string_view status; // with a leading blank; empty leaves the last one standing
};
