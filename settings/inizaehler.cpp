// The counters of the settings dialog: the step buttons for questions and areas, and the spin controls of the
// special fields with their panels.
#include "core/drehfeld.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "dialogs/meldung.h"
#include "rules/spezialarten.h"
#include "rules/spielwerte.h"
#include "settings/frmIni.h"
#include "settings/spaltenschild.h"
#include "settings/texte.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

// One row a Gruppe of the dialog.
struct Artengruppe {
    const char* rahmen;
    const char* panel;
    const char* spin;
    const char* wort; // what the control counts, for those who can't see its place
    Artwerte Vorgaben::*werte;
    std::int16_t hoechstens;
    const MeldungsText* zuWenig;
    const MeldungsText* zuViel;
    bool doppelt; // told twice past the highest value
};
constexpr std::array gruppen{
    Artengruppe{"fraPunkte", "pnlPunkte", "spnPunkte", "Punkte", &Vorgaben::Punkte, hoechstensPunkte,
                &initexte::punkteZuWenig, &initexte::punkteZuViel, false},
    Artengruppe{"fraFelder", "pnlFelder", "spnFelder", "Felder", &Vorgaben::Felder, hoechstensFelder,
                &initexte::felderZuWenig, &initexte::felderZuViel, false},
    Artengruppe{"fraPunkteV", "pnlPunkteV", "spnPunkteV", "Punkte", &Vorgaben::PunkteV, hoechstensPunkte,
                &initexte::punkteZuWenig, &initexte::punkteZuViel, true},
    Artengruppe{"fraFelderV", "pnlFelderV", "spnFelderV", "Felder", &Vorgaben::FelderV, hoechstensFelder,
                &initexte::felderZuWenig, &initexte::felderZuViel, false},
};

QString Name(const char* feld, std::size_t index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(feld)).arg(index);
}

// The words above the columns.
std::string Spaltentext() {
    std::string text;
    for (const Artzeile& zeile : spezialarten) {
        text += zeile.spalte;
    }
    return text;
}

Panel* Zahlpanel(QWidget* eltern, const QString& name) {
    auto* panel = new Panel(eltern, name);
    panel->setFixedSize(46, 28);
    panel->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    panel->setFarben(Qt::white, QColor());
    panel->setFont(Schrift(10_pt, true));
    return panel;
}

// A spin button held down repeats its step; over a message it must not, so the message lets go of it.
void Loslassen(const QWidget* spin) {
    for (auto* taste : spin->findChildren<QAbstractButton*>()) {
        taste->setDown(false);
    }
}

} // namespace

QGroupBox* frmIni::ArtenrahmenBauen(QWidget* eltern, Gruppe gruppe) {
    const Artengruppe& zeile = gruppen.at(gruppe);
    const bool felder = gruppe == Felder || gruppe == FelderV;
    auto* rahmen = RahmenBauen(eltern, zeile.rahmen,
                               felder ? Anzeige(Einsetzen(initexte::rahmenFelder, {"30"}))
                                      : Anzeige(initexte::rahmenPunkte));
    auto* gitter = new QGridLayout(rahmen);
    gitter->setHorizontalSpacing(0);
    gitter->addWidget(new Spaltenschild(rahmen, Name("lblArten", gruppe), Anzeige(Spaltentext())), 0, 0, 1,
                      anzahlArten);
    for (const Artzeile& artzeile : spezialarten) {
        const int spalte = static_cast<int>(Artstelle(artzeile.art));
        gitter->addLayout(ArtBauen(rahmen, gruppe, artzeile.art), 1, spalte);
        gitter->setColumnStretch(spalte, 1);
        gitter->setColumnMinimumWidth(spalte, 100);
    }
    if (gruppe == Felder) {
        fraFelder_ = rahmen;
    }
    return rahmen;
}

QLayout* frmIni::ArtBauen(QWidget* rahmen, Gruppe gruppe, Spezialart art) {
    const Artengruppe& zeile = gruppen.at(gruppe);
    Panel* panel = Zahlpanel(rahmen, Name(zeile.panel, Artstelle(art)));
    werte_.at(gruppe)[art] = panel;
    const QString was =
        QStringLiteral("%1, %2").arg(QString::fromUtf8(zeile.wort), Anzeige(ArtzeileVon(art).name));
    auto* spin = new Drehfeld(rahmen, Name(zeile.spin, Artstelle(art)), was);
    spin->setFixedSize(24, 32);
    spin->setZahlpanel(panel);
    panel->setAnsage(was);
    connect(spin, &Drehfeld::hoch, this, [this, gruppe, art] { ArtDrehen(gruppe, art, Richtung::Hoch); });
    connect(spin, &Drehfeld::runter, this, [this, gruppe, art] { ArtDrehen(gruppe, art, Richtung::Runter); });
    auto* paar = new QHBoxLayout;
    paar->setSpacing(2);
    paar->addStretch();
    paar->addWidget(panel);
    paar->addWidget(spin);
    paar->addStretch();
    return paar;
}

Panel* frmIni::ZaehlerpanelBauen(QGridLayout* gitter, const char* kern, const char* wort, int spalte) {
    auto* schild = new QLabel(QString::fromUtf8(wort), pnlToolbar_);
    schild->setObjectName(QStringLiteral("lbl") + QLatin1String(kern));
    gitter->addWidget(schild, 0, spalte, Qt::AlignHCenter | Qt::AlignBottom);
    Panel* zahl = Zahlpanel(pnlToolbar_, QStringLiteral("pnl") + QLatin1String(kern));
    gitter->addWidget(zahl, 1, spalte);
    return zahl;
}

void frmIni::SchrittasteBauen(QGridLayout* gitter, const Schrittaste& zeile) {
    QPushButton* taste = TasteBauen(pnlToolbar_, zeile.name, zeile.richtung == Richtung::Hoch ? "+" : "-");
    taste->setAccessibleName(QString::fromUtf8(zeile.wort));
    taste->setFixedSize(28, 28);
    gitter->addWidget(taste, 1, zeile.spalte);
    connect(taste, &QPushButton::clicked, this, [this, zeile] {
        Ausfuehren(zeile.name, [this, zeile] { (this->*zeile.schritt)(zeile.richtung); });
    });
}

// From left to right, so that the tab order follows the eye.
void frmIni::ZaehlerBauen(QGridLayout* gitter) {
    gitter->setHorizontalSpacing(2);
    for (const int luecke : {1, 5}) {
        gitter->setColumnMinimumWidth(luecke, 8);
    }
    pnlFragenFK_ = ZaehlerpanelBauen(gitter, "FragenFK", "Gesamt", 0);
    SchrittasteBauen(gitter, {"cmdFragenMinus", "Fragen pro Wissensgebiet zurücksetzen", 2, Richtung::Runter,
                              &frmIni::FragenStufen});
    pnlFragenFKF_ = ZaehlerpanelBauen(gitter, "FragenFKF", "Fragen", 3);
    SchrittasteBauen(gitter, {"cmdFragenPlus", "Fragen pro Wissensgebiet erhöhen", 4, Richtung::Hoch,
                              &frmIni::FragenStufen});
    SchrittasteBauen(gitter, {"cmdWissenMinus", "Wissensgebiete zurücksetzen", 6, Richtung::Runter,
                              &frmIni::WissenStufen});
    pnlFragenFKW_ = ZaehlerpanelBauen(gitter, "FragenFKW", "Wissen", 7);
    SchrittasteBauen(gitter,
                     {"cmdWissenPlus", "Wissensgebiete erhöhen", 8, Richtung::Hoch, &frmIni::WissenStufen});
}

void frmIni::ZaehlerZeigen() {
    pnlFragenFK_->setCaption(QString::number(Spiel.FelderGesamt));
    pnlFragenFKF_->setCaption(QString::number(Spiel.FragenProWissen));
    pnlFragenFKW_->setCaption(QString::number(Spiel.AnzahlWissen));
}

bool frmIni::SchrittErlaubt(const Regelschritt& schritt) {
    if (schritt.absage != nullptr) {
        Meldung(*schritt.absage);
        return false;
    }
    return !schritt.frage || Bestaetigt(initexte::Frage(schritt.frage->titel, schritt.frage->text));
}

void frmIni::FragenStufen(Richtung richtung) {
    Stufen(FragenSchritt(richtung, Spiel.FragenProWissen, Spiel.OptionMaxFelder), Spiel.FragenProWissen);
}

void frmIni::WissenStufen(Richtung richtung) {
    Stufen(WissenSchritt(richtung, Spiel.AnzahlWissen, Spiel.FragenProWissen, Spiel.OptionMaxWissen),
           Spiel.AnzahlWissen);
}

// A refused step refreshes the display with the old numbers, and changes nothing else.
void frmIni::Stufen(const Regelschritt& schritt, std::int16_t& zaehler) {
    if (SchrittErlaubt(schritt)) {
        zaehler = schritt.neu;
        gestuft_ = true;
        ZaehlerZeigen(); // also where the total can't be told below
        GesamtRechnen(Spiel);
    }
    ZaehlerZeigen();
}

void frmIni::ArtDrehen(Gruppe gruppe, Spezialart art, Richtung richtung) {
    const Artengruppe& zeile = gruppen.at(gruppe);
    if (Drehen((vorgaben_.*zeile.werte)[art], richtung, zeile.hoechstens)) {
        ArtenZeigen(gruppe);
        return;
    }
    Loslassen(findChild<QWidget*>(Name(zeile.spin, Artstelle(art))));
    if (richtung == Richtung::Hoch && zeile.doppelt) {
        Systemkasten(Kastenart::Schlicht, "", initexte::mehrGehtNicht);
    }
    Meldung(richtung == Richtung::Hoch ? *zeile.zuViel : *zeile.zuWenig);
}

void frmIni::ArtenZeigen(Gruppe gruppe) {
    const Artwerte& werte = vorgaben_.*gruppen.at(gruppe).werte;
    for (const Artzeile& zeile : spezialarten) {
        werte_.at(gruppe)[zeile.art]->setCaption(QString::number(werte[zeile.art]));
    }
}

void frmIni::FelderrahmenBeschriften(int fragen) {
    fraFelder_->setTitle(Anzeige(Einsetzen(initexte::rahmenFelder, {std::to_string(fragen)})));
}
