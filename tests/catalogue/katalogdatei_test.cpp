#include "catalogue/katalogdatei.h"
#include "core/cp1252.h"
#include "core/laufzeitfehler.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using Werte = std::vector<std::string>;

// A column as the texts it holds.
Werte Texte(const Fragenliste& liste, Spalte spalte) {
    Werte texte;
    for (std::size_t i = 0; i < liste.anzahl(); ++i) {
        texte.emplace_back(liste.wert(i, spalte));
    }
    return texte;
}

// Number of the run-time error that a reading ends in, 0 for none.
int Fehlernummer(const std::function<void()>& lauf) {
    try {
        lauf();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.nummer();
    }
    return 0;
}

std::string Namen(int anzahl, const std::string& vorsatz = "Name ") {
    std::string bytes = "Kopfzeile\r\n";
    for (int i = 1; i <= anzahl; ++i) {
        bytes += vorsatz + std::to_string(i) + "\r\n";
    }
    return bytes;
}

TEST(Fragendatei, FourLinesMakeAQuestion) {
    Fragenliste liste;
    FragenLesen(
        "Kopf, egal\r\n1\r\nWo liegt \"K\xF6ln\", genau?\r\nAm Rhein\r\n3\r\n2\r\nWer?\r\n  Ich \r\n\r\n",
        false, liste);
    EXPECT_EQ(Texte(liste, Spalte::Nr), (Werte{"1", "2"}));
    EXPECT_EQ(Texte(liste, Spalte::Frage), (Werte{"Wo liegt \"Köln\", genau?", "Wer?"}));
    EXPECT_EQ(Texte(liste, Spalte::Antwort), (Werte{"Am Rhein", "  Ich "}));
    EXPECT_EQ(Texte(liste, Spalte::Punkte), (Werte{"3", ""}));
}

TEST(Fragendatei, AHeaderAloneGivesEmptyListsAndNoError) {
    Fragenliste liste;
    EXPECT_EQ(Fehlernummer([&] { FragenLesen("Kopf\r\n", false, liste); }), 0);
    EXPECT_EQ(Fehlernummer([&] { FragenLesen("Kopf", true, liste); }), 0);
    EXPECT_EQ(liste.anzahl(), 0U);
    EXPECT_EQ(Fehlernummer([&] { FragenLesen("", false, liste); }), 62);
}

TEST(Fragendatei, ARecordCutBehindItsQuestionIsLostAndTheOthersStay) {
    Fragenliste liste;
    EXPECT_EQ(Fehlernummer([&] { FragenLesen("K\r\n1\r\nF1\r\nA1\r\n1\r\n2\r\nF2\r\n", false, liste); }), 62);
    EXPECT_EQ(Texte(liste, Spalte::Frage), Werte{"F1"});
}

TEST(Fragendatei, TheLastLineNeedsNoLineEnd) {
    Fragenliste liste;
    FragenLesen("K\r\n1\r\nF\r\nA\r\n5", false, liste);
    EXPECT_EQ(Texte(liste, Spalte::Punkte), Werte{"5"});
}

TEST(Fragendatei, RecordsAreAppendedToWhatTheListHolds) {
    Fragenliste liste;
    FragenLesen("K\r\n1\r\nF\r\nA\r\n5\r\n", false, liste);
    FragenLesen("K\r\n1\r\nG\r\nB\r\n6\r\n", false, liste);
    EXPECT_EQ(Texte(liste, Spalte::Frage), (Werte{"F", "G"}));
}

constexpr std::string_view mitKommentar = "K\r\n1\r\n'Notiz\r\nF\r\nA\r\n2\r\n";

TEST(Fragendatei, AnApostropheLineOfLandIsAValueAndShiftsTheOthersByOne) {
    Fragenliste liste;
    EXPECT_EQ(Fehlernummer([&] { FragenLesen(mitKommentar, ThemaSuchen("Land")->kommentarzeilen, liste); }),
              62);
    EXPECT_EQ(Texte(liste, Spalte::Frage), Werte{"'Notiz"});
    EXPECT_EQ(Texte(liste, Spalte::Antwort), Werte{"F"});
    EXPECT_EQ(Texte(liste, Spalte::Punkte), Werte{"A"});
}

TEST(Fragendatei, TheSameApostropheLineOfAufgabenIsSkipped) {
    Fragenliste liste;
    FragenLesen(mitKommentar, ThemaSuchen("- Aufgaben -")->kommentarzeilen, liste);
    EXPECT_EQ(Texte(liste, Spalte::Frage), Werte{"F"});
    EXPECT_EQ(Texte(liste, Spalte::Punkte), Werte{"2"});
}

TEST(Fragendatei, AnyNumberOfCommentLinesMayStandAheadOfEachLineButNotOfTheHeader) {
    Fragenliste liste;
    FragenLesen("'Kopf\r\n'a\r\n'b\r\n1\r\n'c\r\nF\r\n'd\r\n 'A\r\n''\r\n'\r\n9\r\n", true, liste);
    EXPECT_EQ(Texte(liste, Spalte::Nr), Werte{"1"});
    EXPECT_EQ(Texte(liste, Spalte::Antwort), Werte{" 'A"}) << "only a first character makes a comment";
    EXPECT_EQ(Texte(liste, Spalte::Punkte), Werte{"9"});
}

TEST(Fragendatei, ACommentBehindTheLastRecordLosesNothing) {
    Fragenliste liste;
    EXPECT_EQ(Fehlernummer([&] { FragenLesen("K\r\n1\r\nF\r\nA\r\n2\r\n'Ende\r\n", true, liste); }), 62);
    EXPECT_EQ(Texte(liste, Spalte::Nr), Werte{"1"});
}

TEST(Fragendatei, AnEmptyLineBehindTheLastRecordLosesNothing) {
    Fragenliste liste;
    EXPECT_EQ(Fehlernummer([&] { FragenLesen("K\r\n1\r\nF\r\nA\r\n2\r\n\r\n", false, liste); }), 62);
    EXPECT_EQ(Texte(liste, Spalte::Nr), Werte{"1"});
}

TEST(Fragendatei, CutAtEveryByteItKeepsWholeRecordsOnly) {
    const std::string ganz = "Kopf\r\n1\r\nF1\r\nA1\r\n1\r\n2\r\nF2\r\nA2\r\n2\r\n";
    for (std::size_t laenge = 0; laenge <= ganz.size(); ++laenge) {
        Fragenliste liste;
        const int nummer =
            Fehlernummer([&] { FragenLesen(std::string_view(ganz).substr(0, laenge), false, liste); });
        EXPECT_TRUE(nummer == 0 || nummer == 62) << laenge;
        EXPECT_EQ(liste.anzahl(), laenge < 18 ? 0U : laenge < 32 ? 1U : 2U) << laenge;
    }
}

TEST(Fragendatei, ARecordWithALineTooLongForTheScreenIsLeftOutAndTheOthersAreThere) {
    const std::string lang(65537, 'x');
    const std::string bytes = "K\r\n1\r\nF1\r\nA\r\n5\r\n2\r\n" + lang + "\r\nA\r\n5\r\n" + "3\r\nF3\r\n" +
                              std::string(65536, 'y') + "\r\n5\r\n" + lang + "\r\n" + lang + "\r\nA\r\n" +
                              lang;
    Fragenliste liste;
    std::vector<int> zeilen;
    FragenLesen(bytes, false, liste, [&zeilen](int zeile) { zeilen.push_back(zeile); });
    EXPECT_EQ(Texte(liste, Spalte::Frage), (Werte{"F1", "F3"}));
    EXPECT_EQ(zeilen, (std::vector<int>{7, 14})) << "the first long line of each record";
}

TEST(Fragendatei, ALongLastLineIsNamedWithOrWithoutItsEnd) {
    for (const char* ende : {"", "\r\n", "\n"}) {
        Fragenliste liste;
        int gemeldet = 0;
        FragenLesen("K\r\n1\r\nF\r\nA\r\n" + std::string(100000, 'x') + ende, false, liste,
                    [&gemeldet](int zeile) { gemeldet = zeile; });
        EXPECT_EQ(liste.anzahl(), 0U);
        EXPECT_EQ(gemeldet, 5);
    }
}

TEST(Fragendatei, ALongLineIsNamedAlsoWhereItsRecordIsCutShort) {
    Fragenliste liste;
    std::vector<int> zeilen;
    const std::string bytes = "K\r\n1\r\n" + std::string(100000, 'x');
    EXPECT_EQ(Fehlernummer([&] {
                  FragenLesen(bytes, false, liste, [&zeilen](int zeile) { zeilen.push_back(zeile); });
              }),
              62);
    EXPECT_EQ(zeilen, std::vector<int>{3});
}

TEST(Fragendatei, ALongCommentLineLosesNothing) {
    Fragenliste liste;
    FragenLesen("K\r\n'" + std::string(100000, 'x') + "\r\n1\r\nF\r\nA\r\n5\r\n", true, liste);
    EXPECT_EQ(Texte(liste, Spalte::Frage), Werte{"F"});
}

TEST(Fragendatei, UmlautsAndSignsOfEveryLengthStandBesideEachOtherWhole) {
    std::string zeile;
    for (int byte = 255; byte >= 32; --byte) {
        zeile += static_cast<char>(byte);
    }
    for (int mal = 0; mal < 3; ++mal) {
        zeile += zeile; // longer than any block
    }
    Fragenliste liste;
    FragenLesen("K\n" + zeile + "\n\x80\nAntwort\xDF\n\n" + "2\rF\rA\rP", false, liste);
    EXPECT_EQ(Texte(liste, Spalte::Nr), (Werte{AusCp1252(zeile), "2"}));
    EXPECT_EQ(Texte(liste, Spalte::Frage), (Werte{"€", "F"}));
    EXPECT_EQ(Texte(liste, Spalte::Antwort), (Werte{"Antwortß", "A"}));
    EXPECT_EQ(Texte(liste, Spalte::Punkte), (Werte{"", "P"}));
}

TEST(Themenliste, TakesTwentyLinesWholeBehindTheHeader) {
    Namensliste liste;
    ThemenlisteLesen(Namen(25, " \"T\", "), liste);
    EXPECT_EQ(liste[0], "");
    EXPECT_EQ(liste[1], " \"T\", 1");
    EXPECT_EQ(liste[20], " \"T\", 20");
}

TEST(Themenliste, WithTooFewNamesThePlacesNotReachedKeepWhatTheyHeld) {
    Namensliste liste;
    liste.fill("alt");
    EXPECT_EQ(Fehlernummer([&] { ThemenlisteLesen("Kopf\r\nH\xE4uptlingsbuch\r\n\r\n", liste); }), 62);
    EXPECT_EQ(liste[1], "Häuptlingsbuch");
    EXPECT_EQ(liste[2], "");
    EXPECT_EQ(liste[3], "alt");
}

TEST(Unterthemenliste, IsReadTokenByToken) {
    Namensliste liste;
    UnterthemenlisteLesen("Kopf\r\n\"Erste Hilfe\"\r\nRot, Gr\xFCn\r\n\r\n" + Namen(20), liste);
    EXPECT_EQ(liste[1], "Erste Hilfe");
    EXPECT_EQ(liste[2], "Rot");
    EXPECT_EQ(liste[3], "Grün");
    EXPECT_EQ(liste[4], "");
    EXPECT_EQ(liste[5], "Kopfzeile");
    EXPECT_EQ(liste[20], "Name 15");
}

TEST(Unterthemenliste, WithFewerThanTwentyNamesEndsInError62) {
    Namensliste liste;
    EXPECT_EQ(Fehlernummer([&] { UnterthemenlisteLesen(Namen(19), liste); }), 62);
    EXPECT_EQ(liste[19], "Name 19");
    EXPECT_EQ(Fehlernummer([&] { UnterthemenlisteLesen(Namen(20), liste); }), 0);
}

} // namespace
