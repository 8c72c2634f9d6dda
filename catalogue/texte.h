// What the program says when a file of the catalogue fails. Only texts.
#pragma once

#include "core/meldungstext.h"

#include <string_view>

namespace katalogtexte {

// Sub-theme, folder. The folder named is not always the folder of the file: it is meant.
inline constexpr MeldungsText dateiFehlt{5,
                                         "Ich habe Probleme mit den Unterthemen zu\r\n[ {} ] !\r\n( "
                                         "Wahrscheinlich fehlt die entsprechende Datei\r\n"
                                         "im Ordner [ {}{} ] )",
                                         "1", "Ich sehe nach !"};
inline constexpr MeldungsText andererFehler{5, "Ich habe Probleme mit den Unterthemen zu\r\n[ {} ] !", "1",
                                            "Ich sehe nach !"};
// Theme, program folder.
inline constexpr MeldungsText listeFehlt{
    5,
    "Ich habe Probleme mit den Unterthemen zu  [ {} ] !\r\n( Wahrscheinlich fehlt die entsprechende Datei\r\n"
    "im Ordner [ {}\\WISSEN ] )",
    "1", "Ich sehe nach !"};

// In the status help, where a line is too long for the screen: the file's name, how many questions, the line.
inline constexpr std::string_view frageZuLang = " Ich lasse in [ {} ] eine Frage weg: Zeile {} ist zu lang.";
inline constexpr std::string_view fragenZuLang =
    " Ich lasse in [ {} ] {} Fragen weg: Zu lang ist zuerst Zeile {}.";

} // namespace katalogtexte
