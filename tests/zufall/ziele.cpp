#include "tests/zufall/ziele.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include <algorithm>

namespace {

bool IstFenster(const QWidget& fenster) {
    const Qt::WindowType art = fenster.windowType();
    return fenster.isVisible() && !fenster.isMinimized() && fenster.windowHandle() != nullptr &&
           art != Qt::ToolTip && art != Qt::SplashScreen && art != Qt::Popup;
}

// Parts that the toolkit made for itself have names that say nothing.
bool HatNamen(const QWidget& element) {
    const QString name = element.objectName();
    return !name.isEmpty() && !name.startsWith(u"qt_");
}

bool Lohnend(const QWidget& element) {
    return HatNamen(element) || qobject_cast<const QAbstractButton*>(&element) != nullptr ||
           qobject_cast<const QMenuBar*>(&element) != nullptr ||
           qobject_cast<const QMdiSubWindow*>(&element) != nullptr;
}

} // namespace

QString Fenstername(const QWidget& fenster) {
    return HatNamen(fenster) ? fenster.objectName() : QString::fromLatin1(fenster.metaObject()->className());
}

QList<QWidget*> ErreichbareFenster() {
    if (QWidget* offen = QApplication::activePopupWidget(); offen != nullptr) {
        return {offen};
    }
    if (QWidget* dialog = QApplication::activeModalWidget(); dialog != nullptr) {
        return {dialog};
    }
    QList<QWidget*> fenster;
    for (QWidget* eines : QApplication::topLevelWidgets()) {
        if (IstFenster(*eines)) {
            fenster.append(eines);
        }
    }
    std::ranges::sort(fenster, {}, [](const QWidget* eines) { return Fenstername(*eines); });
    return fenster;
}

QList<QWidget*> Elemente(const QWidget& fenster) {
    QList<QWidget*> elemente;
    for (auto* element : fenster.findChildren<QWidget*>()) {
        if (element->window() == &fenster && element->isVisible() && Lohnend(*element) &&
            !element->visibleRegion().isEmpty()) {
            elemente.append(element);
        }
    }
    return elemente;
}

Ort OrtVon(const QWidget& fenster, QPoint stelle) {
    const QWidget* element = fenster.childAt(stelle);
    while (element != nullptr && element != &fenster && !HatNamen(*element)) {
        element = element->parentWidget();
    }
    if (element == nullptr || element == &fenster) {
        return {Fenstername(fenster), {}, stelle};
    }
    return {Fenstername(fenster), element->objectName(), element->mapFrom(&fenster, stelle)};
}

std::optional<Treffer> Suchen(const Ort& ort) {
    for (QWidget* fenster : ErreichbareFenster()) {
        if (Fenstername(*fenster) != ort.fenster) {
            continue;
        }
        if (ort.element.isEmpty()) {
            return Treffer{fenster, ort.stelle};
        }
        for (const QWidget* element : Elemente(*fenster)) {
            const QPoint dort = element->mapTo(fenster, ort.stelle);
            if (element->objectName() == ort.element && fenster->rect().contains(dort)) {
                return Treffer{fenster, dort};
            }
        }
    }
    return std::nullopt;
}
