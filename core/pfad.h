// Paths in the program's own notation and on the file system. Inside the program a path is UTF-8 with
// backslashes; here it becomes what the file system understands, and back. Existing names are found whatever
// their case, exact match first; the name of a new file keeps the case it is given. Opens nothing: that is
// core/datei.h.
#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

// The file system's path for a path of the program. Each existing part is matched exactly first and without
// regard to case second; from the first part that doesn't exist on, the parts stand as given.
[[nodiscard]] QString NativerPfad(std::string_view pfad);

// The program's path for a path of the file system, with backslashes.
[[nodiscard]] std::string EigenerPfad(const QString& nativ);

// Folder and name with exactly one backslash between them.
[[nodiscard]] std::string PfadVerbinden(std::string_view ordner, std::string_view name);

// Remembers the file (native path) that the user chose for an upper-cased path, so that the upper-cased name
// opens exactly that one also where two names differ in case only. The memory holds one file.
void AuswahlMerken(std::string_view grossgeschrieben, const QString& nativ);

// The volumes that stand in for drives: native root folder and the name that labels it.
struct Laufwerk {
    QString wurzel;
    QString name;
};
[[nodiscard]] std::vector<Laufwerk> Laufwerke();
