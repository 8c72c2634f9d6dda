// The form files of the two form folders, as far as their questions count as used: reads what is new or
// another than at the last look. Backups and journals don't count. For a thread of its own, one look at a
// time; what follows from it is search/benutzung.h.
#pragma once

#include "search/benutzung.h"
#include "search/katalogblick.h"

#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>

// A folder as the file system and as the program calls it. To be asked in the windows' thread.
struct Formularort {
    QString nativ;
    std::string eigen;
};
[[nodiscard]] Formularort FormularortVon(const std::string& ordner);

// How a form's path is written in Formulareintrag, so that one file has one path.
[[nodiscard]] std::string Eintragspfad(std::string_view pfad);

class Formularblick {
public:
    // weiter is asked ahead of each file; false ends the look without a result. True when something has
    // become another.
    bool Nachsehen(std::span<const Formularort> orte, const std::function<bool()>& weiter);

    [[nodiscard]] const std::shared_ptr<const Benutzung>& benutzung() const { return benutzung_; }

private:
    struct Bekannt {
        Dateispur spur;
        Formulareintrag eintrag;
    };

    std::map<QString, Bekannt> bekannt_; // by native path
    std::shared_ptr<const Benutzung> benutzung_ = std::make_shared<const Benutzung>();
};
