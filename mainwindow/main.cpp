// The program's entry: the command line, the toolkit, the start window, and the net under everything that a
// handler lets through.
#include "core/laufzeitfehler.h"
#include "core/oberflaeche.h"
#include "core/plattform.h"
#include "dialogs/meldung.h"
#include "mainwindow/frmStart.h"
#include "start/aufruf.h"
#include "start/dateiwunsch.h"
#include "start/empfang.h"
#include "start/startorte.h"

#include <QApplication>
#include <QDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <new>
#include <string>
#include <vector>

namespace {

class Anwendung : public QApplication {
public:
    using QApplication::QApplication;

    // An error that no routine handled is reported, and the program goes on.
    bool notify(QObject* empfaenger, QEvent* ereignis) override {
        try {
            return QApplication::notify(empfaenger, ereignis);
        } catch (const Laufzeitfehler& fehler) {
            FehlerMelden("FK : Ereignis", fehler);
        } catch (const std::bad_alloc&) {
            FehlerMelden("FK : Ereignis", Laufzeitfehler(Fehler::SpeicherVoll));
        }
        return true;
    }
};

// Needs no display. The program's exit code.
[[nodiscard]] int Drucken(Aufrufart art) {
    constexpr int falscherAufruf = 2;
    const bool falsch = art == Aufrufart::Falsch;
    std::FILE* const wohin = falsch ? stderr : stdout;
    const bool gedruckt = std::fputs(Aufruftext(art).c_str(), wohin) >= 0 && std::fflush(wohin) == 0;
    return falsch ? falscherAufruf : (gedruckt ? EXIT_SUCCESS : EXIT_FAILURE);
}

[[nodiscard]] Programmaufruf Lesen(const std::vector<plattform::Argument>& argumente) {
    std::vector<std::string> texte;
    std::ranges::transform(argumente, std::back_inserter(texte), &plattform::Argument::text);
    return AufrufLesen(texte);
}

// A file that another start hands over.
void Annehmen(const QString& datei) {
    NachVornHolen();
    DateiWuenschen(datei);
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<plattform::Argument> argumente = plattform::Argumente(argc, argv);
    const Programmaufruf aufruf = Lesen(argumente);
    if (aufruf.art != Aufrufart::Programm) {
        return Drucken(aufruf.art);
    }
    const Anwendung anwendung(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Feldkranz!"));
    QGuiApplication::setDesktopFileName(QStringLiteral("feldkranz")); // packaging/feldkranz.desktop
    const Startorte orte = StartorteFinden(QCoreApplication::applicationDirPath(), Datenheim());
    const QString ort = Empfangsort(orte.programmordner);
    if (aufruf.datei) {
        const QString datei = QDir::current().absoluteFilePath(argumente.at(*aufruf.datei).pfad);
        if (DateiUebergeben(ort, datei)) {
            return EXIT_SUCCESS;
        }
        DateiWuenschen(datei);
    }
    const Empfang empfang(ort, Annehmen);
    OberflaecheEinrichten();
    StartfensterZeigen(orte);
    return QCoreApplication::exec();
}
