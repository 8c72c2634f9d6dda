#include "filling/zuordnung.h"

#include <cstddef>
#include <numeric>

namespace {

// Augmenting paths: a place takes a question from another place if that one finds something else.
class Zuordnung {
public:
    Zuordnung(std::vector<std::vector<std::uint32_t>> kandidaten,
              const std::function<bool(std::uint32_t, std::uint32_t)>& stoert)
        : kandidaten_(std::move(kandidaten)), stoert_(stoert), gewaehlt_(kandidaten_.size()) {}

    void Versuchen(std::size_t platz) {
        besucht_.assign(kandidaten_.size(), false);
        Besetzen(platz);
    }
    [[nodiscard]] const std::vector<std::optional<std::uint32_t>>& gewaehlt() const { return gewaehlt_; }

private:
    // The places whose question a candidate for another place would disturb: none, that one, or more, which
    // are too many to move.
    struct Stoerung {
        std::size_t anzahl = 0, platz = 0;
    };
    [[nodiscard]] Stoerung StoerungVon(std::size_t platz, std::uint32_t frage) const {
        Stoerung stoerung;
        for (std::size_t p = 0; p < gewaehlt_.size() && stoerung.anzahl < 2; ++p) {
            const auto& dort = gewaehlt_[p];
            if (p != platz && dort && stoert_(frage, *dort)) {
                ++stoerung.anzahl;
                stoerung.platz = p;
            }
        }
        return stoerung;
    }

    // A path goes through each place once, so it is no longer than there are places.
    bool Besetzen(std::size_t platz) { // NOLINT(misc-no-recursion)
        besucht_[platz] = true;
        for (const std::uint32_t frage : kandidaten_[platz]) {
            const Stoerung stoerung = StoerungVon(platz, frage);
            if (stoerung.anzahl == 0) {
                gewaehlt_[platz] = frage;
                return true;
            }
            if (stoerung.anzahl == 1 && !besucht_[stoerung.platz] &&
                Verdraengen(platz, frage, stoerung.platz)) {
                return true;
            }
        }
        return false;
    }

    bool Verdraengen(std::size_t platz, std::uint32_t frage,
                     std::size_t anderer) { // NOLINT(misc-no-recursion)
        const auto vorher = gewaehlt_[anderer];
        gewaehlt_[platz] = frage;
        gewaehlt_[anderer].reset();
        if (Besetzen(anderer)) {
            return true;
        }
        gewaehlt_[platz].reset();
        gewaehlt_[anderer] = vorher;
        return false;
    }

    std::vector<std::vector<std::uint32_t>> kandidaten_;
    const std::function<bool(std::uint32_t, std::uint32_t)>& stoert_;
    std::vector<std::optional<std::uint32_t>> gewaehlt_;
    std::vector<bool> besucht_; // on the way from the place that is being filled
};

} // namespace

std::vector<std::optional<std::uint32_t>>
Zuordnen(std::vector<std::vector<std::uint32_t>> kandidaten,
         const std::function<bool(std::uint32_t, std::uint32_t)>& stoert, Wuerfel& wuerfel) {
    std::vector<std::size_t> folge(kandidaten.size());
    std::iota(folge.begin(), folge.end(), std::size_t{0});
    wuerfel.Mischen(folge);
    for (auto& liste : kandidaten) {
        wuerfel.Mischen(liste);
    }
    Zuordnung zuordnung(std::move(kandidaten), stoert);
    for (const std::size_t platz : folge) {
        zuordnung.Versuchen(platz);
    }
    return zuordnung.gewaehlt();
}
