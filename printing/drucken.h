// The commands of printing as their callers see them. What is printed is a value, and nothing is put back
// into a window; whose value it is and under which name is the callers' affair.
#pragma once

#include "quizform/quizformular.h"
#include "rules/spielwerte.h"
#include "testform/hbformular.h"

#include <string>

// Where a print comes from: the path of the form's file, "" for none.
// Prints a quiz form after its question; blanko: without the titles of the Wissensgebiete.
void FormularDrucken(const Quizformular& form, const Spielwerte& spiel, const std::string& datei,
                     bool blanko);
// Prints a test form after its checks and questions.
void TestFormularDrucken(const Testblatt& blatt, int gesamtpunkte, const std::string& datei);
// Opens the system's printer dialog; the printer chosen there serves until the program ends. pdfVorschlag:
// path that the dialog proposes for a PDF file.
void DruckerWahl(const std::string& pdfVorschlag);
