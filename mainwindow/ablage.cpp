#include "mainwindow/ablage.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "core/programmstand.h"
#include "core/schritt.h"
#include "core/ziehen.h"
#include "dialogs/meldung.h"
#include "quizform/texte.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace {

QPointer<Panel> pnlCopyF;
QPointer<Panel> pnlCopyA;

Ziehwert Ablagewert(Zugart art) {
    return {art, Formart::Quiz, 0, AblageFrage(), AblageAntwort()};
}

// A press on the parked question. True when it was more than an ordinary click.
bool Druck(Qt::KeyboardModifiers tasten) {
    const std::optional<Zugart> art = ZugartFuer(tasten);
    if (!art) {
        return false;
    }
    if (AblageFrage().empty()) {
        Systemkasten(Kastenart::Schlicht, "", fktexte::keineFrage);
        return true;
    }
    Ziehen(pnlCopyF, Ablagewert(*art),
           [art = *art] { return AblageFrage().empty() ? std::nullopt : std::optional(Ablagewert(art)); });
    return true;
}

class Druckwaechter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::MouseButtonPress) {
            const auto& druck = *static_cast<QMouseEvent*>(ereignis);
            return druck.button() == Qt::LeftButton && Druck(druck.modifiers());
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

// The form that the question came from, or the open quiz form for one from the catalogue.
Formularfenster* Herkunft(const Ziehwert& wert) {
    return OffenesFormular(wert.herkunft == Formart::Test ? Formart::Test : Formart::Quiz);
}

Panel* PanelBauen(QWidget* hilfepanel, const char* name) {
    auto* panel = new Panel(hilfepanel, QLatin1String(name));
    panel->setAusrichtung(Qt::AlignLeft);
    panel->setFrameShadow(QFrame::Sunken);
    panel->setFont(Schrift(8.25_pt));
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
    pnlCopyF->setAnsage(QStringLiteral("Abgelegte Frage"));
    pnlCopyA->setAnsage(QStringLiteral("Abgelegte Antwort"));
    pnlCopyF->setFocusPolicy(Qt::TabFocus);
    pnlCopyF->installEventFilter(new Druckwaechter(pnlCopyF));
    TastenEinrichten(pnlCopyF, [](Qt::KeyboardModifiers tasten) { Druck(tasten); });
    ZielEinrichten(pnlCopyF, ZiehBild::Ablegen, [](const Ziehwert& wert) { AblageAblegen(wert, false); });
    ZielEinrichten(hilfepanel, ZiehBild::Ablegen, [](const Ziehwert& wert) { AblageAblegen(wert, true); });
    KeinZiel(pnlCopyA); // what lies on the help panel would take part in it
}

void AblageAnordnen() {
    if (pnlCopyF.isNull()) {
        return;
    }
    constexpr Twips links = 3600_tw;
    constexpr Twips breiteF = 2400_tw;
    constexpr Twips breiteA = breiteF / 2;
    TwipsGeometrie(pnlCopyF, links, 45_tw, breiteF, 285_tw);
    TwipsGeometrie(pnlCopyA, links + breiteF + 60_tw, 45_tw, breiteA, 285_tw);
}

void AblageAblegen(const Ziehwert& wert, bool vomHilfepanel) {
    const Schritt schritt("Frage ablegen");
    if (pnlCopyF.isNull() || (!AblageFrage().empty() && !ErsetzenErlaubt(fktexte::ablageBesetzt))) {
        return;
    }
    pnlCopyF->setCaption(Anzeige(wert.frage));
    pnlCopyA->setCaption(Anzeige(wert.antwort));
    Formularfenster* form = Herkunft(wert);
    if (form != nullptr && wert.art == Zugart::Verschieben) {
        form->FeldLeeren(wert.feld);
    }
    if (vomHilfepanel) {
        pnlCopyF->show();
    } else {
        pnlCopyF->setFarben(Qt::white, Qt::black);
        pnlCopyA->setFarben(Qt::white, Qt::black);
    }
    if (form != nullptr) {
        form->Merken();
        form->Faerben();
    }
    if (Stand.FormTyp != Formart::Keine) {
        FormStatusSetzen(true); // without a form there is nothing that could be saved
    }
}

void AblageLeeren() {
    if (!pnlCopyF.isNull()) {
        pnlCopyF->setCaption(QString());
        pnlCopyA->setCaption(QString());
    }
}
