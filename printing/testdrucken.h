// Printing the test form as its callers see it. What is printed is a value, and nothing is put back into a
// window.
#pragma once

#include "printing/testseite.h"
#include "testform/testblatt.h"

#include <string>

// What the sheet shows of a test form, without its answers. datei: path of the form's file, "" for none.
[[nodiscard]] Testdruckdaten TestdruckdatenAus(const Testblatt& blatt, int gesamtpunkte,
                                               const std::string& datei);

// Prints a test form after its checks and questions. datei: path of the form's file, "" for none.
void TestFormularDrucken(const Testblatt& blatt, int gesamtpunkte, const std::string& datei);
