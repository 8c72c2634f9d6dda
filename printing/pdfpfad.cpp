#include "printing/pdfpfad.h"

#include "core/pfadname.h"

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

std::string PdfPfad(Formart art, std::string_view formular, std::string_view appPfad,
                    std::string_view blatt) {
    const std::string_view ohneNamen = art == Formart::Test ? "\\TEST\\Test.pdf" : "\\KRANZ\\Feldkranz.pdf";
    std::string pfad = PdfPfadZu(formular, std::string(appPfad) + std::string(ohneNamen));
    if (!blatt.empty()) {
        constexpr std::size_t endung = 4;
        pfad.insert(pfad.size() - endung, std::string(" ").append(blatt));
    }
    return pfad;
}
