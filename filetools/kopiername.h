// Names and patterns of the file dialog as plain text. Looks at no disk.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// What is wrong with the name for a copy, which is given without extension. Zeichen is one that parts folders
// or stands for any other in a pattern.
enum class Namensfehler { Leer, Leerzeichen, Punkt, ZuLang, Zeichen };

// Every fault of the name, in the order in which they are told; none for a good one. A name has at most 8
// characters.
[[nodiscard]] std::vector<Namensfehler> KopiernamePruefen(std::string_view name);

// True for the name of a new folder that lies in the folder shown and comes into its list.
[[nodiscard]] bool OrdnernameBrauchbar(std::string_view name);

// True when the name box names no file: it is empty or still shows a pattern.
[[nodiscard]] bool NichtsGewaehlt(std::string_view name);

// The pattern that a line of the type list holds in parentheses; "" without any.
[[nodiscard]] std::string MusterAus(std::string_view filterzeile);

// The folder that holds this one; a root stays itself. The last part of a folder's path; a root is its own.
[[nodiscard]] std::string Oberordner(std::string_view ordner);
[[nodiscard]] std::string Ordnername(std::string_view ordner);
