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

#include <set>

namespace {

constexpr std::size_t groesstesBlatt = std::size_t{16} << 20U; // bytes; ours are far smaller

// Where the sheets of the open form lie; those of a former one don't count any more.
struct Gemerkt {
    int formular = -1;
    std::set<std::string> pfade;
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

std::string Blatttitel(Formart art, const std::string& datei, std::string_view blatt) {
    std::string titel = art == Formart::Test ? "Test" : "Feldkranz";
    if (!datei.empty()) {
        titel = QFileInfo(NativerPfad(datei)).fileName().toStdString();
    }
    return blatt.empty() ? titel : titel.append(", ").append(blatt);
}

std::string Blattplatz(Formart art, const std::string& datei, std::string_view blatt) {
    return FreierPfad(PdfPfad(art, datei, Stand.AppPfad, blatt), [&](const std::string& pfad) {
        if (!DateiDa(pfad)) {
            return true; // a folder in the way is reported when the sheet is written
        }
        const bool gemeint =
            !datei.empty() || (gemerkt.formular == Formularnummer() && gemerkt.pfade.contains(pfad));
        return gemeint && IstBlattVon(pfad, Blatttitel(art, datei, blatt));
    });
}

void BlattMerken(const std::string& pfad) {
    if (gemerkt.formular != Formularnummer()) {
        gemerkt = {Formularnummer(), {}};
    }
    gemerkt.pfade.insert(pfad);
}
