// What a version of the program delivers into a person's program folder, what of it is put there, and what is
// left as it stands: a value each. Opens no file. Paths are those below the folder, with slashes.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Checksum of each file.
using Lieferliste = std::map<std::string, std::string, std::less<>>;

// What the folder knows of earlier deliveries. It stands in the folder, written when all else is there.
struct Lieferstand {
    Lieferliste geliefert;               // each file as it was delivered last, also where it was kept back
    std::vector<std::string> ungemeldet; // files beside which a new version lies that nobody was told of

    friend bool operator==(const Lieferstand&, const Lieferstand&) = default;
};

// A line each, "checksum path" or "neu path"; what is none is passed over.
[[nodiscard]] Lieferstand LieferstandLesen(std::string_view bytes);
[[nodiscard]] std::string LieferstandBytes(const Lieferstand& stand);

// Examples and settings are the person's from the first moment: they are put there once and never again.
[[nodiscard]] bool GehoertDerPerson(std::string_view pfad);

// One copy: the delivered file goes to the target, which is another name where the person's own stays.
struct Lieferschritt {
    std::string quelle;
    std::string ziel;
    std::string summe;

    [[nodiscard]] bool daneben() const { return quelle != ziel; }
    friend bool operator==(const Lieferschritt&, const Lieferschritt&) = default;
};

struct Lieferplan {
    std::vector<Lieferschritt> schritte;
    Lieferstand danach;                 // without the steps
    std::vector<std::string> ungelesen; // left for the next time: nobody knows whose they are

    // A step has been done. summe: what was copied.
    void Getan(const Lieferschritt& schritt, const std::string& summe);
    friend bool operator==(const Lieferplan&, const Lieferplan&) = default;
};

// The checksum of what stands under a path in the folder: none where nothing does, "" where it can't be read.
using Bestand = std::function<std::optional<std::string>(const std::string& pfad)>;

[[nodiscard]] Lieferplan LieferplanMachen(const Lieferliste& lieferung, const Lieferstand& vorher,
                                          const Bestand& bestand);

// True where every delivered file was delivered as it is now: then only a missing file is work.
[[nodiscard]] bool Ausgeliefert(const Lieferliste& lieferung, const Lieferstand& stand);

// What the status help says about files that lie beside; their names, at least one.
[[nodiscard]] std::string Danebentext(const std::vector<std::string>& pfade);
