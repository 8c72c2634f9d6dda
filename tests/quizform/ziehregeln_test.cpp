#include "quizform/ziehregeln.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace {

struct Druck {
    bool umschalt; // else Strg
    std::string buchstabe;
    bool leer;
    std::optional<Zugart> art;
    std::string nummer; // "" for no refusal
    std::string text;
    std::string taste;
};

} // namespace

TEST(Ziehregeln, WhatEachPressStarts) {
    const std::vector<Druck> reihen{
        {true, "J", false, {}, "39", "Joker kann nicht verschoben werden.", "Aha"},
        {true, "E", true, {}, "49", "Ereignis kann nicht verschoben werden.", "Aha"},
        {true, "", true, {}, "59", "Keine Frage zum Verschieben vorhanden.", "Ach ja ..."},
        {false, "J", false, {}, "69", "Joker kann nicht kopiert werden.", "Aha"},
        {false, "E", false, {}, "79", "Ereignis kann nicht kopiert werden.", "Aha"},
        {false, "G", true, {}, "89", "Keine Frage zum Kopieren vorhanden.", "Ach ja ..."},
        {true, "", false, Zugart::Verschieben, "", "", ""},
        {true, "R", false, Zugart::Verschieben, "", "", ""},
        {false, "A", false, Zugart::Kopieren, "", "", ""},
        {false, "G", false, Zugart::Kopieren, "", "", ""},
    };
    for (const auto& reihe : reihen) {
        const Ziehbeginn beginn =
            FeldZiehbeginn(ZugartFuer(reihe.umschalt, !reihe.umschalt, false), reihe.buchstabe, reihe.leer);
        EXPECT_EQ(beginn.art, reihe.art) << reihe.text;
        ASSERT_EQ(beginn.ablehnung.has_value(), !reihe.nummer.empty()) << reihe.text;
        if (beginn.ablehnung) {
            EXPECT_EQ(beginn.ablehnung->nummer, reihe.nummer);
            EXPECT_EQ(beginn.ablehnung->text, reihe.text);
            EXPECT_EQ(beginn.ablehnung->taste, reihe.taste);
            EXPECT_EQ(beginn.ablehnung->bild, 5);
        }
    }
}

TEST(Ziehregeln, CtrlAndShiftTogetherOrAltOrNoneStartNothing) {
    for (const auto& [umschalt, strg, alt] :
         std::vector<std::tuple<bool, bool, bool>>{{true, true, false},
                                                   {true, true, true},
                                                   {true, false, true},
                                                   {false, true, true},
                                                   {false, false, true},
                                                   {false, false, false}}) {
        for (const char* buchstabe : {"", "J", "E"}) {
            const Ziehbeginn beginn = FeldZiehbeginn(ZugartFuer(umschalt, strg, alt), buchstabe, false);
            EXPECT_EQ(beginn.art, std::nullopt);
            EXPECT_FALSE(beginn.ablehnung);
        }
    }
}
