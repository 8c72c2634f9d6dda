// Saves one file as the program does and ends: speichern_probe <path> <letter> <bytes>. The exit code is 0 or
// the number of the run-time error. Two calls of getppid mark in a trace where the save begins and ends.
#include "core/datei.h"
#include "core/pfad.h"

#include "core/laufzeitfehler.h"

#include <cstdlib>
#include <string>

#include <sys/syscall.h>
#include <unistd.h>

int main(int anzahl, char** argumente) {
    if (anzahl != 4) {
        return 200;
    }
    const std::string pfad = EigenerPfad(QString::fromUtf8(argumente[1]));
    const std::string bytes(std::strtoul(argumente[3], nullptr, 10), *argumente[2]);
    int ergebnis = 0;
    ::syscall(SYS_getppid);
    try {
        DateiSchreiben(pfad, bytes);
    } catch (const Laufzeitfehler& fehler) {
        ergebnis = fehler.nummer();
    }
    ::syscall(SYS_getppid);
    return ergebnis;
}
