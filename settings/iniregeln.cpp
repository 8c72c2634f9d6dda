// The tab of the rules: three boxes, and the question that ticking one raises over a board that isn't full.
#include "core/hauptfenster.h"
#include "dialogs/meldung.h"
#include "rules/spielwerte.h"
#include "settings/frmIni.h"
#include "settings/texte.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

void frmIni::RegelnBauen(QWidget* seite) {
    auto* spalte = new QVBoxLayout(seite);
    auto* regeln = RahmenBauen(seite, "fraSpielregeln", QStringLiteral(" Spielregeln beachten "));
    auto* innen = new QVBoxLayout(regeln);
    chkMaxWissen_ = KastenBauen(regeln, "chkMaxWissen", "Höchstzahl der Wissensgebiete nicht überschreiten");
    chkMaxSpezial_ = KastenBauen(regeln, "chkMaxSpezial", "Höchstzahl der Spezialfelder nicht überschreiten");
    chkMaxFelder_ = KastenBauen(regeln, "chkMaxFelder", "Höchstzahl der Fragen nicht überschreiten");
    for (QCheckBox* kasten : {chkMaxWissen_, chkMaxSpezial_, chkMaxFelder_}) {
        innen->addWidget(kasten);
    }
    auto* zeigen = RahmenBauen(seite, "fraSpielregel", QStringLiteral("Spielregel zeigen"));
    auto* reihe = new QHBoxLayout(zeigen);
    QPushButton* cmdSpielregel = TasteBauen(zeigen, "cmdSpielregel", "Spielregel &zeigen");
    cmdSpielregel->setFixedSize(160, 28);
    BefehlVerbinden(cmdSpielregel); // the same command as on the toolbar
    reihe->addWidget(cmdSpielregel);
    reihe->addStretch();
    spalte->addWidget(regeln);
    spalte->addWidget(zeigen);
    spalte->addStretch();
}

void frmIni::RegelnVerbinden() {
    connect(chkMaxFelder_, &QCheckBox::toggled, this, [this](bool an) {
        RegelAnkreuzen(chkMaxFelder_, Spiel.OptionMaxFelder, an, FragenBegrenzung(Spiel.FragenProWissen));
    });
    connect(chkMaxWissen_, &QCheckBox::toggled, this, [this](bool an) {
        RegelAnkreuzen(chkMaxWissen_, Spiel.OptionMaxWissen, an, WissenBegrenzung(Spiel.AnzahlWissen));
    });
    connect(chkMaxSpezial_, &QCheckBox::toggled, this, [](bool an) { Spiel.OptionMaxSpezial = an; });
}

void frmIni::RegelnZeigen() {
    chkMaxFelder_->setChecked(Spiel.OptionMaxFelder);
    chkMaxWissen_->setChecked(Spiel.OptionMaxWissen);
    chkMaxSpezial_->setChecked(Spiel.OptionMaxSpezial);
}

void frmIni::RegelAnkreuzen(QCheckBox* kasten, bool& option, bool an,
                            const std::optional<Regelfrage>& frage) {
    option = an;
    if (an && !fuellt_ && frage && !Bestaetigt(initexte::Frage(frage->titel, frage->text))) {
        kasten->setChecked(false); // comes back here, off
    }
}
