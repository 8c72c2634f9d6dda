// The program as these tests open its windows: with a catalogue and forms of their own, a main window of one
// size whatever frame it has, and the pointer out of the way.
#pragma once

#include "tests/hilfe/programm.h"

#include <QWidget>

class Abbildlauf {
public:
    Abbildlauf();

    [[nodiscard]] const Programm& programm() const { return programm_; }
    [[nodiscard]] QWidget* haupt() const;

    // New forms, as their commands make them.
    QWidget* NeuesQuizformular();
    QWidget* NeuesTestformular();
    // Forms of tests/abbild/formulare, by the file dialog.
    QWidget* QuizformularOeffnen(const QString& name);
    QWidget* TestformularOeffnen(const QString& name);

    // Presses a button of the main window, which must be in reach.
    void Druecken(const QString& name) const;
    // The same in any window.
    static void Druecken(const QWidget* fenster, const QString& name);

private:
    void DateienTauschen() const;

    Programm programm_;
};
