// Every text of the list of forms, and the three lines of its preview. Shows nothing: that is
// filetools/frmFKformulare.h.
#pragma once

#include "core/hinweistext.h"

#include <array>
#include <string>
#include <string_view>

namespace listentexte {

inline constexpr std::string_view fenstertitel = "Dateiliste";
inline constexpr std::string_view infoTitel = "Datei-Info :";
inline constexpr std::string_view infoLeer = "Datei mit Linksklick auswählen.";
inline constexpr std::array<std::string_view, 2> muster{"*.FKR", "*.BAK"};
inline constexpr std::string_view quizordner = "\\KRANZ";
inline constexpr std::string_view testordner = "\\TEST";

// Place that FehlerMelden names.
inline constexpr std::string_view ortDateiliste = "FKFORMULARE : filDateiliste";

// What each control tells about itself. The list leaves standing what a double click on it has said.
inline constexpr std::array hinweise{std::to_array<Hinweistext>({
    {"filDateiliste", "Dateiliste mit Feldkranz- oder Test-Formularen.", "Hinweis", ""},
    {"lblDateiInfo",
     "Infos zur oben markierten Feldkranz- oder Test-Formulare.\r\nDatei mit Linksklick auswählen.",
     infoTitel, " Infos zur markierten Datei"},
    {"fraDateiInfo",
     "Infos zur oben markierten Feldkranz- oder Test-Formulare.\r\nDatei mit Linksklick auswählen.",
     infoTitel, " Infos zur markierten Datei"},
    {"optPattern(0)", "Alle Feldkranz- oder Test-Formulare mit der Endung [*.fkr] anzeigen.", "Hinweis",
     " Formulare anzeigen"},
    {"optPattern(1)",
     "Alle Feldkranz- oder Test-Formulare mit der Endung [*.bak] anzeigen.\r\n"
     "Eine Datei mit der Endung [*.bak] wird angelegt, wenn ein vorhandenes\r\n"
     "Formular gespeichert wird.)\r\n"
     "(Speichern mit BackUp muss in den Optionen eingestellt sein.)",
     "Hinweis", " BackUps anzeigen"},
    {"picPattern", "Endung der angezeigten Dateien.", "Hinweis", " Endung der angezeigten Dateien"},
    {"cmdNeuFK", "Dateiliste mit Feldkranz-Formularen anzeigen.", "Hinweis",
     " Liste der Feldkranz-Formulare"},
    {"cmdNeuHB", "Dateiliste mit Test-Formularen anzeigen.", "Hinweis", " Liste der Test-Formulare"},
    {"cmdAbbruch", "Dateiliste ausblenden.", "Schließen", " Dateiliste ausblenden"},
})};

} // namespace listentexte

// The preview of a form: three lines joined by CR LF, the blanks part of the texts.
[[nodiscard]] std::string Vorschautext(int felderGesamt, int anzahlWissen, int fragenProWissen);
