#include "testform/hbereignisse.h"

#include "core/hauptfenster.h"
#include "core/klappliste.h"
#include "core/oberflaeche.h"
#include "core/schritt.h"
#include "testform/frmHBFragen.h"

#include <QAbstractItemView>

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

void WahlSchliessen(const Kopfwahl& wahl) {
    wahl.liste->hide();
    wahl.panel->show();
}

// A list that is left without a choice gives way to its panel again.
class Listenwaechter : public QObject {
public:
    explicit Listenwaechter(const Kopfwahl& wahl) : QObject(wahl.liste), wahl_(wahl) {
        wahl.liste->installEventFilter(this);
    }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::FocusOut) {
            // The open list takes the focus as well; where it went shows only afterwards.
            QMetaObject::invokeMethod(this, &Listenwaechter::WennVerlassen, Qt::QueuedConnection);
        }
        return QObject::eventFilter(objekt, ereignis);
    }

private:
    void WennVerlassen() {
        if (wahl_.liste->isVisible() && !wahl_.liste->hasFocus() && !wahl_.liste->view()->isVisible()) {
            WahlSchliessen(wahl_);
        }
    }

    Kopfwahl wahl_;
};

void WahlOeffnen(const Kopfwahl& wahl, const QString& bisher) {
    wahl.liste->setCurrentIndex(wahl.liste->findText(bisher.mid(1)));
    wahl.panel->hide();
    wahl.liste->show();
    wahl.liste->raise();
    wahl.liste->setFocus(Qt::OtherFocusReason);
    wahl.liste->showPopup();
}

// aufschrift and setzen: the caption that the choice stands in.
template <typename Lesen, typename Setzen>
void WahlVerbinden(frmHBFragen& form, const Kopfwahl& wahl, Lesen lesen, Setzen setzen) {
    const auto oeffnen = [wahl, lesen] { WahlOeffnen(wahl, lesen()); };
    QObject::connect(wahl.panel, &Panel::geklickt, &form, oeffnen);
    QObject::connect(wahl.taste, &QToolButton::clicked, &form, oeffnen);
    QObject::connect(wahl.liste, &QComboBox::activated, &form, [wahl, setzen](int eintrag) {
        WahlSchliessen(wahl);
        wahl.taste->setFocus(Qt::OtherFocusReason);
        const Schritt schritt("Kopf wählen");
        setzen(QLatin1Char(' ') + wahl.liste->itemText(eintrag));
        FormStatusSetzen(true);
    });
    EscBeendet(wahl.liste, [wahl] {
        WahlSchliessen(wahl);
        wahl.taste->setFocus(Qt::OtherFocusReason);
    });
    new Listenwaechter(wahl); // belongs to the list
}

// Meant: the text is noted when the focus is already gone, so that nothing is ever found changed here. What
// was typed reaches the stored copy with HB_Merken.
void FokusVerloren(frmHBFragen& form, const Textfeld& feld) {
    form.HBAlterText = feld.text();
}

} // namespace

void KopfEreignisseVerbinden(frmHBFragen& form) {
    for (const Kopfwahl* wahl : {&form.titel, &form.fach}) {
        Panel* panel = wahl->panel;
        WahlVerbinden(
            form, *wahl, [panel] { return panel->caption(); },
            [panel](const QString& text) { panel->setCaption(text); });
    }
    QLabel* lblGruppe = form.lblGruppe;
    WahlVerbinden(
        form, form.gruppe, [lblGruppe] { return lblGruppe->text(); },
        [lblGruppe](const QString& text) { lblGruppe->setText(text); });
}

void ZeilenEreignisseVerbinden(frmHBFragen& form) {
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        Textfeld* frage = form.txtFrage.at(Stelle(n));
        Textfeld* antwort = form.txtAntwort.at(Stelle(n));
        QObject::connect(frage, &Textfeld::textAnders, &form, [&form, n] {
            ZeileFaerben(form, n);
            FormStatusSetzen(true);
        });
        QObject::connect(antwort, &Textfeld::textAnders, &form, [] { FormStatusSetzen(true); });
        for (Textfeld* feld : {frage, antwort}) {
            QObject::connect(feld, &Textfeld::fokusErhalten, &form, [feld] { TextMarkieren(feld); });
            QObject::connect(feld, &Textfeld::fokusVerloren, &form,
                             [feld, name = Zeilenname(n, feld == frage ? "Frage" : "Antwort")] {
                                 AnfuehrungMelden(feld, feld->text(), name);
                             });
        }
        QObject::connect(frage, &Textfeld::fokusVerloren, &form, [&form, n, frage] {
            ZeileFaerben(form, n);
            FokusVerloren(form, *frage);
        });
        QObject::connect(antwort, &Textfeld::fokusVerloren, &form,
                         [&form, antwort] { FokusVerloren(form, *antwort); });
    }
}

void ZeileFaerben(frmHBFragen& form, int n) {
    const QColor grund = form.txtFrage.at(Stelle(n))->text().empty() ? QColor() : QColor(Qt::white);
    form.txtFrage.at(Stelle(n))->setGrund(grund);
    form.txtAntwort.at(Stelle(n))->setGrund(grund);
}
