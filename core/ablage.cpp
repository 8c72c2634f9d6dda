#include "core/ablage.h"

#include "catalogue/auswahl.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "core/ziehen.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "quizform/fkformular.h"
#include "quizform/texte.h"
#include "quizform/ziehregeln.h"
#include "testform/hbformular.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace {

QPointer<Panel> pnlCopyF;
QPointer<Panel> pnlCopyA;

// A press on the parked question. True when it was more than an ordinary click.
bool Druck(Qt::KeyboardModifiers tasten) {
    DragHerkunft = "FKFragen";
    const ZiehBeginn beginn =
        ZiehBeginnFuer(tasten.testFlag(Qt::ShiftModifier), tasten.testFlag(Qt::ControlModifier),
                       tasten.testFlag(Qt::AltModifier), "", false);
    if (beginn.art == 0) {
        return false;
    }
    if (AblageFrage().empty()) {
        Systemkasten(Kastenart::Schlicht, "", fktexte::keineFrage);
        return true;
    }
    DragArt = beginn.art;
    DragFeld = 0;
    Ziehen(pnlCopyF, AblageFrage());
    return true;
}

class Druckwaechter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::MouseButtonPress) {
            return Druck(static_cast<QMouseEvent*>(ereignis)->modifiers());
        }
        // The double click by key.
        if (ereignis->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(ereignis)->key() == Qt::Key_Delete) {
            AblageLeeren();
            return true;
        }
        return QObject::eventFilter(objekt, ereignis);
    }
};

// The answer that belongs to the question that is being dropped.
std::string GezogeneAntwort(bool ausTest) {
    if (DragArt != 1 && DragArt != 2) {
        return AuswahlAntwort();
    }
    if (DragFeld == 0) {
        return AblageAntwort();
    }
    return ausTest ? HB_Antwort(DragFeld) : FK_Antwort(DragFeld);
}

// The form that the question came from takes note; no routine creates the form of the other kind.
void FormNachAblage(bool ausTest) {
    if (ausTest) {
        HB_Merken();
        HB_FelderFaerben();
    } else {
        FK_Merken();
        FK_FelderFaerben();
    }
    if (!FormTyp.empty()) {
        FormStatusSetzen(1); // without a form there is nothing that could be saved
    }
}

Panel* PanelBauen(QWidget* hilfepanel, const char* name) {
    auto* panel = new Panel(hilfepanel, QLatin1String(name));
    panel->setAusrichtung(Qt::AlignLeft);
    panel->setFrameShadow(QFrame::Sunken);
    panel->setFont(Schrift(8.25));
    QObject::connect(panel, &Panel::doppeltGeklickt, panel, [] { AblageLeeren(); });
    return panel;
}

} // namespace

std::string AblageFrage() {
    return pnlCopyF.isNull() ? std::string() : Modelltext(pnlCopyF->caption());
}

std::string AblageAntwort() {
    return pnlCopyA.isNull() ? std::string() : Modelltext(pnlCopyA->caption());
}

void AblageBauen(QWidget* hilfepanel) {
    pnlCopyF = PanelBauen(hilfepanel, "pnlCopyF");
    pnlCopyA = PanelBauen(hilfepanel, "pnlCopyA");
    pnlCopyF->setFocusPolicy(Qt::TabFocus);
    pnlCopyF->installEventFilter(new Druckwaechter(pnlCopyF));
    TastenEinrichten(pnlCopyF, [](Qt::KeyboardModifiers tasten) { Druck(tasten); });
    ZielEinrichten(pnlCopyF, ZiehBild::Ablegen, [] { AblageAblegen(GezogeneFrage(), false); });
    ZielEinrichten(hilfepanel, ZiehBild::Ablegen, [] { AblageAblegen(GezogeneFrage(), true); });
}

void AblageAnordnen() {
    if (pnlCopyF.isNull()) {
        return;
    }
    constexpr int links = 3600;
    constexpr int breiteF = 2400;
    constexpr int breiteA = breiteF / 2;
    TwipsGeometrie(pnlCopyF, links, 45, breiteF, 285);
    TwipsGeometrie(pnlCopyA, links + breiteF + 60, 45, breiteA, 285);
}

void AblageAblegen(const std::string& frage, bool vomHilfepanel) {
    if (pnlCopyF.isNull() || (!AblageFrage().empty() && !ErsetzenErlaubt(fktexte::ablageBesetzt))) {
        return;
    }
    const bool ausTest = DragHerkunft == "HBFragen";
    const std::string antwort = GezogeneAntwort(ausTest);
    pnlCopyF->setCaption(Anzeige(frage));
    pnlCopyA->setCaption(Anzeige(antwort));
    if (DragArt == 1) {
        ausTest ? HB_FeldLeeren(DragFeld) : FK_FeldLeeren(DragFeld);
    }
    if (DragArt == 1 || DragArt == 2) {
        DragArt = 0;
    }
    if (vomHilfepanel) {
        pnlCopyF->show();
    } else {
        pnlCopyF->setFarben(Qt::white, Qt::black);
        pnlCopyA->setFarben(Qt::white, Qt::black);
    }
    FormNachAblage(ausTest);
}

void AblageLeeren() {
    if (!pnlCopyF.isNull()) {
        pnlCopyF->setCaption(QString());
        pnlCopyA->setCaption(QString());
    }
}

bool ErsetzenErlaubt(const NachrichtText& frage) {
    NachrichtAntwort = antwortAbbrechen;
    do {
        Nachricht(frage);
    } while (NachrichtAntwort != antwortJa && NachrichtAntwort != antwortAbbrechen);
    return NachrichtAntwort == antwortJa;
}
