#include "core/testbefehle.h"

#include "core/formularbefehle.h"
#include "core/hauptfenster.h"
#include "core/texte.h"
#include "core/zustand.h"
#include "persistence/speichern.h"
#include "settings/einstellungen.h"
#include "testform/hbformular.h"

#include <QWidget>

namespace {

bool HauptleisteSteht() {
    const QWidget* haupt = Hauptfenster();
    const auto* leiste = haupt == nullptr ? nullptr : haupt->findChild<QWidget*>(QStringLiteral("picKranz"));
    return leiste != nullptr && !leiste->isHidden();
}

} // namespace

namespace befehle {

void HBNeu() {
    HB_Neu();
}

void HBNeuMitModus() {
    const std::string formTyp = FormTyp;
    const bool hauptleiste = HauptleisteSteht();
    HB_ModusSetzen();
    if (HB_Neu()) {
        return;
    }
    if (formTyp == "FK") {
        ModusFK();
    }
    if (hauptleiste) {
        ModusHaupt();
    }
    FormTyp = formTyp;
}

void HBSpeichern() {
    KindNachVorn("HBFragen");
    HB_Merken();
    Speichern();
}

void HBSpeichernUnter() {
    KindNachVorn("HBFragen");
    HB_Merken();
    SpeichernUnter(2);
}

void HBBeenden() {
    HB_Schliessen();
}

void HBSchliessen() {
    // Meant: this button speaks of the quiz form.
    NachFrageSchliessen(kerntexte::schliessenFK, HBSpeichern, HB_Schliessen);
}

void HBZurueck() {
    // With another window in front, or none, only the toolbars change.
    if (AktivesKind() == "HBFragen" &&
        !NachFrageSchliessen(kerntexte::schliessenHB, HBSpeichern, HB_Schliessen)) {
        return;
    }
    ModusHaupt();
}

void HBFragenLoeschen() {
    if (Gefragt(kerntexte::hbFragenLoeschen)) {
        HB_FragenLoeschen();
        HB_FelderFaerben();
    }
}

void HBFragenEinfuegen() {
    HB_FragenEinfuegen();
    HB_FelderFaerben();
}

void HBAntwortenLoeschen() {
    if (Gefragt(kerntexte::hbAntwortenLoeschen)) {
        HB_AntwortenLoeschen();
        HB_FelderFaerben();
    }
}

void HBAntwortenEinfuegen() {
    HB_AntwortenEinfuegen();
    HB_FelderFaerben();
}

void HBPunkteLoeschen() {
    if (Gefragt(kerntexte::hbPunkteLoeschen)) {
        HB_PunkteLoeschen();
    }
}

void HBSicherungUmschalten() {
    OptionDatei = OptionDatei == 1 ? 0 : 1;
}

} // namespace befehle
