// The counters of the settings dialog: the step buttons for questions and areas, and the spin controls of the
// special fields with their panels.
#include "core/drehfeld.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "dialogs/meldung.h"
#include "quizform/spezialfelder.h"
#include "settings/einstellungen.h"
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
    Artwerte* werte;
    std::int16_t hoechstens;
    const MeldungsText* zuWenig;
    const MeldungsText* zuViel;
    bool doppelt; // told twice past the highest value
};
constexpr std::array gruppen{
    Artengruppe{"fraPunkte", "pnlPunkte", "spnPunkte", "Punkte", &VorgabePunkte, hoechstensPunkte,
                &initexte::punkteZuWenig, &initexte::punkteZuViel, false},
    Artengruppe{"fraFelder", "pnlFelder", "spnFelder", "Felder", &VorgabeFelder, hoechstensFelder,
                &initexte::felderZuWenig, &initexte::felderZuViel, false},
    Artengruppe{"fraPunkteV", "pnlPunkteV", "spnPunkteV", "Punkte", &StdPunkte, hoechstensPunkte,
                &initexte::punkteZuWenig, &initexte::punkteZuViel, true},
    Artengruppe{"fraFelderV", "pnlFelderV", "spnFelderV", "Felder", &StdFelder, hoechstensFelder,
                &initexte::felderZuWenig, &initexte::felderZuViel, false},
};
constexpr std::array artnamen{"Aktion", "Ereignis", "Glück", "Joker", "Risiko"};

QString Name(const char* feld, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(feld)).arg(index);
}

Panel* Zahlpanel(QWidget* eltern, const QString& name) {
    auto* panel = new Panel(eltern, name);
    panel->setFixedSize(46, 28);
    panel->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    panel->setFarben(Qt::white, QColor());
    panel->setFont(Schrift(10, true));
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
    gitter->addWidget(new Spaltenschild(rahmen, Name("lblArten", gruppe), Anzeige(initexte::arten)), 0, 0, 1,
                      anzahlArten);
    for (int art = 0; art < anzahlArten; ++art) {
        gitter->addLayout(ArtBauen(rahmen, gruppe, art), 1, art);
        gitter->setColumnStretch(art, 1);
        gitter->setColumnMinimumWidth(art, 100);
    }
    if (gruppe == Felder) {
        fraFelder_ = rahmen;
    }
    return rahmen;
}

QLayout* frmIni::ArtBauen(QWidget* rahmen, Gruppe gruppe, int art) {
    const Artengruppe& zeile = gruppen.at(gruppe);
    const auto stelle = static_cast<std::size_t>(art);
    Panel* panel = Zahlpanel(rahmen, Name(zeile.panel, art));
    werte_.at(gruppe).at(stelle) = panel;
    const QString was =
        QStringLiteral("%1, %2").arg(QString::fromUtf8(zeile.wort), QString::fromUtf8(artnamen.at(stelle)));
    auto* spin = new Drehfeld(rahmen, Name(zeile.spin, art), was);
    spin->setFixedSize(24, 32);
    connect(spin, &Drehfeld::hoch, this, [this, gruppe, art] { Drehen_Click(gruppe, art, Richtung::Hoch); });
    connect(spin, &Drehfeld::runter, this,
            [this, gruppe, art] { Drehen_Click(gruppe, art, Richtung::Runter); });
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
                              &frmIni::FragenSchritt_Click});
    pnlFragenFKF_ = ZaehlerpanelBauen(gitter, "FragenFKF", "Fragen", 3);
    SchrittasteBauen(gitter, {"cmdFragenPlus", "Fragen pro Wissensgebiet erhöhen", 4, Richtung::Hoch,
                              &frmIni::FragenSchritt_Click});
    SchrittasteBauen(gitter, {"cmdWissenMinus", "Wissensgebiete zurücksetzen", 6, Richtung::Runter,
                              &frmIni::WissenSchritt_Click});
    pnlFragenFKW_ = ZaehlerpanelBauen(gitter, "FragenFKW", "Wissen", 7);
    SchrittasteBauen(
        gitter, {"cmdWissenPlus", "Wissensgebiete erhöhen", 8, Richtung::Hoch, &frmIni::WissenSchritt_Click});
}

void frmIni::ZaehlerZeigen() {
    pnlFragenFK_->setCaption(QString::number(FelderGesamt));
    pnlFragenFKF_->setCaption(QString::number(FragenProWissen));
    pnlFragenFKW_->setCaption(QString::number(AnzahlWissen));
}

bool frmIni::SchrittErlaubt(const Regelschritt& schritt) {
    if (schritt.absage != nullptr) {
        Meldung(*schritt.absage);
        return false;
    }
    if (!schritt.frage) {
        return true;
    }
    NachrichtAntwort = antwortAbbrechen;
    return Nachricht(initexte::frageBild, schritt.frage->titel, schritt.frage->text, initexte::frageTasten,
                     initexte::frageNummer) != antwortAbbrechen;
}

void frmIni::FragenSchritt_Click(Richtung richtung) {
    Stufen(FragenSchritt(richtung, FragenProWissen, OptionMaxFelder), FragenProWissen);
}

void frmIni::WissenSchritt_Click(Richtung richtung) {
    Stufen(WissenSchritt(richtung, AnzahlWissen, FragenProWissen, OptionMaxWissen), AnzahlWissen);
}

// A refused step refreshes the display with the old numbers, and changes nothing else.
void frmIni::Stufen(const Regelschritt& schritt, std::int16_t& zaehler) {
    if (SchrittErlaubt(schritt)) {
        zaehler = schritt.neu;
        gestuft_ = true;
        ZaehlerZeigen(); // also where the total can't be told below
        GesamtRechnen();
    }
    ZaehlerZeigen();
}

void frmIni::Drehen_Click(Gruppe gruppe, int art, Richtung richtung) {
    const Artengruppe& zeile = gruppen.at(gruppe);
    const auto stelle = static_cast<std::size_t>(art);
    if (Drehen(zeile.werte->at(stelle), richtung, zeile.hoechstens)) {
        ArtenZeigen(gruppe);
        return;
    }
    Loslassen(findChild<QWidget*>(Name(zeile.spin, art)));
    if (richtung == Richtung::Hoch && zeile.doppelt) {
        Systemkasten(Kastenart::Schlicht, "", initexte::mehrGehtNicht);
    }
    Meldung(richtung == Richtung::Hoch ? *zeile.zuViel : *zeile.zuWenig);
}

void frmIni::ArtenZeigen(Gruppe gruppe) {
    const Artwerte& werte = *gruppen.at(gruppe).werte;
    for (std::size_t art = 0; art < werte.size(); ++art) {
        werte_.at(gruppe).at(art)->setCaption(QString::number(werte.at(art)));
    }
}

void frmIni::FelderrahmenBeschriften(int fragen) {
    fraFelder_->setTitle(Anzeige(Einsetzen(initexte::rahmenFelder, {std::to_string(fragen)})));
}
