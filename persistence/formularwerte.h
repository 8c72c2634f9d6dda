// What a form file holds, as one value: the form of its kind, the rule values that travel with a quiz form,
// and a note for the editor. Reading takes the values in force and replaces what the file has.
#pragma once

#include "core/formart.h"
#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "testform/testformular.h"

#include <string>

struct Formularwerte {
    Formart art = Formart::Keine;
    Quizformular quiz;
    Testformular test;
    Spielwerte spiel;
    std::string Bemerkung;

    friend bool operator==(const Formularwerte&, const Formularwerte&) = default;
};
