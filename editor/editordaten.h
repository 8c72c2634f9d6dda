// What the editor keeps beside the text in its window's field: the text that travels between the catalogue's
// files and the field, and the file that it belongs to. Lives as long as the process.
#pragma once

#include "persistence/dateistand.h"

#include <string>

struct Editordaten {
    // The text of the file behind its first token, UTF-8 with CR LF, as of the last load or save. Opening a
    // form sets it as well, to the note that its file may hold.
    std::string Bemerkung;

    // First token of the catalogue file, its header. It goes with the window, and a text that never had a
    // file gets it from the name of its first one.
    std::string BemerkungMarke;

    // Path of the editor's file in the program's own notation, "" for none, and the file that it meant when
    // it was noted, as the file system names it. Written by editor/editorpfad.
    std::string Pfad, Nativ;

    // What is known of that file's content. Set by the editor's load and save.
    Dateikenntnis Kenntnis;

    friend bool operator==(const Editordaten&, const Editordaten&) = default;
};

inline Editordaten Editor;
