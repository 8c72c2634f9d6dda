// Calls that only one system has, behind one face; the rest of the program knows neither POSIX nor Windows.
// Paths here are the file system's own. A failure is a Laufzeitfehler: on reading 52 and 53 for a lasting
// reason, on writing 52, 70, 75 and 76, 61 for a full disk; 57, 68, 71 and 72 for a device that may come
// back. Knows no format, asks nobody, and leaves looking names up to core/pfad.h.
#pragma once

#include "core/laufzeitfehler.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plattform {

// True where two names of one folder may differ in case only.
#ifdef Q_OS_WIN
inline constexpr bool unterscheidetSchreibung = false;
#else
inline constexpr bool unterscheidetSchreibung = true;
#endif
// True where the system brings its own dialog for printers, which knows no files.
inline constexpr bool systemdruckdialog = !unterscheidetSchreibung;

// What stands under a name, links followed.
enum class Art : std::uint8_t { Nichts, Datei, Ordner, Anderes };

struct Dateizustand {
    Art art = Art::Nichts;
    std::int64_t groesse = 0;   // bytes
    std::int64_t geaendert = 0; // last change, seconds since 1970 UTC
};

struct Eintrag {
    QString name;
    bool ordner = false;
};

// The kind of a name; what can't be reached is Nichts.
[[nodiscard]] Art ArtVon(const QString& pfad) noexcept;
[[nodiscard]] Dateizustand Nachsehen(const QString& pfad);

// All names in a folder, in no order, "." and ".." left out. Asks nothing about what they stand for.
[[nodiscard]] std::vector<QString> NamenLesen(const QString& ordner);
// The regular files and the folders among them, links followed; without those that bear a mark of the
// system's that hides them.
[[nodiscard]] std::vector<Eintrag> OrdnerLesen(const QString& ordner);

// Bytes of a regular file. Anything else is 52: a pipe or a device would hang or never end. More bytes than
// grenze are 7.
[[nodiscard]] std::string Lesen(const QString& datei, std::size_t grenze);

// Writes the bytes to a new file beside ziel, forces them to the disk and renames it over ziel; a link leads
// to the file that is replaced. On a throw the old file is whole (the new one where only forcing the folder
// to the disk failed) and no scrap is left. False, and nothing has changed, when the folder takes no new file
// although ziel itself can be written.
[[nodiscard]] bool DauerhaftErsetzen(const QString& ziel, std::string_view bytes);

// Removes from the folder what DauerhaftErsetzen left there in programs that were killed. What a running
// program is writing stays, and so does what can't be removed.
void ResteLoeschen(const QString& ordner);

// Overwrites an existing file in place and forces it to the disk. A throw may leave it damaged.
void AnOrtUeberschreiben(const QString& ziel, std::string_view bytes);

// Puts the bytes, forced to the disk, into a new file outside ziel's folder that only the user can read,
// under a name that begins with "Feldkranz-" and ziel's name. Returns its path.
[[nodiscard]] QString KopieAblegen(const QString& ziel, std::string_view bytes);

void Loeschen(const QString& datei);
void OrdnerAnlegen(const QString& ordner);
void OrdnerLoeschen(const QString& ordner);

// Root folders of the mounted volumes that a user knows, the system's own root first.
[[nodiscard]] std::vector<QString> Wurzeln();

// Starts the system's text editor with a file and comes back at once. False when none could be started.
bool TexteditorStarten(const QString& datei);

// True where a program that isn't the administrator's may shut a process of its own off from the rest of the
// system. Web pages are shown only behind such a wall.
bool ProzesseAbschirmbar();

// Plays a wave file and waits for its end, 20 seconds at most. False when it could not be played.
bool KlangAbspielen(const QString& datei);

// What the program was called with, without its own name: each as a path of the file system, and as UTF-8.
struct Argument {
    QString pfad;
    std::string text;
};
[[nodiscard]] std::vector<Argument> Argumente(int anzahl, const char* const* argumente);

// Where programs of one person meet under a name: nobody else's reach it. "" where there is no such place.
[[nodiscard]] QString Anschluss(const QString& name);

} // namespace plattform
