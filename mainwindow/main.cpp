// The program's entry: the toolkit, the start window, and the net under everything that a handler lets
// through.
#include "core/laufzeitfehler.h"
#include "core/oberflaeche.h"
#include "dialogs/meldung.h"
#include "mainwindow/frmStart.h"

#include <QApplication>

#include <new>

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

} // namespace

int main(int argc, char** argv) {
    const Anwendung anwendung(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Feldkranz!"));
    QGuiApplication::setDesktopFileName(QStringLiteral("feldkranz")); // packaging/feldkranz.desktop
    OberflaecheEinrichten();
    StartfensterZeigen();
    return QCoreApplication::exec();
}
