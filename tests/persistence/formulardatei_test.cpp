#include "persistence/formulardatei.h"
#include "vorgaben.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::string QuizBytes() {
    QuizFuellen();
    return Quizdatei();
}

std::string TestBytes() {
    TestFuellen();
    return Testdatei();
}

// Lines joined by CR LF, as a file has them.
std::string Datei(const std::vector<std::string>& zeilen) {
    std::string bytes;
    for (const std::string& zeile : zeilen) {
        bytes += zeile + "\r\n";
    }
    return bytes;
}

// Everything between two markers of a file, the first one included.
std::string Abschnitt(const std::string& bytes, const std::string& von, const std::string& bis) {
    const auto anfang = bytes.find("\"" + von + "\"");
    return bytes.substr(anfang, bis.empty() ? bis.npos : bytes.find("\"" + bis + "\"") - anfang);
}

TEST(Formulardatei, AnEmptyQuizFormIs125LinesOf96InFragen) {
    AllesLeeren();
    const std::string bytes = Quizdatei();
    EXPECT_EQ(Zeilenzahl(bytes), 125);
    EXPECT_EQ(Zeilenzahl(Abschnitt(bytes, "[FRAGEN]", "")), 97) << "the marker and 96 values";
    EXPECT_TRUE(bytes.ends_with("\"\"\r\n"));
}

TEST(Formulardatei, AnEmptyTestFormIs39Lines) {
    AllesLeeren();
    EXPECT_EQ(Zeilenzahl(Testdatei()), 39);
}

TEST(Formulardatei, WithNeitherFormActiveTheFileGetsTheTypeWordAlone) {
    EXPECT_EQ(FormularBytes(Formart::Keine, W), "\"Feldkranz\"\r\n");
    EXPECT_EQ(FormularBytes(Formart::Fremd, W), "\"Feldkranz\"\r\n");
}

TEST(Formulardatei, TheHeadOfAQuizFormHasEveryByteInItsPlace) {
    QuizFuellen();
    W.quiz.FrageText[1] = "Wie hei\u00DFt der Fluß?";
    W.quiz.AntwortText[1] = "Ruhr";
    const std::string kopf = Datei({"\"Feldkranz\"",
                                    "\"FK\"",
                                    "\"[FKINI]\"",
                                    "\"FK\"",
                                    "24",
                                    "4",
                                    "6",
                                    "\"\"",
                                    "\"[ALLGEMEINES]\"",
                                    "\"7\"",
                                    "\"24. Dezember\"",
                                    "\"1\xBD Stunden\"",
                                    "\"[FKPUNKTE]\"",
                                    "2",
                                    "5",
                                    "3",
                                    "10",
                                    "4",
                                    "6",
                                    "1",
                                    "-3",
                                    "5",
                                    "11",
                                    "\"\"",
                                    "\"\"",
                                    "\"\"",
                                    "1.5",
                                    "3",
                                    "\"[FRAGEN]\"",
                                    "\"Gebiet 1\"",
                                    "\"Wie hei\xDFt der Flu\xDF?\"",
                                    "\"Ruhr\"",
                                    "\"A\""});
    EXPECT_EQ(Quizdatei().substr(0, kopf.size()), kopf);
}

TEST(Formulardatei, ATestFormHasEveryByteInItsPlace) {
    std::vector<std::string> zeilen{"\"Feldkranz\"", "\"Test\"", "\"[HB-ALLGEMEINES]\"", "\" TEST  HFZ\"",
                                    "\" Knoten\"",   "\" II\"",  "\"[HB-FRAGEN]\"",      "\" Knoten\""};
    for (int i = 1; i <= 10; ++i) {
        const std::string zahl = std::to_string(i);
        zeilen.insert(zeilen.end(), {"\"Aufgabe " + zahl + "\"", "\"L\xF6sung, " + zahl + "\"", zahl});
    }
    zeilen.emplace_back("55");
    EXPECT_EQ(TestBytes(), Datei(zeilen));
}

TEST(Formulardatei, TheWriterPutsTheTagOfItsLayoutWhateverFormTypSays) {
    QuizFuellen();
    W.art = Formart::Keine;
    EXPECT_EQ(Zeile(Quizdatei(), 4), "\"FK\"");
}

TEST(Formulardatei, AQuizFormReadsBackByteForByte) {
    const std::string bytes = QuizBytes();
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).ende, Leseende::Ganz);
    EXPECT_EQ(W.art, Formart::Quiz);
    EXPECT_EQ(W.quiz.FrageText[30], "Frage 30\r\nüber zwei Zeilen, mit Komma");
    EXPECT_EQ(W.spiel.Punkte[Spezialart::Risiko], -3);
    EXPECT_EQ(Quizdatei(), bytes);
}

TEST(Formulardatei, ATestFormReadsBackByteForByte) {
    const std::string bytes = TestBytes();
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).ende, Leseende::Ganz);
    EXPECT_EQ(W.art, Formart::Test);
    EXPECT_EQ(W.test.HBPunkte[10], 10);
    EXPECT_EQ(Testdatei(), bytes);
}

TEST(Formulardatei, ATypeWordInAnotherCaseIsRefusedAMarkerInAnotherCaseIsNot) {
    const std::string bytes = QuizBytes();
    AllesLeeren();
    std::string klein = bytes;
    klein[1] = 'f';
    EXPECT_EQ(Lesen(klein).ende, Leseende::KeinFormular);
    EXPECT_EQ(W.art, Formart::Keine);
    EXPECT_EQ(W.quiz.FormNr, "");

    std::string marken = bytes;
    marken.replace(marken.find("[FRAGEN]"), 8, "[fragen]");
    marken.replace(marken.find("[FKPUNKTE]"), 10, "[FkPunkte]");
    EXPECT_EQ(Lesen(marken).ende, Leseende::Ganz);
    EXPECT_EQ(Quizdatei(), bytes);
}

TEST(Formulardatei, ATextThatIsNoFormFileGives1) {
    AllesLeeren();
    for (const std::string_view bytes :
         {"Liebes Tagebuch,\r\n", "\r\n", " ", "\"\"", "[FKINI]\r\n", "Feldkranz2"}) {
        EXPECT_EQ(Lesen(bytes).ende, Leseende::KeinFormular) << bytes;
        EXPECT_EQ(Lesen(bytes).kennung, Formart::Keine);
    }
}

TEST(Formulardatei, TheTypeWordMayStandWithoutQuotesAndBehindBlanks) {
    AllesLeeren();
    EXPECT_EQ(Lesen("  Feldkranz  , FK , [ALLGEMEINES], 3, heute, lang\r\n").ende, Leseende::Ganz);
    EXPECT_EQ(W.quiz.FormDatum, "heute");
}

TEST(Formulardatei, AColourOf0LoadsAs7AndPunkteR0Stays) {
    QuizFuellen();
    W.spiel.FarbeHintergrund = 0;
    W.spiel.Punkte = W.spiel.Felder = {};
    const std::string bytes = Quizdatei();
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).ende, Leseende::Ganz);
    EXPECT_EQ(W.spiel.FarbeHintergrund, 7);
    EXPECT_EQ(W.spiel.Punkte, (Artwerte{5, 10, 10, 5, 0}));
    EXPECT_EQ(W.spiel.Felder, Artwerte{});
}

TEST(Formulardatei, TheRepairRunsAfterATestFormToo) {
    const std::string bytes = TestBytes();
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).ende, Leseende::Ganz);
    EXPECT_EQ(W.spiel.FarbeHintergrund, 7);
    EXPECT_EQ(W.spiel.Punkte[Spezialart::Ereignis], 10);
}

TEST(Formulardatei, AnEmptyFileCountsAsReadAndIsRepaired) {
    AllesLeeren();
    const FormularErgebnis ergebnis = Lesen("");
    EXPECT_EQ(ergebnis.ende, Leseende::Ganz);
    EXPECT_FALSE(ergebnis.begonnen());
    EXPECT_EQ(W.spiel.FarbeHintergrund, 7);
    EXPECT_EQ(W.art, Formart::Keine);
}

TEST(Formulardatei, ALineEndAndACommaInATextReadBackWhole) {
    QuizFuellen();
    W.quiz.FrageText[3] = "Eins,\r\nzwei,\ndrei";
    const std::string bytes = Quizdatei();
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).ende, Leseende::Ganz);
    EXPECT_EQ(W.quiz.FrageText[3], "Eins,\r\nzwei,\ndrei");
}

TEST(Formulardatei, ADoubleQuoteCutsItsTextAndTheNextValuesSlide) {
    QuizFuellen();
    W.quiz.FrageText[1] = "Wer rief \"Land\", und wann?";
    const std::string bytes = Quizdatei();
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).fehler, std::nullopt);
    EXPECT_EQ(W.quiz.FrageText[1], "Wer rief ");
    EXPECT_EQ(W.quiz.AntwortText[1], "und wann?\"");
    EXPECT_EQ(W.quiz.FeldSpezial[1], "Antwört 1");
}

TEST(Formulardatei, ATestFileWhileAQuizFormIsOpenIsRefusedAndChangesNothing) {
    const std::string test = TestBytes();
    const std::string vorher = QuizBytes();
    W.spiel.FarbeHintergrund = 0;
    W.test.HBFach = "unberührt";
    const FormularErgebnis ergebnis = Lesen(test);
    EXPECT_EQ(ergebnis.ende, Leseende::Abgelehnt);
    EXPECT_EQ(ergebnis.kennung, Formart::Test);
    EXPECT_FALSE(ergebnis.begonnen());
    EXPECT_EQ(W.art, Formart::Quiz);
    EXPECT_EQ(W.test.HBFach, "unberührt");
    EXPECT_EQ(W.spiel.FarbeHintergrund, 0) << "no repair either";
    W.spiel.FarbeHintergrund = 3;
    EXPECT_EQ(Quizdatei(), vorher);
}

TEST(Formulardatei, AQuizFileWhileATestFormIsOpenIsRefusedAndSoIsAnyOtherTag) {
    const std::string quiz = QuizBytes();
    TestFuellen();
    EXPECT_EQ(Lesen(quiz).ende, Leseende::Abgelehnt);
    EXPECT_EQ(Lesen(quiz).kennung, Formart::Quiz);
    EXPECT_EQ(Lesen("\"Feldkranz\"\r\n\"fk\"\r\n").ende, Leseende::Abgelehnt);
    EXPECT_EQ(W.art, Formart::Test);
}

TEST(Formulardatei, WithNoFormOpenEitherKindLoads) {
    const std::string quiz = QuizBytes();
    const std::string test = TestBytes();
    AllesLeeren();
    EXPECT_EQ(Lesen(quiz).ende, Leseende::Ganz);
    EXPECT_EQ(W.art, Formart::Quiz);
    AllesLeeren();
    EXPECT_EQ(Lesen(test).ende, Leseende::Ganz);
    EXPECT_EQ(W.art, Formart::Test);
}

TEST(Formulardatei, AnUnknownSectionIsPassedOverWithItsValues) {
    const std::string bytes = QuizBytes();
    std::string mehr = bytes;
    mehr.insert(mehr.find("\"[FKPUNKTE]\""), "\"[WETTER]\"\r\n\"Regen, viel\"\r\n12\r\n");
    AllesLeeren();
    EXPECT_EQ(Lesen(mehr).ende, Leseende::Ganz);
    EXPECT_EQ(Quizdatei(), bytes);
}

TEST(Formulardatei, AValueTooFewTakesTheNextMarkerAndThatSectionIsPassedOver) {
    std::string bytes = QuizBytes();
    bytes.erase(bytes.find("\"1\xBD Stunden\"\r\n"), 14);
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).ende, Leseende::Ganz);
    EXPECT_EQ(W.quiz.FormZeit, "[FKPUNKTE]");
    EXPECT_EQ(W.spiel.Felder[Spezialart::Aktion], 0);
    EXPECT_EQ(W.quiz.WissenTitel[1], "Gebiet 1") << "the section after it is read again";
}

TEST(Formulardatei, SectionsMayStandInAnyOrderAndRepeatAndTheLastCounts) {
    const std::string bytes = QuizBytes();
    const std::string fragen = Abschnitt(bytes, "[FRAGEN]", "");
    const std::string punkte = Abschnitt(bytes, "[FKPUNKTE]", "[FRAGEN]");
    const std::string allgemein = Abschnitt(bytes, "[ALLGEMEINES]", "[FKPUNKTE]");
    const std::string ini = Abschnitt(bytes, "[FKINI]", "[ALLGEMEINES]");
    const std::string anders = Datei({"[allgemeines]", "99", "nie", "kurz"});
    AllesLeeren();
    EXPECT_EQ(Lesen("\"Feldkranz\"\r\n\"FK\"\r\n" + fragen + anders + punkte + allgemein + ini).ende,
              Leseende::Ganz);
    EXPECT_EQ(Quizdatei(), bytes);
}

TEST(Formulardatei, AMissingSectionLeavesItsValues) {
    const std::string bytes = QuizBytes();
    AllesLeeren();
    W.quiz.FormNr = "alt";
    W.spiel.Felder[Spezialart::Joker] = 9;
    EXPECT_EQ(Lesen("\"Feldkranz\"\r\n\"FK\"\r\n" + Abschnitt(bytes, "[FRAGEN]", "")).ende, Leseende::Ganz);
    EXPECT_EQ(W.quiz.FormNr, "alt");
    EXPECT_EQ(W.spiel.Felder[Spezialart::Joker], 9);
    EXPECT_EQ(W.quiz.FrageText[30], "Frage 30\r\nüber zwei Zeilen, mit Komma");
}

TEST(Formulardatei, ValuesSeparatedByCommasReadTheSame) {
    QuizFuellen();
    for (std::string& text : W.quiz.FrageText) {
        text = "Was?";
    }
    const std::string bytes = Quizdatei();
    std::string kommas = bytes;
    for (auto ende = kommas.find("\r\n"); ende != kommas.npos; ende = kommas.find("\r\n", ende)) {
        kommas.replace(ende, 2, " , ");
    }
    kommas.resize(kommas.size() - 3);
    AllesLeeren();
    EXPECT_EQ(Lesen(kommas).ende, Leseende::Ganz);
    EXPECT_EQ(Quizdatei(), bytes);
}

TEST(Formulardatei, LineEndsOfOtherSystemsReadTheSame) {
    TestFuellen();
    const std::string bytes = Testdatei();
    for (const char ende : {'\r', '\n'}) {
        std::string anders = bytes;
        std::erase(anders, ende == '\r' ? '\n' : '\r');
        AllesLeeren();
        EXPECT_EQ(Lesen(anders).ende, Leseende::Ganz);
        EXPECT_EQ(Testdatei(), bytes);
    }
}

TEST(Formulardatei, HelpAndRemarkAreReadFromAFormAndNeverWritten) {
    AllesLeeren();
    const std::string bytes =
        Datei({"\"Feldkranz\"", "\"Test\"", "\"[HILFE]\"", "\"a\"", "\"b\"", "\"c\"", "\"d\"", "\"e\"",
               "\"\"", "\"\"", "\"\"", "\"\"", "\"\"", "\"[BEMERKUNG]\"", "\"Schön war's\""});
    EXPECT_EQ(Lesen(bytes).ende, Leseende::Ganz);
    EXPECT_EQ(W.spiel.HilfeEintrag[1] + W.spiel.HilfeEintrag[5], "ae");
    EXPECT_EQ(W.Bemerkung, "SchÃ¶n war's") << "the bytes of a file are code page 1252";
    EXPECT_EQ(Quizdatei().find("HILFE"), std::string::npos);
    EXPECT_EQ(Quizdatei().find("BEMERKUNG"), std::string::npos);
}

TEST(Formulardatei, TheTagOfLine4OverwritesThatOfLine2WithoutACheck) {
    std::string bytes = QuizBytes();
    bytes.replace(bytes.find("[FKINI]\"\r\n\"FK\"") + 10, 4, "\"Test\"");
    W.art = Formart::Quiz;
    EXPECT_EQ(Lesen(bytes).ende, Leseende::Ganz);
    EXPECT_EQ(W.art, Formart::Test);
}

TEST(Formulardatei, AnOverlongNumberIsReportedAndTheReaderGoesOnBehindIt) {
    const std::string bytes = Datei({"\"Feldkranz\"", "\"FK\"", "\"[FKINI]\"", "\"FK\"", "30", "99999", "5",
                                     "6", "\"\"", "\"[ALLGEMEINES]\"", "\"1\"", "\"2\"", "\"3\""});
    AllesLeeren();
    std::vector<int> stellen;
    const auto ergebnis = Lesen(bytes, [&](const Laufzeitfehler& fehler) {
        EXPECT_EQ(fehler.nummer(), 6);
        stellen.push_back(fehler.zeile());
    });
    EXPECT_EQ(stellen, std::vector<int>{6});
    EXPECT_EQ(ergebnis.ende, Leseende::Ganz);
    EXPECT_EQ(W.spiel.FragenProWissen, 5);
    EXPECT_EQ(W.spiel.AnzahlWissen, 6);
    EXPECT_EQ(W.quiz.FormZeit, "3");
}

TEST(Formulardatei, AFileCutInsideASectionEndsInError62WithThePartReadAndNoRepair) {
    std::string bytes = QuizBytes();
    bytes.resize(bytes.find("\"Antw\xF6rt 2\""));
    AllesLeeren();
    const FormularErgebnis ergebnis = Lesen(bytes);
    ASSERT_TRUE(ergebnis.fehler);
    EXPECT_EQ(ergebnis.ende, Leseende::Abgebrochen);
    EXPECT_TRUE(ergebnis.begonnen());
    EXPECT_EQ(ergebnis.fehler->nummer(), 62);
    EXPECT_EQ(ergebnis.fehler->zeile(), Zeilenzahl(bytes) + 1);
    EXPECT_EQ(W.quiz.FrageText[2], "Frage 2\r\nüber zwei Zeilen, mit Komma");
    EXPECT_EQ(W.quiz.AntwortText[2], "");
}

TEST(Formulardatei, NoRepairRunsAfterError62) {
    AllesLeeren();
    EXPECT_EQ(Lesen("\"Feldkranz\"\r\n\"Test\"\r\n\"[HB-FRAGEN]\"\r\n").fehler->nummer(), 62);
    EXPECT_EQ(W.spiel.FarbeHintergrund, 0);
    EXPECT_EQ(W.art, Formart::Test);
}

TEST(FKIni, OnlyItsSectionIsReadWhateverElseTheFileHolds) {
    const std::string bytes = QuizBytes();
    AllesLeeren();
    const auto werte = FKIniAusBytes(bytes);
    ASSERT_TRUE(werte);
    EXPECT_EQ(werte->felderGesamt, 24);
    EXPECT_EQ(werte->fragenProWissen, 4);
    EXPECT_EQ(werte->anzahlWissen, 6);
}

TEST(FKIni, ATestFormOrAnEmptyFileHasNone) {
    EXPECT_EQ(FKIniAusBytes(TestBytes()), std::nullopt);
    EXPECT_EQ(FKIniAusBytes(""), std::nullopt);
}

TEST(FKIni, ADamagedSectionIsAnError) {
    const auto nummer = [](std::string_view bytes) {
        try {
            (void)FKIniAusBytes(bytes);
        } catch (const Laufzeitfehler& fehler) {
            return fehler.nummer();
        }
        return 0;
    };
    EXPECT_EQ(nummer("[FKINI]\r\nFK\r\n30\r\n"), 62);
    EXPECT_EQ(nummer("[FKINI]\r\nFK\r\n300000\r\n5\r\n6\r\n\"\"\r\n"), 6);
}

} // namespace
