#include "quizform/ziehregeln.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Druck {
    bool umschalt;
    bool strg;
    bool alt;
    std::string buchstabe;
    bool leer;
    int art;
    std::string nummer; // "" for no refusal
    std::string text;
    std::string taste;
};

} // namespace

TEST(Ziehregeln, WhatEachPressStarts) {
    const std::vector<Druck> reihen{
        {true, false, false, "J", false, 0, "39", "Joker kann nicht verschoben werden.", "Aha"},
        {true, false, false, "E", true, 0, "49", "Ereignis kann nicht verschoben werden.", "Aha"},
        {true, false, false, "", true, 0, "59", "Keine Frage zum Verschieben vorhanden.", "Ach ja ..."},
        {false, true, false, "J", false, 0, "69", "Joker kann nicht kopiert werden.", "Aha"},
        {false, true, false, "E", false, 0, "79", "Ereignis kann nicht kopiert werden.", "Aha"},
        {false, true, false, "G", true, 0, "89", "Keine Frage zum Kopieren vorhanden.", "Ach ja ..."},
        {true, false, false, "", false, 1, "", "", ""},
        {true, false, false, "R", false, 1, "", "", ""},
        {false, true, false, "A", false, 2, "", "", ""},
        {false, true, false, "G", false, 2, "", "", ""},
    };
    for (const auto& reihe : reihen) {
        const ZiehBeginn beginn =
            ZiehBeginnFuer(reihe.umschalt, reihe.strg, reihe.alt, reihe.buchstabe, reihe.leer);
        EXPECT_EQ(beginn.art, reihe.art) << reihe.text;
        ASSERT_EQ(beginn.ablehnung != nullptr, !reihe.nummer.empty()) << reihe.text;
        if (beginn.ablehnung != nullptr) {
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
            const ZiehBeginn beginn = ZiehBeginnFuer(umschalt, strg, alt, buchstabe, false);
            EXPECT_EQ(beginn.art, 0);
            EXPECT_EQ(beginn.ablehnung, nullptr);
        }
    }
}
