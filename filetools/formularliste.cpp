#include "filetools/formularliste.h"

#include "core/hauptfenster.h"
#include "filetools/frmFKformulare.h"

#include <QPointer>

namespace {

QPointer<frmFKformulare> fenster;

// The window, made on first touch; nullptr without a main window that could own it.
frmFKformulare* Fenster() {
    QWidget* haupt = Hauptfenster();
    if (fenster == nullptr && haupt != nullptr) {
        fenster = new frmFKformulare(haupt);
        QObject::connect(fenster, &frmFKformulare::geschlossen, haupt, [] { fenster = nullptr; });
    }
    return fenster;
}

} // namespace

void FormularlisteZeigen() {
    frmFKformulare* liste = Fenster();
    if (liste == nullptr) {
        return;
    }
    liste->setAttribute(Qt::WA_ShowWithoutActivating, false);
    liste->Auffrischen(true);
    liste->show();
    liste->raise();
    liste->activateWindow();
}

void FormularlisteMitStartZeigen() {
    frmFKformulare* liste = Fenster();
    if (liste == nullptr) {
        return;
    }
    liste->setAttribute(Qt::WA_ShowWithoutActivating);
    liste->Auffrischen(false);
    liste->show();
}

void FormularlisteTastenSetzen(std::string_view formTyp) {
    frmFKformulare* liste = Fenster();
    if (liste != nullptr) {
        liste->TastenSetzen(formTyp == "FK", formTyp == "Test");
    }
}

frmFKformulare* FormularlisteOffen() {
    return fenster;
}
