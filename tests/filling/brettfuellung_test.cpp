// The quiz form's empty cells and their questions, without a window.
#include "filling/brettfuellung.h"

#include "quizform/feldregeln.h"
#include "tests/filling/fuellhilfe.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

std::size_t Nr(int gebiet, int zeile) {
    return static_cast<std::size_t>(Feldnummer(gebiet, zeile));
}

Brettwunsch AlleAus(const std::string& thema) {
    Brettwunsch wunsch;
    wunsch.gebiete.fill({thema, ""});
    return wunsch;
}

// Areas above those ask for nothing that there is.
Brettwunsch Gebiete(const std::vector<Themenwahl>& wahlen) {
    Brettwunsch wunsch = AlleAus("nichts");
    std::copy(wahlen.begin(), wahlen.end(), wunsch.gebiete.begin() + 1);
    return wunsch;
}

Vorschlag Gefuellt(Kunstkatalog& katalog, const Quizformular& form, const Brettwunsch& wunsch,
                   std::uint64_t saat = 1, const Spielwerte& spiel = {}) {
    return Brettvorschlag(BrettauftragAus(katalog.vorrat(), form, spiel, wunsch), saat);
}

Spielwerte Brettform(std::int16_t gebiete, std::int16_t fragen) {
    Spielwerte spiel;
    spiel.OptionMaxFelder = true;
    spiel.OptionMaxWissen = true;
    spiel.AnzahlWissen = gebiete;
    spiel.FragenProWissen = fragen;
    return spiel;
}

void ExpectKeineWiederholung(const Fragenvorrat& vorrat, const Vorschlag& vorschlag,
                             const std::vector<std::string>& vorhanden) {
    const std::vector<bool> steht = vorrat.wiederholungen(vorhanden);
    for (std::size_t n = 1; n < vorschlag.size(); ++n) {
        for (std::size_t m = 1; vorschlag[n] && m < n; ++m) {
            EXPECT_FALSE(vorschlag[m] && vorrat.wiederholt(*vorschlag[n], *vorschlag[m])) << n << ' ' << m;
        }
        EXPECT_FALSE(vorschlag[n] && steht[*vorschlag[n]]) << n;
    }
}

} // namespace

TEST(Brettfuellung, AnEmptyBoardIsFilledByThePointsOfItsRows) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 3)
        .fragen("Natur", "Erde", 3)
        .fragen("- Aufgaben -", "Standardaufgaben", 9);
    const auto vorrat = katalog.vorrat();
    const Vorschlag vorschlag = Brettvorschlag(BrettauftragAus(vorrat, {}, {}, {}), 1);
    ASSERT_EQ(vorschlag.size(), 31U);
    EXPECT_EQ(Anzahl(vorschlag), 30U);
    for (std::size_t n = 1; n <= 30; ++n) {
        ASSERT_TRUE(vorschlag[n]);
        EXPECT_EQ(vorrat->punkte(*vorschlag[n]), ZeileVon(static_cast<int>(n)));
        EXPECT_TRUE(IstFragenthema(vorrat->frage(*vorschlag[n]).thema));
    }
    ExpectKeineWiederholung(*vorrat, vorschlag, {});
}

TEST(Brettfuellung, WithoutTheRuleAnyPointsWillDo) {
    Kunstkatalog katalog;
    for (int i = 0; i < 30; ++i) {
        katalog.frage("Tiere", "Vögel", 2);
    }
    Brettwunsch wunsch;
    EXPECT_EQ(Anzahl(Gefuellt(katalog, {}, wunsch)), 6U); // the second rows
    wunsch.punkteWieZeile = false;
    EXPECT_EQ(Anzahl(Gefuellt(katalog, {}, wunsch)), 30U);
}

TEST(Brettfuellung, AreasThatCompeteForQuestionsAreAllFilled) {
    Kunstkatalog katalog;
    // The first two areas take from Vögel alone what the third can leave them.
    katalog.fragen("Tiere", "Vögel", 2).fragen("Tiere", "Echsen", 1);
    const auto vorrat = katalog.vorrat();
    const Brettwunsch wunsch = Gebiete({{"Tiere", "Vögel"}, {"Tiere", "Vögel"}, {"Tiere", ""}});
    for (std::uint64_t saat = 0; saat < 100; ++saat) {
        const Vorschlag vorschlag = Brettvorschlag(BrettauftragAus(vorrat, {}, {}, wunsch), saat);
        ASSERT_EQ(Anzahl(vorschlag), 15U) << saat;
        for (int zeile = 1; zeile <= 5; ++zeile) {
            EXPECT_EQ(vorrat->frage(*vorschlag[Nr(3, zeile)]).unterthema, "Echsen");
        }
    }
}

TEST(Brettfuellung, TooFewQuestionsFillWhatTheyCan) {
    Kunstkatalog katalog;
    katalog.frage("Tiere", "Vögel", 1).frage("Tiere", "Vögel", 1).frage("Tiere", "Vögel", 4);
    const Vorschlag vorschlag = Gefuellt(katalog, {}, AlleAus("Tiere"));
    EXPECT_EQ(Anzahl(vorschlag), 3U);
    EXPECT_EQ(Anzahl(Gefuellt(katalog, {}, AlleAus("Land"))), 0U);
}

TEST(Brettfuellung, JokerAndEreignisHoldTheirMarkerAndATakesATask) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 6).fragen("- Aufgaben -", "Standardaufgaben", 1);
    const auto vorrat = katalog.vorrat();
    Quizformular form;
    form.FeldSpezial[Nr(1, 1)] = "J";
    form.FeldSpezial[Nr(2, 2)] = "E";
    form.FeldSpezial[Nr(3, 3)] = "A";
    form.FeldSpezial[Nr(4, 4)] = "G";
    form.FeldSpezial[Nr(5, 5)] = "R";
    const Fuellauftrag auftrag = BrettauftragAus(vorrat, form, {}, {});
    EXPECT_EQ(auftrag.leere(), 28U);
    const Vorschlag vorschlag = Brettvorschlag(auftrag, 1);
    EXPECT_EQ(Anzahl(vorschlag), 28U);
    EXPECT_FALSE(vorschlag[Nr(1, 1)]);
    EXPECT_FALSE(vorschlag[Nr(2, 2)]);
    EXPECT_EQ(vorrat->frage(*vorschlag[Nr(3, 3)]).thema, aufgabenthema);
    EXPECT_EQ(vorrat->punkte(*vorschlag[Nr(3, 3)]), 3);
    EXPECT_EQ(vorrat->frage(*vorschlag[Nr(4, 4)]).thema, "Tiere");
    EXPECT_EQ(vorrat->frage(*vorschlag[Nr(5, 5)]).thema, "Tiere");
}

TEST(Brettfuellung, AnswerAloneIsAFilledCell) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 6);
    Quizformular form;
    form.FrageText[4] = "Was steht hier?";
    form.AntwortText[9] = "nur das";
    const Vorschlag vorschlag = Gefuellt(katalog, form, {});
    EXPECT_EQ(Anzahl(vorschlag), 28U);
    EXPECT_FALSE(vorschlag[4]);
    EXPECT_FALSE(vorschlag[9]);
}

TEST(Brettfuellung, ClosedAreasAndRowsStayEmpty) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 6);
    const Vorschlag vorschlag = Gefuellt(katalog, {}, {}, 1, Brettform(4, 3));
    EXPECT_EQ(Anzahl(vorschlag), 12U);
    for (int gebiet = 1; gebiet <= 6; ++gebiet) {
        for (int zeile = 1; zeile <= 5; ++zeile) {
            EXPECT_EQ(vorschlag[Nr(gebiet, zeile)].has_value(), gebiet <= 4 && zeile % 2 == 1);
        }
    }
}

TEST(Brettfuellung, WhatIsOnTheFormOrNearlyDoesntComeAgain) {
    Kunstkatalog katalog;
    katalog.frage("Tiere", "Vögel", 1, "Welcher Vogel legt seine Eier in fremde Nester?")
        .frage("Tiere", "Echsen", 1, "Welcher Vogel legt Eier in die fremden Nester?")
        .frage("Tiere", "Echsen", 1, "Wodurch verliert die Eidechse ihren Schwanz?");
    Quizformular form;
    EXPECT_EQ(Anzahl(Gefuellt(katalog, form, {})), 2U); // of the two that say the same one comes
    form.FrageText[2] = "Welcher Vogel legt seine Eier in fremde Nester?";
    EXPECT_EQ(Anzahl(Gefuellt(katalog, form, {})), 1U);
}

TEST(Brettfuellung, OnlyUnusedQuestionsIfWanted) {
    Kunstkatalog katalog;
    katalog.frage("Tiere", "Vögel", 1, "Eins und eins").frage("Tiere", "Vögel", 1, "Zwei mal zwei");
    const auto vorrat = katalog.vorrat({"Eins und eins"});
    Brettwunsch wunsch;
    Fuellauftrag auftrag = BrettauftragAus(vorrat, {}, {}, wunsch);
    EXPECT_EQ(Passende(auftrag, 1, 5), 1U);
    EXPECT_EQ(Anzahl(Brettvorschlag(auftrag, 1)), 1U);
    wunsch.nurUnbenutzte = false;
    auftrag = BrettauftragAus(vorrat, {}, {}, wunsch);
    EXPECT_EQ(Passende(auftrag, 1, 5), 2U);
    EXPECT_EQ(Anzahl(Brettvorschlag(auftrag, 1)), 2U);
}

TEST(Brettfuellung, TheSupplyCountsWhatFitsTheEmptyCellsOfAnArea) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 2).fragen("Natur", "Erde", 1);
    Quizformular form;
    form.FrageText[Nr(1, 1)] = "Hier steht schon etwas";
    form.FeldSpezial[Nr(2, 5)] = "J";
    const Fuellauftrag auftrag = BrettauftragAus(katalog.vorrat(), form, {}, {});
    EXPECT_EQ(Passende(auftrag, Nr(1, 1), Nr(1, 5)), 12U); // without the three of the first row
    EXPECT_EQ(Passende(auftrag, Nr(2, 1), Nr(2, 5)), 12U);
    EXPECT_EQ(Passende(auftrag, Nr(3, 1), Nr(3, 5)), 15U);
}

TEST(Brettfuellung, TheSameSeedGivesTheSameBoard) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 12);
    const Fuellauftrag auftrag = BrettauftragAus(katalog.vorrat(), {}, {}, {});
    EXPECT_EQ(Brettvorschlag(auftrag, 5), Brettvorschlag(auftrag, 5));
    EXPECT_NE(Brettvorschlag(auftrag, 5), Brettvorschlag(auftrag, 6));
}

TEST(Brettfuellung, ACellDrawnAgainGetsAnotherQuestionThatFits) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 7); // one of each number of points is left over
    const auto vorrat = katalog.vorrat();
    const Fuellauftrag auftrag = BrettauftragAus(vorrat, {}, {}, {});
    Vorschlag vorschlag = Brettvorschlag(auftrag, 1);
    for (std::size_t n = 1; n <= 30; ++n) {
        const Vorschlag vorher = vorschlag;
        ASSERT_TRUE(NeuZiehen(auftrag, vorschlag, n, n));
        EXPECT_NE(vorschlag[n], vorher[n]);
        EXPECT_EQ(vorrat->punkte(*vorschlag[n]), ZeileVon(static_cast<int>(n)));
        for (std::size_t m = 1; m <= 30; ++m) {
            EXPECT_TRUE(m == n || vorschlag[m] == vorher[m]);
        }
        ExpectKeineWiederholung(*vorrat, vorschlag, {});
    }
}

TEST(Brettfuellung, ACellWithoutAnotherQuestionStaysAsItIs) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 6);
    Quizformular form;
    form.FrageText[7] = "Hier steht schon etwas";
    const Fuellauftrag auftrag = BrettauftragAus(katalog.vorrat(), form, Brettform(5, 5), {});
    Vorschlag vorschlag = Brettvorschlag(auftrag, 1);
    const Vorschlag vorher = vorschlag;
    EXPECT_FALSE(NeuZiehen(auftrag, vorschlag, 7, 1));  // filled
    EXPECT_FALSE(NeuZiehen(auftrag, vorschlag, 30, 1)); // closed
    EXPECT_EQ(vorschlag, vorher);

    Kunstkatalog knapp;
    knapp.fragen("Tiere", "Vögel", 6);
    const Fuellauftrag voll = BrettauftragAus(knapp.vorrat(), {}, {}, {});
    vorschlag = Brettvorschlag(voll, 1);
    ASSERT_EQ(Anzahl(vorschlag), 30U);
    const Vorschlag ohne = vorschlag;
    EXPECT_FALSE(NeuZiehen(voll, vorschlag, 3, 1));
    EXPECT_EQ(vorschlag, ohne);
}

TEST(Brettfuellung, OfAProposalOnlyWhatStillFitsIsKept) {
    Kunstkatalog katalog;
    katalog.fragen("Tiere", "Vögel", 7).fragen("Natur", "Erde", 1);
    const auto vorrat = katalog.vorrat();
    const Brettwunsch tiere = AlleAus("Tiere");
    const Vorschlag vorschlag = Brettvorschlag(BrettauftragAus(vorrat, {}, {}, tiere), 1);
    Quizformular form;
    form.FrageText[3] = "Das tippe ich inzwischen";                       // filled meanwhile
    form.FrageText[30] = std::string(vorrat->frage(*vorschlag[8]).frage); // stands there now
    const Vorschlag danach = Bereinigt(BrettauftragAus(vorrat, form, {}, tiere), vorschlag);
    EXPECT_EQ(Anzahl(danach), 27U);
    EXPECT_FALSE(danach[3]);
    EXPECT_FALSE(danach[8]);
    EXPECT_FALSE(danach[30]);
    EXPECT_EQ(danach[9], vorschlag[9]);
    Brettwunsch anders = tiere;
    anders.gebiete[2] = {"Natur", ""};
    const Vorschlag ohneZwei = Bereinigt(BrettauftragAus(vorrat, {}, {}, anders), vorschlag);
    EXPECT_EQ(Anzahl(ohneZwei), 25U);
    EXPECT_FALSE(ohneZwei[Nr(2, 3)]);
}

TEST(Brettfuellung, AProposalOutlivesACatalogueThatIsReadAnew) {
    Kunstkatalog alt;
    alt.frage("Tiere", "Vögel", 1, "Eins und eins").frage("Tiere", "Vögel", 2, "Zwei mal zwei");
    Kunstkatalog neu;
    neu.frage("Natur", "Erde", 1).frage("Tiere", "Vögel", 2, "Zwei mal zwei");
    const Vorschlag vorschlag{std::nullopt, 0U, 1U, std::nullopt};
    const Vorschlag soll{std::nullopt, std::nullopt, 1U, std::nullopt};
    EXPECT_EQ(Uebertragen(*alt.vorrat(), *neu.vorrat(), vorschlag), soll);
}

TEST(Brettfuellung, ATitleProposesItsTheme) {
    struct Fall {
        const char *titel, *thema, *unterthema;
    };
    for (const Fall& fall : {Fall{"Tiere", "Tiere", ""}, Fall{" Neues Testament ", "Neues Testament", ""},
                             Fall{"Knoten", "Häuptlingsbuch", "Knoten"}, Fall{"Geschichte", "Geschichte", ""},
                             Fall{"Essen", "", ""}, // a sub-theme of two themes
                             Fall{"Wissen", "", ""}, Fall{"", "", ""}, Fall{"- Aufgaben -", "", ""},
                             Fall{"Standardaufgaben", "", ""}, Fall{"Lieder", "", ""}}) {
        EXPECT_EQ(WahlAusTitel(fall.titel), (Themenwahl{fall.thema, fall.unterthema})) << fall.titel;
    }
}

// A thousand boards of all kinds, held against what must be true of any.
TEST(Brettfuellung, NoBoardBreaksARule) {
    Kunstkatalog katalog;
    for (const char* thema : {"Tiere", "Natur", "Land"}) {
        katalog.fragen(thema, "Erde", 2).fragen(thema, "Luft", 1);
    }
    katalog.frage("Land", "Orte", 2, "Welche Stadt liegt an der Mündung der Elbe?")
        .frage("Natur", "Wasser", 2, "Welche Stadt liegt an der Elbe nahe ihrer Mündung?")
        .fragen("- Aufgaben -", "Standardaufgaben", 1);
    const auto vorrat = katalog.vorrat({Kunstfrage(3), Kunstfrage(17)});
    for (std::uint64_t saat = 0; saat < 1000; ++saat) {
        Wuerfel wuerfel(saat);
        Quizformular form;
        Brettwunsch wunsch;
        const std::array<const char*, 4> themen{"", "Tiere", "Natur", "Land"};
        const std::array<const char*, 7> buchstaben{"", "", "", "A", "J", "E", "G"};
        for (std::size_t a = 1; a <= 6; ++a) {
            wunsch.gebiete.at(a).thema = themen.at(wuerfel.unter(4));
        }
        wunsch.punkteWieZeile = wuerfel.unter(2) == 0;
        wunsch.nurUnbenutzte = wuerfel.unter(2) == 0;
        for (std::size_t n = 1; n <= 30; ++n) {
            form.FeldSpezial.at(n) = buchstaben.at(wuerfel.unter(7));
            form.FrageText.at(n) =
                wuerfel.unter(4) == 0 ? Kunstfrage(static_cast<unsigned>(wuerfel.unter(60))) : "";
        }
        const Spielwerte spiel = Brettform(static_cast<std::int16_t>(1 + wuerfel.unter(6)),
                                           static_cast<std::int16_t>(1 + wuerfel.unter(5)));
        const Feldsichten sichten = BrettSichten(spiel);
        const Vorschlag vorschlag = Brettvorschlag(BrettauftragAus(vorrat, form, spiel, wunsch), saat);
        for (std::size_t n = 1; n <= 30; ++n) {
            if (!vorschlag[n]) {
                continue;
            }
            const Fragennummer nr = *vorschlag[n];
            const std::string& wahl = wunsch.gebiete.at(Nr(GebietVon(static_cast<int>(n)), 1) / 5 + 1).thema;
            const std::string& buchstabe = form.FeldSpezial.at(n);
            EXPECT_TRUE(sichten.at(n).frage && form.FrageText.at(n).empty());
            EXPECT_TRUE(buchstabe != "J" && buchstabe != "E");
            EXPECT_TRUE(!wunsch.punkteWieZeile || vorrat->punkte(nr) == ZeileVon(static_cast<int>(n)));
            EXPECT_TRUE(!wunsch.nurUnbenutzte || !vorrat->benutzt(nr));
            const std::string_view thema = vorrat->frage(nr).thema;
            EXPECT_TRUE(buchstabe == "A" ? thema == aufgabenthema
                        : wahl.empty()   ? IstFragenthema(thema)
                                         : thema == wahl);
        }
        ExpectKeineWiederholung(*vorrat, vorschlag, {form.FrageText.begin(), form.FrageText.end()});
    }
}
