// Saves one file again and again, each time another content, until it is killed. Says so after the first.
#include "core/datei.h"
#include "core/pfad.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication anwendung(argc, argv);
    const std::string pfad = EigenerPfad(QCoreApplication::arguments().value(1));
    for (int mal = 0;; ++mal) {
        const char zeichen = static_cast<char>('a' + mal % 26);
        DateiSchreiben(pfad, std::string(100000U + static_cast<unsigned char>(zeichen), zeichen));
        if (mal == 0) {
            std::puts("da");
            std::fflush(stdout);
        }
    }
}
