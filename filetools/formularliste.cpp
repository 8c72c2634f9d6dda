#include "filetools/formularliste.h"

#include "core/hauptfenster.h"
#include "filetools/frmFKformulare.h"

#include <QPointer>

namespace {

QPointer<frmFKformulare> fenster;
Formularoeffner oeffnen = nullptr;

// The window, made on first touch; nullptr without a main window that could own it.
frmFKformulare* Fenster() {
    QWidget* haupt = Hauptfenster();
    if (fenster == nullptr && haupt != nullptr) {
        fenster = new frmFKformulare(
            haupt, [](const std::string& pfad) { return oeffnen != nullptr && oeffnen(pfad); });
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
    liste->Auffrischen(true);
    liste->Rufen();
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

void FormularlisteTastenSetzen(Formart art) {
    frmFKformulare* liste = Fenster();
    if (liste != nullptr) {
        liste->TastenSetzen(art == Formart::Quiz, art == Formart::Test);
    }
}

frmFKformulare* FormularlisteOffen() {
    return fenster;
}

void FormularlisteOeffnetMit(Formularoeffner oeffner) {
    oeffnen = oeffner;
}
