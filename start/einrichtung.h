// Makes the person's program folder out of what is delivered, file by file, so that a window can show how far
// it has come. Ended at any moment, or on a disk that fails, it leaves whole files, and the next start goes
// on. What goes where is start/lieferung.h.
#pragma once

#include "core/laufzeitfehler.h"
#include "start/lieferung.h"

#include <optional>
#include <string>

struct Einrichtungsfehler {
    std::string pfad; // in the program's notation
    Laufzeitfehler grund;
};

class Einrichtung {
public:
    // Both in the program's notation. Looks what there is to do; throws nothing.
    Einrichtung(std::string lieferung, std::string programmordner);

    [[nodiscard]] bool fertig() const { return fertig_; }
    // The next file, and behind the last one the mark; throws nothing.
    void Schritt();
    [[nodiscard]] double prozent() const;
    // The first failure, which stops nothing else.
    [[nodiscard]] const std::optional<Einrichtungsfehler>& fehler() const { return fehler_; }

private:
    void Planen();
    void Merken(std::string pfad, const Laufzeitfehler& grund);
    void Kopieren(const Lieferschritt& schritt);
    void Abschliessen();
    [[nodiscard]] std::string Ziel(const std::string& pfad) const;

    std::string lieferung_;
    std::string ordner_;
    Lieferplan plan_;
    std::size_t getan_ = 0;
    bool fertig_ = true;
    bool planbar_ = true; // the two lists could be read
    std::optional<Einrichtungsfehler> fehler_;
};

// Files beside which a new version lies that nobody was told of yet; from now on they count as told.
[[nodiscard]] std::vector<std::string> UngemeldetesHolen(const std::string& programmordner);
