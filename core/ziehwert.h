// What is dragged, or held by key, as a value: the question with its answer, where it came from, and what
// kind of drag it is. Taken at the press, and whole until the drop.
#pragma once

#include "core/formart.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

enum class Zugart : std::uint8_t {
    Auswahl,     // out of the selection dialog
    Verschieben, // out of a form or the clipboard panel, whose place is emptied by the drop
    Kopieren,
    Testkopie, // a copy out of the test form; its answer is that of the selection dialog, and that is meant
};

struct Ziehwert {
    Zugart art = Zugart::Auswahl;
    // The kind of form where the press happened, none for the selection dialog. The clipboard panel counts as
    // the quiz form's.
    Formart herkunft = Formart::Keine;
    int feld = 0; // cell or row, 0 for the clipboard panel
    std::string frage, antwort;

    friend bool operator==(const Ziehwert&, const Ziehwert&) = default;
};

// What the drop is called as a step of work on a form.
[[nodiscard]] constexpr std::string_view Schrittname(const Ziehwert& wert) {
    if (wert.art == Zugart::Auswahl) {
        return "Frage einsetzen";
    }
    return wert.art == Zugart::Verschieben ? "Frage verschieben" : "Frage kopieren";
}

// Shift alone moves, Ctrl alone copies; both together, Alt or none start nothing. The mouse button doesn't
// count, and that is meant.
[[nodiscard]] constexpr std::optional<Zugart> ZugartFuer(bool umschalt, bool strg, bool alt) {
    if (alt || umschalt == strg) {
        return std::nullopt;
    }
    return umschalt ? Zugart::Verschieben : Zugart::Kopieren;
}
