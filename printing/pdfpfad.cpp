#include "printing/pdfpfad.h"

#include "core/pfadname.h"
#include "core/zustand.h"
#include "quizform/formdaten.h"
#include "testform/formdaten.h"

std::string PdfPfadZu(std::string_view formular, std::string_view ohneNamen) {
    if (formular.empty()) {
        return std::string(ohneNamen);
    }
    const std::string endung = Dateiendung(NurDateiname(formular));
    if (Kleinschreiben(endung) != ".pdf") {
        formular.remove_suffix(endung.size());
    }
    return std::string(formular) + ".pdf";
}

std::string PdfPfadFK() {
    return PdfPfadZu(FKDateiName, AppPfad + "\\KRANZ\\Feldkranz.pdf");
}

std::string PdfPfadHB() {
    return PdfPfadZu(HBDateiName, AppPfad + "\\TEST\\Test.pdf");
}
