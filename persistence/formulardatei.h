// The form file: its sections, the bytes of a whole form, and the reading of one into the shared variables.
// Works on bytes in memory and shows nothing; opening, saving and the messages are oeffnen.h and speichern.h.
#pragma once

#include "persistence/wertgrammatik.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// --- Sections, one routine each; a marker is written by the writer and already read before the reader runs
// --

void SchreibeFKIni(WertSchreiber& schreiber);
void SchreibeAllgemeines(WertSchreiber& schreiber);
void SchreibeFKPunkte(WertSchreiber& schreiber);
void SchreibeFragen(WertSchreiber& schreiber);
void SchreibeHBAllgemeines(WertSchreiber& schreiber);
void SchreibeHBFragen(WertSchreiber& schreiber);

void LeseFKIni(WertLeser& leser);
void LeseAllgemeines(WertLeser& leser);
void LeseFKPunkte(WertLeser& leser);
void LeseFragen(WertLeser& leser);
void LeseHBAllgemeines(WertLeser& leser);
void LeseHBFragen(WertLeser& leser);
void LeseHilfe(WertLeser& leser);
void SchreibeHilfe(WertSchreiber& schreiber);
void LeseBemerkung(WertLeser& leser);

// --- Whole files
// --------------------------------------------------------------------------------------------

// The bytes of a form from the shared variables: tag "FKFragen" gives a quiz form, "HBFragen" a test form,
// anything else the type word alone.
[[nodiscard]] std::string FormularBytes(std::string_view tag);

// What became of a file that was read.
struct FormularErgebnis {
    // 0 read to the end, 1 no form file, 2 refused because a form of the other kind is open; no value after a
    // run-time error that ended the reading, with the variables part filled.
    std::optional<int> code;
    // The mode tag of the file's second token; "" if the reading didn't get so far.
    std::string kennung;
    // The error that ended the reading: input past the end of the file.
    std::optional<Laufzeitfehler> fehler;

    // True when the file was taken and its reading began, so that the flag by the tag is due.
    [[nodiscard]] bool begonnen() const { return !kennung.empty() && code != 1 && code != 2; }
};

// More than all the texts of a form at their longest; a larger file is damaged.
inline constexpr std::size_t groesstesFormular = std::size_t{8} << 20U;

// True when the bytes begin with the type word of a form.
[[nodiscard]] bool IstFormular(std::string_view bytes);

// True when FormularAusBytes would take the file: a form of the open kind, any form while none is open, or an
// empty file. Changes nothing.
[[nodiscard]] bool FormularAnnehmbar(std::string_view bytes);

// Reads a form file into the shared variables, FormTyp among them, and repairs what no form can do without.
// An error that a damaged value causes goes to melder, and the statement is tried again on the next token; an
// empty melder passes over it. A refused file changes nothing at all.
[[nodiscard]] FormularErgebnis FormularAusBytes(std::string_view bytes,
                                                const WertLeser::Fehlermelder& melder);

// The values of the "[FKINI]" section.
struct FKIni {
    std::string formTyp;
    std::int16_t felderGesamt = 0;
    std::int16_t fragenProWissen = 0;
    std::int16_t anzahlWissen = 0;
};
// The last "[FKINI]" section of a file whatever else it holds, no value if it has none. Changes no variable.
// Throws Laufzeitfehler for a damaged one.
[[nodiscard]] std::optional<FKIni> FKIniAusBytes(std::string_view bytes);
