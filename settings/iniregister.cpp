// The six tabs of the settings dialog, the toolbar below them, and which of its controls a tab brings along.
#include "core/bilder.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "settings/frmIni.h"
#include "settings/texte.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int tabSpezial = 0;
constexpr int tabStandard = 3;
constexpr int gruppenabstand = 16; // between the groups of the toolbar

struct Sichtbarkeit {
    const char* name;
    bool spezial;  // on the tab of the special fields
    bool standard; // on the tab of the standard values
};

// On any other tab none of these is there.
constexpr std::array sichtbarkeiten{
    Sichtbarkeit{"cmdStandard", true, false},    Sichtbarkeit{"cmdStandard2", true, false},
    Sichtbarkeit{"cmdNull", true, true},         Sichtbarkeit{"cmdIniSpeichern", false, true},
    Sichtbarkeit{"cmdIniLaden", false, true},    Sichtbarkeit{"cmdAbsolut", false, true},
    Sichtbarkeit{"pnlFragenFK", true, true},     Sichtbarkeit{"lblFragenFK", true, true},
    Sichtbarkeit{"pnlFragenFKF", true, true},    Sichtbarkeit{"lblFragenFKF", true, true},
    Sichtbarkeit{"pnlFragenFKW", true, true},    Sichtbarkeit{"lblFragenFKW", true, true},
    Sichtbarkeit{"cmdFragenMinus", false, true}, Sichtbarkeit{"cmdFragenPlus", false, true},
    Sichtbarkeit{"cmdWissenMinus", false, true}, Sichtbarkeit{"cmdWissenPlus", false, true},
};

// What a tab hides leaves its place empty, so that nothing jumps from tab to tab.
void PlatzBehalten(QWidget* teil) {
    QSizePolicy regel = teil->sizePolicy();
    regel.setRetainSizeWhenHidden(true);
    teil->setSizePolicy(regel);
}

struct Tastenplatz {
    const char* name;
    const char* aufschrift;
    int zeile;
    int spalte;
};

// Row by row, so that the tab order follows the eye. Buttons of different tabs share a place.
constexpr std::array registertasten{
    Tastenplatz{"cmdStandard", "&Standardwerte", 0, 0}, Tastenplatz{"cmdAbsolut", "Nach Spiel&regel", 0, 0},
    Tastenplatz{"cmdNull", "Auf 0 s&etzen", 0, 1},      Tastenplatz{"cmdStandard2", "&Umrechnen", 1, 0},
    Tastenplatz{"cmdIniLaden", "&Laden", 1, 0},         Tastenplatz{"cmdIniSpeichern", "S&peichern", 1, 1}};
constexpr std::array dialogtasten{Tastenplatz{"cmdEinOK", "&OK", 0, 0},
                                  Tastenplatz{"cmdAbbrechen", "&Abbrechen", 0, 1},
                                  Tastenplatz{"cmdHilfe", "&Hilfe", 1, 1}};

constexpr std::array tastenbilder{Tastenbild{"cmdEinOK", "datei/ok"},
                                  Tastenbild{"cmdAbbrechen", "datei/abbrechen"},
                                  Tastenbild{"cmdHilfe", "leiste/hilfe"}};

} // namespace

void frmIni::RegisterBauen() {
    tabIni_ = new QTabWidget(this);
    tabIni_->setObjectName(QStringLiteral("tabIni"));
    tabIni_->setUsesScrollButtons(false);
    for (std::size_t i = 0; i < pnlIni_.size(); ++i) {
        auto* seite = new Panel(tabIni_, QStringLiteral("pnlIni(%1)").arg(i));
        seite->setFrameStyle(QFrame::NoFrame);
        pnlIni_.at(i) = seite;
        tabIni_->addTab(seite, Anzeige(initexte::register_.at(i)));
    }
    for (const auto& [seite, gruppen] : {std::pair{tabSpezial, std::array{Punkte, Felder}},
                                         std::pair{tabStandard, std::array{PunkteV, FelderV}}}) {
        Panel* traeger = pnlIni_.at(static_cast<std::size_t>(seite));
        auto* spalte = new QVBoxLayout(traeger);
        for (const Gruppe gruppe : gruppen) {
            spalte->addWidget(ArtenrahmenBauen(traeger, gruppe));
        }
    }
    FormularseiteBauen(pnlIni_.at(1));
    FarbseiteBauen(pnlIni_.at(2));
    DateiseiteBauen(pnlIni_.at(4));
    RegelnBauen(pnlIni_.at(5));
    tabIni_->setCurrentIndex(tabStandard);
    connect(tabIni_, &QTabWidget::currentChanged, this, &frmIni::RegisterAnwenden);
}

void frmIni::ToolbarBauen() {
    pnlToolbar_ = new Panel(this, QStringLiteral("pnlToolbar"));
    auto* reihe = new QHBoxLayout(pnlToolbar_);
    auto* zaehler = new QGridLayout;
    auto* register_ = new QGridLayout;
    auto* dialog = new QGridLayout;
    ZaehlerBauen(zaehler);
    const auto fuellen = [this](QGridLayout* gitter, const auto& tasten, int breite) {
        for (const Tastenplatz& platz : tasten) {
            QPushButton* taste = TasteBauen(pnlToolbar_, platz.name, platz.aufschrift);
            taste->setFixedSize(breite, 28);
            gitter->addWidget(taste, platz.zeile, platz.spalte);
        }
    };
    fuellen(register_, registertasten, 108);
    fuellen(dialog, dialogtasten, 90);
    TastenbilderSetzen(pnlToolbar_, tastenbilder);
    reihe->addLayout(zaehler);
    reihe->addSpacing(gruppenabstand);
    reihe->addStretch();
    reihe->addLayout(register_);
    reihe->addStretch();
    reihe->addSpacing(gruppenabstand);
    reihe->addLayout(dialog);
    for (const Sichtbarkeit& zeile : sichtbarkeiten) {
        PlatzBehalten(pnlToolbar_->findChild<QWidget*>(QLatin1String(zeile.name)));
    }
    pnlToolbar_->findChild<QPushButton*>(QStringLiteral("cmdEinOK"))->setDefault(true);
}

void frmIni::RegisterAnwenden(int index) {
    for (const Sichtbarkeit& zeile : sichtbarkeiten) {
        const bool da = (index == tabSpezial && zeile.spezial) || (index == tabStandard && zeile.standard);
        pnlToolbar_->findChild<QWidget*>(QLatin1String(zeile.name))->setVisible(da);
    }
}
