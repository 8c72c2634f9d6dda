// The copy of unsaved work that lies beside its file until it is saved or discarded, so that a killed program
// costs seconds at most. A thread writes it, as durably as a save; a lock beside it tells that its program
// still runs, and stays as the mark of a journal when the program was ended by force. What is written, and
// when, is the callers' affair; the names are persistence/journalname.h.
#pragma once

#include "core/laufzeitfehler.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// Where a journal belongs: the folder as the file system names it, and the name of the file that it is for,
// "" for a text without a file.
struct Journalort {
    QString ordner;
    std::string dateiname;

    friend bool operator==(const Journalort&, const Journalort&) = default;
};

class Journal {
public:
    // gescheitert runs in the thread that writes, once until a write comes about again.
    explicit Journal(std::function<void(const Laufzeitfehler&)> gescheitert);
    // Waits for what is being written. A journal that is still needed stays, with its mark.
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    // Writes soon; of several the last one counts. bytes runs in the thread that writes and so needs values
    // of its own. The first one chooses a free name: neither the journal of a running program nor an old one
    // is written over.
    void Schreiben(Journalort ort, std::function<std::string()> bytes);
    // An old journal that has been opened belongs to this one and goes with it.
    void Uebernehmen(const QString& pfad);
    // What it is about is saved or discarded: the journal goes, and what has been taken over.
    void Entfernen();
    // Waits until everything asked for is done.
    void Abwarten();

private:
    class Arbeiter;
    std::unique_ptr<Arbeiter> arbeiter_;
};

// True for the journal of a program that was ended by force: it bears the mark, and nobody runs who has it.
[[nodiscard]] bool JournalVerwaist(const QString& pfad);
// True for the journal of a program that runs, this one or another.
[[nodiscard]] bool JournalInArbeit(const QString& pfad);
// Paths of the journals in a folder whose programs were ended by force, of that file or, without a name, of
// all. Nothing for a folder that can't be read.
[[nodiscard]] std::vector<QString> VerwaisteJournale(const QString& ordner,
                                                     const std::string* dateiname = nullptr);
