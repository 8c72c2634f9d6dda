// The pictures of the dialogs, 32 by 32 logical pixels: which number a caller passes means which picture, and
// what assistive technology reads out for it.
#pragma once

#include <array>
#include <string_view>

class QLabel;
class QWidget;

struct Sinnbild {
    std::string_view bild; // as core/bilder.h names it
    std::string_view wort;
};

namespace sinnbilder {

// What several callers mean by a number stands behind it.
inline constexpr std::array meldung{
    Sinnbild{"dialog/eule", "Hinweis"},                    // 0: something can't be shown
    Sinnbild{"dialog/gewitter", "Fehler"},                 // 1: run-time error
    Sinnbild{"dialog/lagerfeuer", "Lagerfeuer"},           // 2
    Sinnbild{"dialog/zeigefinger", "Zeigefinger"},         // 3: says hello to a click
    Sinnbild{"dialog/pfeife", "Spielregel"},               // 4: a rule, and what the user left out
    Sinnbild{"dialog/suche", "Problem"},                   // 5: a problem or a missing file
    Sinnbild{"dialog/formular", "Formular"},               // 6
    Sinnbild{"dialog/ablage", "Datei"},                    // 7: result of a file action
    Sinnbild{"dialog/lobkranz", "Erledigt"},               // 8
    Sinnbild{"dialog/wegweiser", "Ordner"},                // 9
    Sinnbild{"dialog/nachtzelt", "Ende"},                  // 10
    Sinnbild{"dialog/drucker_hinweis", "Drucken, Achtung"} // 11: something is missing for the print
};

inline constexpr std::array nachricht{
    Sinnbild{},
    Sinnbild{"dialog/feuer_aus", "Ende"},                // 1: end of the program, and of a question
    Sinnbild{"dialog/eule", "Hinweis"},                  // 2
    Sinnbild{"dialog/regelbuch", "Spielregel"},          // 3: a rule
    Sinnbild{"dialog/brennek", "Brennek"},               // 4: notice on a maker
    Sinnbild{"dialog/tarvo", "Tarvo"},                   // 5: notice on the other
    Sinnbild{"dialog/formular_neu", "Neues Formular"},   // 6: offer of a new form
    Sinnbild{"dialog/formularfrage", "Frage"},           // 7: question about the form or a rule
    Sinnbild{"dialog/drucker", "Drucken"},               // 8: printing a test
    Sinnbild{"dialog/drucker_quer", "Formular drucken"}, // 9: printing a form
    Sinnbild{"dialog/vorgaben", "Einstellungen"},        // 10: the standard settings
    Sinnbild{"dialog/papierkorb", "Papierkorb"},         // 11
    Sinnbild{"dialog/achtung", "Achtung"}                // 12
};

inline constexpr std::array eingabe{
    Sinnbild{},
    Sinnbild{"dialog/stift", "Eingabe"},             // 1
    Sinnbild{"dialog/eule", "Hinweis"},              // 2
    Sinnbild{"dialog/kopie", "Datei kopieren"},      // 3: name of a copy
    Sinnbild{"dialog/ordner_neu", "Ordner anlegen"}, // 4: name of a folder
    Sinnbild{"dialog/formular", "Formular"},         // 5
    Sinnbild{"dialog/namensschild", "Name"},         // 6
    Sinnbild{"dialog/suche", "Suchen"},              // 7
    Sinnbild{"dialog/wegweiser", "Ordner"}           // 8
};

} // namespace sinnbilder

// A hidden label "<feld>(<nummer>)" with that picture.
[[nodiscard]] QLabel* SinnbildLabel(QWidget* eltern, const char* feld, int nummer, const Sinnbild& sinnbild);
