#include "core/formularbefehle.h"

#include "catalogue/katalogladen.h"
#include "core/hauptfenster.h"
#include "core/texte.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "persistence/speichern.h"
#include "printing/drucken.h"
#include "quizform/fkformular.h"

#include <QAbstractButton>
#include <QAction>
#include <QWidget>

namespace {

QAbstractButton* Themenschalter() {
    QWidget* haupt = Hauptfenster();
    return haupt == nullptr ? nullptr : haupt->findChild<QAbstractButton*>(QStringLiteral("grpFKHB"));
}

QAction* Themeneintrag() {
    QWidget* haupt = Hauptfenster();
    return haupt == nullptr ? nullptr : haupt->findChild<QAction*>(QStringLiteral("mThemenHB"));
}

} // namespace

namespace befehle {

bool NachFrageSchliessen(const NachrichtText& frage, void (*speichern)(), bool (*schliessen)()) {
    NachrichtAntwort = antwortAbbrechen;
    if (FormGeaendert == 1) {
        Nachricht(kerntexte::schliessenGeaendert);
        if (NachrichtAntwort == antwortJa) {
            speichern();
            return false; // meant: after saving the form stays open
        }
        if (NachrichtAntwort != antwortNein) {
            return false;
        }
        FormGeaendert = 0;
    } else if (Nachricht(frage) == antwortAbbrechen) {
        return false;
    }
    return schliessen();
}

bool Gefragt(const NachrichtText& frage) {
    NachrichtAntwort = antwortAbbrechen;
    return Nachricht(frage) != antwortAbbrechen;
}

void FKSpeichern() {
    KindNachVorn("FKFragen");
    FK_EingabeAbschliessen();
    FK_Merken();
    Speichern();
}

void FKSpeichernUnter() {
    KindNachVorn("FKFragen");
    FK_EingabeAbschliessen();
    FK_Merken();
    SpeichernUnter(2);
}

void FKBeenden() {
    FK_Schliessen();
}

void FKSchliessen() {
    NachFrageSchliessen(kerntexte::schliessenFK, FKSpeichern, FK_Schliessen);
}

void FKZurueck() {
    // With another window in front, or none, only the toolbars change.
    if (AktivesKind() == "FKFragen" &&
        !NachFrageSchliessen(kerntexte::schliessenFK, FKSpeichern, FK_Schliessen)) {
        return;
    }
    ModusHaupt();
}

void FKFragenLoeschen() {
    if (Gefragt(kerntexte::fkFragenLoeschen)) {
        FK_FragenLoeschen();
    }
}

void FKSpezialLoeschen() {
    if (Gefragt(kerntexte::fkSpezialLoeschen)) {
        FK_SpezialLoeschen();
    }
}

void FKBlankoDrucken() {
    BlankoDruck = 1;
    try {
        FormularDrucken();
    } catch (...) {
        BlankoDruck = 0;
        throw;
    }
    BlankoDruck = 0;
}

void ThemenquelleUmschalten() {
    const QAction* eintrag = Themeneintrag();
    QAbstractButton* schalter = Themenschalter();
    if (eintrag == nullptr || schalter == nullptr) {
        return;
    }
    schalter->setChecked(eintrag->isChecked()); // the entry has flipped its own check mark
    ThemenquelleUebernehmen();
}

void ThemenquelleUebernehmen() {
    const QAbstractButton* schalter = Themenschalter();
    QAction* eintrag = Themeneintrag();
    if (schalter == nullptr || eintrag == nullptr) {
        return;
    }
    eintrag->setChecked(schalter->isChecked());
    if (schalter->isChecked()) {
        HBUnterthemenLaden();
        FK_TitellisteFuellen(UnterthemenListe);
    } else {
        ThemenLaden();
        FK_TitellisteFuellen(ThemenListe);
    }
}

} // namespace befehle
