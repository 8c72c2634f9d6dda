// How many questions of which points make a wanted total: all ways are counted, and chance takes one of them,
// each as likely as any other. Knows neither form nor catalogue.
#pragma once

#include "filling/wuerfel.h"

#include <cstddef>
#include <optional>
#include <vector>

// Something that may be chosen once, worth its points (0 or more).
struct Punktstueck {
    std::size_t nr = 0;
    int punkte = 0;
};
// Pieces of which one at most may be chosen.
using Stueckgruppe = std::vector<Punktstueck>;

class Punktziel {
public:
    // hoechstens: pieces that may be chosen in all.
    Punktziel(std::vector<Stueckgruppe> gruppen, int hoechstens);

    [[nodiscard]] int hoechstens() const { return hoechstens_; }
    [[nodiscard]] int hoechstePunkte() const { return hoechstePunkte_; }
    [[nodiscard]] bool moeglich(int anzahl, int punkte) const;
    // Numbers of so many pieces worth so much together; none where that isn't possible.
    [[nodiscard]] std::vector<std::size_t> ziehen(int anzahl, int punkte, Wuerfel& wuerfel) const;
    // A total that so many pieces can have, by chance; none where there are fewer.
    [[nodiscard]] std::optional<int> irgendwelche(int anzahl, Wuerfel& wuerfel) const;

private:
    [[nodiscard]] std::size_t stelle(std::size_t gruppe, int anzahl, int punkte) const;
    [[nodiscard]] double wege(std::size_t gruppe, int anzahl, int punkte) const;
    void GruppeZaehlen(std::size_t gruppe);

    std::vector<Stueckgruppe> gruppen_;
    int hoechstens_;
    int hoechstePunkte_ = 0;
    std::vector<double> wege_; // with the first so many groups, of each number and total
};
