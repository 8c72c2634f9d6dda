// Loading the catalogue's lists and questions from their files, with what is said when one fails. The formats
// are catalogue/katalogdatei.h, the table of files catalogue/themen.h.
#pragma once

#include "catalogue/fragenliste.h"
#include "catalogue/themen.h"

#include <string_view>

// "\WISSEN\WISSEN.TXT" into ThemenListe; an error leaves the places not reached as they were, without a word.
void ThemenLaden();
// The list file of a theme into UnterthemenListe; any error is reported.
void UnterthemenLaden(std::string_view thema);
// The list of the test form's theme, from the fixed path "\WISSEN\HB\W_HB.TXT".
void HBUnterthemenLaden();
// Appends the questions of a sub-theme. An unknown theme loads nothing. The status help tells what was left
// out because a line is too long.
void FragenLaden(std::string_view thema, std::string_view unterthema, Fragenliste& liste);
