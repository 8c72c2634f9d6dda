// Printing the quiz form as its callers see it. What is printed is a value, and nothing is put back into a
// window; whose value it is and under which name is the callers' affair.
#pragma once

#include "quizform/quizformular.h"
#include "rules/spielwerte.h"

#include <string>

// Prints a quiz form after its question. datei: path of the form's file, "" for none; blanko: without the
// titles of the Wissensgebiete.
void FormularDrucken(const Quizformular& form, const Spielwerte& spiel, const std::string& datei,
                     bool blanko);
