// What the message service itself says: the report of a run-time error and of a dialog's missing picture.
// Makes texts only; dialogs/meldung.h shows them.
#pragma once

#include "core/meldungstext.h"

#include <string>
#include <string_view>

struct Fehlerbericht {
    std::string text;
    std::string_view taste;
};

// The report for an error number. ort is "<source unit> : <procedure>"; systemtext is the system's text,
// which is told for the numbers that have none of the program's own.
[[nodiscard]] Fehlerbericht FehlerberichtBilden(std::string_view ort, int nummer,
                                                std::string_view systemtext);

// The value is the file's name without the prefix that it has on the disk: that is how it is told.
inline constexpr MeldungsText bildNichtGefunden{5,
                                                "Ich kann die Datei nicht finden !\r\nDie Bitmap [{}] muß "
                                                "sich im Verzeichnis\r\n[...\\BITMAP] befinden !",
                                                "1", "Habe ich das denn nicht installiert ?!"};
inline constexpr MeldungsText bildProblem{5, "Ich habe Probleme !", "1", "Das ist ja ganz ungewohnt"};
