#include "mainwindow/stationen.h"

#include "catalogue/auswahl.h"
#include "catalogue/frmAuswahl.h"
#include "core/formularfenster.h"
#include "core/insbild.h"
#include "filetools/formularliste.h"
#include "filetools/frmFKformulare.h"
#include "mainwindow/listenfalte.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMainWindow>
#include <QShortcut>

#include <algorithm>
#include <vector>

namespace {

// A place that F6 stops at: the window, and what in it gets the focus when nothing had it before.
struct Station {
    QWidget* bereich;
    QWidget* erstes;
};

// The first control of a window that Tab would come to.
QWidget* Erstes(QWidget* bereich) {
    QWidget* element = bereich;
    do {
        element = element->nextInFocusChain();
        if (bereich->isAncestorOf(element) && element->isVisibleTo(bereich) && element->isEnabled() &&
            (element->focusPolicy() & Qt::TabFocus) != 0) {
            return element;
        }
    } while (element != bereich);
    return bereich;
}

void Aufnehmen(std::vector<Station>& stationen, QWidget* bereich) {
    if (bereich != nullptr && (bereich->isVisible() || ListeGefaltet(bereich))) {
        stationen.push_back(
            {bereich, bereich->focusWidget() != nullptr ? bereich->focusWidget() : Erstes(bereich)});
    }
}

std::vector<Station> Stationen(const QMainWindow& fenster) {
    std::vector<Station> stationen;
    Formularfenster* form = OffenesFormular();
    Aufnehmen(stationen, form == nullptr ? nullptr : form->fenster());
    Aufnehmen(stationen, FormularlisteOffen());
    Aufnehmen(stationen, AuswahlOffen());
    auto* ablage = fenster.findChild<QWidget*>(QStringLiteral("pnlCopyF"));
    if (ablage != nullptr && ablage->isVisible()) {
        stationen.push_back({ablage, ablage});
    }
    return stationen;
}

// From anywhere else the first step leads to the first station, and the first one back to the last.
void Gehen(const QMainWindow& fenster, int schritt) {
    const std::vector<Station> stationen = Stationen(fenster);
    if (stationen.empty()) {
        return;
    }
    const QWidget* jetzt = QApplication::focusWidget();
    const auto hier = std::ranges::find_if(stationen, [jetzt](const Station& station) {
        return station.bereich == jetzt || station.bereich->isAncestorOf(jetzt);
    });
    const auto anzahl = static_cast<int>(stationen.size());
    const int stelle =
        hier == stationen.end() ? (schritt > 0 ? -1 : 0) : static_cast<int>(hier - stationen.begin());
    const Station& ziel = stationen.at(static_cast<std::size_t>((stelle + schritt + anzahl) % anzahl));
    Formularfenster* form = OffenesFormular();
    if (form != nullptr && ziel.bereich == form->fenster()) {
        form->NachVorn();
    }
    if (frmFKformulare* liste = FormularlisteOffen(); ziel.bereich == liste) {
        liste->Rufen(); // it may show only its title
    }
    ziel.bereich->window()->raise();
    ziel.bereich->window()->activateWindow();
    ziel.erstes->setFocus(Qt::ShortcutFocusReason);
}

// A click is where one sees already, and scrolling would move its target away.
bool PerTastatur(Qt::FocusReason grund) {
    return grund == Qt::TabFocusReason || grund == Qt::BacktabFocusReason || grund == Qt::ShortcutFocusReason;
}

class Sichtfolger : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::FocusIn &&
            PerTastatur(static_cast<QFocusEvent*>(ereignis)->reason())) {
            Formularfenster* form = OffenesFormular();
            const auto* element = qobject_cast<QWidget*>(objekt);
            if (form != nullptr && element != nullptr && form->fenster()->isAncestorOf(element)) {
                InsBild(*element);
            }
        }
        return QObject::eventFilter(objekt, ereignis);
    }
};

} // namespace

void StationenEinrichten(QMainWindow& fenster) {
    for (const int schritt : {1, -1}) {
        const QKeySequence taste(schritt > 0 ? QStringLiteral("F6") : QStringLiteral("Shift+F6"));
        // The list and the dialog are windows of their own.
        auto* kuerzel = new QShortcut(taste, &fenster, nullptr, nullptr, Qt::ApplicationShortcut);
        QObject::connect(kuerzel, &QShortcut::activated, &fenster,
                         [&fenster, schritt] { Gehen(fenster, schritt); });
    }
    qApp->installEventFilter(new Sichtfolger(&fenster));
}
