// The running program as a window test needs it: a program folder of its own, every piece of shared state as
// at the start, and the real main window on the screen. Goes without a question.
#pragma once

#include "tests/hilfe/programmordner.h"

class frmMDI;
class frmFKFragen;
class frmHBFragen;

// Puts all shared state back to what it is when the program starts.
void ZustandZuruecksetzen();

class Programm {
public:
    // mitEinstellungen: with the settings file as shipped; else there is none.
    explicit Programm(bool mitEinstellungen = true);
    ~Programm();
    Programm(const Programm&) = delete;
    Programm& operator=(const Programm&) = delete;

    [[nodiscard]] const Programmordner& ordner() const { return ordner_; }
    [[nodiscard]] frmMDI* haupt() const;

    // A new quiz form by the command, its question answered Ja; waits until it is painted.
    frmFKFragen* NeuesQuizformular();
    // The same for a test form.
    frmHBFragen* NeuesTestformular();

private:
    Programmordner ordner_;
};
