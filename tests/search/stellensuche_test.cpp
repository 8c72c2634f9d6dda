#include "search/stellensuche.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

std::vector<std::size_t> Alle(const std::string& heu, const std::string& bytes, std::size_t von,
                              std::size_t bis) {
    std::vector<std::size_t> stellen;
    Nadel(bytes).Suchen(SuchtextAus(heu), von, bis, [&](Stellenblock block) {
        for (; block.treffer != 0; block.treffer &= block.treffer - 1) {
            stellen.push_back(block.erste());
        }
    });
    return stellen;
}

std::vector<std::size_t> Einfach(const std::string& heu, const std::string& bytes, std::size_t von,
                                 std::size_t bis) {
    std::vector<std::size_t> stellen;
    for (std::size_t i = von; i + bytes.size() <= bis; ++i) {
        if (heu.compare(i, bytes.size(), bytes) == 0) {
            stellen.push_back(i);
        }
    }
    return stellen;
}

TEST(StellensucheTest, EveryPlaceIsFoundWhateverTheSizesAre) {
    std::mt19937 zufall(4711); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts each time
    for (int runde = 0; runde < 3000; ++runde) {
        std::string heu(zufall() % 300, ' ');
        for (char& byte : heu) {
            byte = static_cast<char>('a' + zufall() % 3);
        }
        std::string bytes(1 + zufall() % 5, ' ');
        for (char& byte : bytes) {
            byte = static_cast<char>('a' + zufall() % 3);
        }
        const std::size_t von = heu.empty() ? 0 : zufall() % heu.size();
        const std::size_t bis = von + (heu.size() == von ? 0 : zufall() % (heu.size() - von + 1));
        ASSERT_EQ(Alle(heu, bytes, von, bis), Einfach(heu, bytes, von, bis)) << heu << " / " << bytes;
    }
}

TEST(StellensucheTest, WhereAWordBeginsAndEndsIsToldInEveryBlock) {
    // So long that the first, a middle and the last block are among them.
    const std::string muster = "ab abc xab xabc ";
    std::string heu;
    while (heu.size() < 300) {
        heu += muster;
    }
    std::string anfang;
    std::string ende;
    Nadel("ab").Suchen(SuchtextAus(heu), 0, heu.size(), [&](Stellenblock block) {
        for (; block.treffer != 0; block.treffer &= block.treffer - 1) {
            const std::uint64_t bit = block.treffer & (~block.treffer + 1);
            anfang += (block.wortanfang & bit) != 0 ? '1' : '0';
            ende += (block.wortende & bit) != 0 ? '1' : '0';
        }
    });
    ASSERT_EQ(anfang.size(), 4 * heu.size() / muster.size());
    for (std::size_t i = 0; i < anfang.size(); i += 4) {
        EXPECT_EQ(anfang.substr(i, 4), "1100") << i;
        EXPECT_EQ(ende.substr(i, 4), "1010") << i;
    }
}

} // namespace
