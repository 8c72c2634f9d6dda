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

std::string PdfPfad(Formart art, std::string_view formular, std::string_view appPfad) {
    const std::string_view ohneNamen = art == Formart::Test ? "\\TEST\\Test.pdf" : "\\KRANZ\\Feldkranz.pdf";
    return PdfPfadZu(formular, std::string(appPfad) + std::string(ohneNamen));
}

std::string FreierPdfPfad(const std::string& pfad, const std::function<bool(const std::string&)>& darf) {
    const std::size_t endung = pfad.size() - Dateiendung(NurDateiname(pfad)).size();
    std::string versuch = pfad;
    for (int nummer = 1; !darf(versuch); ++nummer) {
        versuch = pfad.substr(0, endung) + std::to_string(nummer) + pfad.substr(endung);
    }
    return versuch;
}
