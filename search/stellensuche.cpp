#include "search/stellensuche.h"

#include <algorithm>
#include <vector>

namespace {

// Letters of German texts, the most frequent first; what isn't named is rarer than all of them.
constexpr std::string_view haeufigkeit = " enirstadhulgcomwbfkzpv.?j";

std::size_t Seltenheit(char byte) {
    const std::size_t stelle = haeufigkeit.find(byte);
    return stelle == std::string_view::npos ? haeufigkeit.size() : stelle;
}

// Sets the high bit of each zero byte to none and of each byte 1 to one, in the order of the bytes.
std::uint64_t Bits(const std::array<std::uint8_t, 64>& gleich) {
    constexpr std::uint64_t sammeln = 0x0102040810204080ULL; // gathers eight bytes of 0 or 1 in the top one
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < gleich.size(); i += 8) {
        std::uint64_t acht = 0;
        std::memcpy(&acht, gleich.data() + i, sizeof acht);
        if constexpr (std::endian::native == std::endian::big) {
            acht = __builtin_bswap64(acht);
        }
        bits |= (acht * sammeln >> 56U) << i;
    }
    return bits;
}

} // namespace

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

std::uint64_t Nadel::Kandidaten(const char* block) const {
    std::array<std::uint8_t, blockgroesse>
        gleich; // NOLINT(cppcoreguidelines-pro-type-member-init): set below
    const char* a = block + erste_;
    const char* b = block + zweite_;
    const char wertA = bytes_[erste_];
    const char wertB = bytes_[zweite_];
    std::uint8_t eines = 0;
    for (std::size_t i = 0; i < blockgroesse; ++i) {
        gleich[i] = static_cast<std::uint8_t>(static_cast<std::uint8_t>(a[i] == wertA) &
                                              static_cast<std::uint8_t>(b[i] == wertB));
        eines |= gleich[i];
    }
    return eines == 0 ? 0 : Bits(gleich);
}

std::uint64_t Nadel::RestKandidaten(std::string_view heu, std::size_t block, std::size_t ende) const {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < blockgroesse && block + i < ende; ++i) {
        if (heu[block + i + erste_] == bytes_[erste_]) {
            bits |= std::uint64_t{1} << i;
        }
    }
    return bits;
}
