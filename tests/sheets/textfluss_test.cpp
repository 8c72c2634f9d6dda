// How a table of texts flows over pages, with a measure of text that can be reckoned in the head: at 10
// points a letter is 1 mm wide and a line 5 mm high.
#include "sheets/textfluss.h"

#include "tests/printing/probemass.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

Blattsatz Blaetter(const Textfluss& fluss) {
    return Fliessen(fluss, Probemass());
}

std::vector<std::string> Texte(const Zeichnung& seite) {
    std::vector<std::string> texte;
    for (const Textstelle& text : Alle<Textstelle>(seite)) {
        texte.push_back(text.text);
    }
    return texte;
}

bool Hat(const Zeichnung& seite, const std::string& text) {
    return std::ranges::count(Texte(seite), text) > 0;
}

Textfluss Abschnitte(int anzahl, int zeilen) {
    Textfluss fluss;
    fluss.kopf = "Kopf";
    for (int a = 1; a <= anzahl; ++a) {
        Flussabschnitt abschnitt;
        abschnitt.titel = "Titel" + std::to_string(a);
        for (int z = 1; z <= zeilen; ++z) {
            const std::string nr = std::to_string(a) + '/' + std::to_string(z);
            abschnitt.zeilen.push_back({std::to_string(z), "F" + nr, "A" + nr, "5"});
        }
        fluss.abschnitte.push_back(abschnitt);
    }
    return fluss;
}

// Lowest edge of a text on the page, but for the page's number.
float Unten(const Zeichnung& seite) {
    float unten = 0.0F;
    for (const Textstelle& text : Alle<Textstelle>(seite)) {
        if (!text.text.starts_with("Seite ")) {
            unten = std::max(unten, text.y.zahl() + text.schrift.groesse.zahl() * 0.5F);
        }
    }
    return unten;
}

} // namespace

TEST(Textfluss, RowsStandInTheirOrderColumnForColumn) {
    const Blattsatz blatt = Blaetter(Abschnitte(1, 2));
    ASSERT_EQ(blatt.seiten.size(), 1U);
    EXPECT_EQ(Texte(blatt.seiten.front()),
              (std::vector<std::string>{"Kopf", "Frage", "Antwort", "Punkte", "Titel1", "1", "F1/1", "A1/1",
                                        "5", "2", "F1/2", "A1/2", "5"}));
    EXPECT_TRUE(blatt.ueberhaenge.empty());
}

TEST(Textfluss, WhatDoesNotFitGoesOnOnANumberedPage) {
    const Blattsatz blatt = Blaetter(Abschnitte(6, 10));
    ASSERT_GT(blatt.seiten.size(), 1U);
    for (std::size_t i = 0; i < blatt.seiten.size(); ++i) {
        EXPECT_LE(Unten(blatt.seiten.at(i)), 279.0F) << i;
        EXPECT_TRUE(Hat(blatt.seiten.at(i),
                        "Seite " + std::to_string(i + 1) + " von " + std::to_string(blatt.seiten.size())));
    }
    for (int a = 1; a <= 6; ++a) {
        for (int z = 1; z <= 10; ++z) {
            const std::string frage = "F" + std::to_string(a) + '/' + std::to_string(z);
            const auto mal = std::ranges::count_if(
                blatt.seiten, [&frage](const Zeichnung& seite) { return Hat(seite, frage); });
            EXPECT_EQ(mal, 1) << frage;
        }
    }
}

TEST(Textfluss, ATitleStandsAboveARowAndIsRepeatedOnTheNextPage) {
    for (int zeilen = 18; zeilen <= 34; ++zeilen) { // the break comes everywhere about the second title
        Textfluss fluss = Abschnitte(2, zeilen);
        const Blattsatz blatt = Blaetter(fluss);
        for (const Zeichnung& seite : blatt.seiten) {
            const std::vector<std::string> texte = Texte(seite);
            for (std::size_t i = 0; i < texte.size(); ++i) {
                if (texte.at(i).starts_with("Titel")) {
                    ASSERT_LT(i + 1, texte.size());
                    EXPECT_EQ(texte.at(i + 1).find_first_not_of("0123456789"), std::string::npos)
                        << zeilen << ": " << texte.at(i + 1);
                }
            }
        }
        if (blatt.seiten.size() > 1 && !Hat(blatt.seiten.at(1), "Titel2")) {
            EXPECT_TRUE(Hat(blatt.seiten.at(1), "Titel1 (weiter)") ||
                        Hat(blatt.seiten.at(1), "Titel2 (weiter)"));
        }
    }
}

TEST(Textfluss, ARowLongerThanAPageGoesOnOnTheNextOneWithoutLosingALine) {
    Textfluss fluss;
    std::string frage;
    for (int i = 1; i <= 200; ++i) {
        frage += "Zeile" + std::to_string(i) + "\r\n";
    }
    fluss.abschnitte.push_back({"", {{"1", frage, "Antwort", "5"}}});
    fluss.schluss = "Schluss";
    const Blattsatz blatt = Blaetter(fluss);
    ASSERT_GE(blatt.seiten.size(), 4U);
    int zeilen = 0;
    for (const Zeichnung& seite : blatt.seiten) {
        for (const std::string& text : Texte(seite)) {
            zeilen += text.starts_with("Zeile") ? 1 : 0;
        }
        EXPECT_LE(Unten(seite), 279.0F);
    }
    EXPECT_EQ(zeilen, 200);
    EXPECT_TRUE(Hat(blatt.seiten.back(), "Schluss"));
}

TEST(Textfluss, AnEmptyFormIsAPageWithItsHead) {
    const Blattsatz blatt = Blaetter({"Kopf", {""}, {}, ""});
    ASSERT_EQ(blatt.seiten.size(), 1U);
    EXPECT_TRUE(Hat(blatt.seiten.front(), "Kopf"));
}
