// The texts of a form that its file can't give back whole, since they hold a straight quotation mark.
#pragma once

#include "quizform/quizformular.h"
#include "testform/testformular.h"

#include <string>
#include <vector>

// Their names as the user is told them, in the order of the form: cells, then the head.
[[nodiscard]] std::vector<std::string> Anfuehrungsorte(const Quizformular& form);
[[nodiscard]] std::vector<std::string> Anfuehrungsorte(const Testformular& form);
