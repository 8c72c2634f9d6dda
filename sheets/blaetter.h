// From a form's value to the pages of any of its sheets.
#pragma once

#include "checking/papierpruefung.h"
#include "printing/testseite.h"
#include "sheets/blattart.h"
#include "sheets/blattsatz.h"

#include <variant>

// What a sheet is made of. A test's captions and points stand as its window shows them.
struct Quizvorlage {
    Quizformular form;
    Spielwerte spiel;

    friend bool operator==(const Quizvorlage&, const Quizvorlage&) = default;
};
struct Testvorlage {
    Testformular form;
    Testdruckdaten druck;

    friend bool operator==(const Testvorlage&, const Testvorlage&) = default;
};
using Blattvorlage = std::variant<Quizvorlage, Testvorlage>;

struct Blattwunsch {
    Blattart blatt = Blattart::Bogen;
    bool ohneTitel = false;    // of a quiz form's Bogen
    bool mitAntworten = false; // of a test's Bogen

    friend bool operator==(const Blattwunsch&, const Blattwunsch&) = default;
};

// Which way the paper lies.
[[nodiscard]] bool BlattQuer(const Blattvorlage& vorlage, Blattart blatt);

// A quiz form without a chosen paper has no pages of its Bogen. All measures are the print's own: mass and
// ursprung are those of the printer.
[[nodiscard]] Blattsatz BlattMachen(const Blattvorlage& vorlage, const Blattwunsch& wunsch,
                                    const Druckursprung& ursprung, const Schriftmass& mass);
