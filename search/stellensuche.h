// Where a few bytes stand in very many: 64 places at a time, with what stands around them, so that the time
// hardly depends on how often they occur. Knows nothing of questions.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// 64 places of a text from one place on, a bit each: where the bytes stand, and at which of these places a
// word begins, or ends behind them.
struct Stellenblock {
    std::size_t ab = 0;
    std::uint64_t treffer = 0;
    std::uint64_t wortanfang = 0, wortende = 0;

    // The place of the first hit; there must be one.
    [[nodiscard]] std::size_t erste() const {
        return ab + static_cast<std::size_t>(std::countr_zero(treffer));
    }
    // Bits of the places ahead of that one.
    [[nodiscard]] std::uint64_t vor(std::size_t stelle) const {
        return stelle >= ab + 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << (stelle - ab)) - 1;
    }
};

// A text with a bit for each of its bytes that is no part of a word, and for those behind its end.
struct Suchtext {
    std::string text;
    std::vector<std::uint64_t> trenner;

    // 64 of them from that place on.
    [[nodiscard]] std::uint64_t trennerAb(std::size_t stelle) const {
        const std::size_t wort = stelle / 64;
        const std::size_t versatz = stelle % 64;
        return versatz == 0 ? trenner[wort] : trenner[wort] >> versatz | trenner[wort + 1] << (64 - versatz);
    }
};
[[nodiscard]] Suchtext SuchtextAus(std::string text);

class Nadel {
public:
    // At least one byte.
    explicit Nadel(std::string_view bytes);

    [[nodiscard]] std::size_t laenge() const { return bytes_.size(); }

    // Runs block with each 64 places of heu that have a hit, in rising order; hits begin at von or behind it,
    // and end at bis or ahead of it.
    template <typename Block>
    void Suchen(const Suchtext& heu, std::size_t von, std::size_t bis, Block block) const {
        if (bis < von + laenge()) {
            return;
        }
        const std::size_t ende = bis - laenge() + 1; // behind the last place where it can begin
        for (std::size_t ab = von; ab < ende; ab += 64) {
            Stellenblock stellen{ab, Treffer(heu.text, ab), 0, 0};
            stellen.treffer &= stellen.vor(ende);
            if (stellen.treffer != 0) {
                stellen.wortanfang = ab == 0 ? heu.trennerAb(0) << 1U | 1U : heu.trennerAb(ab - 1);
                stellen.wortende = heu.trennerAb(ab + laenge());
                block(stellen);
            }
        }
    }

private:
    [[nodiscard]] std::uint64_t Treffer(std::string_view heu, std::size_t ab) const;
    [[nodiscard]] std::uint64_t RestTreffer(std::string_view heu, std::size_t ab) const;

    std::string bytes_;
    std::size_t erste_ = 0, zweite_ = 0; // places in bytes_ of the two that are rarest
};
