#include "core/testbefehle.h"

#include "core/formularbefehle.h"
#include "core/hauptfenster.h"
#include "core/texte.h"
#include "core/zustand.h"
#include "persistence/speichern.h"
#include "settings/einstellungen.h"
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
        FormTyp = formTyp_;
    }

private:
    static QWidget* Finden(const char* name) {
        const QWidget* haupt = Hauptfenster();
        return haupt == nullptr ? nullptr : haupt->findChild<QWidget*>(QLatin1String(name));
    }
    [[nodiscard]] bool Gezeigt(std::size_t i) const { return gezeigt_[i].second; }

    std::string formTyp_ = FormTyp;
    std::vector<std::pair<QWidget*, bool>> gezeigt_;
};

} // namespace

namespace befehle {

void HBNeu() {
    HB_Neu();
}

void HBNeuMitModus() {
    const Modusanzeige vorher;
    HB_ModusSetzen();
    if (!HB_Neu()) {
        vorher.Zurueck();
    }
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
