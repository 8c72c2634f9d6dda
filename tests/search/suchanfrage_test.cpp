#include "search/suchanfrage.h"

#include <gtest/gtest.h>

namespace {

std::string Worte(const std::vector<std::string>& worte) {
    std::string text;
    for (const std::string& wort : worte) {
        text += '[' + wort + ']';
    }
    return text;
}

struct Zeile {
    const char* eingabe;
    const char* noetig;
    const char* verboten;
};

class SuchanfrageTest : public testing::TestWithParam<Zeile> {};

TEST_P(SuchanfrageTest, AnInputBecomesWords) {
    const Suchanfrage anfrage = AnfrageAus(GetParam().eingabe);
    EXPECT_EQ(Worte(anfrage.noetig), GetParam().noetig);
    EXPECT_EQ(Worte(anfrage.verboten), GetParam().verboten);
}

INSTANTIATE_TEST_SUITE_P(
    Eingaben, SuchanfrageTest,
    testing::Values(Zeile{"", "", ""}, Zeile{"   ", "", ""}, Zeile{"Bär", "[bar]", ""},
                    Zeile{" rote  Nase ", "[rote][nase]", ""}, Zeile{"\"rote Nase\"", "[rote nase]", ""},
                    Zeile{"„rote  Nase“ lang", "[rote nase][lang]", ""},
                    Zeile{"\"rote Nase", "[rote nase]", ""}, Zeile{"\"\"", "", ""}, Zeile{"-", "", ""},
                    Zeile{"- Hund", "[hund]", ""}, Zeile{"Hund -Katze", "[hund]", "[katze]"},
                    Zeile{"-\"rote Nase\" Clown", "[clown]", "[rote nase]"}, Zeile{"A-Z", "[a-z]", ""},
                    Zeile{"--x", "", "[-x]"}, Zeile{"rot\"blau\"", "[rot\"blau\"]", ""},
                    Zeile{"ß ü", "[ss][u]", ""}));

std::string Markiert(std::string_view text, std::string_view eingabe) {
    std::string ergebnis;
    std::size_t bisher = 0;
    for (const Textbereich& bereich : Fundstellen(text, AnfrageAus(eingabe))) {
        ergebnis += text.substr(bisher, bereich.von - bisher);
        ergebnis += '<' + std::string(text.substr(bereich.von, bereich.bis - bereich.von)) + '>';
        bisher = bereich.bis;
    }
    return ergebnis + std::string(text.substr(bisher));
}

TEST(SuchanfrageTest, WhatWasFoundIsMarkedAsItIsWritten) {
    EXPECT_EQ(Markiert("Der Bär und der Baer", "bar"), "Der <Bär> und der <Baer>");
    EXPECT_EQ(Markiert("Straße", "SS"), "Stra<ß>e");
    EXPECT_EQ(Markiert("Straße", "stras"), "<Straß>e");
    EXPECT_EQ(Markiert("Quelle", "elle"), "Qu<elle>");
    EXPECT_EQ(Markiert("rote  Nase", "\"rote nase\""), "<rote  Nase>");
    EXPECT_EQ(Markiert("rote Nase", "ote nas ote"), "r<ote> <Nas>e");
    EXPECT_EQ(Markiert("Banane", "ana"), "B<ana>ne");
    EXPECT_EQ(Markiert("Ananas", "ana"), "<Anana>s");
    EXPECT_EQ(Markiert("Hund", "-Hund"), "Hund");
    EXPECT_EQ(Markiert("", "x"), "");
}

} // namespace
