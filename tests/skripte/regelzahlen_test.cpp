// The rule document names the points and limits that the program counts by: read from its page and compared
// with the program's own numbers.
#include "rules/skalierung.h"
#include "rules/spezialarten.h"
#include "settings/vorgaben.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>

namespace {

std::string Text(const char* datei) {
    std::ostringstream text;
    text << std::ifstream(datei).rdbuf();
    return text.str();
}

std::string Seite() {
    return Text(FELDKRANZ_REGELSEITE);
}

const std::string buchstaben = "AEGJR";

TEST(Regelzahlen, EverySpecialFieldHasThePointsAndTheLimitOfTheRules) {
    const std::string seite = Seite();
    for (std::size_t i = 0; i < buchstaben.size(); ++i) {
        const std::string art = buchstaben.substr(i, 1);
        EXPECT_NE(seite.find("id=\"felder" + art + "\">" + std::to_string(werkFelder.werte.at(i)) + "<"),
                  std::string::npos)
            << art;
        // A risk has no points of its own: a question mark stands there.
        EXPECT_EQ(seite.find("id=\"punkte" + art + "\">" + std::to_string(werkPunkte.werte.at(i)) + "<") !=
                      std::string::npos,
                  werkPunkte.werte.at(i) > 0)
            << art;
    }
}

TEST(Regelzahlen, TheBoundsOfTheSettingsAreNamed) {
    EXPECT_NE(Seite().find("bis zu " + std::to_string(hoechstensFelder) + " Felder und bis zu " +
                           std::to_string(hoechstensPunkte) + " Punkte"),
              std::string::npos);
}

// One line of the table: areas, questions an area, questions, J G R A E, points J G A E.
TEST(Regelzahlen, TheTableOfSmallerBoardsIsTheProgramsConversion) {
    const std::regex zeile(
        "<td>(\\d) Gebiete, je (\\d) Fragen?</td><td>(\\d+)</td><td>(\\d)</td><td>(\\d)</td>"
        "<td>(\\d)</td><td>(\\d)</td><td>(\\d)</td><td>(\\d+) · (\\d+) · (\\d+) · (\\d+)</td>");
    const std::string seite = Seite();
    int zeilen = 0;
    for (std::sregex_iterator lauf(seite.begin(), seite.end(), zeile), ende; lauf != ende; ++lauf, ++zeilen) {
        const auto zahl = [&](std::size_t n) { return std::stoi((*lauf)[n].str()); };
        const int fragen = zahl(1) * zahl(2);
        const Artwerte felder = FelderUmrechnen(werkFelder, fragen);
        const Artwerte punkte = PunkteUmrechnen(werkPunkte, zahl(2));
        EXPECT_EQ(zahl(3), fragen);
        constexpr std::array<std::size_t, 5> felderfolge{3, 2, 4, 0, 1};
        for (std::size_t i = 0; i < felderfolge.size(); ++i) {
            EXPECT_EQ(zahl(4 + i), felder.werte.at(felderfolge.at(i)))
                << fragen << " questions, column " << i;
        }
        constexpr std::array<std::size_t, 4> punktefolge{3, 2, 0, 1};
        for (std::size_t i = 0; i < punktefolge.size(); ++i) {
            EXPECT_EQ(zahl(9 + i), punkte.werte.at(punktefolge.at(i))) << zahl(2) << " an area, column " << i;
        }
    }
    EXPECT_EQ(zeilen, 11);
}

TEST(Regelzahlen, TheExampleBoardIsFullAndHoldsEveryKindUpToItsLimit) {
    const std::string seite = Seite();
    const auto anzahl = [&](const std::string& was) {
        int n = 0;
        for (std::size_t i = seite.find(was); i != std::string::npos; i = seite.find(was, i + 1)) {
            ++n;
        }
        return n;
    };
    EXPECT_EQ(anzahl("<td><div class=\"feld"), 30);
    for (std::size_t i = 0; i < buchstaben.size(); ++i) {
        EXPECT_EQ(anzahl("<div class=\"feld k" + buchstaben.substr(i, 1) + "\">"), werkFelder.werte.at(i));
    }
}

// One line of the table: letter, colour, points, limit.
TEST(Regelzahlen, TheHandbooksTableHasThePointsAndTheLimitsOfTheRules) {
    const std::regex zeile("\\| ([AEGJR]) \\| [^|]+ \\| ([^|]+) \\| (\\d) \\|");
    const std::string handbuch = Text(FELDKRANZ_HANDBUCH);
    std::size_t zeilen = 0;
    for (std::sregex_iterator lauf(handbuch.begin(), handbuch.end(), zeile), ende; lauf != ende;
         ++lauf, ++zeilen) {
        const std::size_t art = buchstaben.find((*lauf)[1].str());
        EXPECT_EQ((*lauf)[3].str(), std::to_string(werkFelder.werte.at(art))) << (*lauf)[1].str();
        // Risk and task have no points of their own on the screen: dots and a word stand there.
        if (art == buchstaben.find('E') || art == buchstaben.find('G') || art == buchstaben.find('J')) {
            EXPECT_EQ((*lauf)[2].str(), std::to_string(werkPunkte.werte.at(art))) << (*lauf)[1].str();
        }
    }
    EXPECT_EQ(zeilen, buchstaben.size());
}

} // namespace
