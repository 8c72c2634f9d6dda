// The straight quotation marks on a form, which its file can't give back, and „ “ in their place.
#pragma once

#include "checking/befund.h"
#include "forms/formularstand.h"

#include <optional>

[[nodiscard]] Befunde AnfuehrungenPruefen(const Formularstand& stand);

// The text with „ for each mark that opens and “ for each that closes: what stands behind a blank or a
// bracket opens. Between two blanks they take turns.
[[nodiscard]] std::string MitDeutschenAnfuehrungen(std::string_view text);

struct Ersatztext {
    Befundort ort;
    std::string text; // as it is to stand there
};
// Of all texts that hold one; with a place only those of its cell, row or line of the head, if it has any
// there.
[[nodiscard]] std::vector<Ersatztext> AnfuehrungenErsetzt(const Formularstand& stand,
                                                          const std::optional<Befundort>& nur);
// True when there is one in the place's cell, row or line of the head.
[[nodiscard]] bool HatAnfuehrung(const Formularstand& stand, const Befundort& ort);
