#include "mainwindow/formularbefehle.h"

#include "catalogue/katalogladen.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "core/schritt.h"
#include "dialogs/meldung.h"
#include "forms/formulare.h"
#include "mainwindow/texte.h"
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

bool Schliessen(Formart art) {
    Formularfenster* form = OffenesFormular(art);
    return form == nullptr || form->Schliessen();
}

// Asks, and closes the form of that kind. True when it is gone.
bool NachFrageSchliessen(Formart art, const NachrichtText& frage) {
    if (Stand.FormGeaendert) {
        const Antwort antwort = Nachricht(kerntexte::schliessenGeaendert);
        if (antwort == Antwort::Ja) {
            OffenesSpeichern();
            return false; // meant: after saving the form stays open
        }
        if (antwort != Antwort::Nein) {
            return false;
        }
        Stand.FormGeaendert = false;
    } else if (!Bestaetigt(frage)) {
        return false;
    }
    return Schliessen(art);
}

// With another window in front, or none, only the toolbars change.
void Zurueck(Formart art, const NachrichtText& frage) {
    Formularfenster* form = OffenesFormular(art);
    const bool vorn = form != nullptr && AktivesKind() == form->fenster();
    if (!vorn || NachFrageSchliessen(art, frage)) {
        ModusHaupt();
    }
}

} // namespace

namespace befehle {

void FormularBeenden() {
    if (Formularfenster* form = OffenesFormular(); form != nullptr) {
        form->Schliessen();
    }
}

void FKSchliessen() {
    NachFrageSchliessen(Formart::Quiz, kerntexte::schliessenFK);
}

void HBSchliessen() {
    // Meant: this button speaks of the quiz form.
    NachFrageSchliessen(Formart::Test, kerntexte::schliessenFK);
}

void FKZurueck() {
    Zurueck(Formart::Quiz, kerntexte::schliessenFK);
}

void HBZurueck() {
    Zurueck(Formart::Test, kerntexte::schliessenHB);
}

void FKDrucken() {
    OffenesDrucken(Formart::Quiz);
}

void FKBlankoDrucken() {
    OffenesDrucken(Formart::Quiz, true);
}

void HBDrucken() {
    OffenesDrucken(Formart::Test);
}

void FKFragenLoeschen() {
    if (Bestaetigt(kerntexte::fkFragenLoeschen)) {
        const Schritt schritt("Fragen löschen");
        FK_FragenLoeschen();
    }
}

void FKFragenEinfuegen() {
    const Schritt schritt("Fragen einfügen");
    FK_FragenEinfuegen();
}

void FKSpezialLoeschen() {
    if (Bestaetigt(kerntexte::fkSpezialLoeschen)) {
        const Schritt schritt("Spezialfelder löschen");
        FK_SpezialLoeschen();
    }
}

void FKSpezialEinfuegen() {
    const Schritt schritt("Spezialfelder einfügen");
    FK_SpezialEinfuegen();
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
        FK_TitellisteFuellen(Katalog.UnterthemenListe);
    } else {
        ThemenLaden();
        FK_TitellisteFuellen(Katalog.ThemenListe);
    }
}

} // namespace befehle
