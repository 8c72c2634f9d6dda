// Sheets for the tests of what stands in a PDF file: as full as leaders make them, and fuller.
#pragma once

#include "printing/druckgeometrie.h"
#include "printing/seitenlayout.h"
#include "printing/testseite.h"

#include <string>

// Thirty questions of several lines with umlauts that all fit their cells; all kinds of special fields,
// everything shaded and framed in colours. Each question begins with "Frage<n>", each answer with
// "Antwort<n>", and the titles are "Gebiet1" to "Gebiet6".
[[nodiscard]] FKDruckdaten VollesQuizblatt();
// The same with texts of zero to three hundred letters, which run out of their cells at the bottom and at the
// right; drawn by lots that the number begins.
[[nodiscard]] FKDruckdaten Ueberquellendes(unsigned nummer);
// Ten questions of several lines with answers and points.
[[nodiscard]] Testdruckdaten VollesTestblatt();

// Prints them into a file, in the file system's notation; the name of the file becomes the title.
void QuizblattDrucken(const FKDruckdaten& daten, Papier papier, Millimeter abstand, const std::string& datei);
void TestblattDrucken(const Testdruckdaten& daten, const std::string& datei);
