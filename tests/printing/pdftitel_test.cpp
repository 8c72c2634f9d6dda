#include "printing/pdftitel.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::optional<std::string> PdfTitel(std::string_view bytes) {
    return PdfAngabenLesen(bytes).titel;
}

// A file with that title, written as the format wants it.
std::string Datei(const std::string& titel) {
    return "%PDF-1.4\n1 0 obj\n<<\n/Title " + titel + "\n/Creator (Feldkranz!)\n>>\nendobj\n" +
           "2 0 obj\n<< /Title (Kapitel 1) >>\nendobj\ntrailer\n<<\n/Size 3\n/Info 1 0 R\n>>\n%%EOF\n";
}

} // namespace

TEST(PdfTitel, IsReadAsThePrinterWritesIt) {
    using namespace std::string_literals;
    EXPECT_EQ(PdfTitel(Datei("(\xFE\xFF\0R\0u\0n\0d\0e\0 \0"
                             "1\0.\0F\0K\0R)"s)),
              "Runde 1.FKR");
    EXPECT_EQ(PdfTitel(Datei("(\xFE\xFF\0G\0r\0\xF6\0\xDF\0e\0 \0\\(\0"
                             "2\0\\)\0.\0F\0K\0R)"s)),
              "Größe (2).FKR");
    EXPECT_EQ(PdfTitel(Datei("(\xFE\xFF\x20\xAC\0\\\\\xD8\x3C\xDF\x89)"s)), "€\\🎉");
}

TEST(PdfTitel, IsReadAsOthersWriteIt) {
    EXPECT_EQ(PdfTitel(Datei("(Einladung)")), "Einladung");
    EXPECT_EQ(PdfTitel(Datei("(a (b) c \\(d \\101\\n\\))")), "a (b) c (d A\n)");
    EXPECT_EQ(PdfTitel(Datei("()")), "");
}

TEST(PdfTitel, IsTheFilesOwnAndNoChapters) {
    EXPECT_EQ(
        PdfTitel("%PDF-1.4\n1 0 obj\n<< /Author (A) >>\nendobj\n2 0 obj\n<< /Title (Kapitel) >>\nendobj\n"
                 "trailer\n<< /Info 1 0 R >>\n%%EOF\n"),
        std::nullopt);
    EXPECT_EQ(PdfTitel(Datei("(alt)") + Datei("(neu)")), "neu"); // a file that was appended to
}

TEST(PdfTitel, OfAnythingElseIsNone) {
    EXPECT_EQ(PdfTitel(""), std::nullopt);
    EXPECT_EQ(PdfTitel("kein PDF"), std::nullopt);
    EXPECT_EQ(PdfTitel("trailer\n<< /Info "), std::nullopt);
    EXPECT_EQ(PdfTitel("trailer\n<< /Info x 0 R >>"), std::nullopt);
    EXPECT_EQ(PdfTitel("trailer\n<< /Info 7 0 R >>"), std::nullopt);
    const std::string ganz = Datei("(Einladung)");
    EXPECT_EQ(PdfTitel(Datei("<456E>")), std::nullopt); // never one of ours
    EXPECT_EQ(PdfTitel("\n1 0 obj\n<< /Title (ohne Ende /Info 1 0 R"), std::nullopt);
    EXPECT_EQ(PdfTitel("\n1 0 obj\n<< /Title (\\/Info 1 0 R"), std::nullopt);
    for (std::size_t laenge = 0; laenge + 20 < ganz.size(); ++laenge) {
        EXPECT_EQ(PdfTitel(ganz.substr(0, laenge)), std::nullopt) << laenge;
    }
}

namespace {

// A file that says that of itself.
std::string Blatt(const std::string& titel, const std::string& ersteller, const std::string& hersteller) {
    return "%PDF-1.4\n1 0 obj\n<<\n/Title (" + titel + ")\n/Creator (" + ersteller + ")\n/Producer (" +
           hersteller + ")\n>>\nendobj\ntrailer\n<<\n/Info 1 0 R\n>>\n%%EOF\n";
}

} // namespace

TEST(PdfAngaben, AreEachTheirOwn) {
    EXPECT_EQ(PdfAngabenLesen(Blatt("a", "b", "c")), (PdfAngaben{"a", "b", "c"}));
    EXPECT_EQ(PdfAngabenLesen(Blatt("/Creator (x\\) /Producer)", "b", "c")),
              (PdfAngaben{"/Creator (x) /Producer)", "b", "c"}));
    EXPECT_EQ(PdfAngabenLesen(Datei("(a)")), (PdfAngaben{"a", "Feldkranz!", std::nullopt}));
    EXPECT_EQ(PdfAngabenLesen("kein PDF"), PdfAngaben{});
}

TEST(UnserBlatt, IsKnownByTitleAndProgram) {
    EXPECT_TRUE(IstUnserBlatt(Blatt("A.FKR", "Feldkranz!", "Qt 6.4.2"), "A.FKR"));
    EXPECT_TRUE(IstUnserBlatt(Blatt("A.FKR", "Feldkranz!", "Qt 6.10.0"), "A.FKR")); // a newer toolkit since
    EXPECT_FALSE(IstUnserBlatt(Blatt("B.FKR", "Feldkranz!", "Qt 6.4.2"), "A.FKR"));
    EXPECT_FALSE(IstUnserBlatt(Blatt("A.FKR", "Schreiber 7", "Qt 6.4.2"), "A.FKR"));
    EXPECT_FALSE(IstUnserBlatt(Blatt("A.FKR", "Feldkranz!", "Leser 2"), "A.FKR")); // saved anew by a viewer
    EXPECT_FALSE(IstUnserBlatt(Blatt("A.FKR", "", "Qt 6.4.2"), "A.FKR"));
    EXPECT_FALSE(IstUnserBlatt(Datei("(A.FKR)"), "A.FKR"));
    EXPECT_FALSE(IstUnserBlatt("", ""));
}

TEST(UnserBlatt, WithNotesThatAViewerPutInIsNoLongerOnlyOurs) {
    const std::string blatt = Blatt("A.FKR", "Feldkranz!", "Qt 6.4.2");
    EXPECT_FALSE(IstUnserBlatt(
        blatt + "9 0 obj\n<< /Contents (Notiz) >>\nendobj\ntrailer\n<<\n/Info 1 0 R\n>>\n%%EOF\n", "A.FKR"));
}
