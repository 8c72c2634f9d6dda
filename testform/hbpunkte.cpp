// The points of the rows and their total: the spin controls, and the three places that show the sum.
#include "core/hauptfenster.h"
#include "core/laufzeitfehler.h"
#include "core/oberflaeche.h"
#include "core/schritt.h"
#include "testform/frmHBFragen.h"
#include "testform/hbereignisse.h"
#include "testform/hbformular.h"
#include "testform/punkte.h"
#include "testform/texte.h"

#include <vector>

namespace {

std::int16_t SummeDerZeilen(const frmHBFragen& form) {
    std::vector<std::string> aufschriften;
    for (std::size_t i = 1; i < form.pnlPunkte.size(); ++i) {
        aufschriften.push_back(Modelltext(form.pnlPunkte.at(i)->caption()));
    }
    return PunkteSumme(aufschriften);
}

void SummeErneuern(frmHBFragen& form) {
    HBForm.HBGesamtpunkte = SummeDerZeilen(form);
    SummeZeigen(form, HBForm.HBGesamtpunkte);
}

void Stufe(frmHBFragen& form, std::size_t i, int schritt) {
    const Schritt einer("Punkte ändern", static_cast<int>(i));
    Panel* punkte = form.pnlPunkte.at(i);
    try {
        punkte->setCaption(Anzeige(PunkteNachSchritt(Modelltext(punkte->caption()), schritt)));
        HBForm.HBPunkte.at(i) = PunkteWert(Modelltext(punkte->caption()));
    } catch (const Laufzeitfehler&) {
        // A caption that no counter can hold stays as it is.
    }
    SummeErneuern(form);
    FormStatusSetzen(true);
}

void HauptfensterSumme(const QString& text) {
    const QWidget* haupt = Hauptfenster();
    auto* panel = haupt == nullptr ? nullptr : haupt->findChild<Panel*>(QStringLiteral("pnlHBPun"));
    if (panel != nullptr) {
        panel->setCaption(text);
    }
}

} // namespace

void PunkteVerbinden(frmHBFragen& form) {
    for (std::size_t i = 1; i < form.spnPunkte.size(); ++i) {
        QObject::connect(form.spnPunkte.at(i), &Drehfeld::hoch, &form, [&form, i] { Stufe(form, i, 1); });
        QObject::connect(form.spnPunkte.at(i), &Drehfeld::runter, &form, [&form, i] { Stufe(form, i, -1); });
    }
}

void HB_PunkteSetzen(int n, std::int16_t punkte) {
    frmHBFragen* form = HBFragenOffen();
    if (form == nullptr || n < 1 || n > anzahlTestfragen) {
        return;
    }
    const auto i = static_cast<std::size_t>(n);
    form->pnlPunkte.at(i)->setCaption(QString::number(punkte));
    HBForm.HBPunkte.at(i) = punkte;
    SummeErneuern(*form);
}

void SummeZeigen(frmHBFragen& form, int summe) {
    const QString zahl = QString::number(summe);
    form.pnlPunktkontrolle->setCaption(Anzeige(hbtexte::punktkontrolleMit) + zahl);
    form.pnlGesamtpunkte->setCaption(Anzeige(hbtexte::gesamtpunkteMit) + zahl);
    HauptfensterSumme(zahl);
}

void SummeLeeren(frmHBFragen* form) {
    if (form != nullptr) {
        form->pnlPunktkontrolle->setCaption(Anzeige(hbtexte::punktkontrolle));
        form->pnlGesamtpunkte->setCaption(Anzeige(hbtexte::gesamtpunkte));
    }
    HauptfensterSumme(QString());
}
