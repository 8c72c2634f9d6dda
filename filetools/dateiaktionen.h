// Copying, deleting and editing a file from within the file dialog, with the questions and messages that
// belong to it. The dialog itself keeps its lists up to date.
#pragma once

#include <QString>

#include <functional>
#include <string>

// A file in a folder of the program's own notation.
struct Dateiort {
    std::string ordner;
    std::string name;
    [[nodiscard]] std::string pfad() const;
    // Where it lies: exactly the file of that name, or else the one that the path leads to.
    [[nodiscard]] QString nativ() const;
};

// Runs with the name of the file that is new, or with the one that is gone, before the message about it.
using Aktualisieren = std::function<void(const std::string& name)>;

// Asks for a name and copies into the same folder; asks again before an existing file is written over.
void DateiKopierenMitFrage(const Dateiort& ort, const Aktualisieren& aktualisieren);

// Asks twice and deletes.
void DateiLoeschenMitFrage(const Dateiort& ort, const Aktualisieren& aktualisieren);

// Starts the system's text editor with the file and comes back at once.
void DateiEditieren(const Dateiort& ort);

// Two boxes, one behind the other, on the parts of a path and on the date of the file's last change.
void PfadAnzeigen(const std::string& pfad);
