#include "mainwindow/extras.h"

#include "core/fensterzeichen.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/textfeld.h"
#include "filling/fuellen.h"
#include "forms/einsetzen.h"
#include "forms/verlauf.h"
#include "mainwindow/formulargroesse.h"
#include "search/suchen.h"

#include <QAction>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace {

bool FormularVorn() {
    Formularfenster* form = OffenesFormular();
    return form != nullptr && AktivesKind() == form->fenster();
}

// The box with the focus where the form isn't in front: the editor's.
Eigenverlauf* Kasten() {
    const QWidget* haupt = Hauptfenster();
    return haupt == nullptr ? nullptr : dynamic_cast<Eigenverlauf*>(haupt->focusWidget());
}

void EintragSetzen(QAction& eintrag, const QString& text, const std::string& schritt) {
    eintrag.setText(schritt.empty() ? text : text + QStringLiteral(": ") + Anzeige(schritt));
    eintrag.setEnabled(!schritt.empty() || (!FormularVorn() && Kasten() != nullptr));
}

// In the rule document the same keys search and scale there.
void TastenZeigen(QMainWindow& fenster) {
    const QWidget* kind = AktivesKind();
    const bool frei =
        kind == nullptr || kind->property("tag") != Anzeige(Fensterzeichen(Kindfenster::Spielregel));
    for (const char* name : {"mExtra(4)", "mExtra(10)", "mExtra(11)", "mExtra(12)"}) {
        fenster.findChild<QAction*>(QLatin1String(name))
            ->setShortcutContext(frei ? Qt::WindowShortcut : Qt::WidgetShortcut);
    }
}

void Zeigen(QMainWindow& fenster) {
    auto* zurueck = fenster.findChild<QAction*>(QStringLiteral("mExtra(1)"));
    auto* vor = fenster.findChild<QAction*>(QStringLiteral("mExtra(2)"));
    if (zurueck != nullptr && vor != nullptr) {
        EintragSetzen(*zurueck, QStringLiteral("&Rückgängig"), FormularVorn() ? Rueckschritt() : "");
        EintragSetzen(*vor, QStringLiteral("&Wiederholen"), FormularVorn() ? Vorschritt() : "");
    }
    FormulargroesseZeigen();
    FuellenAngleichen();
}

} // namespace

void ExtrasEinrichten(QMainWindow& fenster) {
    FormulargroesseEinrichten(fenster);
    VerlaufEinrichten(fenster, [&fenster] { Zeigen(fenster); });
    if (auto* flaeche = fenster.findChild<QMdiArea*>(); flaeche != nullptr) {
        QObject::connect(flaeche, &QMdiArea::subWindowActivated, &fenster, [&fenster] {
            Zeigen(fenster);
            TastenZeigen(fenster);
        });
    }
    BesucheVerfolgen(fenster);
    AuswahlhinweisEinrichten();
    Zeigen(fenster);
}

void ExtrasAbbauen(QMainWindow& fenster) {
    VerlaufAbmelden(fenster);
}

namespace befehle {

void Rueckgaengig() {
    if (FormularVorn()) {
        RueckgaengigMachen();
    } else if (Eigenverlauf* kasten = Kasten(); kasten != nullptr) {
        kasten->EigenesZurueck();
    }
}

void Wiederherstellen() {
    if (FormularVorn()) {
        Wiederholen();
    } else if (Eigenverlauf* kasten = Kasten(); kasten != nullptr) {
        kasten->EigenesVor();
    }
}

} // namespace befehle
