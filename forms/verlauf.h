// Undo and redo of the open form: takes its value off the window at the end of each step, puts a former one
// back, and keeps the change flag true to what was saved. The history itself is forms/schrittfolge.h, and
// within a text box the box's own undo goes first.
#pragma once

#include "forms/formularstand.h"

#include <functional>
#include <string>

class QObject;

// By the main window when it comes up and when it goes: watches steps and focus in between. angezeigt runs
// whenever what could be undone may be another step.
void VerlaufEinrichten(QObject& eigentuemer, std::function<void()> angezeigt);
void VerlaufAbmelden(QObject& eigentuemer);

// The told change flag was set: the flag follows the comparison with what was saved as soon as the running
// work is done. Unchanged: the form as it stands is what was saved, and another form begins its history.
void FormularstatusGesetzt(bool geaendert);
// What the form shows may stand in no file: the flag is red whatever it shows, until it is saved.
void GespeichertVergessen();

// Runs after each comparison: whenever the open form may show something else, also in the middle of typing,
// and when another form has come. Only while empfaenger lives. That a form goes isn't told.
void BeiFormularaenderung(QObject* empfaenger, std::function<void()> anders);

// True when nothing of what was saved last is left on the form: its questions, its answers, its letters or
// its points were blanked.
[[nodiscard]] bool IstGeleert();

// The open form as it stands; only while one is open.
[[nodiscard]] Formularstand FormularstandJetzt();

// The commands. Without a step to go to they do nothing.
void RueckgaengigMachen();
void Wiederholen();
// What they would do, "" for nothing: "Frage verschieben".
[[nodiscard]] std::string Rueckschritt();
[[nodiscard]] std::string Vorschritt();
