// Where a few bytes stand in very many: 64 places at a time by the two rarest bytes of what is looked for, so
// that the time hardly depends on how often the others occur. Knows nothing of questions.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

class Nadel {
public:
    // At least one byte.
    explicit Nadel(std::string_view bytes);

    [[nodiscard]] std::size_t laenge() const { return bytes_.size(); }

    // Runs treffer with each place in heu from von on, ending at bis at the latest, where the bytes stand;
    // what it returns is the first place that it wants to hear of next.
    template <typename Treffer>
    void Suchen(std::string_view heu, std::size_t von, std::size_t bis, Treffer treffer) const {
        if (bis < von + laenge()) {
            return;
        }
        const std::size_t ende = bis - laenge() + 1; // behind the last place where it can begin
        for (std::size_t block = von; block < ende; block += blockgroesse) {
            if (von >= block + blockgroesse) {
                continue; // the caller has gone on already
            }
            std::uint64_t stellen = heu.size() >= block + blockgroesse + laenge()
                                        ? Kandidaten(heu.data() + block)
                                        : RestKandidaten(heu, block, ende);
            while (stellen != 0) {
                const std::size_t stelle = block + static_cast<std::size_t>(std::countr_zero(stellen));
                stellen &= stellen - 1;
                if (stelle >= ende) {
                    break;
                }
                if (stelle >= von && std::memcmp(heu.data() + stelle, bytes_.data(), laenge()) == 0) {
                    von = treffer(stelle);
                }
            }
        }
    }

private:
    static constexpr std::size_t blockgroesse = 64;

    // One bit for each place of a block where both of the rarest bytes fit.
    [[nodiscard]] std::uint64_t Kandidaten(const char* block) const;
    [[nodiscard]] std::uint64_t RestKandidaten(std::string_view heu, std::size_t block,
                                               std::size_t ende) const;

    std::string bytes_;
    std::size_t erste_ = 0, zweite_ = 0; // places of the two in bytes_
};
