#include "mainwindow/formulargroesse.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/massfenster.h"
#include "core/meldungstext.h"
#include "mainwindow/texte.h"
#include "persistence/extrasdatei.h"

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

namespace {

constexpr std::string_view groessenwert = "Formular.Groesse";
constexpr std::string_view anpassenwert = "Formular.Anpassen";

// Where the open form stands in its original size, and where it was put last: who has moved it since then
// wants it there.
struct Standort {
    QPointer<QWidget> rahmen;
    QPoint original;
    QPoint zuletzt;
};
Standort standort;

Groessenwunsch Wunsch() {
    return WunschAus(ExtraWert(groessenwert), ExtraWert(anpassenwert));
}

void WunschMerken(const Groessenwunsch& wunsch) {
    ExtraSetzen(groessenwert, std::to_string(wunsch.eigener.prozent()));
    ExtraSetzen(anpassenwert, wunsch.anpassen ? "1" : "0");
}

Massfenster* Inhalt() {
    Formularfenster* form = OffenesFormular();
    return form == nullptr ? nullptr : qobject_cast<Massfenster*>(form->fenster());
}

Pixelflaeche Flaeche(QSize groesse) {
    return {groesse.width(), groesse.height()};
}

// The control that the user works in, within the frame; nothing for none.
QRect Fokusort(const QWidget& rahmen) {
    const QWidget* fokus = rahmen.window()->focusWidget();
    return fokus == nullptr || !rahmen.isAncestorOf(fokus)
               ? QRect()
               : QRect(fokus->mapTo(&rahmen, QPoint(0, 0)), fokus->size());
}

// Around the same middle, but within the area as far as there is room; where there isn't, with what the user
// works in.
QPoint Platz(const QRect& bisher, const QWidget& rahmen, QSize frei) {
    constexpr int rollleiste = 20; // what the area's scroll bars may cover
    const QSize groesse = rahmen.size();
    const QRect fokus = Fokusort(rahmen);
    int x = bisher.x() + (bisher.width() - groesse.width()) / 2;
    int y = bisher.y();
    if (groesse.width() > frei.width() || groesse.height() > frei.height()) {
        x = MitTeilZuSehen(x, fokus.left(), fokus.right() + 1, frei.width() - rollleiste);
        y = MitTeilZuSehen(y, fokus.top(), fokus.bottom() + 1, frei.height() - rollleiste);
    }
    return {Hineingerueckt(x, groesse.width(), frei.width()),
            Hineingerueckt(y, groesse.height(), frei.height())};
}

void Umstellen(QMdiSubWindow& rahmen, Massfenster& inhalt, Massstab massstab, QSize rand, QSize frei) {
    const QRect bisher = rahmen.geometry();
    const bool verschoben = bisher.topLeft() != standort.zuletzt;
    inhalt.MassstabSetzen(massstab);
    rahmen.resize(inhalt.size() + rand);
    rahmen.move(massstab.istOriginal() && !verschoben ? standort.original : Platz(bisher, rahmen, frei));
    if (!verschoben) {
        standort.zuletzt = rahmen.pos();
    }
}

// Tells the form of each new size of the child area.
class Flaechenwaechter : public QObject {
public:
    explicit Flaechenwaechter(QMdiArea* flaeche) : QObject(flaeche) { flaeche->installEventFilter(this); }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::Resize) {
            FormularEinpassen();
        }
        return QObject::eventFilter(objekt, ereignis);
    }
};

QAction* Eintrag(const char* name) {
    const QWidget* haupt = Hauptfenster();
    return haupt == nullptr ? nullptr : haupt->findChild<QAction*>(QLatin1String(name));
}

void Sagen(std::string_view text, Massstab massstab) {
    HilfeText(Einsetzen(text, {std::to_string(massstab.prozent())}));
}

void Aendern(const Groessenwunsch& wunsch) {
    WunschMerken(wunsch);
    FormularEinpassen();
    FormulargroesseZeigen();
}

void Stufe(int richtung, std::string_view amEnde) {
    const Massfenster* inhalt = Inhalt();
    if (inhalt == nullptr) {
        return;
    }
    const Massstab bisher = inhalt->massstab();
    Aendern({false, NaechsteStufe(bisher, richtung)});
    Sagen(inhalt->massstab() == bisher ? amEnde : kerntexte::formulargroesse, inhalt->massstab());
}

} // namespace

void FormularEinpassen() {
    Massfenster* inhalt = Inhalt();
    auto* rahmen = inhalt == nullptr ? nullptr : qobject_cast<QMdiSubWindow*>(inhalt->parentWidget());
    if (rahmen == nullptr || rahmen->mdiArea() == nullptr) {
        return;
    }
    if (standort.rahmen != rahmen) {
        standort = {rahmen, rahmen->pos(), rahmen->pos()};
    }
    const QSize rand = rahmen->size() - inhalt->size();
    const QSize frei = rahmen->mdiArea()->maximumViewportSize();
    const Massstab massstab =
        MassstabFuer(Wunsch(), Flaeche(inhalt->Originalgroesse()), Flaeche(rand), Flaeche(frei));
    if (massstab != inhalt->massstab()) {
        Umstellen(*rahmen, *inhalt, massstab, rand, frei);
    }
}

void FormulargroesseEinrichten(QMainWindow& fenster) {
    if (auto* flaeche = fenster.findChild<QMdiArea*>(); flaeche != nullptr) {
        new Flaechenwaechter(flaeche); // belongs to the area
    }
}

void FormulargroesseZeigen() {
    for (const char* name : {"mExtra(10)", "mExtra(11)", "mExtra(12)", "mExtra(13)"}) {
        if (QAction* eintrag = Eintrag(name); eintrag != nullptr) {
            eintrag->setEnabled(Inhalt() != nullptr);
        }
    }
    if (QAction* eintrag = Eintrag("mExtra(13)"); eintrag != nullptr) {
        eintrag->setChecked(Wunsch().anpassen);
    }
}

namespace befehle {

void FormularGroesser() {
    Stufe(1, kerntexte::formularGroesstes);
}

void FormularKleiner() {
    Stufe(-1, kerntexte::formularKleinstes);
}

void FormularOriginal() {
    if (const Massfenster* inhalt = Inhalt(); inhalt != nullptr) {
        Aendern({false, Massstab()});
        Sagen(kerntexte::formulargroesse, inhalt->massstab());
    }
}

void FormularAnpassen() {
    const Massfenster* inhalt = Inhalt();
    if (inhalt == nullptr) {
        return;
    }
    const bool anpassen = !Wunsch().anpassen;
    Aendern({anpassen, inhalt->massstab()}); // let go, the form stays as it is
    Sagen(anpassen ? kerntexte::formularAngepasst : kerntexte::formularFest, inhalt->massstab());
}

} // namespace befehle
