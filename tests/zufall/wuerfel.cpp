#include "tests/zufall/wuerfel.h"

#include "tests/zufall/wuerfeltafel.h"
#include "tests/zufall/ziele.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <vector>

namespace {

// A person looks around in a dialog for a while and leaves it then.
constexpr int geduld = 20;

} // namespace

QWidget* Handwuerfel::Fensterwahl() {
    const QList<QWidget*> fenster = ErreichbareFenster();
    for (QWidget* eines : fenster) {
        if (eines->objectName() == QLatin1String("frmMDI") && Prozent(60)) {
            return eines;
        }
    }
    return fenster.isEmpty() ? nullptr : Eines(fenster);
}

QPoint Handwuerfel::StelleIn(const QWidget& fenster, const QWidget& element) {
    QRect flaeche = element.visibleRegion().boundingRect();
    QList<QAction*> eintraege;
    if (const auto* leiste = qobject_cast<const QMenuBar*>(&element); leiste != nullptr) {
        eintraege = leiste->actions();
    }
    eintraege.removeIf([](const QAction* eintrag) { return !eintrag->isVisible(); });
    if (!eintraege.isEmpty()) {
        flaeche = static_cast<const QMenuBar&>(element).actionGeometry(Eines(eintraege));
    } else if (qobject_cast<const QMdiSubWindow*>(&element) != nullptr) {
        flaeche.setHeight(qMin(flaeche.height(), 24)); // its title bar; the rest belongs to the content
    }
    const int x = Zahl(qMax(1, flaeche.width()));
    const int y = Zahl(qMax(1, flaeche.height()));
    return element.mapTo(&fenster, flaeche.topLeft() + QPoint(x, y));
}

QPoint Handwuerfel::Stelle(const QWidget& fenster) {
    const QList<QWidget*> alle = Elemente(fenster);
    QList<QWidget*> tasten;
    for (QWidget* element : alle) {
        if (qobject_cast<QAbstractButton*>(element) != nullptr && element->isEnabled()) {
            tasten.append(element);
        }
    }
    if (!tasten.isEmpty() && Prozent(30)) {
        return StelleIn(fenster, *Eines(tasten));
    }
    if (!alle.isEmpty() && Prozent(92)) {
        return StelleIn(fenster, *Eines(alle));
    }
    const int x = Zahl(qMax(1, fenster.width()));
    return {x, Zahl(qMax(1, fenster.height()))};
}

Ort Handwuerfel::Ortswahl() {
    const QWidget* fenster = Fensterwahl();
    return fenster == nullptr ? Ort{} : OrtVon(*fenster, Stelle(*fenster));
}

Ort Handwuerfel::Ziehort() {
    const QWidget* fenster = Fensterwahl();
    if (fenster == nullptr || Prozent(40)) {
        return Ortswahl();
    }
    QList<QWidget*> elemente = Elemente(*fenster);
    elemente.removeIf([](const QWidget* element) {
        return std::ranges::none_of(wuerfeltafel::ziehbares, [element](const char* anfang) {
            return element->objectName().startsWith(QLatin1String(anfang));
        });
    });
    return elemente.isEmpty() ? Ortswahl() : OrtVon(*fenster, StelleIn(*fenster, *Eines(elemente)));
}

std::optional<Handgriff> Handwuerfel::Vorliebe() {
    const wuerfeltafel::Liebling& eines = Eines(wuerfeltafel::lieblinge);
    const Ort ort{QLatin1String(eines.fenster), QLatin1String(eines.element), QPoint(8, eines.hoehe)};
    return Suchen(ort) ? std::optional(Handgriff{eines.was, ort, {}, {}, 0, {}}) : std::nullopt;
}

Qt::KeyboardModifiers Handwuerfel::Zusatz(int anteil) {
    if (!Prozent(anteil)) {
        return Qt::NoModifier;
    }
    static const std::vector<Qt::KeyboardModifiers> moegliche{
        Qt::ShiftModifier, Qt::ControlModifier, Qt::ShiftModifier | Qt::ControlModifier, Qt::AltModifier};
    return Eines(moegliche);
}

QString Handwuerfel::Text() {
    QString text = Eines(wuerfeltafel::Texte());
    return Prozent(10) ? text + Eines(wuerfeltafel::Texte()) : text;
}

Handgriff Handwuerfel::Mausschritt() {
    const int art = Zahl(100);
    if (art < 60) {
        return {Handlung::Klick, Ortswahl(), {}, Zusatz(10), 0, {}};
    }
    if (art < 70) {
        return {Handlung::Doppelklick, Ortswahl(), {}, Zusatz(5), 0, {}};
    }
    if (art < 74) {
        return {Handlung::Rechtsklick, Ortswahl(), {}, Zusatz(10), 0, {}};
    }
    if (art < 92) {
        return {Handlung::Ziehen, Ziehort(), Ziehort(), Zusatz(70), 0, {}};
    }
    return {Handlung::Rad, Ortswahl(), {}, Zusatz(10), Prozent(50) ? 120 : -120, {}};
}

Handgriff Handwuerfel::Tastenschritt() {
    const int art = Zahl(100);
    if (art < 20) {
        return {Handlung::Text, {}, {}, {}, 0, Text()};
    }
    if (art < 35) {
        return {Handlung::Einfuegen, {}, {}, {}, 0, Text()};
    }
    if (art < 50) {
        return {Handlung::Taste, {}, {}, Qt::ControlModifier, Eines(wuerfeltafel::strgtasten), {}};
    }
    if (art < 58) {
        return {Handlung::Taste, {}, {}, Qt::AltModifier, Qt::Key_A + Zahl(26), {}};
    }
    if (art < 62) {
        return {Handlung::Taste, {}, {}, Qt::AltModifier, Eines(wuerfeltafel::tasten), {}};
    }
    if (art < 72) {
        return {Handlung::Taste, {}, {}, Zusatz(5), Qt::Key_A + Zahl(26), {}};
    }
    return {Handlung::Taste, {}, {}, Zusatz(25), Eines(wuerfeltafel::tasten), {}};
}

Handgriff Handwuerfel::Ausgang() {
    const QWidget* dialog = QApplication::activeModalWidget();
    const bool offen = QApplication::activePopupWidget() != nullptr;
    QList<QAbstractButton*> tasten;
    if (dialog != nullptr && !offen) {
        tasten = dialog->findChildren<QAbstractButton*>();
        tasten.removeIf(
            [](const QAbstractButton* taste) { return !taste->isVisible() || !taste->isEnabled(); });
    }
    if (!tasten.isEmpty() && Prozent(60)) {
        const QAbstractButton* taste = Eines(tasten);
        return {
            Handlung::Klick, OrtVon(*dialog, taste->mapTo(dialog, taste->rect().center())), {}, {}, 0, {}};
    }
    if (dialog == nullptr || offen || Prozent(50)) {
        return {Handlung::Taste, {}, {}, {}, Qt::Key_Escape, {}};
    }
    return {Handlung::Schliessen, OrtVon(*dialog, QPoint(0, 0)), {}, {}, 0, {}};
}

Handgriff Handwuerfel::Wurf() {
    QWidget* dialog = QApplication::activeModalWidget();
    seit_ = dialog != nullptr && dialog == dialog_ ? seit_ + 1 : 0;
    dialog_ = dialog;
    const bool genug = dialog != nullptr && (seit_ > geduld || Prozent(15));
    if (genug && QApplication::activePopupWidget() == nullptr) {
        return Ausgang();
    }
    const int art = Zahl(1000);
    if (art < 2 && dialog == nullptr) {
        return {Handlung::Neustart, {}, {}, {}, 0, {}};
    }
    if (art < 14) {
        if (const QWidget* fenster = Fensterwahl(); fenster != nullptr) {
            return {Handlung::Schliessen, OrtVon(*fenster, QPoint(0, 0)), {}, {}, 0, {}};
        }
    }
    if (art < 100) {
        if (const std::optional<Handgriff> schritt = Vorliebe(); schritt) {
            return *schritt;
        }
    }
    return art < 650 ? Mausschritt() : Tastenschritt();
}
