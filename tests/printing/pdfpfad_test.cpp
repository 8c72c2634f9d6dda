#include "core/zustand.h"
#include "printing/pdfpfad.h"
#include "quizform/formdaten.h"
#include "testform/formdaten.h"

#include <gtest/gtest.h>

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
    AppPfad = "\\opt\\Feldkranz";
    FKDateiName.clear();
    HBDateiName.clear();
    EXPECT_EQ(PdfPfadFK(), "\\opt\\Feldkranz\\KRANZ\\Feldkranz.pdf");
    EXPECT_EQ(PdfPfadHB(), "\\opt\\Feldkranz\\TEST\\Test.pdf");
    FKDateiName = "\\opt\\Feldkranz\\KRANZ\\A.FKR";
    HBDateiName = "\\home\\B.FKR";
    EXPECT_EQ(PdfPfadFK(), "\\opt\\Feldkranz\\KRANZ\\A.pdf");
    EXPECT_EQ(PdfPfadHB(), "\\home\\B.pdf");
}
