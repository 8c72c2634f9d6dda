#include "testform/hbformular.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/ziehen.h"
#include "testform/frmHBFragen.h"
#include "testform/hbereignisse.h"
#include "testform/texte.h"

#include <QMdiSubWindow>
#include <QPointer>

namespace {

QPointer<frmHBFragen> fenster;

// What others may do with the open test form.
class HBSicht : public Formularfenster {
public:
    [[nodiscard]] Formart art() const override { return Formart::Test; }
    [[nodiscard]] QWidget* fenster() override { return HBFragenOffen(); }
    void NachVorn() override { HB_NachVorn(); }
    void TitelSetzen(std::string_view titel) override { HB_FenstertitelSetzen(titel); }
    bool Schliessen() override { return HB_Schliessen(); }
    void Entladen() override { HB_Entladen(); }
    void EingabeAbschliessen() override {} // typed text reaches the stored copy with HB_Merken alone
    void Merken() override { HB_Merken(); }
    void KopfMerken() override { HB_KopfMerken(); }
    void Faerben() override { HB_FelderFaerben(); }
    void FeldLeeren(int feld) override { HB_FeldLeeren(feld); }
};

HBSicht& Sicht() {
    static HBSicht sicht;
    return sicht;
}

void Freigeben(const HBAnlass& anlass) {
    OhneMausLoslassen(Formart::Test);
    fenster = nullptr;
    FormularAbmelden(Sicht());
    anlass.geschlossen();
    SummeLeeren(nullptr);
    BefehleFreigeben(Formart::Test, false);
}

void Platzieren() {
    QWidget* rahmen = KindfensterAufnehmen(fenster);
    if (rahmen == nullptr) {
        return; // without a main window the form stands alone
    }
    rahmen->move(fenster->Platz(rahmen->size(), rahmen->pos()));
    FormularEinpassen();
}

// The child window around the form, or the form itself where it stands alone.
QWidget* Rahmen() {
    QWidget* rahmen = fenster->parentWidget();
    return qobject_cast<QMdiSubWindow*>(rahmen) != nullptr ? rahmen : fenster.data();
}

// The caption that was saved, or the one of an untouched form.
QString Kopftext(const std::string& gespeichert, std::string_view sonst) {
    return Anzeige(gespeichert.empty() ? sonst : std::string_view(gespeichert));
}

void KopfFuellen(frmHBFragen& form) {
    form.titel.panel->setCaption(Kopftext(HBForm.HBKopf1, hbtexte::titel));
    form.fach.panel->setCaption(
        Kopftext(HBForm.HBFach.empty() ? HBForm.HBKopf2 : HBForm.HBFach, hbtexte::fach));
    form.lblGruppe->setText(Anzeige(HBForm.HBKopf3));
}

} // namespace

frmHBFragen* HBFragenOffen() {
    return fenster;
}

frmHBFragen& HB_Fenster(const HBAnlass& anlass) {
    if (fenster.isNull()) {
        fenster = new frmHBFragen(anlass.darfSchliessen); // owned by the child window that takes it
        QObject::connect(fenster, &frmHBFragen::geschlossen, fenster, [anlass] { Freigeben(anlass); });
        FormularAnmelden(Sicht());
        Platzieren();
        BefehleFreigeben(Formart::Test, true);
    }
    return *fenster;
}

void HB_Entladen() {
    if (fenster.isNull()) {
        return;
    }
    QWidget* alt = Rahmen();
    Q_EMIT fenster->geschlossen();
    delete alt;
}

bool HB_Schliessen() {
    if (!fenster.isNull()) {
        Rahmen()->close();
    }
    return fenster.isNull();
}

void HB_FormularZeigen() {
    frmHBFragen* form = fenster;
    if (form == nullptr) {
        return;
    }
    OhneMausLoslassen(Formart::Test); // it held a question of the form before
    form->HintergrundMalen();
    KopfFuellen(*form);
    HB_FragenEinfuegen();
    HB_AntwortenEinfuegen();
    HB_PunkteEinfuegen();
    HB_FelderFaerben();
    SummeZeigen(*form, HBForm.HBGesamtpunkte);
}

void HB_NachVorn() {
    if (!fenster.isNull()) {
        fenster->show();
        KindNachVorn(fenster);
    }
}

void HB_FenstertitelSetzen(std::string_view titel) {
    if (!fenster.isNull()) {
        fenster->setWindowTitle(Anzeige(titel));
    }
}
