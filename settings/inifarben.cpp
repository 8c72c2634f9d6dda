// The tab of the colours: a click paints the screen form at once; the settings hear of it only when the
// dialog is applied.
#include "core/farbe.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "quizform/fkformular.h"
#include "settings/darstellung.h"
#include "settings/frmIni.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

void frmIni::FarbseiteBauen(QWidget* seite) {
    auto* spalte = new QVBoxLayout(seite);
    auto* rahmen = RahmenBauen(seite, "fraFarbe", QStringLiteral("Formularhintergrund am Bildschirm"));
    auto* gitter = new QGridLayout(rahmen);
    gitter->setColumnStretch(2, 1);
    gitter->setHorizontalSpacing(24);
    optFarbe_ = new QButtonGroup(this);
    int zeile = 0;
    for (const Farbwahl& farbe : farbwahlen) {
        auto* wahl = new QRadioButton(Anzeige(farbe.aufschrift), rahmen);
        wahl->setObjectName(QStringLiteral("optFarbe(%1)").arg(farbe.nummer));
        optFarbe_->addButton(wahl, farbe.nummer);
        auto* probe = new Panel(rahmen, QStringLiteral("pnlFarbe(%1)").arg(farbe.nummer));
        probe->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
        probe->setFarben(Qfarbe(FormularFarbe(farbe.nummer)), QColor());
        probe->setAccessibleName(wahl->text().trimmed());
        probe->setFixedSize(150, 22);
        gitter->addWidget(wahl, zeile, 0);
        gitter->addWidget(probe, zeile++, 1);
    }
    spalte->addWidget(rahmen);
    spalte->addStretch();
}

void frmIni::FarbeWaehlen(int nummer) {
    farbe_ = nummer;
    FarbeZeigen();
}

void frmIni::FarbeZeigen() {
    FK_HintergrundMalen(farbe_);
}
