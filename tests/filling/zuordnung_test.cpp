// Places and questions as bare numbers: as many places as possible, and chance that can be repeated.
#include "filling/zuordnung.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

using Listen = std::vector<std::vector<std::uint32_t>>;
using Wahl = std::vector<std::optional<std::uint32_t>>;

bool NurDieselbe(std::uint32_t a, std::uint32_t b) {
    return a == b;
}
// Numbers of one ten say the same.
bool GleicherZehner(std::uint32_t a, std::uint32_t b) {
    return a / 10 == b / 10;
}

std::size_t Besetzt(const Wahl& wahl) {
    return static_cast<std::size_t>(
        std::count_if(wahl.begin(), wahl.end(), [](const auto& w) { return w.has_value(); }));
}

// The most places that can be filled, by trying everything.
std::size_t Meiste(const Listen& kandidaten, std::size_t platz, std::set<std::uint32_t>& gruppen) {
    if (platz == kandidaten.size()) {
        return 0;
    }
    std::size_t beste = Meiste(kandidaten, platz + 1, gruppen);
    for (const std::uint32_t frage : kandidaten[platz]) {
        if (gruppen.insert(frage / 10).second) {
            beste = std::max(beste, 1 + Meiste(kandidaten, platz + 1, gruppen));
            gruppen.erase(frage / 10);
        }
    }
    return beste;
}

Listen Zufallslisten(Wuerfel& wuerfel, std::size_t plaetze) {
    Listen listen(plaetze);
    for (auto& liste : listen) {
        const std::size_t laenge = wuerfel.unter(5);
        for (std::size_t i = 0; i < laenge; ++i) {
            liste.push_back(static_cast<std::uint32_t>(wuerfel.unter(60)));
        }
    }
    return listen;
}

void ExpectRichtig(const Listen& kandidaten, const Wahl& wahl) {
    std::set<std::uint32_t> gruppen;
    for (std::size_t p = 0; p < wahl.size(); ++p) {
        if (wahl[p]) {
            EXPECT_NE(std::find(kandidaten[p].begin(), kandidaten[p].end(), *wahl[p]), kandidaten[p].end());
            EXPECT_TRUE(gruppen.insert(*wahl[p] / 10).second) << "repeated: " << *wahl[p];
        }
    }
}

} // namespace

TEST(Zuordnung, APlaceGivesItsQuestionUpForOneThatHasNoOther) {
    const Listen listen{{10, 20}, {10}, {20, 30}, {30}, {40, 10}};
    for (std::uint64_t saat = 0; saat < 50; ++saat) {
        Wuerfel wuerfel(saat);
        // Four questions for five places, and a place too many for them.
        EXPECT_EQ(Besetzt(Zuordnen(listen, NurDieselbe, wuerfel)), 4U) << saat;
    }
}

TEST(Zuordnung, WhatSaysTheSameCountsAsOneQuestion) {
    Wuerfel wuerfel(1);
    const Wahl wahl = Zuordnen({{11, 12}, {13, 14}, {15, 21}}, GleicherZehner, wuerfel);
    EXPECT_EQ(Besetzt(wahl), 2U);
    EXPECT_EQ(wahl[2], 21U);
}

TEST(Zuordnung, NoPlacesAndNoQuestionsAreNoTrouble) {
    Wuerfel wuerfel(1);
    EXPECT_TRUE(Zuordnen({}, NurDieselbe, wuerfel).empty());
    EXPECT_EQ(Besetzt(Zuordnen({{}, {}}, NurDieselbe, wuerfel)), 0U);
}

TEST(Zuordnung, FillsAsManyPlacesAsTryingEverything) {
    for (std::uint64_t saat = 0; saat < 500; ++saat) {
        Wuerfel wuerfel(saat);
        const Listen listen = Zufallslisten(wuerfel, 7);
        const Wahl wahl = Zuordnen(listen, GleicherZehner, wuerfel);
        ExpectRichtig(listen, wahl);
        std::set<std::uint32_t> gruppen;
        EXPECT_EQ(Besetzt(wahl), Meiste(listen, 0, gruppen)) << saat;
    }
}

TEST(Zuordnung, TheSeedDecides) {
    const Listen listen(5, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    const auto gezogen = [&listen](std::uint64_t saat) {
        Wuerfel wuerfel(saat);
        return Zuordnen(listen, NurDieselbe, wuerfel);
    };
    EXPECT_EQ(gezogen(7), gezogen(7));
    EXPECT_NE(gezogen(7), gezogen(8));
}

TEST(Wuerfel, EveryNumberComesAboutAsOftenAsTheOthers) {
    Wuerfel wuerfel(3);
    std::array<int, 6> zahlen{};
    double summe = 0;
    for (int i = 0; i < 6000; ++i) {
        ++zahlen.at(wuerfel.unter(6));
        summe += wuerfel.anteil();
    }
    for (const int anzahl : zahlen) {
        EXPECT_NEAR(anzahl, 1000, 150);
    }
    EXPECT_NEAR(summe / 6000, 0.5, 0.03);
}
