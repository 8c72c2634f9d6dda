#include "core/programmende.h"

#include "core/frmMDI.h"
#include "core/hauptfenster.h"
#include "core/texte.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "editor/editor.h"
#include "periphery/tray.h"
#include "persistence/einstellungenladen.h"
#include "persistence/speichern.h"
#include "quizform/fkformular.h"
#include "testform/hbformular.h"

#include <QCoreApplication>

namespace {

std::function<void()> beenden;

// Asks until the answer is Ja or Nein. False when the user cancelled.
bool EinstellungenErledigt() {
    do {
        NachrichtAntwort = antwortAbbrechen;
        Nachricht(kerntexte::iniSpeichern);
        if (NachrichtAntwort == antwortAbbrechen) {
            return false;
        }
        if (NachrichtAntwort == antwortNein) {
            Meldung(kerntexte::iniNichtGespeichert);
        }
    } while (NachrichtAntwort != antwortJa && NachrichtAntwort != antwortNein);
    if (NachrichtAntwort == antwortJa) {
        try {
            EinstellungenSchreiben();
        } catch (const Laufzeitfehler& fehler) {
            Meldung(kerntexte::iniFehler, {fehler.text()});
        }
    }
    return true;
}

// Asks until the answer is Ja. False on Nein.
bool EndeBestaetigt() {
    do {
        NachrichtAntwort = antwortAbbrechen; // closing the question by its frame asks again
        Nachricht(kerntexte::ende);
    } while (NachrichtAntwort != antwortJa && NachrichtAntwort != antwortNein);
    return NachrichtAntwort == antwortJa;
}

} // namespace

void ProgrammBeendenDurch(std::function<void()> ende) {
    beenden = std::move(ende);
}

void ProgrammEnde() {
    if (FormGeaendert == 1 && AuswertungSpeichernFragen() == 1) {
        return;
    }
    if (!EditorTextGesichert() || !EinstellungenErledigt() || !EndeBestaetigt()) {
        return;
    }
    SoundSpielen("trompete");
    TrayEntfernen();
    if (beenden) {
        beenden();
        return;
    }
    // The open form and the editor go without their closing questions: the first ones have taken their place.
    FormGeaendert = 0;
    FK_Entladen();
    HB_Entladen();
    EditorEntladen();
    if (frmMDI* haupt = MDIFenster(); haupt != nullptr) {
        haupt->hide();
        haupt->deleteLater(); // not at once: the command comes from one of its own buttons or menus
    }
    QCoreApplication::exit(0);
}
