#include "mainwindow/programmende.h"

#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "core/wartezeiger.h"
#include "dialogs/meldung.h"
#include "editor/editor.h"
#include "forms/formulare.h"
#include "forms/speichern.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/texte.h"
#include "periphery/tray.h"
#include "persistence/einstellungenladen.h"
#include "persistence/texte.h"

#include <QCoreApplication>

namespace {

std::function<void()> beenden;

// Asks until the answer is Ja or Nein. False when the user cancelled.
bool EinstellungenErledigt() {
    Antwort antwort = Antwort::OK;
    while (antwort != Antwort::Ja && antwort != Antwort::Nein) {
        antwort = Nachricht(kerntexte::iniSpeichern);
        if (antwort == Antwort::Abbrechen) {
            return false;
        }
        if (antwort == Antwort::Nein) {
            Meldung(kerntexte::iniNichtGespeichert);
        }
    }
    if (antwort == Antwort::Ja) {
        try {
            const Wartezeiger warten;
            FremdeEinstellungenAufheben(); // one question more would only be in the way here
            EinstellungenSchreiben();
        } catch (const Laufzeitfehler& fehler) {
            Meldung(persistenztexte::iniFehler, {fehler.text()});
        }
    }
    return true;
}

} // namespace

void ProgrammBeendenDurch(std::function<void()> ende) {
    beenden = std::move(ende);
}

void ProgrammEnde() {
    if (Stand.FormGeaendert && !AuswertungSpeichernFragen()) {
        return;
    }
    if (!EditorTextGesichert() || !EinstellungenErledigt() || !NachrichtJaNein(kerntexte::ende)) {
        return;
    }
    SoundSpielen("trompete");
    TrayEntfernen();
    if (beenden) {
        beenden();
        return;
    }
    // The open form and the editor go without their closing questions: the first ones have taken their place.
    Stand.FormGeaendert = false;
    FormulareEntladen();
    EditorEntladen();
    if (frmMDI* haupt = MDIFenster(); haupt != nullptr) {
        haupt->hide();
        haupt->deleteLater(); // not at once: the command comes from one of its own buttons or menus
    }
    QCoreApplication::exit(0);
}
