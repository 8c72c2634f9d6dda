// The shipped catalogue holds no question twice, so whatever is taken for nearly the same there is a mistake:
// at most one question in a hundred.
#include "search/aehnlich.h"
#include "tests/catalogue/katalogpruefung.h"

#include <gtest/gtest.h>

#include <chrono>
#include <iostream>
#include <set>

namespace {

std::vector<Wortanfaenge> AllerFragen() {
    std::vector<Wortanfaenge> alle;
    for (const Katalogsatz& frage : Katalogfragen()) {
        alle.push_back(WortanfaengeVon(frage.frage));
    }
    return alle;
}

} // namespace

TEST(Aehnlichkatalog, AtMostOneQuestionInAHundredIsTakenForAnother) {
    const std::vector<Wortanfaenge> alle = AllerFragen();
    ASSERT_GT(alle.size(), 4000U);
    std::set<std::size_t> betroffen;
    for (std::size_t i = 0; i < alle.size(); ++i) {
        for (std::size_t j = i + 1; j < alle.size(); ++j) {
            if (Fastgleich(alle[i], alle[j])) {
                betroffen.insert({i, j});
                std::cout << Katalogfragen()[i].frage << "\n    " << Katalogfragen()[j].frage << '\n';
            }
        }
    }
    std::cout << betroffen.size() << " of " << alle.size() << " questions\n";
    EXPECT_LE(betroffen.size() * 100, alle.size());
}

// Far more than it takes, for busy machines and builds with checks: what counts is that nobody waits.
TEST(Aehnlichkatalog, AFormIsComparedWithTheWholeCatalogueAtOnce) {
    const std::vector<Wortanfaenge> alle = AllerFragen();
    const auto beginn = std::chrono::steady_clock::now();
    int gefunden = 0;
    for (std::size_t i = 0; i < 30; ++i) {
        for (const Wortanfaenge& andere : alle) {
            gefunden += Fastgleich(alle[i * 100], andere) ? 1 : 0;
        }
    }
    const std::chrono::duration<double, std::milli> dauer = std::chrono::steady_clock::now() - beginn;
    std::cout << dauer.count() << " ms\n";
    EXPECT_GE(gefunden, 30); // each finds itself
    EXPECT_LT(dauer.count(), 500);
}
