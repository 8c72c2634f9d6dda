// Broken files: each is read with a stated result, none brings the reader down or makes it stand still.
#include "persistence/einstellungsdatei.h"
#include "persistence/formularabschnitte.h"
#include "persistence/formulardatei.h"
#include "vorgaben.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

using Melder = WertLeser::Fehlermelder;

// Where a cut leaves the reader: inside the head, inside a section, or between two.
struct Schnitt {
    std::string bytes;
    Formart kennung; // of the whole file
};

void JedenSchnittPruefen(const Schnitt& schnitt) {
    const std::string_view ganz = schnitt.bytes;
    const std::size_t endeWort = ganz.find("\r\n") + 2;
    for (std::size_t laenge = 0; laenge <= ganz.size(); ++laenge) {
        AllesLeeren();
        const FormularErgebnis ergebnis = Lesen(ganz.substr(0, laenge));
        if (laenge == 0 || laenge == ganz.size()) {
            EXPECT_EQ(ergebnis.ende, Leseende::Ganz) << laenge;
        } else if (laenge < std::string_view("\"Feldkranz").size()) {
            EXPECT_EQ(ergebnis.ende, Leseende::KeinFormular) << laenge;
        } else if (laenge < endeWort) {
            // The word is whole; what follows is missing, or is the lone line feed of a torn line end.
            EXPECT_EQ(ergebnis.fehler->nummer(), 62) << laenge;
        } else if (ergebnis.fehler) {
            EXPECT_EQ(ergebnis.fehler->nummer(), 62) << laenge;
            EXPECT_LE(ergebnis.fehler->zeile(), Zeilenzahl(ganz.substr(0, laenge)) + 2) << laenge;
        } else {
            EXPECT_EQ(ergebnis.ende, Leseende::Ganz) << laenge;
            // A word cut short is a foreign one.
            const bool ganzesWort = laenge >= endeWort + Formkennung(schnitt.kennung).size() + 1;
            EXPECT_TRUE(ergebnis.kennung == schnitt.kennung || !ganzesWort) << laenge;
        }
    }
}

TEST(Formularzoo, AQuizFormCutAtEveryByteIsReadToAStatedResult) {
    QuizFuellen();
    JedenSchnittPruefen({Quizdatei(), Formart::Quiz});
}

TEST(Formularzoo, ATestFormCutAtEveryByteIsReadToAStatedResult) {
    TestFuellen();
    JedenSchnittPruefen({Testdatei(), Formart::Test});
}

TEST(Formularzoo, ACutBehindAWholeValueOfASectionIsAlwaysError62) {
    QuizFuellen();
    for (std::string& text : W.quiz.FrageText) {
        text = "Was?";
    }
    const std::string ganz = Quizdatei();
    std::size_t laenge = 0;
    for (int zeile = 1; zeile < 125; ++zeile) {
        laenge = ganz.find("\r\n", laenge) + 2;
        AllesLeeren();
        const FormularErgebnis ergebnis = Lesen(ganz.substr(0, laenge));
        if (zeile == 2 || zeile == 8 || zeile == 12 || zeile == 28) {
            EXPECT_EQ(ergebnis.ende, Leseende::Ganz) << "between two sections, line " << zeile;
        } else {
            ASSERT_TRUE(ergebnis.fehler) << zeile;
            EXPECT_EQ(ergebnis.fehler->nummer(), 62);
            EXPECT_EQ(ergebnis.fehler->zeile(), zeile + 1);
        }
    }
}

TEST(Formularzoo, RandomBytesAreNoFormFile) {
    std::mt19937 zufall(20080101); // NOLINT(cert-msc51-cpp): the same bytes at every run
    for (int lauf = 0; lauf < 500; ++lauf) {
        std::string bytes(1 + zufall() % 3000, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(zufall() & 0xFFU);
        }
        AllesLeeren();
        EXPECT_EQ(Lesen(bytes).ende, Leseende::KeinFormular);
        EXPECT_EQ(FKIniAusBytes(bytes), std::nullopt);
    }
}

// Pieces of the format in random order behind a good head, so that the section readers get them.
std::string ZufaelligeStuecke(std::mt19937& zufall) {
    static const std::vector<std::string> stuecke{"\"[FKINI]\"",
                                                  "\"[FRAGEN]\"",
                                                  "[HB-FRAGEN]",
                                                  "[FKPUNKTE]",
                                                  "[hilfe]",
                                                  "\"[BEMERKUNG]\"",
                                                  "[ALLGEMEINES]",
                                                  "\"",
                                                  ",",
                                                  "\r\n",
                                                  "\r",
                                                  "\n",
                                                  "99999999999",
                                                  "-1",
                                                  "1e400",
                                                  " ",
                                                  "\"a\"",
                                                  "FK",
                                                  "Test",
                                                  std::string(1, '\0')};
    std::string bytes = "\"Feldkranz\"\r\n\"FK\"\r\n";
    for (auto rest = zufall() % 400; rest > 0; --rest) {
        bytes += stuecke[zufall() % stuecke.size()];
        bytes += zufall() % 2 == 0 ? "\r\n" : "";
    }
    return bytes;
}

TEST(Formularzoo, PiecesOfTheFormatInAnyOrderEndInZeroOr62) {
    std::mt19937 zufall(42); // NOLINT(cert-msc51-cpp): the same bytes at every run
    for (int lauf = 0; lauf < 2000; ++lauf) {
        const std::string bytes = ZufaelligeStuecke(zufall);
        AllesLeeren();
        std::size_t gemeldet = 0;
        const auto ergebnis = Lesen(bytes, [&](const Laufzeitfehler& fehler) {
            EXPECT_EQ(fehler.nummer(), 6);
            ++gemeldet;
        });
        EXPECT_TRUE(ergebnis.ende == Leseende::Ganz || (ergebnis.fehler && ergebnis.fehler->nummer() == 62))
            << lauf;
        EXPECT_LE(gemeldet, bytes.size() / 4);
        // What was read can be written and read again.
        const std::string neu = Quizdatei();
        AllesLeeren();
        EXPECT_EQ(Lesen(neu).ende, Leseende::Ganz);
    }
}

TEST(Formularzoo, NulBytesInEveryValueAreHarmless) {
    QuizFuellen();
    std::string bytes = Quizdatei();
    for (auto stelle = bytes.find("Frage"); stelle != bytes.npos; stelle = bytes.find("Frage", stelle)) {
        bytes[stelle] = '\0';
    }
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).ende, Leseende::Ganz);
    EXPECT_EQ(W.quiz.FrageText[7].substr(0, 5), std::string("\0rage", 5));
    EXPECT_EQ(Quizdatei(), bytes);
}

TEST(Formularzoo, AQuoteThatNeverClosesTakesTheRestOfTheFile) {
    QuizFuellen();
    std::string bytes = Quizdatei();
    std::erase(bytes, '"');
    bytes.insert(bytes.find("24. Dezember"), "\"");
    AllesLeeren();
    const FormularErgebnis ergebnis = Lesen(bytes);
    EXPECT_EQ(ergebnis.fehler->nummer(), 62);
    EXPECT_TRUE(W.quiz.FormDatum.starts_with("24. Dezember\r\n1½ Stunden\r\n[FKPUNKTE]"));
    EXPECT_EQ(W.quiz.FormZeit, "");
}

TEST(Formularzoo, AHundredMegabytesOfOneTextAreError7OnceAndTheReaderGoesOnBehindThem) {
    std::string bytes = "\"Feldkranz\"\r\n\"FK\"\r\n\"[BEMERKUNG]\"\r\n\"";
    bytes.append(100'000'000, 'x');
    bytes += "\"\r\n\"kurz\"\r\n";
    AllesLeeren();
    std::vector<Laufzeitfehler> gemeldet;
    const auto ergebnis = Lesen(bytes, [&](const Laufzeitfehler& f) { gemeldet.push_back(f); });
    EXPECT_EQ(ergebnis.ende, Leseende::Ganz);
    ASSERT_EQ(gemeldet.size(), 1U);
    EXPECT_EQ(gemeldet[0].nummer(), 7);
    EXPECT_EQ(gemeldet[0].zeile(), 4);
    EXPECT_EQ(W.Bemerkung, "kurz");
}

TEST(Formularzoo, ATextOf64KiBIsReadWhole) {
    const std::string text(laengsterText, 'x');
    AllesLeeren();
    EXPECT_EQ(Lesen("\"Feldkranz\"\r\n\"FK\"\r\n[BEMERKUNG]\r\n\"" + text + "\"\r\n").ende, Leseende::Ganz);
    EXPECT_EQ(W.Bemerkung, text);
}

TEST(Formularzoo, AHundredMegabytesOfOneNumberAreAnOverflowOnce) {
    std::string bytes = "\"Feldkranz\"\r\n\"FK\"\r\n\"[FKINI]\"\r\nFK\r\n";
    bytes.append(100'000'000, '7');
    AllesLeeren();
    int gemeldet = 0;
    const auto ergebnis = Lesen(bytes, [&](const Laufzeitfehler&) { ++gemeldet; });
    EXPECT_EQ(gemeldet, 1);
    EXPECT_EQ(ergebnis.fehler->nummer(), 62);
}

TEST(Formularzoo, MillionsOfEmptyLinesAndOverflowsTakeLinearTime) {
    std::string bytes = "\"Feldkranz\"\r\n\"FK\"\r\n";
    for (int i = 0; i < 5'000'000; ++i) {
        bytes += "\r\n";
    }
    bytes += "[FKINI]\r\nFK\r\n";
    for (int i = 0; i < 1'000'000; ++i) {
        bytes += "99999\r\n";
    }
    AllesLeeren();
    int gemeldet = 0;
    const auto ergebnis = Lesen(bytes, [&](const Laufzeitfehler&) { ++gemeldet; });
    EXPECT_EQ(gemeldet, 1'000'000);
    EXPECT_EQ(ergebnis.fehler->nummer(), 62);
    EXPECT_EQ(ergebnis.fehler->zeile(), 6'000'005);
}

TEST(Einstellungszoo, ASettingsFileCutAtEveryByteIsReadOrEndsInError62) {
    AllesLeeren();
    const std::string ganz = EinstellungenBytes(W.spiel);
    for (std::size_t laenge = 0; laenge <= ganz.size(); ++laenge) {
        try {
            EinstellungenAusBytes(std::string_view(ganz).substr(0, laenge), W.spiel);
        } catch (const Laufzeitfehler& fehler) {
            EXPECT_EQ(fehler.nummer(), 62) << laenge;
        }
    }
    EXPECT_EQ(EinstellungenBytes(W.spiel), ganz);
}

TEST(Einstellungszoo, RandomBytesChangeNothing) {
    AllesLeeren();
    const std::string vorher = EinstellungenBytes(W.spiel);
    std::mt19937 zufall(7); // NOLINT(cert-msc51-cpp): the same bytes at every run
    for (int lauf = 0; lauf < 300; ++lauf) {
        std::string bytes(1 + zufall() % 3000, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(zufall() & 0xFFU);
        }
        EinstellungenAusBytes(bytes, W.spiel);
    }
    EXPECT_EQ(EinstellungenBytes(W.spiel), vorher);
}

} // namespace
