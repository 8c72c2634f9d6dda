// The form file: the bytes of a form's value, and the value of a form's bytes. Works on bytes in memory,
// shows nothing and changes nothing but what it is given; opening, saving and the messages are forms/.
#pragma once

#include "core/wertgrammatik.h"
#include "persistence/formularwerte.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The bytes of a form of either kind. A quiz form takes its rule values along.
[[nodiscard]] std::string FormularBytes(const Quizformular& form, const Spielwerte& spiel);
[[nodiscard]] std::string FormularBytes(const Testformular& form);
// The form of that kind out of the values; of no kind the type word alone.
[[nodiscard]] std::string FormularBytes(Formart art, const Formularwerte& werte);

// What became of a file that was read.
enum class Leseende : std::uint8_t {
    Ganz,         // read to the end
    KeinFormular, // no form file
    Abgelehnt,    // a form of the other kind is open
    Abgebrochen,  // a run-time error ended the reading, with the values part filled
};
struct FormularErgebnis {
    Leseende ende = Leseende::Abgebrochen;
    // The kind that the file's second token names; none if the reading didn't get so far.
    Formart kennung = Formart::Keine;
    // The error that ended the reading: input past the end of the file.
    std::optional<Laufzeitfehler> fehler;

    // True when the file was taken and its reading began, so that the flag by the tag is due.
    [[nodiscard]] bool begonnen() const {
        return kennung != Formart::Keine && (ende == Leseende::Ganz || ende == Leseende::Abgebrochen);
    }
};

// More than all the texts of a form at their longest; a larger file is damaged.
inline constexpr std::size_t groesstesFormular = std::size_t{8} << 20U;

// True when the bytes begin with the type word of a form.
[[nodiscard]] bool IstFormular(std::string_view bytes);

// True when FormularAusBytes would take the file: a form of the open kind, any form while none is open, or an
// empty file.
[[nodiscard]] bool FormularAnnehmbar(std::string_view bytes, Formart offen);

// Reads a form file over the values, and repairs what no form can do without; offen is the kind of the open
// form. The kind that the file ends up with is werte.art. An error that a damaged value causes goes to
// melder, and the statement is tried again on the next token; an empty melder passes over it. A refused file
// changes nothing at all.
[[nodiscard]] FormularErgebnis FormularAusBytes(std::string_view bytes, Formart offen, Formularwerte& werte,
                                                const WertLeser::Fehlermelder& melder);

// The numbers of the "[FKINI]" section.
struct FKIni {
    std::int16_t felderGesamt = 0;
    std::int16_t fragenProWissen = 0;
    std::int16_t anzahlWissen = 0;
    friend bool operator==(const FKIni&, const FKIni&) = default;
};
// The last "[FKINI]" section of a file whatever else it holds, no value if it has none. Throws Laufzeitfehler
// for a damaged one.
[[nodiscard]] std::optional<FKIni> FKIniAusBytes(std::string_view bytes);
