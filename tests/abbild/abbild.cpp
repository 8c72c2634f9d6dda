#include "abbild.h"

#include "abbildinhalt.h"
#include "abbildzeile.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "tooltips/tooltip.h"

#include <QAction>
#include <QCursor>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

#include <algorithm>

namespace {

using abbild::Gefasst;
using abbild::Groesse;

constexpr QSize zeichengroesse(16, 16); // in which the desktop shows a window's icon

bool Programmfenster(const QWidget& teil) {
    return teil.objectName().startsWith(QLatin1String("frm"));
}

// A part that the toolkit gave to one of its controls.
bool Innenteil(const QWidget& teil) {
    return teil.objectName().startsWith(QLatin1String("qt_"));
}

bool HatEigenes(const QWidget& teil) {
    const QList<QWidget*> alle = teil.findChildren<QWidget*>();
    return std::ranges::any_of(
        alle, [](const QWidget* unter) { return !unter->objectName().isEmpty() && !Innenteil(*unter); });
}

bool Beschreiben(const QWidget& teil, const QWidget& eltern) {
    if (teil.isWindow()) {
        return false;
    }
    const bool inneres =
        Innenteil(teil) || (teil.objectName().isEmpty() && abbild::InSichGeschlossen(eltern));
    return !inneres || HatEigenes(teil);
}

void Baum(QWidget& teil, int tiefe, QStringList& zeilen) {
    zeilen << QString(2 * tiefe, u' ') + abbild::Zeile(teil, tiefe == 0);
    if (tiefe > 0 && Programmfenster(teil)) {
        return;
    }
    for (QObject* kind : teil.children()) {
        if (auto* unter = qobject_cast<QWidget*>(kind); unter != nullptr && Beschreiben(*unter, teil)) {
            Baum(*unter, tiefe + 1, zeilen);
        }
    }
}

bool GehoertZu(const QWidget* teil, const QWidget& fenster) {
    while (teil != nullptr && teil != &fenster && !Programmfenster(*teil)) {
        teil = teil->isWindow() ? nullptr : teil->parentWidget();
    }
    return teil == &fenster;
}

void Kopf(const QWidget& fenster, QStringList& zeilen) {
    zeilen << QStringLiteral("window %1 %2").arg(fenster.objectName(), Gefasst(fenster.windowTitle()))
           << QStringLiteral("icon %1, modal %2, type %3")
                  .arg(abbild::Bild(fenster.windowIcon(), zeichengroesse))
                  .arg(fenster.windowModality())
                  .arg(static_cast<quint32>(fenster.windowFlags()), 0, 16)
           << QStringLiteral("size %1, at least %2, at most %3")
                  .arg(Groesse(fenster.size()), Groesse(fenster.minimumSize()),
                       Groesse(fenster.maximumSize()));
    if (const auto* rahmen = qobject_cast<QMdiSubWindow*>(fenster.parentWidget()); rahmen != nullptr) {
        zeilen << QStringLiteral("frame %1,%2 %3, icon %4")
                      .arg(rahmen->x())
                      .arg(rahmen->y())
                      .arg(Groesse(rahmen->size()), abbild::Bild(rahmen->windowIcon(), zeichengroesse));
    }
    const auto* tipp = fenster.findChild<clsToolTipDeluxe*>(QString(), Qt::FindDirectChildrenOnly);
    if (tipp != nullptr) {
        zeilen << QStringLiteral("tips %1 wide, shown %2 ms after %3 ms")
                      .arg(tipp->breite())
                      .arg(tipp->sichtzeit())
                      .arg(tipp->wartezeit());
    }
    if (QGuiApplication::overrideCursor() != nullptr) {
        zeilen << QStringLiteral("pointer %1").arg(QGuiApplication::overrideCursor()->shape());
    }
    const QWidget* focus = fenster.focusWidget();
    zeilen << QStringLiteral("focus ") +
                  (focus == nullptr ? QStringLiteral("nowhere") : abbild::Benannt(*focus));
}

// What is out of reach just now stands in parentheses.
void Tabfolge(const QWidget& fenster, QStringList& zeilen) {
    zeilen << QString() << QStringLiteral("tab order");
    for (const QWidget* teil = fenster.nextInFocusChain(); teil != &fenster && teil != nullptr;
         teil = teil->nextInFocusChain()) {
        if (!GehoertZu(teil, fenster) || (teil->focusPolicy() & Qt::TabFocus) == 0) {
            continue;
        }
        const bool erreichbar = teil->isVisibleTo(&fenster) && teil->isEnabled();
        const QString name = abbild::Benannt(*teil);
        zeilen << QStringLiteral("  ") + (erreichbar ? name : u'(' + name + u')');
    }
}

void Kurztasten(const QWidget& fenster, QStringList& zeilen) {
    zeilen << QString() << QStringLiteral("keys");
    const QList<QShortcut*> alle = fenster.findChildren<QShortcut*>();
    for (const QShortcut* taste : alle) {
        const auto* an = qobject_cast<const QWidget*>(taste->parent());
        if (an != nullptr && GehoertZu(an, fenster)) {
            zeilen << QStringLiteral("  %1 at %2, context %3%4")
                          .arg(taste->key().toString(), abbild::Benannt(*an))
                          .arg(taste->context())
                          .arg(taste->isEnabled() ? QString() : QStringLiteral(", disabled"));
        }
    }
}

QString Eintragszeile(const QAction& eintrag) {
    QStringList worte{abbild::Benannt(eintrag),
                      eintrag.isSeparator() ? QStringLiteral("separator") : Gefasst(eintrag.text())};
    if (!eintrag.isVisible()) {
        worte << QStringLiteral("hidden");
    }
    if (!eintrag.isEnabled()) {
        worte << QStringLiteral("disabled");
    }
    if (!eintrag.shortcut().isEmpty()) {
        worte << QStringLiteral("key=") + eintrag.shortcut().toString();
    }
    if (eintrag.shortcutContext() != Qt::WindowShortcut) {
        worte << QStringLiteral("context=%1").arg(eintrag.shortcutContext());
    }
    if (eintrag.isCheckable()) {
        worte << (eintrag.isChecked() ? QStringLiteral("checked") : QStringLiteral("unchecked"));
    }
    if (!eintrag.icon().isNull()) {
        worte << QStringLiteral("icon=") + abbild::Bild(eintrag.icon(), zeichengroesse);
    }
    if (!eintrag.statusTip().isEmpty()) {
        worte << QStringLiteral("statustip=") + Gefasst(eintrag.statusTip());
    }
    return worte.join(u' ');
}

void Menue(const QList<QAction*>& eintraege, int tiefe, QStringList& zeilen) {
    for (const QAction* eintrag : eintraege) {
        const QString rand(2 * tiefe, u' ');
        const QMenu* menue = eintrag->menu();
        if (menue == nullptr) {
            zeilen << rand + Eintragszeile(*eintrag);
            continue;
        }
        zeilen << rand +
                      QStringLiteral("menu %1%2 ")
                          .arg(abbild::Benannt(*menue),
                               menue->isEnabled() ? QString() : QStringLiteral(" (disabled)")) +
                      Eintragszeile(*eintrag);
        Menue(menue->actions(), tiefe + 1, zeilen);
    }
}

// The tests' folders have another name each time, and the program turns some paths into capitals.
QString OhneOrte(QString text) {
    const QString pfad = Anzeige(Stand.AppPfad);
    QString nativ = pfad;
    nativ.replace(u'\\', u'/');
    for (const QString& ort : {pfad, nativ}) {
        if (!ort.isEmpty()) {
            text.replace(ort, QStringLiteral("<AppPfad>"), Qt::CaseInsensitive);
        }
    }
    return text;
}

} // namespace

namespace abbild {

QString Beschreibung(QWidget& fenster) {
    QStringList zeilen;
    Kopf(fenster, zeilen);
    zeilen << QString();
    Baum(fenster, 0, zeilen);
    Tabfolge(fenster, zeilen);
    Kurztasten(fenster, zeilen);
    if (const auto* haupt = qobject_cast<QMainWindow*>(&fenster); haupt != nullptr) {
        zeilen << QString() << QStringLiteral("menus");
        Menue(haupt->menuBar()->actions(), 1, zeilen);
    }
    return OhneOrte(zeilen.join(u'\n')) + u'\n';
}

} // namespace abbild
