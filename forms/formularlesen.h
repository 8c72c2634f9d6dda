// Reading a form file into the stored copies and the rule values, with all that is said when it fails. Fills
// no window: that is FormularLaden in oeffnen.h.
#pragma once

#include "persistence/dateistand.h"

#include <cstdint>
#include <functional>
#include <string>

enum class Lesung : std::uint8_t {
    Ganz,         // read to the end
    KeinFormular, // no form file; nothing changed, nothing said
    Abgelehnt,    // a form of the other kind is open; nothing changed, the user was told
    Teilweise,    // cut short inside a section; the user was told
    Leer,         // a file without a byte; an empty form of the open kind
    Nichts,       // not opened, or cut short inside its head; told, and another file may have been loaded
};

// vorDemErsatz runs when the file is going to be taken and before it changes anything; false keeps it out.
Lesung FormularEinlesen(const std::string& pfad, const std::function<bool()>& vorDemErsatz = {});

// Content of the file that was read last, taken or not.
[[nodiscard]] const Dateistand& GelesenerStand();
