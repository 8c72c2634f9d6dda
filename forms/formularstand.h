// The open form at one moment, as a value of its history: what it shows, what waits in the stored copy, and
// the numbers in force. Taking it off a window and putting it back is forms/verlauf.
#pragma once

#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "testform/testformular.h"

#include <cstddef>
#include <string_view>
#include <variant>

struct Quizstand {
    Quizformular gezeigt;
    Quizformular gemerkt;
};

struct Teststand {
    Testformular gezeigt;
    Testformular gemerkt;
    Punktanzeige punkte;
};

struct Formularstand {
    std::variant<Quizstand, Teststand> form;
    Spielwerte spiel;
};

// The user sees the same; what waits in the stored copies may differ.
[[nodiscard]] bool Gleichgezeigt(const Formularstand& a, const Formularstand& b);
// A save of either would write the same form. What of the settings belongs to the program and not to a form
// doesn't count.
[[nodiscard]] bool Gleichgespeichert(const Formularstand& a, const Formularstand& b);

// What would be lost if the form went now: it shows something else than was saved, or blanked texts wait in
// its stored copy that were never saved.
[[nodiscard]] bool Ungesichert(const Formularstand& gespeichert, const Formularstand& jetzt);

// Of all questions, all answers, all letters or all points that were there none is left in its place, and
// there are fewer now.
[[nodiscard]] bool Leergeraeumt(const Formularstand& vorher, const Formularstand& jetzt);

// What has been typed between the two, as the name of a step.
[[nodiscard]] std::string_view Eingabename(const Formularstand& vorher, const Formularstand& nachher);

// The numbers of a form's history in force, with what belongs to the program as it is now.
[[nodiscard]] Spielwerte MitProgrammwerten(const Spielwerte& form, const Spielwerte& programm);

// Bytes that it takes in memory, texts included.
[[nodiscard]] std::size_t Speicherbedarf(const Formularstand& stand);
