#include "mainwindow/befehle.h"

#include "catalogue/auswahl.h"
#include "checking/pruefen.h"
#include "core/hauptfenster.h"
#include "dialogs/meldung.h"
#include "editor/editor.h"
#include "filetools/formularliste.h"
#include "filling/fuellen.h"
#include "forms/formulare.h"
#include "forms/oeffnen.h"
#include "forms/quizformulare.h"
#include "mainwindow/extras.h"
#include "mainwindow/formularbefehle.h"
#include "mainwindow/formulargroesse.h"
#include "mainwindow/testbefehle.h"
#include "mainwindow/texte.h"
#include "periphery/frmHomepage.h"
#include "periphery/mail.h"
#include "periphery/spielregel.h"
#include "search/suchen.h"
#include "settings/vorgabendialog.h"
#include "sheets/vorschau.h"

#include <QAbstractButton>
#include <QAction>

#include <algorithm>
#include <array>
#include <new>

namespace {

void HilfeTaste() {
    Meldung(kerntexte::hilfeTaste);
}
void HilfeMenue() {
    Meldung(kerntexte::hilfeMenue);
}
void HilfeFormular() {
    Meldung(kerntexte::hilfeFK);
}
void HilfeTestformular() {
    Meldung(kerntexte::hilfeHB);
}
void HinweisTarvo() {
    Nachricht(kerntexte::tarvo);
}
void HinweisBrennek() {
    Nachricht(kerntexte::brennek);
}
// The entry turns its own check mark over and has no other effect; that is meant.
void NurHaken() {}

struct Zuordnung {
    std::string_view name;
    Befehl befehl;
};

constexpr std::array zuordnungen{
    Zuordnung{"cmdNeuFK", FK_Neu},
    Zuordnung{"mDatei(1)", FK_Neu},
    Zuordnung{"cmdDateiFK(1)", FK_Neu},
    Zuordnung{"mDateiFK(1)", FK_Neu},
    Zuordnung{"cmdNeuHB", befehle::HBNeu},
    Zuordnung{"cmdDateiHB(1)", befehle::HBNeu},
    Zuordnung{"mDateiHB(1)", befehle::HBNeu},
    Zuordnung{"mDatei(2)", befehle::HBNeuMitModus},
    Zuordnung{"cmdLaden", FormularOeffnen},
    Zuordnung{"mDatei(4)", FormularOeffnen},
    Zuordnung{"cmdDateiFK(2)", FormularOeffnen},
    Zuordnung{"mDateiFK(3)", FormularOeffnen},
    Zuordnung{"cmdDateiHB(2)", FormularOeffnen},
    Zuordnung{"mDateiHB(3)", FormularOeffnen},
    Zuordnung{"cmdDateiliste", FormularlisteZeigen},
    Zuordnung{"mAuswahl(2)", FormularlisteZeigen},
    Zuordnung{"mAuswahl(1)", AuswahlZeigen},
    Zuordnung{"cmdAuswahl(0)", AuswahlZeigen},
    Zuordnung{"cmdAuswahl(1)", AuswahlZeigen},
    Zuordnung{"mFKFragenauswahl", AuswahlZeigen},
    Zuordnung{"mHBFragenauswahl", AuswahlZeigen},
    Zuordnung{"cmdDateiFK(3)", OffenesSpeichern},
    Zuordnung{"mDateiFK(5)", OffenesSpeichern},
    Zuordnung{"cmdDateiFK(4)", OffenesSpeichernUnter},
    Zuordnung{"mDateiFK(6)", OffenesSpeichernUnter},
    Zuordnung{"cmdDateiFK(5)", befehle::FormularBeenden},
    Zuordnung{"cmdDateiHB(3)", OffenesSpeichern},
    Zuordnung{"mDateiHB(5)", OffenesSpeichern},
    Zuordnung{"cmdDateiHB(4)", OffenesSpeichernUnter},
    Zuordnung{"mDateiHB(6)", OffenesSpeichernUnter},
    Zuordnung{"cmdDateiHB(5)", befehle::FormularBeenden},
    Zuordnung{"cmdDruckenFK(1)", DruckerEinrichten},
    Zuordnung{"mDateiFK(10)", DruckerEinrichten},
    Zuordnung{"cmdDruckenHB(1)", DruckerEinrichten},
    Zuordnung{"mDateiHB(9)", DruckerEinrichten},
    Zuordnung{"cmdDruckenFK(2)", befehle::FKDrucken},
    Zuordnung{"cmdDruckenHB(2)", befehle::HBDrucken},
    Zuordnung{"mDateiHB(8)", befehle::HBDrucken},
    Zuordnung{"mDateiFK(8)", befehle::FKDrucken},
    Zuordnung{"mDateiFK(9)", befehle::FKBlankoDrucken},
    Zuordnung{"cmdFKFLoeschen", befehle::FKFragenLoeschen},
    Zuordnung{"cmdFKFLaden", befehle::FKFragenEinfuegen},
    Zuordnung{"cmdFKSLoeschen", befehle::FKSpezialLoeschen},
    Zuordnung{"cmdFKSLaden", befehle::FKSpezialEinfuegen},
    Zuordnung{"mFKFragen(1)", befehle::FKFragenLoeschen},
    Zuordnung{"mFKFragen(2)", befehle::FKFragenEinfuegen},
    Zuordnung{"mFKSpezial(1)", befehle::FKSpezialLoeschen},
    Zuordnung{"mFKSpezial(2)", befehle::FKSpezialEinfuegen},
    Zuordnung{"cmdFKSchliessen", befehle::FKSchliessen},
    Zuordnung{"cmdFKZurueck", befehle::FKZurueck},
    Zuordnung{"mFKFormular", befehle::FKZurueck},
    Zuordnung{"cmdHBFLoeschen", befehle::HBFragenLoeschen},
    Zuordnung{"mHBFragen(1)", befehle::HBFragenLoeschen},
    Zuordnung{"cmdHBFLaden", befehle::HBFragenEinfuegen},
    Zuordnung{"mHBFragen(2)", befehle::HBFragenEinfuegen},
    Zuordnung{"cmdHBALoeschen", befehle::HBAntwortenLoeschen},
    Zuordnung{"mHBAntworten(1)", befehle::HBAntwortenLoeschen},
    Zuordnung{"cmdHBALaden", befehle::HBAntwortenEinfuegen},
    Zuordnung{"mHBAntworten(2)", befehle::HBAntwortenEinfuegen},
    Zuordnung{"cmdHBPLoeschen", befehle::HBPunkteLoeschen},
    Zuordnung{"mHBPunkte(1)", befehle::HBPunkteLoeschen},
    Zuordnung{"cmdHBPLaden", befehle::HBPunkteEinfuegen},
    Zuordnung{"mHBPunkte(2)", befehle::HBPunkteEinfuegen},
    Zuordnung{"cmdHBSchliessen", befehle::HBSchliessen},
    Zuordnung{"cmdHBZurueck", befehle::HBZurueck},
    Zuordnung{"mHBFormular", befehle::HBZurueck},
    Zuordnung{"mExtra(1)", befehle::Rueckgaengig},
    Zuordnung{"mExtra(2)", befehle::Wiederherstellen},
    Zuordnung{"mExtra(4)", SucheZeigen},
    Zuordnung{"mExtra(5)", FuellenZeigen},
    Zuordnung{"mExtra(6)", PruefungZeigen},
    Zuordnung{"mExtra(8)", VorschauZeigen},
    Zuordnung{"mExtra(10)", befehle::FormularGroesser},
    Zuordnung{"mExtra(11)", befehle::FormularKleiner},
    Zuordnung{"mExtra(12)", befehle::FormularOriginal},
    Zuordnung{"mExtra(13)", befehle::FormularAnpassen},
    Zuordnung{"mBackUpHB", befehle::HBSicherungUmschalten},
    Zuordnung{"cmdIni", VorgabenZeigen},
    Zuordnung{"grpFKHB", befehle::ThemenquelleUebernehmen},
    Zuordnung{"mThemenHB", befehle::ThemenquelleUmschalten},
    Zuordnung{"cmdEdit", EditorZeigen},
    Zuordnung{"mEditorKranz", EditorZeigen},
    Zuordnung{"cmdHilfe", HilfeTaste},
    Zuordnung{"mHilfen(1)", HilfeMenue},
    Zuordnung{"mHilfeFK", HilfeFormular},
    Zuordnung{"mHilfeHB", HilfeTestformular},
    Zuordnung{"cmdSpielregel", SpielregelZeigen},
    Zuordnung{"cmdHomepage", HomepageZeigen},
    Zuordnung{"mHilfen(2)", HomepageZeigen},
    Zuordnung{"cmdeMail", MailAnHersteller},
    Zuordnung{"mHilfen(3)", MailAnHersteller},
    Zuordnung{"cmdTarvo", HinweisTarvo},
    Zuordnung{"mInfos(1)", HinweisTarvo},
    Zuordnung{"cmdBrennek", HinweisBrennek},
    Zuordnung{"mInfos(2)", HinweisBrennek},
    Zuordnung{"mBackUp", NurHaken},
    Zuordnung{"cmdEnde", ProgrammEnde},
    Zuordnung{"mDatei(6)", ProgrammEnde},
    Zuordnung{"mDateiFK(12)", ProgrammEnde},
    Zuordnung{"mDateiHB(11)", ProgrammEnde},
};

// Runs a command; a run-time error that it lets through is reported with the control as its place. The menu
// entries of the selection dialog speak for its button.
void Ausfuehren(Befehl befehl, const std::string& name) {
    const std::string wer = befehl == AuswahlZeigen ? "cmdAuswahl" : name.substr(0, name.find('('));
    const std::string ort = "FK : " + wer + "_Click";
    try {
        befehl();
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(ort, fehler);
    } catch (const std::bad_alloc&) {
        FehlerMelden(ort, Laufzeitfehler(Fehler::SpeicherVoll));
    }
}

} // namespace

Befehl BefehlFuer(std::string_view name) {
    const auto* const fund = std::find_if(zuordnungen.begin(), zuordnungen.end(),
                                          [name](const Zuordnung& zeile) { return zeile.name == name; });
    return fund == zuordnungen.end() ? nullptr : fund->befehl;
}

void BefehlVerbinden(QAbstractButton* schaltflaeche) {
    const std::string name = schaltflaeche->objectName().toStdString();
    const Befehl befehl = BefehlFuer(name);
    schaltflaeche->setEnabled(befehl != nullptr);
    if (befehl != nullptr) {
        QObject::connect(schaltflaeche, &QAbstractButton::clicked, schaltflaeche,
                         [befehl, name] { Ausfuehren(befehl, name); });
    }
}

void BefehlVerbinden(QAction* eintrag) {
    const std::string name = eintrag->objectName().toStdString();
    const Befehl befehl = BefehlFuer(name);
    eintrag->setEnabled(befehl != nullptr);
    if (befehl != nullptr) {
        QObject::connect(eintrag, &QAction::triggered, eintrag, [befehl, name] { Ausfuehren(befehl, name); });
    }
}
