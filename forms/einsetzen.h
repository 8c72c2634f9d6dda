// Texts put into cells or rows of the open form by a command, all of them as one step of work. Which texts
// those are is the caller's affair, and nothing is asked.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

class QObject;

struct Feldtext {
    int feld = 0; // cell (1 to 30) or row (1 to 10)
    // No value: stays as it is.
    std::optional<std::string> frage, antwort;
    std::optional<std::int16_t> punkte; // of a test form's row
};

// schritt: what undo calls it, a literal. The form counts as changed by comparison, as ever. Nothing without
// an open form; numbers outside are passed over.
void FelderSetzen(std::string_view schritt, std::span<const Feldtext> texte);

// Once, by the main window: keeps in mind from now on which box had the focus.
void BesucheVerfolgen(QObject& eigentuemer);
// The cell or row whose box had the focus last, 0 for none.
[[nodiscard]] int ZuletztBesucht();
