// What the memory grows by while forms are opened: after 2,000 of them, over that after 100. Quiz forms and
// tests in turn, each in a window of its own, and every other one the way the list of forms does it, over the
// open one.
#include "benchmarks/kennzahl.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "forms/formulare.h"
#include "forms/oeffnen.h"
#include "mainwindow/frmMDI.h"
#include "tests/hilfe/programmordner.h"

#include <QApplication>

#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <unistd.h>

namespace {

constexpr int anfang = 100;
constexpr int ende = 2000;

// MiB that the program holds, without what it could give back at once.
double Speicher() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
    std::ifstream datei("/proc/self/statm");
    long umfang = 0;
    long belegt = 0;
    if (!(datei >> umfang >> belegt)) {
        std::cerr << "The memory can't be measured here\n";
        std::exit(1);
    }
    return static_cast<double>(belegt * sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

void Oeffnen(int von, int bis) {
    constexpr std::array formulare{"\\KRANZ\\Bibelabend.FKR", "\\KRANZ\\Naturabend.FKR",
                                   "\\TEST\\Lagerleben.FKR", "\\TEST\\Erste-Hilfe.FKR"};
    for (int i = von; i < bis; ++i) {
        if (i % 2 == 0) {
            FormulareEntladen();
        }
        const std::string pfad = Stand.AppPfad + formulare.at(static_cast<std::size_t>(i) % formulare.size());
        if (!FormularErsetzen(pfad)) {
            std::cerr << pfad << " wasn't opened\n";
            std::exit(1);
        }
        QApplication::processEvents();
    }
}

} // namespace

int main(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const Programmordner ordner;
    OberflaecheEinrichten();
    HauptfensterZeigen();
    Oeffnen(0, anfang);
    const double frueh = Speicher();
    Oeffnen(anfang, ende);
    const double spaet = Speicher();
    std::cout << "Memory: " << frueh << " MiB, then " << spaet << " MiB\n";
    Einzelwert("laden_speicher", spaet - frueh, "MiB");
    return 0;
}
