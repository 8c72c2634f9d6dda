// The sections of a form file, a pair of routines each; a marker is written by the writer and already read
// before the reader runs. Which file has which sections is persistence/formulardatei and einstellungsdatei.
#pragma once

#include "core/wertgrammatik.h"
#include "persistence/formularwerte.h"

#include <string_view>

// The words for the kinds of form; another word is a foreign one, none for "".
[[nodiscard]] std::string_view Formkennung(Formart art);
[[nodiscard]] Formart ArtVonKennung(std::string_view kennung);

void SchreibeFKIni(WertSchreiber& schreiber, const Spielwerte& spiel);
void SchreibeAllgemeines(WertSchreiber& schreiber, const Quizformular& form);
void SchreibeFKPunkte(WertSchreiber& schreiber, const Spielwerte& spiel);
void SchreibeFragen(WertSchreiber& schreiber, const Quizformular& form);
void SchreibeHBAllgemeines(WertSchreiber& schreiber, const Testformular& form);
void SchreibeHBFragen(WertSchreiber& schreiber, const Testformular& form);
void SchreibeHilfe(WertSchreiber& schreiber, const Spielwerte& spiel);

void LeseFKIni(WertLeser& leser, Formularwerte& werte);
void LeseAllgemeines(WertLeser& leser, Quizformular& form);
void LeseFKPunkte(WertLeser& leser, Spielwerte& spiel);
void LeseFragen(WertLeser& leser, Quizformular& form);
void LeseHBAllgemeines(WertLeser& leser, Testformular& form);
void LeseHBFragen(WertLeser& leser, Testformular& form);
void LeseHilfe(WertLeser& leser, Spielwerte& spiel);
