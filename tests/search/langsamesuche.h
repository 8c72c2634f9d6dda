// What the search promises, told the slow way: a look at each question from each of its letters on. The
// measure of the search in its tests and in the fuzzing.
#pragma once

#include "search/faltung.h"
#include "search/fragenbestand.h"
#include "search/suchanfrage.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace langsam {

// From some letter on the text begins as the word does.
inline bool Beginnt(std::string_view text, const std::string& wort) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool zeichenanfang = (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U;
        const std::string_view rest = text.substr(i);
        const std::string gefaltet = zeichenanfang ? Gefaltet(rest) : std::string();
        // What becomes two letters has a beginning at the second, too.
        const bool zwei = rest.starts_with("ß") || rest.starts_with("Þ") || rest.starts_with("þ");
        if (gefaltet.starts_with(wort) || (zwei && gefaltet.substr(1).starts_with(wort))) {
            return true;
        }
    }
    return false;
}

inline bool Erwartet(const Katalogfrage& frage, const Suchanfrage& anfrage) {
    const auto enthaelt = [&frage](const std::string& wort) {
        return Beginnt(frage.frage, wort) || Beginnt(frage.antwort, wort) || Beginnt(frage.thema, wort) ||
               Beginnt(frage.unterthema, wort);
    };
    return std::ranges::all_of(anfrage.noetig, enthaelt) && std::ranges::none_of(anfrage.verboten, enthaelt);
}

} // namespace langsam
