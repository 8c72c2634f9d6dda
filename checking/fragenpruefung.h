// What may be amiss with the questions of a form: a place left empty, a question asked twice, one that other
// groups know already, an answer that stands in its question.
#pragma once

#include "checking/pruefzeile.h"

#include <functional>
#include <span>

// "schon benutzt in ABEND.FKR (20.11.2026)" for a question that stands in another form, else "".
using Benutzungstext = std::function<std::string(std::string_view frage)>;

// On the quiz form's board each cell in play wants a question. A test prints the rows that have one, so that
// only a row begun is told; and its answers are wanted when there is any.
[[nodiscard]] Befunde LueckenPruefen(std::span<const Pruefzeile> zeilen);

// Each question against those before it.
[[nodiscard]] Befunde DoppeltePruefen(std::span<const Pruefzeile> zeilen);
[[nodiscard]] Befunde BenutztePruefen(std::span<const Pruefzeile> zeilen, const Benutzungstext& benutzt);
[[nodiscard]] Befunde VerratenePruefen(std::span<const Pruefzeile> zeilen);

// True when the answer stands in the question as whole words. A question that lets one choose ("A oder B?")
// gives nothing away, and what stands in round brackets counts in neither.
[[nodiscard]] bool AntwortInFrage(std::string_view frage, std::string_view antwort);
