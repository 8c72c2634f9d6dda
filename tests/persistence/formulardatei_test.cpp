#include "persistence/formulardatei.h"
#include "vorgaben.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

FormularErgebnis Lesen(std::string_view bytes) {
    return FormularAusBytes(bytes, {});
}

std::string QuizBytes() {
    QuizFuellen();
    return FormularBytes("FKFragen");
}

std::string TestBytes() {
    TestFuellen();
    return FormularBytes("HBFragen");
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
    const std::string bytes = FormularBytes("FKFragen");
    EXPECT_EQ(Zeilenzahl(bytes), 125);
    EXPECT_EQ(Zeilenzahl(Abschnitt(bytes, "[FRAGEN]", "")), 97) << "the marker and 96 values";
    EXPECT_TRUE(bytes.ends_with("\"\"\r\n"));
}

TEST(Formulardatei, AnEmptyTestFormIs39Lines) {
    AllesLeeren();
    EXPECT_EQ(Zeilenzahl(FormularBytes("HBFragen")), 39);
}

TEST(Formulardatei, WithNeitherFormActiveTheFileGetsTheTypeWordAlone) {
    EXPECT_EQ(FormularBytes(""), "\"Feldkranz\"\r\n");
    EXPECT_EQ(FormularBytes("Editor"), "\"Feldkranz\"\r\n");
}

TEST(Formulardatei, TheHeadOfAQuizFormHasEveryByteInItsPlace) {
    QuizFuellen();
    FrageText[1] = "Wie hei\u00DFt der Fluß?";
    AntwortText[1] = "Ruhr";
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
    EXPECT_EQ(FormularBytes("FKFragen").substr(0, kopf.size()), kopf);
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
    FormTyp = "";
    EXPECT_EQ(Zeile(FormularBytes("FKFragen"), 4), "\"FK\"");
}

TEST(Formulardatei, AQuizFormReadsBackByteForByte) {
    const std::string bytes = QuizBytes();
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).code, 0);
    EXPECT_EQ(FormTyp, "FK");
    EXPECT_EQ(FrageText[30], "Frage 30\r\nüber zwei Zeilen, mit Komma");
    EXPECT_EQ(PunkteR, -3);
    EXPECT_EQ(FormularBytes("FKFragen"), bytes);
}

TEST(Formulardatei, ATestFormReadsBackByteForByte) {
    const std::string bytes = TestBytes();
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).code, 0);
    EXPECT_EQ(FormTyp, "Test");
    EXPECT_EQ(HBPunkte[10], 10);
    EXPECT_EQ(FormularBytes("HBFragen"), bytes);
}

TEST(Formulardatei, ATypeWordInAnotherCaseIsRefusedAMarkerInAnotherCaseIsNot) {
    const std::string bytes = QuizBytes();
    AllesLeeren();
    std::string klein = bytes;
    klein[1] = 'f';
    EXPECT_EQ(Lesen(klein).code, 1);
    EXPECT_EQ(FormTyp, "");
    EXPECT_EQ(FormNr, "");

    std::string marken = bytes;
    marken.replace(marken.find("[FRAGEN]"), 8, "[fragen]");
    marken.replace(marken.find("[FKPUNKTE]"), 10, "[FkPunkte]");
    EXPECT_EQ(Lesen(marken).code, 0);
    EXPECT_EQ(FormularBytes("FKFragen"), bytes);
}

TEST(Formulardatei, ATextThatIsNoFormFileGives1) {
    AllesLeeren();
    for (const std::string_view bytes :
         {"Liebes Tagebuch,\r\n", "\r\n", " ", "\"\"", "[FKINI]\r\n", "Feldkranz2"}) {
        EXPECT_EQ(Lesen(bytes).code, 1) << bytes;
        EXPECT_EQ(Lesen(bytes).kennung, "");
    }
}

TEST(Formulardatei, TheTypeWordMayStandWithoutQuotesAndBehindBlanks) {
    AllesLeeren();
    EXPECT_EQ(Lesen("  Feldkranz  , FK , [ALLGEMEINES], 3, heute, lang\r\n").code, 0);
    EXPECT_EQ(FormDatum, "heute");
}

TEST(Formulardatei, AColourOf0LoadsAs7AndPunkteR0Stays) {
    QuizFuellen();
    FarbeHintergrund = PunkteA = PunkteE = PunkteG = PunkteJ = PunkteR = 0;
    FelderA = FelderE = FelderG = FelderJ = FelderR = 0;
    const std::string bytes = FormularBytes("FKFragen");
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).code, 0);
    EXPECT_EQ(FarbeHintergrund, 7);
    EXPECT_EQ(std::vector({PunkteA, PunkteE, PunkteG, PunkteJ, PunkteR}),
              (std::vector<std::int16_t>{5, 10, 10, 5, 0}));
    EXPECT_EQ(std::vector({FelderA, FelderE, FelderG, FelderJ, FelderR}), std::vector<std::int16_t>(5, 0));
}

TEST(Formulardatei, TheRepairRunsAfterATestFormToo) {
    const std::string bytes = TestBytes();
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).code, 0);
    EXPECT_EQ(FarbeHintergrund, 7);
    EXPECT_EQ(PunkteE, 10);
}

TEST(Formulardatei, AnEmptyFileCountsAsReadAndIsRepaired) {
    AllesLeeren();
    const FormularErgebnis ergebnis = Lesen("");
    EXPECT_EQ(ergebnis.code, 0);
    EXPECT_FALSE(ergebnis.begonnen());
    EXPECT_EQ(FarbeHintergrund, 7);
    EXPECT_EQ(FormTyp, "");
}

TEST(Formulardatei, ALineEndAndACommaInATextReadBackWhole) {
    QuizFuellen();
    FrageText[3] = "Eins,\r\nzwei,\ndrei";
    const std::string bytes = FormularBytes("FKFragen");
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).code, 0);
    EXPECT_EQ(FrageText[3], "Eins,\r\nzwei,\ndrei");
}

TEST(Formulardatei, ADoubleQuoteCutsItsTextAndTheNextValuesSlide) {
    QuizFuellen();
    FrageText[1] = "Wer rief \"Land\", und wann?";
    const std::string bytes = FormularBytes("FKFragen");
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).fehler, std::nullopt);
    EXPECT_EQ(FrageText[1], "Wer rief ");
    EXPECT_EQ(AntwortText[1], "und wann?\"");
    EXPECT_EQ(FeldSpezial[1], "Antwört 1");
}

TEST(Formulardatei, ATestFileWhileAQuizFormIsOpenIsRefusedAndChangesNothing) {
    const std::string test = TestBytes();
    const std::string vorher = QuizBytes();
    FarbeHintergrund = 0;
    HBFach = "unberührt";
    const FormularErgebnis ergebnis = Lesen(test);
    EXPECT_EQ(ergebnis.code, 2);
    EXPECT_EQ(ergebnis.kennung, "Test");
    EXPECT_FALSE(ergebnis.begonnen());
    EXPECT_EQ(FormTyp, "FK");
    EXPECT_EQ(HBFach, "unberührt");
    EXPECT_EQ(FarbeHintergrund, 0) << "no repair either";
    FarbeHintergrund = 3;
    EXPECT_EQ(FormularBytes("FKFragen"), vorher);
}

TEST(Formulardatei, AQuizFileWhileATestFormIsOpenIsRefusedAndSoIsAnyOtherTag) {
    const std::string quiz = QuizBytes();
    TestFuellen();
    EXPECT_EQ(Lesen(quiz).code, 2);
    EXPECT_EQ(Lesen(quiz).kennung, "FK");
    EXPECT_EQ(Lesen("\"Feldkranz\"\r\n\"fk\"\r\n").code, 2);
    EXPECT_EQ(FormTyp, "Test");
}

TEST(Formulardatei, WithNoFormOpenEitherKindLoads) {
    const std::string quiz = QuizBytes();
    const std::string test = TestBytes();
    AllesLeeren();
    EXPECT_EQ(Lesen(quiz).code, 0);
    EXPECT_EQ(FormTyp, "FK");
    AllesLeeren();
    EXPECT_EQ(Lesen(test).code, 0);
    EXPECT_EQ(FormTyp, "Test");
}

TEST(Formulardatei, AnUnknownSectionIsPassedOverWithItsValues) {
    const std::string bytes = QuizBytes();
    std::string mehr = bytes;
    mehr.insert(mehr.find("\"[FKPUNKTE]\""), "\"[WETTER]\"\r\n\"Regen, viel\"\r\n12\r\n");
    AllesLeeren();
    EXPECT_EQ(Lesen(mehr).code, 0);
    EXPECT_EQ(FormularBytes("FKFragen"), bytes);
}

TEST(Formulardatei, AValueTooFewTakesTheNextMarkerAndThatSectionIsPassedOver) {
    std::string bytes = QuizBytes();
    bytes.erase(bytes.find("\"1\xBD Stunden\"\r\n"), 14);
    AllesLeeren();
    EXPECT_EQ(Lesen(bytes).code, 0);
    EXPECT_EQ(FormZeit, "[FKPUNKTE]");
    EXPECT_EQ(FelderA, 0);
    EXPECT_EQ(WissenTitel[1], "Gebiet 1") << "the section after it is read again";
}

TEST(Formulardatei, SectionsMayStandInAnyOrderAndRepeatAndTheLastCounts) {
    const std::string bytes = QuizBytes();
    const std::string fragen = Abschnitt(bytes, "[FRAGEN]", "");
    const std::string punkte = Abschnitt(bytes, "[FKPUNKTE]", "[FRAGEN]");
    const std::string allgemein = Abschnitt(bytes, "[ALLGEMEINES]", "[FKPUNKTE]");
    const std::string ini = Abschnitt(bytes, "[FKINI]", "[ALLGEMEINES]");
    const std::string anders = Datei({"[allgemeines]", "99", "nie", "kurz"});
    AllesLeeren();
    EXPECT_EQ(Lesen("\"Feldkranz\"\r\n\"FK\"\r\n" + fragen + anders + punkte + allgemein + ini).code, 0);
    EXPECT_EQ(FormularBytes("FKFragen"), bytes);
}

TEST(Formulardatei, AMissingSectionLeavesItsValues) {
    const std::string bytes = QuizBytes();
    AllesLeeren();
    FormNr = "alt";
    FelderJ = 9;
    EXPECT_EQ(Lesen("\"Feldkranz\"\r\n\"FK\"\r\n" + Abschnitt(bytes, "[FRAGEN]", "")).code, 0);
    EXPECT_EQ(FormNr, "alt");
    EXPECT_EQ(FelderJ, 9);
    EXPECT_EQ(FrageText[30], "Frage 30\r\nüber zwei Zeilen, mit Komma");
}

TEST(Formulardatei, ValuesSeparatedByCommasReadTheSame) {
    QuizFuellen();
    for (std::string& text : FrageText) {
        text = "Was?";
    }
    const std::string bytes = FormularBytes("FKFragen");
    std::string kommas = bytes;
    for (auto ende = kommas.find("\r\n"); ende != kommas.npos; ende = kommas.find("\r\n", ende)) {
        kommas.replace(ende, 2, " , ");
    }
    kommas.resize(kommas.size() - 3);
    AllesLeeren();
    EXPECT_EQ(Lesen(kommas).code, 0);
    EXPECT_EQ(FormularBytes("FKFragen"), bytes);
}

TEST(Formulardatei, LineEndsOfOtherSystemsReadTheSame) {
    TestFuellen();
    const std::string bytes = FormularBytes("HBFragen");
    for (const char ende : {'\r', '\n'}) {
        std::string anders = bytes;
        std::erase(anders, ende == '\r' ? '\n' : '\r');
        AllesLeeren();
        EXPECT_EQ(Lesen(anders).code, 0);
        EXPECT_EQ(FormularBytes("HBFragen"), bytes);
    }
}

TEST(Formulardatei, HelpAndRemarkAreReadFromAFormAndNeverWritten) {
    AllesLeeren();
    const std::string bytes =
        Datei({"\"Feldkranz\"", "\"Test\"", "\"[HILFE]\"", "\"a\"", "\"b\"", "\"c\"", "\"d\"", "\"e\"",
               "\"\"", "\"\"", "\"\"", "\"\"", "\"\"", "\"[BEMERKUNG]\"", "\"Schön war's\""});
    EXPECT_EQ(Lesen(bytes).code, 0);
    EXPECT_EQ(HilfeEintrag[1] + HilfeEintrag[5], "ae");
    EXPECT_EQ(Bemerkung, "SchÃ¶n war's") << "the bytes of a file are code page 1252";
    EXPECT_EQ(FormularBytes("FKFragen").find("HILFE"), std::string::npos);
    EXPECT_EQ(FormularBytes("FKFragen").find("BEMERKUNG"), std::string::npos);
}

TEST(Formulardatei, TheTagOfLine4OverwritesThatOfLine2WithoutACheck) {
    std::string bytes = QuizBytes();
    bytes.replace(bytes.find("[FKINI]\"\r\n\"FK\"") + 10, 4, "\"Test\"");
    FormTyp = "FK";
    EXPECT_EQ(Lesen(bytes).code, 0);
    EXPECT_EQ(FormTyp, "Test");
}

TEST(Formulardatei, AnOverlongNumberIsReportedAndTheReaderGoesOnBehindIt) {
    const std::string bytes = Datei({"\"Feldkranz\"", "\"FK\"", "\"[FKINI]\"", "\"FK\"", "30", "99999", "5",
                                     "6", "\"\"", "\"[ALLGEMEINES]\"", "\"1\"", "\"2\"", "\"3\""});
    AllesLeeren();
    std::vector<int> stellen;
    const auto ergebnis = FormularAusBytes(bytes, [&](const Laufzeitfehler& fehler) {
        EXPECT_EQ(fehler.nummer(), 6);
        stellen.push_back(fehler.zeile());
    });
    EXPECT_EQ(stellen, std::vector<int>{6});
    EXPECT_EQ(ergebnis.code, 0);
    EXPECT_EQ(FragenProWissen, 5);
    EXPECT_EQ(AnzahlWissen, 6);
    EXPECT_EQ(FormZeit, "3");
}

TEST(Formulardatei, AFileCutInsideASectionEndsInError62WithThePartReadAndNoRepair) {
    std::string bytes = QuizBytes();
    bytes.resize(bytes.find("\"Antw\xF6rt 2\""));
    AllesLeeren();
    const FormularErgebnis ergebnis = Lesen(bytes);
    ASSERT_TRUE(ergebnis.fehler);
    EXPECT_EQ(ergebnis.code, std::nullopt);
    EXPECT_TRUE(ergebnis.begonnen());
    EXPECT_EQ(ergebnis.fehler->nummer(), 62);
    EXPECT_EQ(ergebnis.fehler->zeile(), Zeilenzahl(bytes) + 1);
    EXPECT_EQ(FrageText[2], "Frage 2\r\nüber zwei Zeilen, mit Komma");
    EXPECT_EQ(AntwortText[2], "");
}

TEST(Formulardatei, NoRepairRunsAfterError62) {
    AllesLeeren();
    EXPECT_EQ(Lesen("\"Feldkranz\"\r\n\"Test\"\r\n\"[HB-FRAGEN]\"\r\n").fehler->nummer(), 62);
    EXPECT_EQ(FarbeHintergrund, 0);
    EXPECT_EQ(FormTyp, "Test");
}

TEST(FKIni, OnlyItsSectionIsReadWhateverElseTheFileHolds) {
    const std::string bytes = QuizBytes();
    AllesLeeren();
    const auto werte = FKIniAusBytes(bytes);
    ASSERT_TRUE(werte);
    EXPECT_EQ(werte->formTyp, "FK");
    EXPECT_EQ(werte->felderGesamt, 24);
    EXPECT_EQ(werte->fragenProWissen, 4);
    EXPECT_EQ(werte->anzahlWissen, 6);
    EXPECT_EQ(FormTyp + FrageText[1], "") << "no variable changes";
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
