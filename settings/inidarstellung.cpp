// The tabs for the print-out and for files: gap, shading, frames, backup, paper. Every option acts at once.
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "settings/blattskizze.h"
#include "settings/darstellung.h"
#include "settings/frmIni.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

std::size_t Stelle(int i) {
    return static_cast<std::size_t>(i);
}

QRadioButton* Wahl(QWidget* eltern, const char* feld, int index, std::string_view aufschrift) {
    auto* wahl = new QRadioButton(Anzeige(aufschrift), eltern);
    wahl->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(feld)).arg(index));
    return wahl;
}

// Chooses a member, or none of them for a value that the list doesn't have.
void Waehlen(QButtonGroup* gruppe, std::optional<int> stelle) {
    gruppe->setExclusive(false);
    for (QAbstractButton* wahl : gruppe->buttons()) {
        wahl->setChecked(stelle && gruppe->id(wahl) == *stelle);
    }
    gruppe->setExclusive(true);
}

// Saving with a backup can be turned over in the menu only while the option is on.
void BackUpEintragFreigeben(bool frei) {
    const QWidget* haupt = Hauptfenster();
    auto* eintrag = haupt == nullptr ? nullptr : haupt->findChild<QAction*>(QStringLiteral("mBackUp"));
    if (eintrag != nullptr) {
        eintrag->setEnabled(frei);
    }
}

void Merken(const QCheckBox* kasten, bool& option) {
    QObject::connect(kasten, &QCheckBox::toggled, kasten, [&option](bool an) { option = an; });
}

} // namespace

void frmIni::FormularseiteBauen(QWidget* seite) {
    auto* gitter = new QGridLayout(seite);
    gitter->addWidget(AbstandBauen(seite), 0, 0, 2, 1);
    gitter->addWidget(SchattierungBauen(seite), 0, 1);
    auto* rahmen = RahmenBauen(seite, "fraRahmen", QStringLiteral("Rahmenfarbe auf dem Ausdruck"));
    auto* innen = new QVBoxLayout(rahmen);
    chkRahmen_ = KastenBauen(rahmen, "chkRahmen", " Rahmen der Spezialfelder farbig");
    innen->addWidget(chkRahmen_);
    innen->addStretch();
    gitter->addWidget(rahmen, 1, 1);
    gitter->setColumnStretch(0, 1);
    gitter->setColumnStretch(1, 1);
}

QGroupBox* frmIni::AbstandBauen(QWidget* seite) {
    auto* rahmen = RahmenBauen(seite, "fraZwischen", QStringLiteral("Abstand Fragefelder auf dem Ausdruck"));
    auto* innen = new QVBoxLayout(rahmen);
    optZwischen_ = new QButtonGroup(this);
    int i = 0;
    for (const Abstandswahl& abstand : abstaende) {
        QRadioButton* wahl = Wahl(rahmen, "optZwischen", i, abstand.aufschrift);
        optZwischen_->addButton(wahl, i++);
        innen->addWidget(wahl);
    }
    innen->addStretch();
    return rahmen;
}

QGroupBox* frmIni::SchattierungBauen(QWidget* seite) {
    auto* rahmen = RahmenBauen(seite, "fraSchraffur", QStringLiteral("Schattierung auf dem Ausdruck"));
    auto* innen = new QVBoxLayout(rahmen);
    chkTitel_ = KastenBauen(rahmen, "chkTitel", " Titelzeile");
    chkWissen_ = KastenBauen(rahmen, "chkWissen", " Titel der Wissensgebiete");
    chkJoker_ = KastenBauen(rahmen, "chkJoker", " Joker");
    // Meant: this box changes nothing; the print-out shades these fields together with the Jokers.
    QCheckBox* chkEreignis = KastenBauen(rahmen, "chkEreignis", " Ereignisse");
    for (QCheckBox* kasten : {chkTitel_, chkWissen_, chkJoker_, chkEreignis}) {
        innen->addWidget(kasten);
    }
    innen->addStretch();
    return rahmen;
}

void frmIni::DateiseiteBauen(QWidget* seite) {
    auto* gitter = new QGridLayout(seite);
    auto* rahmen = RahmenBauen(seite, "fraDatei", QStringLiteral(" Datei "));
    auto* innen = new QVBoxLayout(rahmen);
    chkDatei_ = KastenBauen(rahmen, "chkDatei", " Backup anlegen");
    innen->addWidget(chkDatei_);
    innen->addStretch();
    gitter->addWidget(rahmen, 0, 0);
    gitter->addWidget(DruckrahmenBauen(seite), 0, 1);
    gitter->setColumnStretch(0, 2);
    gitter->setColumnStretch(1, 3);
}

QGroupBox* frmIni::DruckrahmenBauen(QWidget* seite) {
    auto* rahmen = RahmenBauen(seite, "fraDrucken", QStringLiteral("Drucken"));
    auto* gitter = new QGridLayout(rahmen);
    optDrucken_ = new QButtonGroup(this);
    // A4 stands above A5, and has the higher index.
    for (const int i : {1, 0}) {
        QRadioButton* wahl = Wahl(rahmen, "optDrucken", i, papiere.at(Stelle(i)).aufschrift);
        optDrucken_->addButton(wahl, i);
        gitter->addWidget(wahl, 1 - i, 0);
        auto* skizze = new Blattskizze(rahmen, QStringLiteral("imgPapier(%1)").arg(i), i == 0);
        skizze->setAccessibleName(QStringLiteral("Blatt ") + wahl->text());
        QSizePolicy regel = skizze->sizePolicy();
        regel.setRetainSizeWhenHidden(true);
        skizze->setSizePolicy(regel);
        gitter->addWidget(skizze, 0, 1, 3, 1, Qt::AlignCenter);
        imgPapier_.at(Stelle(i)) = skizze;
    }
    gitter->setRowStretch(2, 1);
    return rahmen;
}

void frmIni::DarstellungVerbinden() {
    connect(optZwischen_, &QButtonGroup::idClicked, this,
            [](int i) { Spiel.Zwischenabstand = abstaende.at(Stelle(i)).millimeter; });
    connect(optDrucken_, &QButtonGroup::idClicked, this, [this](int i) {
        Spiel.Papierformat = papiere.at(Stelle(i)).format;
        PapierZeigen();
    });
    connect(optFarbe_, &QButtonGroup::idClicked, this, &frmIni::FarbeWaehlen);
    Merken(chkTitel_, Spiel.OptionTitel);
    Merken(chkWissen_, Spiel.OptionWissen);
    Merken(chkJoker_, Spiel.OptionJoker);
    Merken(chkRahmen_, Spiel.OptionRahmen);
    Merken(chkDatei_, Spiel.OptionDatei);
    connect(chkDatei_, &QCheckBox::toggled, this, BackUpEintragFreigeben);
}

void frmIni::DarstellungZeigen() {
    chkTitel_->setChecked(Spiel.OptionTitel);
    chkWissen_->setChecked(Spiel.OptionWissen);
    chkJoker_->setChecked(Spiel.OptionJoker);
    chkRahmen_->setChecked(Spiel.OptionRahmen);
    chkDatei_->setChecked(Spiel.OptionDatei);
    Waehlen(optZwischen_, AbstandStelle(Spiel.Zwischenabstand));
    Waehlen(optDrucken_, PapierStelle(Spiel.Papierformat));
    Waehlen(optFarbe_, Spiel.FarbeHintergrund);
    farbe_ = Spiel.FarbeHintergrund;
    PapierZeigen();
}

void frmIni::PapierZeigen() {
    const std::optional<int> papier = PapierStelle(Spiel.Papierformat);
    for (const int i : {0, 1}) {
        imgPapier_.at(Stelle(i))->setVisible(papier == i);
    }
}
