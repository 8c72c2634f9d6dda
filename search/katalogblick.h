// The catalogue's files on the disk, as the search has them: reads what is new or another than at the last
// look, and keeps the rest. For a thread of its own, one look at a time; finding is search/suche.h.
#pragma once

#include "catalogue/themen.h"
#include "search/fragenbestand.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What tells one state of a file from another without reading it.
struct Dateispur {
    std::int64_t groesse = -1; // bytes, -1 for no file
    std::int64_t zeit = 0;     // last change, milliseconds since 1970
    // A file that was changed just before it was read may change again within the clock's step: it is read
    // again at the next look.
    bool frisch = false;
};
// Of the file as it is now.
[[nodiscard]] Dateispur SpurVon(const QString& datei);
[[nodiscard]] bool Unveraendert(const Dateispur& bekannt, const Dateispur& jetzt);

// The native folders of all themes, in the order of their table. To be asked in the windows' thread.
[[nodiscard]] std::vector<QString> Katalogordner(const std::string& appPfad);

class Katalogblick {
public:
    // weiter is asked ahead of each file, with how much is done (0 to 1); false ends the look for good, and
    // what was read until then isn't taken. True when the catalogue has become another.
    bool Nachsehen(std::span<const QString> ordner, const std::function<bool(float getan)>& weiter);

    [[nodiscard]] const std::shared_ptr<const Fragenbestand>& bestand() const { return bestand_; }
    // Names of the files that couldn't be read at the last look but at the one before, or ever.
    [[nodiscard]] const std::vector<std::string>& neuUnlesbar() const { return neuUnlesbar_; }

private:
    struct Bekannt {
        Dateispur spur;
        std::size_t abdruck = 0;     // of the bytes
        Fragenbestand::Datei fragen; // nullptr where it couldn't be read
        bool gesehen = false;
    };
    void Aktualisieren(Bekannt& datei, const QString& pfad, const Thema& thema, std::string_view unterthema);

    std::map<std::pair<std::size_t, std::string_view>, Bekannt> bekannt_; // by theme and file name
    bool anders_ = false;
    std::shared_ptr<const Fragenbestand> bestand_ = std::make_shared<const Fragenbestand>();
    std::vector<std::string> neuUnlesbar_;
};
