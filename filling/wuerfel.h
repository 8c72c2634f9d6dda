// Chance that can be repeated: the same seed throws the same on every system, which the standard library's
// distributions don't promise.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

class Wuerfel {
public:
    explicit Wuerfel(std::uint64_t saat) : quelle_(saat) {}

    // 0 to unter - 1; unter must be above 0. Nobody sees how little the small numbers are preferred.
    [[nodiscard]] std::size_t unter(std::size_t grenze) {
        return static_cast<std::size_t>(quelle_() % static_cast<std::uint64_t>(grenze));
    }
    // From 0 up to, but without, 1.
    [[nodiscard]] double anteil() {
        constexpr int stellen = 53; // that a double keeps
        return static_cast<double>(quelle_() >> (64 - stellen)) /
               static_cast<double>(std::uint64_t{1} << stellen);
    }
    template <typename Wert>
    void Mischen(std::vector<Wert>& werte) {
        for (std::size_t i = werte.size(); i > 1; --i) {
            std::swap(werte[i - 1], werte[unter(i)]);
        }
    }

private:
    std::mt19937_64 quelle_;
};
