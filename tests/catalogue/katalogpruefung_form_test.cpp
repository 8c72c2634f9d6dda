// The shipped catalogue's files: names, bytes, records, counts and points.
#include "catalogue/katalogdatei.h"
#include "tests/catalogue/katalogpruefung.h"
#include "tests/catalogue/katalogpruefung_worte.h"

#include "core/pfad.h"

#include <gtest/gtest.h>

#include <QDirIterator>

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace {

constexpr std::size_t zeilenJeListe = 1 + anzahlListenplaetze;

// Every file of the table: the list of themes, the lists of sub-themes, the question files.
std::set<std::string> AllePfade() {
    std::set<std::string> pfade{"WISSEN.TXT"};
    for (const Thema& thema : Themen()) {
        pfade.insert(std::string(thema.ordner) + "\\" + std::string(thema.listendatei));
    }
    for (const Katalogdatei& datei : Katalogdateien()) {
        pfade.insert(datei.pfad);
    }
    return pfade;
}

bool Kommentar(std::string_view zeile) {
    return zeile.starts_with("'");
}

// A byte that code page 1252 knows and that a line may hold.
bool Textzeichen(char zeichen) {
    const auto byte = static_cast<unsigned char>(zeichen);
    constexpr std::array<unsigned char, 5> unbelegt{0x81, 0x8D, 0x8F, 0x90, 0x9D};
    return byte >= 0x20 && byte != 0x7F &&
           std::find(unbelegt.begin(), unbelegt.end(), byte) == unbelegt.end();
}

} // namespace

TEST(Katalogform, TheListOfThemesNamesTheSixteenThemesAndLeavesFourPlacesEmpty) {
    const std::string bytes = Katalogbytes("WISSEN.TXT");
    Namensliste liste;
    ThemenlisteLesen(bytes, liste);
    for (std::size_t i = 1; i < liste.size(); ++i) {
        EXPECT_EQ(liste[i], i <= Themen().size() ? Themen()[i - 1].name : "") << "place " << i;
    }
    EXPECT_EQ(Zeilen(bytes).size(), zeilenJeListe);
    EXPECT_FALSE(Zeilen(bytes).front().empty());
}

TEST(Katalogform, EveryListOfSubThemesNamesThoseOfTheTableInTwentyPlaces) {
    for (const Thema& thema : Themen()) {
        SCOPED_TRACE(thema.name);
        const std::string bytes =
            Katalogbytes(std::string(thema.ordner) + "\\" + std::string(thema.listendatei));
        Namensliste liste;
        UnterthemenlisteLesen(bytes, liste);
        for (std::size_t i = 1; i < liste.size(); ++i) {
            EXPECT_EQ(liste[i], i <= thema.unterthemen.size() ? thema.unterthemen[i - 1].name : "")
                << "place " << i;
        }
        // A comma or a quote would shift the places behind it.
        EXPECT_EQ(bytes.find_first_of(",\""), std::string::npos);
        EXPECT_EQ(Zeilen(bytes).size(), zeilenJeListe);
    }
}

TEST(Katalogform, TheFoldersHoldTheFilesOfTheTableAndNothingElse) {
    std::set<std::string> da;
    const QString wurzel = NativerPfad(Katalogordner());
    QDirIterator lauf(wurzel, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (lauf.hasNext()) {
        da.insert(EigenerPfad(QDir(wurzel).relativeFilePath(lauf.next())));
    }
    EXPECT_EQ(da, AllePfade());
    EXPECT_EQ(da.size(), 1U + 16U + 138U);
}

TEST(Katalogform, EveryFileIsTextInCodePage1252WithCrLfBehindEveryLine) {
    for (const std::string& pfad : AllePfade()) {
        const std::string bytes = Katalogbytes(pfad);
        EXPECT_TRUE(bytes.ends_with("\r\n")) << pfad;
        std::size_t nr = 0;
        for (const std::string_view zeile : Zeilen(bytes)) {
            ++nr;
            EXPECT_TRUE(std::all_of(zeile.begin(), zeile.end(), Textzeichen)) << pfad << " line " << nr;
        }
    }
}

TEST(Katalogform, EveryRecordHasFourLinesUnderItsRunningNumber) {
    for (const Katalogdatei& datei : Katalogdateien()) {
        const auto zeilen = Zeilen(datei.bytes);
        const auto fragen = FragenVon(datei);
        const auto kommentare = std::count_if(zeilen.begin(), zeilen.end(), Kommentar);
        EXPECT_FALSE(zeilen.front().empty()) << datei.pfad;
        EXPECT_EQ(zeilen.size(), 1 + 4 * fragen.size() + static_cast<std::size_t>(kommentare)) << datei.pfad;
        for (const Katalogsatz* frage : fragen) {
            EXPECT_EQ(frage->nr, std::to_string(frage->platz)) << Fundort(*frage);
        }
    }
}

TEST(Katalogform, CommentLinesStandOnlyWhereTheReaderSkipsThem) {
    for (const Katalogdatei& datei : Katalogdateien()) {
        const auto zeilen = Zeilen(datei.bytes);
        const bool kommentar = std::any_of(zeilen.begin(), zeilen.end(), Kommentar);
        EXPECT_TRUE(datei.thema->kommentarzeilen || !kommentar) << datei.pfad;
    }
}

// One blank at the end is there for the print, which then breaks before the last word.
TEST(Katalogform, QuestionsAndAnswersAreTidyTexts) {
    for (const Katalogsatz& frage : Katalogfragen()) {
        for (const std::string* text : {&frage.frage, &frage.antwort}) {
            EXPECT_FALSE(Worte(*text).empty()) << Fundort(frage);
            EXPECT_FALSE(text->starts_with(" ")) << Fundort(frage);
            EXPECT_EQ(text->find("  "), std::string::npos) << Fundort(frage);
            // A form file keeps a text between quotes and could not keep one inside.
            EXPECT_EQ(text->find('"'), std::string::npos) << Fundort(frage);
        }
    }
}

TEST(Katalogform, EveryFileHasEnoughQuestions) {
    for (const Katalogdatei& datei : Katalogdateien()) {
        const bool standard = datei.unterthema.starts_with("Standard");
        EXPECT_GE(FragenVon(datei).size(), standard ? 40U : 25U) << datei.pfad;
    }
    EXPECT_GE(Katalogfragen().size(), 3600U);
}

TEST(Katalogform, EveryValueFromOneToFiveStandsAtLeastThreeTimesInEveryFile) {
    for (const Katalogdatei& datei : Katalogdateien()) {
        std::map<std::string, int> anzahl;
        for (const Katalogsatz* frage : FragenVon(datei)) {
            ++anzahl[frage->punkte];
        }
        EXPECT_EQ(anzahl.size(), 5U) << datei.pfad << ": other values than 1 to 5";
        for (const char* wert : {"1", "2", "3", "4", "5"}) {
            EXPECT_GE(anzahl[wert], 3) << datei.pfad << ", value " << wert;
        }
    }
}

TEST(Katalogform, OutsideAZEveryFileBeginsWithItsEasiestQuestions) {
    for (const Katalogdatei& datei : Katalogdateien()) {
        std::string vorher;
        for (const Katalogsatz* frage : FragenVon(datei)) {
            EXPECT_TRUE(datei.thema->name == "A-Z" || frage->punkte >= vorher) << Fundort(*frage);
            vorher = frage->punkte;
        }
    }
}

TEST(Katalogform, TheAnswersOfAZRunThroughTheAlphabet) {
    int dateien = 0;
    for (const Katalogdatei& datei : Katalogdateien()) {
        if (datei.thema->name != "A-Z") {
            continue;
        }
        ++dateien;
        char vorher = 'a' - 1;
        for (const Katalogsatz* frage : FragenVon(datei)) {
            const char buchstabe = Worte(frage->antwort).front().front();
            EXPECT_GT(buchstabe, vorher) << Fundort(*frage);
            vorher = buchstabe;
        }
        EXPECT_LE(vorher, 'z') << datei.pfad;
        EXPECT_GE(FragenVon(datei).size(), 26U - 3U) << datei.pfad << ": more than three letters left out";
    }
    EXPECT_EQ(dateien, 13);
}
