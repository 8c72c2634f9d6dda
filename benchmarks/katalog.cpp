// The whole catalogue as it is shipped, all its question files read one after the other as the selection
// dialog reads them, each into a list of its own, against getline of the same files into vectors.
#include "benchmarks/kennzahl.h"
#include "catalogue/katalogladen.h"
#include "catalogue/themen.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "tests/hilfe/programmordner.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr int laeufe = 101;

struct Datei {
    const Thema* thema;
    std::string_view unterthema;
    std::string nativ;
};

std::vector<Datei> Dateien() {
    std::vector<Datei> dateien;
    for (const Thema& thema : Themen()) {
        for (const Unterthema& unterthema : thema.unterthemen) {
            std::string pfad = Stand.AppPfad + "\\WISSEN\\";
            pfad.append(thema.ordner).append("\\").append(unterthema.datei);
            dateien.push_back({&thema, unterthema.name, NativerPfad(pfad).toStdString()});
        }
    }
    return dateien;
}

std::size_t InsModell(const std::vector<Datei>& dateien) {
    std::vector<Fragenliste> listen(dateien.size());
    std::size_t fragen = 0;
    for (std::size_t i = 0; i < dateien.size(); ++i) {
        FragenLaden(dateien[i].thema->name, dateien[i].unterthema, listen[i]);
        fragen += listen[i].anzahl();
    }
    return fragen;
}

// Lines, all but the headers.
std::size_t InVektoren(const std::vector<Datei>& dateien) {
    std::vector<std::vector<std::string>> listen(dateien.size());
    std::size_t zeilen = 0;
    for (std::size_t i = 0; i < dateien.size(); ++i) {
        std::ifstream datei(dateien[i].nativ, std::ios::binary);
        for (std::string zeile; std::getline(datei, zeile);) {
            listen[i].push_back(zeile);
        }
        zeilen += listen[i].size() - 1;
    }
    return zeilen;
}

} // namespace

int main() {
    const Programmordner ordner;
    const std::vector<Datei> dateien = Dateien();
    const std::size_t fragen = InsModell(dateien);
    if (fragen == 0 || InVektoren(dateien) != 4 * fragen) {
        std::cerr << "Not the same questions\n";
        return EXIT_FAILURE;
    }
    const Paar zeiten = Abwechselnd(
        laeufe, [&] { return Dauer([&] { (void)InsModell(dateien); }); },
        [&] { return Dauer([&] { (void)InVektoren(dateien); }); });
    std::cout << dateien.size() << " files, " << fragen << " questions\n";
    Verhaeltnis("katalog_lesen", zeiten.unser, zeiten.schlicht, "ms");
    return EXIT_SUCCESS;
}
