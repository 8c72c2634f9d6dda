#include "search/stellensuche.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

std::vector<std::size_t> Alle(const std::string& heu, const std::string& bytes, std::size_t von,
                              std::size_t bis) {
    std::vector<std::size_t> stellen;
    Nadel(bytes).Suchen(heu, von, bis, [&](std::size_t stelle) {
        stellen.push_back(stelle);
        return stelle + 1;
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

TEST(StellensucheTest, WhoWantsToGoOnFurtherBackHearsOfNothingBetween) {
    const std::string heu(500, 'x');
    std::vector<std::size_t> stellen;
    Nadel("xx").Suchen(heu, 3, heu.size(), [&](std::size_t stelle) {
        stellen.push_back(stelle);
        return stelle + 200;
    });
    EXPECT_EQ(stellen, (std::vector<std::size_t>{3, 203, 403}));
}

} // namespace
