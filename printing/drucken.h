// The commands of printing as their callers see them.
#pragma once

#include <cstdint>

// 1 during the blank print: no titles of the Wissensgebiete. Set by the menu command around the call.
inline std::int16_t BlankoDruck = 0;

// Prints the quiz form after its question.
void FormularDrucken();
// Prints the test form after its checks and questions.
void TestFormularDrucken();
// Opens the system's printer dialog; the printer chosen there serves until the program ends.
void DruckerWahl();
