// The question before a save that would replace what another program has written meanwhile. What is known of
// a file is persistence/dateistand.h; the texts are persistence/texte.h.
#pragma once

#include "core/meldungstext.h"
#include "persistence/dateistand.h"

#include <string>
#include <string_view>

// How the question names the file, and what it says that Nein means.
struct Fremdworte {
    std::string_view datei;
    std::string_view nein;
};

// What stands there now, for a file that the person has just allowed to replace.
[[nodiscard]] Dateikenntnis Angesehen(const std::string& pfad);

// Looks at the file behind the wait cursor, and asks where it holds what isn't known. sichern, if given and
// backups are wanted, makes one once nothing hinders the save; since its messages take their time, the file
// is looked at again behind them. Ja: the save may write, without a question where there is nothing to ask
// about. Nein and Abbrechen: it must not; after Abbrechen the person has been told.
[[nodiscard]] Antwort FremdesFragen(const std::string& pfad, const Fremdworte& worte, Dateikenntnis kenntnis,
                                    void (*sichern)(const std::string& pfad) = nullptr);
