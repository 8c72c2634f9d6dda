// Paths in the program's own notation and on the file system. Inside the program a path is UTF-8 with
// backslashes; here it becomes what the file system understands, and back. Existing names are found whatever
// their case, exact match first; the name of a new file keeps the case it is given. Opens nothing: that is
// core/datei.h.
#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

// The file system's path for a path of the program; slash and backslash both part it. The part of the path
// that exists is found exactly first and without regard to case second, also where only a folder of other
// case holds what follows; the parts behind it stand as given.
[[nodiscard]] QString NativerPfad(std::string_view pfad);

// The program's path for a path of the file system, with backslashes. Where a name may hold a backslash
// itself, that one becomes U+FF3C, its wide form, and bytes that are no UTF-8 become U+FFFD; NativerPfad
// finds such a name again.
[[nodiscard]] std::string EigenerPfad(const QString& nativ);

// Folder and name with exactly one backslash between them.
[[nodiscard]] std::string PfadVerbinden(std::string_view ordner, std::string_view name);

// Remembers the native path that the user chose under an upper-cased path, until the program ends: that
// path then means exactly this file, if it was one at the choice, and a name in the same upper-cased folder
// is looked up in exactly this folder, also where names differ in case only. Separators at the end of either
// path don't count. A later choice under the same upper-cased path takes its place; who keeps a path longer
// keeps NativerPfad's answer beside it and gives it here again before he uses the path.
void AuswahlMerken(std::string_view grossgeschrieben, const QString& nativ);

// The same for a folder that the user sees: that path means exactly this folder from now on, and so does
// every name in it.
void OrdnerMerken(std::string_view pfad, const QString& nativ);

// The volumes that stand in for drives: native root folder and the name that labels it.
struct Laufwerk {
    QString wurzel;
    QString name;
};
[[nodiscard]] std::vector<Laufwerk> Laufwerke();
