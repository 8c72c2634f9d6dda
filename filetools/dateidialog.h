// The program's own file dialog as its callers see it. What it did stands in DateiName and DateiAbbruch
// (core/zustand.h). The window itself is filetools/frmDatei.h.
#pragma once

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
};

// Shows the dialog modally.
void DateidialogZeigen(const Dateiauswahl& auswahl);
