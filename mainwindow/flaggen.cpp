#include "mainwindow/flaggen.h"

#include "core/bilder.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panelansage.h"
#include "core/programmstand.h"
#include "editor/editor.h"
#include "editor/editorjournal.h"
#include "forms/verlauf.h"

#include <QLabel>
#include <QPointer>

#include <array>

namespace {

QPointer<QLabel> picEingabeFlagGruen;
QPointer<QLabel> picEingabeFlagRot;

// They differ in shape as well: one flies at the top, the other hangs lower.
QLabel* FlaggeBauen(QWidget* pnlKranz, const char* name, std::string_view bild) {
    auto* flagge = new QLabel(pnlKranz);
    flagge->setObjectName(QLatin1String(name));
    flagge->setPixmap(Bild(bild, flagge->devicePixelRatioF()));
    flagge->hide();
    WechselAnsagen(flagge);
    return flagge;
}

} // namespace

void FlaggenBauen(QWidget* pnlKranz) {
    picEingabeFlagGruen = FlaggeBauen(pnlKranz, "picEingabeFlagGruen", "status/flagge_gruen");
    picEingabeFlagGruen->setAccessibleName(QStringLiteral("Alles gespeichert"));
    picEingabeFlagRot = FlaggeBauen(pnlKranz, "picEingabeFlagRot", "status/flagge_rot");
    picEingabeFlagRot->setAccessibleName(QStringLiteral("Ungespeicherte Änderungen"));
}

void FlaggenAnordnen(QWidget* pnlKranz) {
    const auto* picFK = pnlKranz->findChild<QWidget*>(QStringLiteral("picFK"));
    const auto* picHB = pnlKranz->findChild<QWidget*>(QStringLiteral("picHB"));
    const QWidget* leiste = picHB->isHidden() ? picFK : picHB;
    for (QLabel* flagge : {picEingabeFlagGruen.data(), picEingabeFlagRot.data()}) {
        flagge->setGeometry(Pixel(60_tw) + leiste->width() + Pixel(120_tw), Pixel(60_tw), 24, Pixel(375_tw));
    }
}

void FlaggeZeigen(bool rot) {
    if (picEingabeFlagRot.isNull()) {
        return;
    }
    picEingabeFlagRot->setVisible(rot);
    picEingabeFlagGruen->setVisible(!rot);
}

void FormStatusSetzen(bool geaendert) {
    Stand.FormGeaendert = geaendert;
    FlaggeZeigen(geaendert);
    FormularstatusGesetzt(geaendert);
}

void EditorStatusSetzen(bool geaendert) {
    Stand.EditorGeaendert = geaendert;
    EditorLampenZeigen(geaendert);
    EditorjournalFuehren(geaendert);
}
