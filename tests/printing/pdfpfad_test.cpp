#include "printing/pdfpfad.h"

#include <gtest/gtest.h>

#include <string>

TEST(PdfPfad, LiesBesideTheFormUnderItsName) {
    EXPECT_EQ(PdfPfadZu("C\\KRANZ\\Runde 1.FKR", "ohne"), "C\\KRANZ\\Runde 1.pdf");
    EXPECT_EQ(PdfPfadZu("C\\KRANZ\\Runde 1", "ohne"), "C\\KRANZ\\Runde 1.pdf");
    EXPECT_EQ(PdfPfadZu("C\\Dr. Spiel\\Runde", "ohne"), "C\\Dr. Spiel\\Runde.pdf");
    EXPECT_EQ(PdfPfadZu("C\\KRANZ\\a.b.FKR", "ohne"), "C\\KRANZ\\a.b.pdf");
}

TEST(PdfPfad, AFormThatItselfEndsInPdfIsNeverOverwritten) {
    EXPECT_EQ(PdfPfadZu("C\\KRANZ\\Abend.PDF", "ohne"), "C\\KRANZ\\Abend.PDF.pdf");
}

TEST(PdfPfad, AFormWithoutANameHasAFixedOne) {
    const std::string app = "\\opt\\Feldkranz";
    EXPECT_EQ(PdfPfad(Formart::Quiz, "", app), "\\opt\\Feldkranz\\KRANZ\\Feldkranz.pdf");
    EXPECT_EQ(PdfPfad(Formart::Test, "", app), "\\opt\\Feldkranz\\TEST\\Test.pdf");
    EXPECT_EQ(PdfPfad(Formart::Quiz, app + "\\KRANZ\\A.FKR", app), "\\opt\\Feldkranz\\KRANZ\\A.pdf");
    EXPECT_EQ(PdfPfad(Formart::Test, "\\home\\B.FKR", app), "\\home\\B.pdf");
}
