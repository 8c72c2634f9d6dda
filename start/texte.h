// What the program says before its main window is there. Only texts.
#pragma once

#include "core/meldungstext.h"

#include <string_view>

namespace starttexte {

// --- On the command line; lines end in LF there ---

inline constexpr std::string_view version = "feldkranz {}.{}.{}";
inline constexpr std::string_view aufruf = "feldkranz [--help | --version | Formulardatei]";
// {} is the call, and the homepage.
inline constexpr std::string_view hilfe =
    "Aufruf: {}\n"
    "\n"
    "Ich bereite Quizformulare und Tests für Gruppenstunde und Lager vor.\n"
    "Nennst du mir eine Formulardatei, dann öffne ich sie nach dem Startfenster;\n"
    "laufe ich schon, dann dort.\n"
    "\n"
    "  --help      zeigt diese Hilfe\n"
    "  --version   zeigt, welche Version ich bin\n"
    "\n"
    "Mehr steht im Handbuch und auf {}\n";
inline constexpr std::string_view falsch = "feldkranz: Damit kann ich nichts anfangen.\n"
                                           "Aufruf: {}\n";

// --- The person's program folder ---

inline constexpr std::string_view richteEin = "Ich richte deinen Programmordner ein ...";
// The first file that couldn't be put there, and why.
inline constexpr MeldungsText nichtEingerichtet{
    5,
    "Deinen Programmordner konnte ich nicht fertig einrichten !\r\n[ {} ]\r\n{}\r\n"
    "Beim nächsten Start versuche ich es noch einmal.",
    "1", "Dann schaue ich mal nach"};
// What lies beside; {} is the file, or all of them and their number.
inline constexpr std::string_view danebenEine =
    " [ {} ] hast du geändert. Die neue Fassung habe ich als .NEU danebengelegt.";
inline constexpr std::string_view danebenMehrere =
    " [ {} ] hast du geändert. Die {} neuen Fassungen habe ich als .NEU danebengelegt.";

} // namespace starttexte
