#include "printing/blattplatz.h"

#include "core/datei.h"
#include "core/formularfenster.h"
#include "core/laufzeitfehler.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "printing/pdfpfad.h"
#include "printing/pdftitel.h"

#include <QFileInfo>

namespace {

constexpr std::size_t groesstesBlatt = std::size_t{16} << 20U; // bytes; ours are far smaller

struct Gemerkt {
    int formular = -1;
    std::string pfad;
    friend bool operator==(const Gemerkt&, const Gemerkt&) = default;
};
Gemerkt gemerkt;

// What can't be read is none of ours.
bool IstBlattVon(const std::string& pfad, const std::string& titel) {
    try {
        return IstUnserBlatt(DateiLesen(pfad, groesstesBlatt), titel);
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace

std::string Blatttitel(Formart art, const std::string& datei) {
    if (datei.empty()) {
        return art == Formart::Test ? "Test" : "Feldkranz";
    }
    return QFileInfo(NativerPfad(datei)).fileName().toStdString();
}

std::string Blattplatz(Formart art, const std::string& datei) {
    return FreierPfad(PdfPfad(art, datei, Stand.AppPfad), [&](const std::string& pfad) {
        if (!DateiDa(pfad)) {
            return true; // a folder in the way is reported when the sheet is written
        }
        const bool gemeint = !datei.empty() || gemerkt == Gemerkt{Formularnummer(), pfad};
        return gemeint && IstBlattVon(pfad, Blatttitel(art, datei));
    });
}

void BlattMerken(const std::string& pfad) {
    gemerkt = {Formularnummer(), pfad};
}
