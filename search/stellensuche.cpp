#include "search/stellensuche.h"

#include "search/faltung.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t blockgroesse = 64;
using Wahrheiten = std::array<std::uint8_t, blockgroesse>; // 0 or 1 each

// Letters of German texts, the most frequent first; what isn't named is rarer than all of them.
constexpr std::string_view haeufigkeit = " enirstadhulgcomwbfkzpv.?j";

std::size_t Seltenheit(char byte) {
    const std::size_t stelle = haeufigkeit.find(byte);
    return stelle == std::string_view::npos ? haeufigkeit.size() : stelle;
}

// Bytes in the other order.
constexpr std::uint64_t Gewendet(std::uint64_t wert) {
    std::uint64_t ergebnis = 0;
    for (int i = 0; i < 8; ++i) {
        ergebnis = ergebnis << 8U | (wert >> (8 * i) & 0xFFU);
    }
    return ergebnis;
}

std::uint64_t Bits(const Wahrheiten& wahrheiten) {
    constexpr std::uint64_t sammeln = 0x0102040810204080ULL; // gathers eight bytes of 0 or 1 in the top one
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < wahrheiten.size(); i += 8) {
        std::uint64_t acht = 0;
        std::memcpy(&acht, wahrheiten.data() + i, sizeof acht);
        if constexpr (std::endian::native == std::endian::big) {
            acht = Gewendet(acht);
        }
        bits |= (acht * sammeln >> 56U) << i;
    }
    return bits;
}

} // namespace

Suchtext SuchtextAus(std::string text) {
    Suchtext ergebnis{std::move(text), {}};
    // Two words more, so that places behind the end can be asked for.
    ergebnis.trenner.resize(ergebnis.text.size() / 64 + 3, ~std::uint64_t{0});
    const std::string& bytes = ergebnis.text;
    for (std::size_t ab = 0; ab < bytes.size(); ab += blockgroesse) {
        Wahrheiten trenner{};
        trenner.fill(1);
        const std::size_t anzahl = std::min(blockgroesse, bytes.size() - ab);
        for (std::size_t i = 0; i < anzahl; ++i) {
            trenner[i] = static_cast<std::uint8_t>(!IstWortzeichen(bytes[ab + i]));
        }
        ergebnis.trenner[ab / blockgroesse] = Bits(trenner);
    }
    return ergebnis;
}

Nadel::Nadel(std::string_view bytes) : bytes_(bytes) {
    std::vector<std::size_t> stellen(bytes_.size());
    for (std::size_t i = 0; i < stellen.size(); ++i) {
        stellen[i] = i;
    }
    std::stable_sort(stellen.begin(), stellen.end(), [this](std::size_t a, std::size_t b) {
        return Seltenheit(bytes_[a]) > Seltenheit(bytes_[b]);
    });
    erste_ = stellen.front();
    zweite_ = stellen.size() > 1 ? stellen[1] : stellen.front();
}

std::uint64_t Nadel::Treffer(std::string_view heu, std::size_t ab) const {
    if (heu.size() < ab + blockgroesse + laenge()) {
        return RestTreffer(heu, ab);
    }
    const char* a = heu.data() + ab + erste_;
    const char* b = heu.data() + ab + zweite_;
    const char wertA = bytes_[erste_];
    const char wertB = bytes_[zweite_];
    const auto beide = [&](std::size_t i) {
        return static_cast<std::uint8_t>(static_cast<std::uint8_t>(a[i] == wertA) &
                                         static_cast<std::uint8_t>(b[i] == wertB));
    };
    std::uint8_t eines = 0; // most blocks have none, and are done with this
    for (std::size_t i = 0; i < blockgroesse; ++i) {
        eines |= beide(i);
    }
    if (eines == 0) {
        return 0;
    }
    Wahrheiten gleich; // NOLINT(cppcoreguidelines-pro-type-member-init): set below
    for (std::size_t i = 0; i < blockgroesse; ++i) {
        gleich[i] = beide(i);
    }
    std::uint64_t treffer = Bits(gleich);
    for (std::uint64_t rest = laenge() > 2 ? treffer : 0; rest != 0; rest &= rest - 1) {
        const auto i = static_cast<std::size_t>(std::countr_zero(rest));
        if (std::memcmp(heu.data() + ab + i, bytes_.data(), laenge()) != 0) {
            treffer &= ~(std::uint64_t{1} << i);
        }
    }
    return treffer;
}

std::uint64_t Nadel::RestTreffer(std::string_view heu, std::size_t ab) const {
    std::uint64_t treffer = 0;
    for (std::size_t i = 0; i < blockgroesse && ab + i + laenge() <= heu.size(); ++i) {
        treffer |= std::uint64_t{heu.substr(ab + i, laenge()) == bytes_} << i;
    }
    return treffer;
}
