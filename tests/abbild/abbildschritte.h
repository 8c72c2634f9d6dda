// What these tests do in the windows, step by step.
#pragma once

#include "abbildlauf.h"
#include "tests/hilfe/dateidialoghilfe.h"
#include "tests/hilfe/dialogfolge.h"

#include <QDialog>

#include <functional>

// A question or message whose words are no affair of these tests.
ErwarteterDialog Irgendeiner(const char* dialog, const char* taste);

// Opens the settings, does the work on them, and applies them.
void Einstellen(const Abbildlauf& lauf, const std::function<void(const QDialog&, Dialogfolge&)>& arbeit);
// A board of three areas with two questions each, by the settings; each step asks.
void BrettVerkleinern(const Abbildlauf& lauf);

// The file dialog that a button of the main window opens, with the first of the machine's drives; left
// without a choice.
void DateidialogZeigen(const Abbildlauf& lauf, const QString& taste,
                       const std::function<void(QDialog&)>& arbeit);

// Chooses in a list that a press has opened.
void InOffenerListeWaehlen(const QWidget* fenster, const char* liste, int stelle);
// The same in a list that stands closed.
void Waehlen(const QWidget* fenster, const char* liste, int stelle);

// Types into a control that has been given the focus.
void Tippen(QWidget* feld, const QString& text);
