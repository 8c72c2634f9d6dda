#include "mainwindow/testbefehle.h"

#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "core/schritt.h"
#include "dialogs/meldung.h"
#include "forms/testformulare.h"
#include "mainwindow/texte.h"
#include "rules/spielwerte.h"
#include "testform/hbformular.h"

#include <QWidget>

#include <utility>
#include <vector>

namespace {

// What the main window shows of the mode it is in, to be put back after a refusal.
class Modusanzeige {
public:
    Modusanzeige() {
        for (const char* name :
             {"picKranz", "picFK", "pnlFKFelder", "picEingabeFlagGruen", "picEingabeFlagRot"}) {
            auto* teil = Finden(name);
            gezeigt_.emplace_back(teil, teil != nullptr && !teil->isHidden());
        }
    }
    void Zurueck() const {
        if (Gezeigt(0)) {
            ModusHaupt();
        } else if (Gezeigt(1)) {
            ModusFK();
        }
        for (std::size_t i = 2; i < gezeigt_.size(); ++i) {
            if (gezeigt_[i].first != nullptr) {
                gezeigt_[i].first->setVisible(Gezeigt(i));
            }
        }
        Stand.FormTyp = formTyp_;
    }

private:
    static QWidget* Finden(const char* name) {
        const QWidget* haupt = Hauptfenster();
        return haupt == nullptr ? nullptr : haupt->findChild<QWidget*>(QLatin1String(name));
    }
    [[nodiscard]] bool Gezeigt(std::size_t i) const { return gezeigt_[i].second; }

    Formart formTyp_ = Stand.FormTyp;
    std::vector<std::pair<QWidget*, bool>> gezeigt_;
};

} // namespace

namespace befehle {

void HBNeu() {
    HB_Neu();
}

void HBNeuMitModus() {
    const Modusanzeige vorher;
    ModusTest();
    if (!HB_Neu()) {
        vorher.Zurueck();
    }
}

void HBFragenLoeschen() {
    if (Bestaetigt(kerntexte::hbFragenLoeschen)) {
        const Schritt schritt("Fragen löschen");
        HB_FragenLoeschen();
        HB_FelderFaerben();
    }
}

void HBFragenEinfuegen() {
    const Schritt schritt("Fragen einfügen");
    HB_FragenEinfuegen();
    HB_FelderFaerben();
}

void HBAntwortenLoeschen() {
    if (Bestaetigt(kerntexte::hbAntwortenLoeschen)) {
        const Schritt schritt("Antworten löschen");
        HB_AntwortenLoeschen();
        HB_FelderFaerben();
    }
}

void HBAntwortenEinfuegen() {
    const Schritt schritt("Antworten einfügen");
    HB_AntwortenEinfuegen();
    HB_FelderFaerben();
}

void HBPunkteLoeschen() {
    if (Bestaetigt(kerntexte::hbPunkteLoeschen)) {
        const Schritt schritt("Punkte löschen");
        HB_PunkteLoeschen();
    }
}

void HBPunkteEinfuegen() {
    const Schritt schritt("Punkte einfügen");
    HB_PunkteEinfuegen();
}

void HBSicherungUmschalten() {
    Spiel.OptionDatei = !Spiel.OptionDatei;
}

} // namespace befehle
