#include "search/suche.h"

#include "core/cp1252.h"
#include "search/benutzung.h"
#include "tests/search/langsamesuche.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

namespace {

using Satz = std::array<std::string, 3>; // question, answer, points

Fragenbestand::Datei Datei(std::string_view thema, std::string_view unterthema,
                           const std::vector<Satz>& saetze) {
    Fragenliste liste;
    for (const Satz& satz : saetze) {
        const std::array<std::string, 3> bytes{NachCp1252(satz[0]), NachCp1252(satz[1]), satz[2]};
        liste.Anhaengen({"1", bytes[0], bytes[1], bytes[2]});
    }
    return BestandsdateiAus(thema, unterthema, std::move(liste));
}

std::shared_ptr<const Fragenbestand> Bestand(std::vector<Fragenbestand::Datei> dateien) {
    return std::make_shared<const Fragenbestand>(std::move(dateien));
}

std::shared_ptr<const Fragenbestand> Beispiel() {
    return Bestand({Datei("Tiere", "Haustiere",
                          {{"Wer bellt?", "Der Hund", "1"},
                           {"Wie heißt das Haus vom Hund?", "Hundehütte", "2"},
                           {"Was ist ein Windhund?", "Ein schneller Läufer", "3"},
                           {"Wer miaut?", "Die Katze", "1"}}),
                    Datei("Natur", "Wasser",
                          {{"Woraus entspringt ein Bach?", "Aus einer Quelle", "2"},
                           {"Welche Hunde retten Leute aus dem Wasser?", "Neufundländer", "4"},
                           {"Was ist größer: See oder Teich?", "See", "1"}})});
}

std::string Gefunden(const std::shared_ptr<const Fragenbestand>& bestand, std::string_view eingabe,
                     const Suchfilter& filter = {}) {
    std::string text;
    for (const std::uint32_t nr : Suchlauf().Suchen(bestand, AnfrageAus(eingabe), filter)) {
        text += (text.empty() ? "" : " ") + std::to_string(nr);
    }
    return text;
}

struct Zeile {
    const char* eingabe;
    const char* nummern;
};

class SucheTest : public testing::TestWithParam<Zeile> {};

TEST_P(SucheTest, TheQuestionsWithAllWordsComeBestFirst) {
    EXPECT_EQ(Gefunden(Beispiel(), GetParam().eingabe), GetParam().nummern);
}

INSTANTIATE_TEST_SUITE_P(
    Eingaben, SucheTest,
    testing::Values(Zeile{"", "0 1 2 3 4 5 6"},
                    Zeile{"hund", "1 0 5 2"}, // whole word, its beginning, its middle
                    Zeile{"HUND", "1 0 5 2"}, Zeile{"wasser", "5 4 6"}, // the question before the sub-theme
                    Zeile{"hund wasser", "5"}, Zeile{"wasser hund", "5"}, Zeile{"hund -wasser", "1 0 2"},
                    Zeile{"\"vom hund\"", "1"}, Zeile{"\"hund vom\"", ""}, Zeile{"-hund", "3 4 6"},
                    Zeile{"laeufer", "2"}, Zeile{"läufer", "2"}, Zeile{"laufer", "2"}, Zeile{"heisst", "1"},
                    Zeile{"elle", "2 4"}, Zeile{"quelle", "4"}, Zeile{"quell", "4"}, Zeile{"groesser", "6"},
                    Zeile{"tiere katze", "3"}, Zeile{"haustiere", "0 1 2 3"},
                    Zeile{"natur wasser aus", "5 4"}, Zeile{"gibtesnicht", ""}, Zeile{"?", "0 1 2 3 4 5 6"},
                    Zeile{"-natur -tiere", ""}));

TEST(SucheTest, AQuestionAndItsAnswerAreNoNeighbours) {
    EXPECT_EQ(Gefunden(Beispiel(), "\"bellt? der\""), "");
    EXPECT_EQ(Gefunden(Beispiel(), "\"hund wie\""), "");
}

TEST(SucheTest, ThemePointsAndUseLeaveOut) {
    Suchfilter filter;
    filter.thema = "Natur";
    EXPECT_EQ(Gefunden(Beispiel(), "hund", filter), "5");
    filter = {};
    filter.punkte = "1";
    EXPECT_EQ(Gefunden(Beispiel(), "", filter), "0 3 6");
    filter = {};
    filter.behalten = [](std::uint64_t abdruck) { return abdruck != AbdruckVon("wer BELLT"); };
    EXPECT_EQ(Gefunden(Beispiel(), "wer", filter), "3");
}

TEST(SucheTest, AnEmptyCatalogueHasNothing) {
    EXPECT_EQ(Gefunden(Bestand({}), "hund"), "");
    EXPECT_EQ(Gefunden(Bestand({Datei("Leer", "Leer", {})}), "leer"), "");
}

TEST(SucheTest, WhatIsTypedWordByWordFindsTheSameAsAtOnce) {
    Suchlauf lauf;
    const auto bestand = Beispiel();
    const std::string eingabe = "hund wasser -tiere";
    for (std::size_t tasten = 1; tasten <= eingabe.size(); ++tasten) {
        const Suchanfrage anfrage = AnfrageAus(eingabe.substr(0, tasten));
        EXPECT_EQ(lauf.Suchen(bestand, anfrage), Suchlauf().Suchen(bestand, anfrage)) << tasten;
    }
    EXPECT_EQ(lauf.Suchen(bestand, AnfrageAus("hund")), Suchlauf().Suchen(bestand, AnfrageAus("hund")));
}

TEST(SucheTest, RandomWordsFindWhatALookAtEachQuestionFinds) {
    constexpr std::array<std::string_view, 9> silben{"a", "e", "ae", "ä", "u", "ß", "n", " ", "s"};
    std::mt19937 zufall(99); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts each time
    const auto text = [&](std::size_t laenge) {
        std::string ergebnis;
        for (std::size_t i = 0; i < laenge; ++i) {
            ergebnis += silben.at(zufall() % silben.size());
        }
        return ergebnis;
    };
    Suchlauf lauf; // one for all: what it remembers of one search must not show in the next
    for (int runde = 0; runde < 300; ++runde) {
        std::vector<Satz> saetze;
        for (int i = 0; i < 20; ++i) {
            saetze.push_back({text(8), text(4), "1"});
        }
        const auto bestand = Bestand({Datei(text(3), text(3), saetze), Datei(text(2), text(2), saetze)});
        const std::string eingabe = (zufall() % 3 == 0 ? "-" : "") + text(3);
        const Suchanfrage anfrage = AnfrageAus(eingabe);
        std::vector<std::uint32_t> gefunden = lauf.Suchen(bestand, anfrage);
        std::ranges::sort(gefunden);
        std::vector<std::uint32_t> erwartet;
        for (std::uint32_t nr = 0; nr < bestand->anzahl(); ++nr) {
            if (langsam::Erwartet(bestand->frage(nr), anfrage)) {
                erwartet.push_back(nr);
            }
        }
        ASSERT_EQ(gefunden, erwartet) << eingabe;
    }
}

} // namespace
