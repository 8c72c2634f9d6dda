#include "printing/pdfordnung.h"

#include "printing/pdfaufbau.h"
#include "printing/pdftitel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

using Teile = std::vector<std::pair<int, std::string>>; // objects with their numbers, in the file's order

std::string Zeile(std::size_t ort, int stand, char art) {
    std::array<char, 21> zeile{};
    static_cast<void>(std::snprintf(zeile.data(), zeile.size(), "%010zu %05d %c \n", ort, stand, art));
    return zeile.data();
}

// A file of those objects as the toolkit writes it; numbers that are left out are free.
std::string Datei(const Teile& teile, const std::string& mehr = "/Info 1 0 R\n/Root 2 0 R\n") {
    std::string bytes = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    std::map<int, std::size_t> orte;
    int hoechste = 0;
    for (const auto& [nummer, inhalt] : teile) {
        orte[nummer] = bytes.size();
        hoechste = std::max(hoechste, nummer);
        bytes += std::to_string(nummer) + " 0 obj\n" + inhalt + "\nendobj\n";
    }
    const std::string tabelle = std::to_string(bytes.size());
    const std::string anzahl = std::to_string(hoechste + 1);
    bytes += "xref\n0 " + anzahl + "\n" + Zeile(0, 65535, 'f');
    for (int nummer = 1; nummer <= hoechste; ++nummer) {
        const auto ort = orte.find(nummer);
        bytes += ort == orte.end() ? Zeile(0, 1, 'f') : Zeile(ort->second, 0, 'n');
    }
    return bytes + "trailer\n<<\n/Size " + anzahl + "\n" + mehr + ">>\nstartxref\n" + tabelle + "\n%%EOF\n";
}

std::string Strom(const std::string& daten) {
    return "<< /Length " + std::to_string(daten.size()) + " >>\nstream\n" + daten + "\nendstream";
}

// A page as the toolkit writes it, with two fonts.
Teile Seite() {
    return {{1, "<<\n/Title (Blatt)\n/Creator (Feldkranz!)\n/Producer (Qt 6.4.2)\n>>"},
            {2, "<<\n/Type /Catalog\n/Pages 3 0 R\n>>"},
            {6, "<<\n/Type /Page\n/Parent 3 0 R\n/Contents 9 0 R\n/Resources 5 0 R\n>>"},
            {5, "<< /Font << /F7 7 0 R /F8 8 0 R >> >>"},
            {9, "<< /Length 10 0 R >>\nstream\n1 0 R /F7 endobj\nendstream"},
            {10, "16"},
            {11, "<< /Type /FontDescriptor\n/FontName /QLAAAA+Sans >>"},
            {8, "<< /Type /Font\n/FontDescriptor 11 0 R >>"},
            {12, "<< /Type /FontDescriptor\n/FontName /QMAAAA+Sans-Bold >>"},
            {7, "<< /Type /Font\n/FontDescriptor 12 0 R >>"},
            {3, "<<\n/Type /Pages\n/Kids [\n6 0 R\n]\n/Count 1\n>>"}};
}

// What a file's table leads to, by number: the text between "obj" and "endobj", "frei" for a free number, and
// "?" where something else stands.
std::vector<std::string> Gelesen(const std::string& bytes) {
    std::size_t stelle = std::stoul(bytes.substr(bytes.rfind("startxref") + 10));
    EXPECT_EQ(bytes.substr(stelle, 7), "xref\n0 ");
    const std::size_t anzahl = std::stoul(bytes.substr(stelle + 7));
    stelle = bytes.find('\n', stelle + 7) + 1;
    std::vector<std::string> objekte;
    for (std::size_t n = 0; n < anzahl; ++n, stelle += 20) {
        const std::size_t ort = std::stoul(bytes.substr(stelle, 10));
        const std::string anfang = std::to_string(n) + " 0 obj\n";
        if (bytes[stelle + 17] == 'f') {
            objekte.emplace_back("frei");
        } else if (bytes.substr(ort, anfang.size()) != anfang) {
            objekte.emplace_back("?");
        } else {
            const std::size_t inhalt = ort + anfang.size();
            objekte.push_back(bytes.substr(inhalt, bytes.find("\nendobj\n", inhalt) - inhalt));
        }
    }
    EXPECT_EQ(bytes.substr(stelle, 8), "trailer\n");
    return objekte;
}

std::string Ersetzt(std::string text, std::string_view alt, std::string_view neu) {
    const std::size_t stelle = text.find(alt);
    EXPECT_NE(stelle, std::string::npos) << alt;
    return stelle == std::string::npos ? text : text.replace(stelle, alt.size(), neu);
}

const std::string deutsch = "/Lang (de-DE)\n";
const std::string mitTitel = "/ViewerPreferences << /DisplayDocTitle true >>\n";

} // namespace

TEST(PdfOrdnung, GivesTheCatalogueLanguageAndTheTitleInTheViewersFrame) {
    const auto objekte = Gelesen(PdfOrdnen(Datei(Seite())));
    ASSERT_EQ(objekte.size(), 13U);
    EXPECT_EQ(objekte[2], "<<\n/Type /Catalog\n/Pages 3 0 R\n" + deutsch + mitTitel + ">>");
}

TEST(PdfOrdnung, LeavesWhatTheCatalogueSaysAlready) {
    Teile teile = Seite();
    teile[1].second = "<< /Type /Catalog /Lang (en) /Pages 3 0 R >>";
    EXPECT_EQ(Gelesen(PdfOrdnen(Datei(teile)))[2],
              "<< /Type /Catalog /Lang (en) /Pages 3 0 R " + mitTitel + ">>");
    teile[1].second = "<< /Type /Catalog /ViewerPreferences << /HideMenubar true >> /Pages 3 0 R >>";
    EXPECT_EQ(Gelesen(PdfOrdnen(Datei(teile)))[2],
              "<< /Type /Catalog /ViewerPreferences << /HideMenubar true >> /Pages 3 0 R " + deutsch + ">>");
    teile[1].second = "<< /Type /Catalog /PieceInfo << /Lang (en) >> /Pages 3 0 R >>"; // of something else
    EXPECT_EQ(Gelesen(PdfOrdnen(Datei(teile)))[2],
              "<< /Type /Catalog /PieceInfo << /Lang (en) >> /Pages 3 0 R " + deutsch + mitTitel + ">>");
}

TEST(PdfOrdnung, NumbersTheObjectsAsTheyAreNamedFromTheTrailerOn) {
    const auto objekte = Gelesen(PdfOrdnen(Datei(Seite())));
    ASSERT_EQ(objekte.size(), 13U);
    EXPECT_EQ(objekte[3], "<<\n/Type /Pages\n/Kids [\n4 0 R\n]\n/Count 1\n>>");
    EXPECT_EQ(objekte[4], "<<\n/Type /Page\n/Parent 3 0 R\n/Contents 5 0 R\n/Resources 6 0 R\n>>");
    EXPECT_EQ(objekte[5], "<< /Length 7 0 R >>\nstream\n1 0 R /F7 endobj\nendstream");
    EXPECT_EQ(objekte[6], "<< /Font << /F7 8 0 R /F8 9 0 R >> >>");
    EXPECT_EQ(objekte[7], "16");
    EXPECT_EQ(objekte[8], "<< /Type /Font\n/FontDescriptor 10 0 R >>");
    EXPECT_EQ(objekte[10], "<< /Type /FontDescriptor\n/FontName /QAAAAA+Sans-Bold >>");
    EXPECT_EQ(objekte[11], "<< /Type /FontDescriptor\n/FontName /QBAAAA+Sans >>");
    EXPECT_EQ(objekte[12], "frei"); // 4 was left out
}

TEST(PdfOrdnung, MakesFilesThatDifferInNumbersPlacesAndLettersTheSame) {
    Teile anders = Seite();
    std::swap(anders[6], anders[8]); // the fonts in the other order
    std::swap(anders[7], anders[9]);
    anders[6].first = 11;
    anders[6].second = "<< /Type /FontDescriptor\n/FontName /QLAAAA+Sans-Bold >>";
    anders[7].second = "<< /Type /Font\n/FontDescriptor 11 0 R >>";
    anders[8].first = 12;
    anders[8].second = "<< /Type /FontDescriptor\n/FontName /QMAAAA+Sans >>";
    anders[9].second = "<< /Type /Font\n/FontDescriptor 12 0 R >>";
    ASSERT_NE(Datei(anders), Datei(Seite()));
    EXPECT_EQ(PdfOrdnen(Datei(anders)), PdfOrdnen(Datei(Seite())));
}

TEST(PdfOrdnung, OfAnOrderedFileIsThatFile) {
    const std::string geordnet = PdfOrdnen(Datei(Seite()));
    EXPECT_EQ(PdfOrdnen(geordnet), geordnet);
}

TEST(PdfOrdnung, KeepsWhatTheFileSaysOfItself) {
    const std::string geordnet = PdfOrdnen(Datei(Seite()));
    EXPECT_TRUE(IstUnserBlatt(geordnet, "Blatt"));
    EXPECT_EQ(geordnet.find("%%EOF"), geordnet.size() - 6);
    EXPECT_TRUE(geordnet.starts_with("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n1 0 obj\n"));
}

TEST(PdfOrdnung, ChangesNoNumbersInTextsAndStreams) {
    Teile teile = Seite();
    const std::string text = "<< /A (6 0 R \\) 9 0 R (5 0 R)) /B <36203020 52> /C /6 /D [1 2 0.5 -3] ";
    teile[3].second = text + "/E 9 0 R >>";
    teile[4].second = Strom("6 0 R\n9 0 obj\n%%\n(((<<");
    teile.erase(teile.begin() + 5, teile.begin() + 10);
    const auto objekte = Gelesen(PdfOrdnen(Datei(teile)));
    EXPECT_EQ(objekte[6], text + "/E 5 0 R >>");
    EXPECT_EQ(objekte[5], teile[4].second);
}

TEST(PdfOrdnung, KeepsTheGenerationsOfFreeNumbersAndLeadsFromOneToTheNext) {
    Teile teile = Seite(); // 4 isn't in use, nor are 13 and 15
    teile[1].second = "<< /Type /Catalog /Metadata 4 0 R /Pages 3 0 R >>";
    teile.emplace_back(14, "<< /A 15 0 R >>");
    teile.emplace_back(16, "(B)");
    const std::string geordnet = PdfOrdnen(Datei(teile));
    const auto objekte = Gelesen(geordnet);
    ASSERT_EQ(objekte.size(), 17U);
    EXPECT_TRUE(objekte[2].starts_with("<< /Type /Catalog /Metadata 3 0 R /Pages 4 0 R "));
    EXPECT_EQ(objekte[14], "<< /A 15 0 R >>");
    for (std::size_t nummer = 0; nummer < objekte.size(); ++nummer) {
        const bool frei = nummer == 0 || nummer == 3 || nummer == 13 || nummer == 15;
        EXPECT_EQ(objekte[nummer] == "frei", frei) << nummer;
    }
    EXPECT_NE(geordnet.find("xref\n0 17\n" + Zeile(3, 65535, 'f')), std::string::npos);
    EXPECT_NE(geordnet.find(Zeile(13, 1, 'f') + Zeile(geordnet.find("4 0 obj"), 0, 'n')), std::string::npos);
    EXPECT_NE(geordnet.find(Zeile(15, 1, 'f') + Zeile(geordnet.find("14 0 obj"), 0, 'n') + Zeile(0, 1, 'f') +
                            Zeile(geordnet.find("16 0 obj"), 0, 'n') + "trailer\n"),
              std::string::npos);
}

TEST(PdfOrdnung, LeavesTheIdentityInTheTrailer) {
    const std::string id = "/ID [<00FF> <1234>]\n";
    const std::string geordnet = PdfOrdnen(Datei(Seite(), "/Root 2 0 R\n" + id + "/Info 1 0 R\n"));
    EXPECT_NE(geordnet.find("trailer\n<<\n/Size 13\n/Root 1 0 R\n" + id + "/Info 2 0 R\n>>\nstartxref\n"),
              std::string::npos);
}

TEST(PdfOrdnung, GivesFontsOfOneNameOnePairOfLetters) {
    Teile teile = Seite();
    teile[7].second = "<< /Type /Font /BaseFont /QLAAAA+Sans /FontDescriptor 11 0 R >>";
    teile[9].second = "<< /Type /Font /BaseFont /ABCDE+Sans /X /QMAAAA+Sans /FontDescriptor 12 0 R >>";
    const auto objekte = Gelesen(PdfOrdnen(Datei(teile)));
    EXPECT_EQ(objekte[8], "<< /Type /Font /BaseFont /ABCDE+Sans /X /QMAAAA+Sans /FontDescriptor 10 0 R >>");
    EXPECT_EQ(objekte[9], "<< /Type /Font /BaseFont /QAAAAA+Sans /FontDescriptor 11 0 R >>");
    EXPECT_EQ(objekte[10], "<< /Type /FontDescriptor\n/FontName /QBAAAA+Sans-Bold >>");
    EXPECT_EQ(objekte[11], "<< /Type /FontDescriptor\n/FontName /QAAAAA+Sans >>");
}

namespace {

struct Seltsam {
    const char* was;
    std::string bytes;
};

// The page with one object's text replaced.
std::string Mit(std::size_t teil, const std::string& inhalt) {
    Teile teile = Seite();
    teile.at(teil).second = inhalt;
    return Datei(teile);
}

std::string MitTabelle(std::string_view alt, std::string_view neu) {
    const std::string ganz = Datei(Seite());
    const std::size_t tabelle = ganz.rfind("xref\n0");
    return ganz.substr(0, tabelle) + Ersetzt(ganz.substr(tabelle), alt, neu);
}

std::vector<Seltsam> Unzusammenhaengendes() {
    const std::string ganz = Datei(Seite());
    const std::string angehaengt = ganz + "xref\n0 0\ntrailer\n<< /Prev 0 >>\nstartxref\n0\n%%EOF\n";
    return {
        {"nothing", ""},
        {"no PDF", "kein PDF"},
        {"only a head", "%PDF-1.4\n"},
        {"another head", Ersetzt(ganz, "%PDF", "%PDX")},
        {"something before the head", " " + ganz},
        {"something behind the end", ganz + "x"},
        {"a later addition", angehaengt},
        {"no end", Ersetzt(ganz, "%%EOF", "%%EO")},
        {"no place of the table", Ersetzt(ganz, "startxref", "startxxxx")},
        {"a place that is no number", Ersetzt(ganz, "startxref\n", "startxref\nx")},
        {"two places", Ersetzt(ganz, "startxref\n", "startxref\n7 ")},
        {"a place beyond the end", Ersetzt(ganz, "startxref\n", "startxref\n9")},
        {"a place of more digits than any", Ersetzt(ganz, "startxref\n", "startxref\n99999999999999999999")},
        {"a place beside the table", Ersetzt(ganz, "xref\n0", "xrex\n0")},
        {"no trailer", Ersetzt(ganz, "trailer", "trayler")},
        {"a trailer that isn't a list", Ersetzt(ganz, "trailer\n<<", "trailer\n[[")},
        {"a trailer that doesn't close", Datei(Seite(), "/Info 1 0 R\n/Root 2 0 R\n<<")},
        {"words behind the trailer", Datei(Seite(), "/Info 1 0 R\n/Root 2 0 R\n>> 7 <<")}};
}

std::vector<Seltsam> SeltsameTabellen() {
    return {{"two parts", MitTabelle("xref\n0 13\n", "xref\n0 1\n")},
            {"not from the first number on", MitTabelle("xref\n0", "xref\n1")},
            {"no lines", MitTabelle("xref\n0 13\n", "xref\n0 0\n")},
            {"more lines than the file has room for", MitTabelle("0 13\n", "0 999999999\n")},
            {"more lines than an int", MitTabelle("0 13\n", "0 9999999999\n")},
            {"a negative number", MitTabelle("0 13\n", "0 -13\n")},
            {"a line too long", MitTabelle(" n \n", " n  \n")},
            {"a line of another kind", MitTabelle(" n \n", " x \n")},
            {"a line without blanks", MitTabelle(" 00000 n \n", "-00000 n \n")},
            {"a line that runs on", MitTabelle(" 00000 n \n", " 00000 n.\n")},
            {"a place with a letter", MitTabelle("\n00000000", "\n0000000a")},
            {"a negative place", MitTabelle("\n0000000015", "\n-000000015")},
            {"a generation", MitTabelle(" 00000 n", " 00001 n")},
            {"the first number in use", MitTabelle("0000000000 65535 f", "0000000015 00000 n")},
            {"another number of objects", MitTabelle("/Size 13", "/Size 14")},
            {"no number of objects", MitTabelle("/Size 13", "/Gize 13")},
            {"no root", MitTabelle("/Root", "/Boot")},
            {"a root that is no object", MitTabelle("/Root 2 0 R", "/Root 2 0  ")},
            {"a root that is a page", MitTabelle("/Root 2 0 R", "/Root 6 0 R")},
            {"a root that is free", MitTabelle("/Root 2 0 R", "/Root 4 0 R")},
            {"a root that is out of range", MitTabelle("/Root 2 0 R", "/Root 13 0 R")},
            {"an older table", MitTabelle("/Info 1 0 R", "/Prev 1")},
            {"a second table", MitTabelle("/Info 1 0 R", "/XRefStm 1")},
            {"encryption", MitTabelle("/Info 1 0 R", "/Encrypt 1 0 R")},
            {"a place at nothing", MitTabelle("0000000015", "0000000016")},
            {"a place at another object", MitTabelle("0000000015", "0000000110")},
            {"a place in the head", MitTabelle("0000000015", "0000000000")},
            {"a place beyond the table", MitTabelle("0000000015", "0000000999")},
            {"a place beyond the file", MitTabelle("0000000015", "9999999999")}};
}

std::vector<Seltsam> SeltsameObjekte() {
    return {{"a list that doesn't close", Mit(0, "<< /A 1")},
            {"a list that closes twice", Mit(0, "<< /A 1 >> >>")},
            {"brackets across each other", Mit(0, "<< /A [ 1 >> ]")},
            {"a bracket that nothing opens", Mit(0, ") 1")},
            {"half a bracket", Mit(0, "<< /A 1 > >")},
            {"a name without a value", Mit(0, "<< /A 1 /B >>")},
            {"a text that doesn't close", Mit(0, "<< /A (1 >>")},
            {"a text that ends in a backslash", Mit(0, "<< /A (1\\) >>")},
            {"digits that don't close", Mit(0, "<< /A <12 ")},
            {"two lists", Mit(0, "<< /A 1 >> << /B 2 >>")},
            {"a comment", Mit(0, "<< /A 1 % 2\n >>")},
            {"code", Mit(0, "{ 1 }")},
            {"an object in an object", Mit(0, "<< /A 1 >> 7 0 obj")},
            {"something behind the object", Mit(0, "<< /A 1 >>\nendobj\n7")},
            {"a name of a number out of range", Mit(0, "<< /A 13 0 R >>")},
            {"a name of a number far out of range", Mit(0, "<< /A 999999999 0 R >>")},
            {"a name of more digits than any number", Mit(0, "<< /A 4294967298 0 R >>")},
            {"a name of a negative number", Mit(0, "<< /A -1 0 R >>")},
            {"a name of number 0", Mit(0, "<< /A 0 0 R >>")},
            {"a name of a generation", Mit(0, "<< /A 3 1 R >>")},
            {"a name of no number", Mit(0, "<< /A R >>")},
            {"packed objects", Mit(0, "<< /Type /ObjStm /Length 1 >>\nstream\n1\nendstream")},
            {"a packed table", Mit(0, "<< /Type /XRef /Length 1 >>\nstream\n1\nendstream")},
            {"a stream without a length", Mit(0, "<< /A 1 >>\nstream\n1\nendstream")},
            {"a stream shorter than it says", Mit(0, "<< /Length 90 >>\nstream\n1\nendstream")},
            {"a stream longer than it says", Mit(0, "<< /Length 1 >>\nstream\n12345\nendstream")},
            {"a stream longer than the file", Mit(0, "<< /Length 999999999 >>\nstream\n1\nendstream")},
            {"a stream of negative length", Mit(0, "<< /Length -1 >>\nstream\n1\nendstream")},
            {"a stream whose length is free", Mit(0, "<< /Length 4 0 R >>\nstream\n1\nendstream")},
            {"a stream whose length is a page", Mit(0, "<< /Length 6 0 R >>\nstream\n1\nendstream")},
            {"a stream whose length is itself", Mit(0, "<< /Length 1 0 R >>\nstream\n1\nendstream")},
            {"a stream without an end", Mit(0, "<< /Length 1 >>\nstream\n1\n")},
            {"a stream on the same line", Mit(0, "<< /Length 1 >>\nstream 1\nendstream")},
            {"an end of no stream", Mit(0, "<< /Length 1 >>\nendstream")},
            {"a catalogue that isn't a list", Mit(1, "[ /Type /Catalog ]")}};
}

// One object in the stream of another, so that each ends as it should and only a length tells.
std::string Verschachtelt() {
    Teile teile = Seite();
    teile[4].second = Strom("endstream\nendobj\n1 0 obj\n<< /Length 3 >>\nstream\nabc");
    teile.erase(teile.begin());
    const std::string bytes = Datei(teile);
    return Ersetzt(bytes, Zeile(0, 1, 'f'), Zeile(bytes.find("1 0 obj"), 0, 'n'));
}

void BleibtWieEsWar(const std::vector<Seltsam>& faelle) {
    for (const auto& [was, bytes] : faelle) {
        EXPECT_EQ(PdfOrdnen(bytes), bytes) << was;
    }
}

} // namespace

TEST(PdfOrdnung, LeavesAFileWithoutAPlainEndAsItWas) {
    BleibtWieEsWar(Unzusammenhaengendes());
}

TEST(PdfOrdnung, LeavesAFileWithAnOddTableAsItWas) {
    BleibtWieEsWar(SeltsameTabellen());
}

TEST(PdfOrdnung, LeavesAFileWithAnOddObjectAsItWas) {
    BleibtWieEsWar(SeltsameObjekte());
    BleibtWieEsWar({{"one object within another", Verschachtelt()}});
    ASSERT_NE(PdfOrdnen(Mit(0, "<< /A 1 >>")), Mit(0, "<< /A 1 >>")); // it isn't the table's fault
}

TEST(PdfOrdnung, LeavesHalfAFileAsItWas) {
    const std::string ganz = Datei(Seite());
    for (std::size_t laenge = 0; laenge + 1 < ganz.size(); ++laenge) {
        const std::string halb = ganz.substr(0, laenge);
        ASSERT_EQ(PdfOrdnen(halb), halb) << laenge;
    }
}

TEST(PdfOrdnung, MakesOfAFileWithOneWrongByteNothingOrAWholeOne) {
    const std::string ganz = Datei(Seite());
    for (std::size_t stelle = 0; stelle < ganz.size(); ++stelle) {
        for (const char zeichen : {'\0', ' ', '0', '9', '<', '>', '(', ')', 'R', '/', '%', '\xFF'}) {
            std::string falsch = ganz;
            falsch[stelle] = zeichen;
            const std::string geordnet = PdfOrdnen(falsch);
            ASSERT_TRUE(geordnet == falsch || PdfAufbauLesen(geordnet)) << stelle << " " << zeichen;
        }
    }
}

TEST(PdfOrdnung, TakesFilesOfEightMegabytes) {
    constexpr std::size_t gross = std::size_t{8} << 20U;
    const auto viele = [](std::string_view teil) {
        std::string text;
        while (text.size() < gross) {
            text += teil;
        }
        return text;
    };
    const std::string verweise = Mit(0, "[" + viele("3 0 R ") + "]");
    EXPECT_EQ(Gelesen(PdfOrdnen(verweise))[1].size(), Gelesen(verweise)[1].size());
    const std::string strom = Mit(0, Strom(viele("endobj %")));
    EXPECT_EQ(PdfOrdnen(PdfOrdnen(strom)), PdfOrdnen(strom));
    for (const char* const teil : {"[", "<<", "<< /A ", "(", "<", "%%EOF ", "1 0 obj "}) {
        const std::string bytes = Mit(0, viele(teil));
        EXPECT_TRUE(PdfOrdnen(bytes) == bytes) << teil;
    }
}

TEST(PdfOrdnung, TakesAHundredThousandObjects) {
    Teile teile = Seite();
    constexpr int anzahl = 100000;
    for (int nummer = 13; nummer < anzahl; ++nummer) { // each names the one before it
        teile.emplace_back(nummer, "<< /A " + std::to_string(nummer - 1) + " 0 R >>");
    }
    const std::string bytes = Datei(teile, "/Info 99999 0 R\n/Root 2 0 R\n");
    const auto objekte = Gelesen(PdfOrdnen(bytes));
    ASSERT_EQ(objekte.size(), std::size_t{anzahl});
    EXPECT_EQ(objekte[1], "<< /A 3 0 R >>");
    EXPECT_EQ(std::ranges::count(objekte, "?"), 0);
}
