// The tab of the rules: three boxes, and the question that ticking one raises over a board that isn't full.
#include "core/befehle.h"
#include "dialogs/meldung.h"
#include "settings/einstellungen.h"
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
        RegelAnkreuzen(chkMaxFelder_, OptionMaxFelder, an, FragenBegrenzung(FragenProWissen));
    });
    connect(chkMaxWissen_, &QCheckBox::toggled, this, [this](bool an) {
        RegelAnkreuzen(chkMaxWissen_, OptionMaxWissen, an, WissenBegrenzung(AnzahlWissen));
    });
    connect(chkMaxSpezial_, &QCheckBox::toggled, this,
            [](bool an) { OptionMaxSpezial = static_cast<std::int16_t>(an ? 1 : 0); });
}

void frmIni::RegelnZeigen() {
    chkMaxFelder_->setChecked(OptionMaxFelder == 1);
    chkMaxWissen_->setChecked(OptionMaxWissen == 1);
    chkMaxSpezial_->setChecked(OptionMaxSpezial == 1);
}

void frmIni::RegelAnkreuzen(QCheckBox* kasten, std::int16_t& option, bool an,
                            const std::optional<Regelfrage>& frage) {
    option = static_cast<std::int16_t>(an ? 1 : 0);
    if (!an || IniLaden_ || !frage) {
        return;
    }
    NachrichtAntwort = antwortAbbrechen;
    if (Nachricht(initexte::frageBild, frage->titel, frage->text, initexte::frageTasten,
                  initexte::frageNummer) == antwortAbbrechen) {
        kasten->setChecked(false); // comes back here, off
    }
}
