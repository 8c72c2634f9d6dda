// Adds a line to a catalogue file as the editor saves it and ends: katalog_probe <path> <letter> <length>.
// The exit code is 0 or the number of the run-time error. Two calls of getppid mark in a trace where the save
// begins and ends.
#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "core/pfad.h"
#include "editor/katalogtext.h"

#include <cstdlib>
#include <string>

#include <sys/syscall.h>
#include <unistd.h>

int main(int anzahl, char** argumente) {
    if (anzahl != 4) {
        return 200;
    }
    const std::string pfad = EigenerPfad(QString::fromUtf8(argumente[1]));
    const std::string zeile(std::strtoul(argumente[3], nullptr, 10), *argumente[2]);
    int ergebnis = 0;
    try {
        const Katalogtext gelesen = KatalogtextLesen(DateiLesen(pfad, groessterKatalogtext));
        ::syscall(SYS_getppid);
        DateiSchreiben(pfad, KatalogtextBytes(gelesen.marke, gelesen.text + zeile));
    } catch (const Laufzeitfehler& fehler) {
        ergebnis = fehler.nummer();
    }
    ::syscall(SYS_getppid);
    return ergebnis;
}
