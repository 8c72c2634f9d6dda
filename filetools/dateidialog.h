// The program's own file dialog as its callers see it. The window itself is filetools/frmDatei.h.
#pragma once

#include <optional>
#include <string>
#include <vector>

struct Dateiauswahl {
    std::string titel;               // "Öffnen" or "Speichern unter ..."
    bool backupBenutzbar = true;     // chkBackUp in use
    std::vector<std::string> filter; // lines of the type list, pattern in parentheses
    std::vector<std::string> muster; // patterns by place, as the caller sets them up
    std::string aktuell;             // current pattern
    std::string ordner;              // folder to start in, own notation; "" keeps the last one
    std::string vorschlag;           // name proposed in the name box
    bool ordnerMerken = true;        // the folder shown last is where the next dialog starts
    std::string pfad{};              // what the button for the path tells until a file is chosen
};

// Shows the dialog modally. The path chosen, in the program's own notation: in upper case to open a file,
// with the name as it stands in its box to save one, and "" where that names no file. No value when the
// dialog was cancelled.
std::optional<std::string> DateidialogZeigen(const Dateiauswahl& auswahl);

// Folder in which the dialog was left with a file last, of those dialogs that remember theirs; "" for none.
[[nodiscard]] const std::string& DateidialogOrdner();
