#include "core/cp1252.h"

#include <gtest/gtest.h>

namespace {

TEST(Cp1252, EveryByteComesBackUnchanged) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    EXPECT_EQ(NachCp1252(AusCp1252(bytes)), bytes);
}

TEST(Cp1252, AByteWithoutACharacterBecomesTheControlCharacterOfItsValue) {
    EXPECT_EQ(AusCp1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Cp1252, GermanLettersAndTheUpperFieldAreTheirCharacters) {
    EXPECT_EQ(AusCp1252("\xC4\xD6\xDC\xE4\xF6\xFC\xDF"), "ÄÖÜäöüß");
    EXPECT_EQ(AusCp1252("\x80\x84\x93\x96\x8A\x9F"), "€„“–ŠŸ");
    EXPECT_EQ(NachCp1252("5 € „Kompaß“ – naß"), "5 \x80 \x84Kompa\xDF\x93 \x96 na\xDF");
}

TEST(Cp1252, AHighByteIsFoundAtEveryPlaceOfALongText) {
    for (std::size_t stelle = 0; stelle < 100; ++stelle) {
        std::string bytes(100, 'x');
        bytes[stelle] = '\xFC';
        const std::string text = std::string(stelle, 'x') + "ü" + std::string(99 - stelle, 'x');
        EXPECT_EQ(AusCp1252(bytes), text) << stelle;
        EXPECT_EQ(NachCp1252(text), bytes) << stelle;
    }
}

TEST(Cp1252, ANulByteIsACharacterLikeAnyOther) {
    const std::string bytes("a\0b", 3);
    EXPECT_EQ(AusCp1252(bytes), bytes);
    EXPECT_EQ(NachCp1252(bytes), bytes);
}

TEST(Cp1252, TextIsAppendedBehindWhatStandsThere) {
    std::string ziel = "Frage: ";
    AusCp1252Anhaengen(ziel, "f\xFCnf");
    EXPECT_EQ(ziel, "Frage: fünf");
}

TEST(Cp1252, WhatItCantHoldBecomesItsNearestEquivalent) {
    struct Zeile {
        std::string_view text, erwartet;
    };
    constexpr std::array<Zeile, 22> zeilen{{{"Wałęsa", "Walesa"},
                                            {"Dvořák", "Dvor\xE1k"},
                                            {"Škoda", "\x8Akoda"},
                                            {"Ősz", "Osz"},
                                            {"İstanbul", "Istanbul"},
                                            {"ĳs", "ijs"},
                                            {"a → b ⇒ c", "a -> b => c"},
                                            {"x ≤ 3 ≥ y", "x <= 3 >= y"},
                                            {"−5", "-5"},
                                            {"ﬁnden", "finden"},
                                            {"½ ⅓", "\xBD 1/3"},
                                            {"H₂O", "H2O"},
                                            {"x⁴", "x4"},
                                            {"a\u2009b\u202Fc", "a b\xA0"
                                                                "c"},
                                            {"′″‐‑", "'\"--"},
                                            {"Ｆｅｌｄ！", "Feld!"},
                                            {"μm", "\xB5m"},
                                            {"ΑΕ Москва"
                                             "",
                                             "AE Mo?k?a"},
                                            {"ẞ", "\xDF"},
                                            {"Việt Nam", "Vi\xEAt Nam"},
                                            {"日本", "??"},
                                            {"😀", "?"}}};
    for (const Zeile& zeile : zeilen) {
        EXPECT_EQ(NachCp1252(zeile.text), zeile.erwartet) << zeile.text;
    }
}

TEST(Cp1252, ACombiningMarkJoinsItsLetterOrIsDropped) {
    EXPECT_EQ(NachCp1252("a\u0308 O\u0308 e\u0301"), "\xE4 \xD6 \xE9");
    EXPECT_EQ(NachCp1252("x\u0308"), "x");
    EXPECT_EQ(NachCp1252("\u0308"), "");
    EXPECT_EQ(NachCp1252("a\u200Bb\uFEFF"), "ab");
}

TEST(Cp1252, BrokenUtf8BecomesQuestionMarksAndNeverReadsPastTheEnd) {
    constexpr std::array<std::string_view, 7> broken{"\xC3",     "\xE2\x82", "\xF0\x9F\x98", "\x80",
                                                     "\xC0\xAF", "\xFF",     "\xED\x20"};
    for (const std::string_view text : broken) {
        const std::string bytes = NachCp1252(text);
        EXPECT_EQ(bytes.front(), '?');
        EXPECT_LE(bytes.size(), text.size());
    }
    EXPECT_EQ(NachCp1252("\xC3xy"), "?xy");
}

TEST(Cp1252, KnowsWhichCharactersItHolds) {
    for (const char32_t zeichen : {U'a', U'\n', U'ä', U'€', U'ž', U'\u0081', U'\u00A0'}) {
        EXPECT_TRUE(InCp1252(zeichen)) << static_cast<unsigned>(zeichen);
    }
    for (const char32_t zeichen : {U'ł', U'→', U'\u0080', U'\u0301', U'日'}) {
        EXPECT_FALSE(InCp1252(zeichen)) << static_cast<unsigned>(zeichen);
    }
}

TEST(Ersatzzeichen, AnEquivalentAlwaysFitsTheCodePage) {
    int anzahl = 0;
    for (char32_t zeichen = 0x100; zeichen < 0x10000; ++zeichen) {
        if (const std::string ersatz = Ersatzzeichen(zeichen); !ersatz.empty()) {
            ++anzahl;
            EXPECT_EQ(AusCp1252(NachCp1252(ersatz)), ersatz) << static_cast<unsigned>(zeichen);
        }
    }
    EXPECT_GT(anzahl, 600);
}

TEST(Ersatzzeichen, EveryLetterOfLatinExtendedAHasOne) {
    for (char32_t zeichen = 0x100; zeichen < 0x180; ++zeichen) {
        EXPECT_TRUE(InCp1252(zeichen) || !Ersatzzeichen(zeichen).empty()) << static_cast<unsigned>(zeichen);
    }
}

TEST(Ersatzzeichen, IsEmptyWhereThereIsNone) {
    for (const char32_t zeichen : {U'日', U'\u0301', U'ж', U'Ω', U'\U0001F600'}) {
        EXPECT_EQ(Ersatzzeichen(zeichen), "") << static_cast<unsigned>(zeichen);
    }
}

} // namespace
