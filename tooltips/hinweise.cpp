#include "tooltips/hinweise.h"

#include "core/oberflaeche.h"
#include "tooltips/hinweiswaechter.h"
#include "tooltips/tooltipps.h"

#include <QHash>
#include <QLabel>
#include <QVariant>
#include <QWidget>

namespace {

constexpr const char* titelwert = "tipptitel";
constexpr const char* statuswert = "tippstatus";
constexpr int breiteSonst = 300;
constexpr int sichtzeit = 20000; // more than a tip object takes: it is meant
constexpr int wartezeit = 200;

bool Spricht(const QWidget& element) {
    return element.property(titelwert).isValid() || !element.toolTip().isEmpty();
}

// A window of the program, as its name tells; nullptr while the control hangs nowhere.
QWidget* EigenesFenster(QWidget* element) {
    while (element != nullptr && !element->objectName().startsWith(QLatin1String("frm"))) {
        element = element->parentWidget();
    }
    return element;
}

clsToolTipDeluxe* ObjektVon(const QWidget& fenster) {
    if (ToolTip != nullptr && ToolTip->parent() == &fenster) {
        return ToolTip; // while a window is built, it is asked for at each of its controls
    }
    return fenster.findChild<clsToolTipDeluxe*>(QString(), Qt::FindDirectChildrenOnly);
}

clsToolTipDeluxe& ObjektMachen(QWidget& fenster, int breite) {
    auto* objekt = new clsToolTipDeluxe(&fenster);
    objekt->Create(&fenster, false);
    objekt->VisibleTime(sichtzeit);
    objekt->DelayTime(wartezeit);
    objekt->MaxWidth(breite);
    if (!IstHauptfenster(fenster)) {
        ToolTip = objekt; // the main window holds its own
    }
    return *objekt;
}

} // namespace

void HinweisSetzen(QWidget* steuerelement, std::string_view tipp, std::string_view titel,
                   std::string_view status) {
    HinweiswaechterEinrichten();
    steuerelement->setProperty(titelwert, Anzeige(titel));
    steuerelement->setProperty(statuswert, Anzeige(status));
    QWidget* fenster = EigenesFenster(steuerelement);
    if (fenster != nullptr) {
        Tippobjekt(*fenster).AddControl(steuerelement, tipp);
    } else {
        // Not in its window yet: it finds the window's object when the pointer comes.
        clsToolTipDeluxe().AddControl(steuerelement, tipp);
    }
}

void HinweiseSetzen(QWidget& fenster, std::span<const Hinweistext> tabelle) {
    QHash<QString, const Hinweistext*> zeilen;
    for (const Hinweistext& zeile : tabelle) {
        zeilen.insert(Anzeige(zeile.name), &zeile);
    }
    for (auto* teil : fenster.findChildren<QWidget*>()) {
        const QString name = teil->objectName();
        const Hinweistext* zeile = zeilen.value(name, zeilen.value(name.section(u'(', 0, 0)));
        if (zeile != nullptr && EigenesFenster(teil) == &fenster) {
            HinweisSetzen(teil, zeile->tipp, zeile->titel, zeile->status);
        }
    }
}

void TippsEinrichten(QWidget* fenster, int breite) {
    if (clsToolTipDeluxe* objekt = ObjektVon(*fenster); objekt != nullptr) {
        objekt->MaxWidth(breite);
    } else {
        ObjektMachen(*fenster, breite);
    }
}

clsToolTipDeluxe& Tippobjekt(QWidget& steuerelement) {
    QWidget* fenster = EigenesFenster(&steuerelement);
    if (fenster == nullptr) {
        fenster = steuerelement.window();
    }
    clsToolTipDeluxe* objekt = ObjektVon(*fenster);
    return objekt != nullptr ? *objekt : ObjektMachen(*fenster, breiteSonst);
}

Hinweisstelle HinweisstelleVon(QWidget* element) {
    while (element != nullptr) {
        if (Spricht(*element)) {
            return {element, element};
        }
        const auto* schild = qobject_cast<QLabel*>(element);
        if (schild != nullptr && schild->buddy() != nullptr && Spricht(*schild->buddy())) {
            return {element, schild->buddy()};
        }
        element = element->isWindow() ? nullptr : element->parentWidget();
    }
    return {};
}

QString Hinweistitel(const QWidget& element) {
    const QVariant titel = element.property(titelwert);
    return titel.isValid() ? titel.toString() : Anzeige(tipp::titelStandard);
}

QString Hinweisstatus(const QWidget& element) {
    return element.property(statuswert).toString();
}
