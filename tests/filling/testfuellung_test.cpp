// The test form's rows without a question and their questions, without a window.
#include "filling/testfuellung.h"

#include "tests/filling/fuellhilfe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <limits>
#include <map>
#include <numeric>

namespace {

const std::vector<Themenwahl> knoten{{"Häuptlingsbuch", "Knoten"}};

Testwunsch Wunsch(std::vector<Themenwahl> wahl = knoten) {
    return {std::move(wahl), true};
}

Fuellauftrag Auftrag(Kunstkatalog& katalog, const Testformular& form = {}) {
    return TestauftragAus(katalog.vorrat(), form, Wunsch());
}

void ExpectOhneWiederholung(const Fuellauftrag& auftrag, const Vorschlag& vorschlag) {
    for (std::size_t n = 1; n < vorschlag.size(); ++n) {
        for (std::size_t m = 1; vorschlag[n] && m < n; ++m) {
            EXPECT_FALSE(vorschlag[m] && auftrag.vorrat->wiederholt(*vorschlag[n], *vorschlag[m]));
        }
    }
}

std::size_t ErsteLeere(const Fuellauftrag& auftrag) {
    std::size_t i = 1;
    while (auftrag.felder[i].lage != Feldlage::Leer) {
        ++i;
    }
    return i;
}

// Totals that the form can have, each with the most rows that make it, by trying all choices of questions.
std::map<int, int> AlleSummen(const Fuellauftrag& auftrag) {
    std::vector<int> zeilen;
    for (std::size_t i = 1; i <= 10; ++i) {
        if (auftrag.felder[i].lage == Feldlage::Leer) {
            zeilen.push_back(auftrag.felder[i].punkte);
        }
    }
    const Frageliste fragen = zeilen.empty() ? Frageliste{} : auftrag.felder[ErsteLeere(auftrag)].kandidaten;
    std::map<int, int> summen;
    for (unsigned wahl = 1; wahl < 1U << fragen.size(); ++wahl) {
        const auto anzahl = static_cast<std::size_t>(std::popcount(wahl));
        if (anzahl <= zeilen.size()) {
            int summe = Gesamtpunkte(auftrag, {});
            for (std::size_t f = 0; f < fragen.size(); ++f) {
                summe += (wahl >> f & 1U) != 0 ? auftrag.vorrat->punkte(fragen[f]) : 0;
            }
            summe -= std::accumulate(zeilen.begin(), zeilen.begin() + static_cast<std::ptrdiff_t>(anzahl), 0);
            summen[summe] = std::max(summen[summe], static_cast<int>(anzahl));
        }
    }
    return summen;
}

// As near as any choice comes, and with as many rows as any that comes so near.
void ExpectAmNaechsten(const Fuellauftrag& auftrag, const Vorschlag& vorschlag, int ziel) {
    std::pair<int, int> beste{std::numeric_limits<int>::max(), 0}; // distance, rows taken negative
    for (const auto& [summe, zeilen] : AlleSummen(auftrag)) {
        beste = std::min(beste, std::pair(std::abs(summe - ziel), -zeilen));
    }
    if (beste.second < 0) {
        EXPECT_EQ(std::abs(Gesamtpunkte(auftrag, vorschlag) - ziel), beste.first);
        EXPECT_EQ(Anzahl(vorschlag), static_cast<std::size_t>(-beste.second));
    } else {
        EXPECT_EQ(Anzahl(vorschlag), 0U);
    }
}

} // namespace

TEST(Testfuellung, EveryTotalThatTenRowsCanHaveIsMet) {
    Kunstkatalog katalog;
    katalog.fragen("Häuptlingsbuch", "Knoten", 12);
    const Fuellauftrag auftrag = Auftrag(katalog);
    for (int ziel = 10; ziel <= 50; ++ziel) {
        const Vorschlag vorschlag = Testvorschlag(auftrag, ziel, static_cast<std::uint64_t>(ziel));
        EXPECT_EQ(Anzahl(vorschlag), 10U) << ziel;
        EXPECT_EQ(Gesamtpunkte(auftrag, vorschlag), ziel);
        ExpectOhneWiederholung(auftrag, vorschlag);
    }
}

TEST(Testfuellung, FewerRowsWhereOnlyTheyMeetTheTotal) {
    Kunstkatalog katalog;
    katalog.fragen("Häuptlingsbuch", "Knoten", 12);
    const Fuellauftrag auftrag = Auftrag(katalog);
    const Vorschlag vorschlag = Testvorschlag(auftrag, 7, 1);
    EXPECT_EQ(Anzahl(vorschlag), 7U); // of one point each
    EXPECT_EQ(Gesamtpunkte(auftrag, vorschlag), 7);
    EXPECT_TRUE(vorschlag[7]);
    EXPECT_FALSE(vorschlag[8]);
}

TEST(Testfuellung, ATotalOutOfReachIsMetAsNearlyAsCanBe) {
    Kunstkatalog katalog;
    for (int i = 0; i < 12; ++i) {
        katalog.frage("Häuptlingsbuch", "Knoten", 4);
    }
    const Fuellauftrag auftrag = Auftrag(katalog);
    EXPECT_EQ(Gesamtpunkte(auftrag, Testvorschlag(auftrag, 100, 1)), 40);
    EXPECT_EQ(Gesamtpunkte(auftrag, Testvorschlag(auftrag, 39, 1)), 40);
    EXPECT_EQ(Gesamtpunkte(auftrag, Testvorschlag(auftrag, 21, 1)), 20);
    EXPECT_EQ(Gesamtpunkte(auftrag, Testvorschlag(auftrag, 22, 1)), 24); // as near as 20, and a row more
}

TEST(Testfuellung, WhatStandsOnTheFormStaysAndCounts) {
    Kunstkatalog katalog;
    katalog.fragen("Häuptlingsbuch", "Knoten", 12);
    Testformular form;
    form.HBFrageText[2] = Kunstfrage(1);
    form.HBPunkte[2] = 8;
    form.HBFrageText[3] = "Frage"; // the placeholder
    form.HBPunkte[3] = 20;
    form.HBAntwortText[5] = "nur eine Antwort";
    form.HBPunkte[5] = 3;
    const Fuellauftrag auftrag = Auftrag(katalog, form);
    EXPECT_EQ(auftrag.leere(), 8U);
    const Vorschlag vorschlag = Testvorschlag(auftrag, 40, 1);
    EXPECT_EQ(Anzahl(vorschlag), 8U);
    EXPECT_FALSE(vorschlag[2]);
    EXPECT_TRUE(vorschlag[3]);
    EXPECT_FALSE(vorschlag[5]);
    EXPECT_EQ(Gesamtpunkte(auftrag, vorschlag), 40); // 8 and 3 stay, the 20 go
    for (const auto& nr : vorschlag) {
        EXPECT_NE(nr, 0U); // the question of the second row
    }
}

TEST(Testfuellung, RowsThatGetNoQuestionKeepTheirPoints) {
    Kunstkatalog katalog;
    katalog.frage("Häuptlingsbuch", "Knoten", 2).frage("Häuptlingsbuch", "Knoten", 3);
    Testformular form;
    form.HBPunkte.fill(1);
    const Fuellauftrag auftrag = Auftrag(katalog, form);
    const Vorschlag vorschlag = Testvorschlag(auftrag, 13, 1);
    EXPECT_EQ(Anzahl(vorschlag), 2U);
    EXPECT_EQ(Gesamtpunkte(auftrag, vorschlag), 13); // 2 and 3, and one point for each of eight rows
}

TEST(Testfuellung, WithoutATotalAllRowsAreFilled) {
    Kunstkatalog katalog;
    katalog.fragen("Häuptlingsbuch", "Knoten", 12);
    const Fuellauftrag auftrag = Auftrag(katalog);
    std::set<int> summen;
    for (std::uint64_t saat = 0; saat < 40; ++saat) {
        const Vorschlag vorschlag = Testvorschlag(auftrag, {}, saat);
        EXPECT_EQ(Anzahl(vorschlag), 10U);
        summen.insert(Gesamtpunkte(auftrag, vorschlag));
        EXPECT_EQ(vorschlag, Testvorschlag(auftrag, {}, saat));
    }
    EXPECT_GT(summen.size(), 5U);
}

TEST(Testfuellung, QuestionsThatSayTheSameComeOnce) {
    Kunstkatalog katalog;
    katalog.frage("Häuptlingsbuch", "Knoten", 2, "Mit welchem Knoten macht man ein Boot am Pfahl fest?")
        .frage("Häuptlingsbuch", "Knoten", 3, "Mit welchem Knoten macht man das Boot an einem Pfahl fest?")
        .frage("Häuptlingsbuch", "Knoten", 4, "Woraus besteht ein Seil?");
    const Fuellauftrag auftrag = Auftrag(katalog);
    EXPECT_EQ(Gesamtpunkte(auftrag, Testvorschlag(auftrag, 9, 1)), 7);
    EXPECT_EQ(Gesamtpunkte(auftrag, Testvorschlag(auftrag, 6, 1)), 6);
    EXPECT_EQ(Gesamtpunkte(auftrag, Testvorschlag(auftrag, 5, 1)), 6); // 4 alone is as near
}

TEST(Testfuellung, OnlyChosenSubThemesUnusedAndWithPoints) {
    Kunstkatalog katalog;
    katalog.frage("Häuptlingsbuch", "Knoten", 2, "Eins und eins")
        .frage("Häuptlingsbuch", "Knoten", 0)
        .frage("Häuptlingsbuch", "Knoten", 21)
        .frage("Häuptlingsbuch", "Heraldik", 2)
        .frage("Tiere", "Vögel", 2);
    const auto vorrat = katalog.vorrat({"Eins und eins"});
    EXPECT_EQ(TestauftragAus(vorrat, {}, Wunsch()).felder[1].kandidaten, Frageliste{});
    EXPECT_EQ(TestauftragAus(vorrat, {}, {knoten, false}).felder[1].kandidaten, Frageliste{0});
    const std::vector<Themenwahl> zwei{{"Tiere", "Vögel"}, {"Häuptlingsbuch", "Heraldik"}};
    EXPECT_EQ(TestauftragAus(vorrat, {}, Wunsch(zwei)).felder[1].kandidaten, (Frageliste{3, 4}));
    EXPECT_EQ(Anzahl(Testvorschlag(TestauftragAus(vorrat, {}, Wunsch({})), 10, 1)), 0U);
}

TEST(Testfuellung, ARowDrawnAgainKeepsItsPoints) {
    Kunstkatalog katalog;
    katalog.fragen("Häuptlingsbuch", "Knoten", 12);
    const Fuellauftrag auftrag = Auftrag(katalog);
    Vorschlag vorschlag = Testvorschlag(auftrag, 33, 1);
    for (std::size_t i = 1; i <= 10; ++i) {
        const Vorschlag vorher = vorschlag;
        ASSERT_TRUE(NeuZiehen(auftrag, vorschlag, i, i));
        EXPECT_NE(vorschlag[i], vorher[i]);
        EXPECT_EQ(Gesamtpunkte(auftrag, vorschlag), 33);
        ExpectOhneWiederholung(auftrag, vorschlag);
    }
}

TEST(Testfuellung, ASubjectProposesItsSubTheme) {
    EXPECT_EQ(WahlAusFach("Knoten"), knoten);
    EXPECT_EQ(WahlAusFach(" Erste Hilfe"), (std::vector<Themenwahl>{{"Häuptlingsbuch", "Erste Hilfe"}}));
    EXPECT_EQ(WahlAusFach(" Fach").size(), 19U);
    EXPECT_EQ(WahlAusFach("").size(), 19U);
}

// Three hundred forms of all kinds, held against what must be true of any.
TEST(Testfuellung, NoFormBreaksARule) {
    Kunstkatalog katalog;
    katalog.fragen("Häuptlingsbuch", "Knoten", 2).fragen("Häuptlingsbuch", "Heraldik", 1);
    const auto vorrat = katalog.vorrat();
    for (std::uint64_t saat = 0; saat < 300; ++saat) {
        Wuerfel wuerfel(saat);
        Testformular form;
        for (std::size_t i = 1; i <= 10; ++i) {
            form.HBFrageText.at(i) =
                wuerfel.unter(3) == 0 ? Kunstfrage(static_cast<unsigned>(wuerfel.unter(20))) : "";
            form.HBPunkte.at(i) = static_cast<std::int16_t>(wuerfel.unter(6));
        }
        const int ziel = static_cast<int>(wuerfel.unter(60));
        const Fuellauftrag auftrag = TestauftragAus(vorrat, form, Wunsch());
        const Vorschlag vorschlag = Testvorschlag(auftrag, ziel, saat);
        for (std::size_t i = 1; i <= 10; ++i) {
            EXPECT_TRUE(!vorschlag[i] || form.HBFrageText.at(i).empty());
            EXPECT_TRUE(!vorschlag[i] || vorrat->frage(*vorschlag[i]).unterthema == "Knoten");
            EXPECT_TRUE(!vorschlag[i] || !vorrat->wiederholungen(form.HBFrageText).at(*vorschlag[i]));
        }
        ExpectOhneWiederholung(auftrag, vorschlag);
        ExpectAmNaechsten(auftrag, vorschlag, ziel);
    }
}
