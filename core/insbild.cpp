#include "core/insbild.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>

namespace {

constexpr int luft = 8;

// By how much the bar has to move so that from..to is within 0..groesse.
void Rollen(QScrollBar& leiste, int von, int bis, int groesse) {
    if (bis > groesse) {
        leiste.setValue(leiste.value() + bis - groesse);
    } else if (von < 0) {
        leiste.setValue(leiste.value() + von);
    }
}

QMdiArea* Flaeche(const QWidget& element) {
    for (QWidget* w = element.parentWidget(); w != nullptr; w = w->parentWidget()) {
        if (const auto* rahmen = qobject_cast<QMdiSubWindow*>(w); rahmen != nullptr) {
            return rahmen->mdiArea();
        }
    }
    return nullptr;
}

} // namespace

void InsBild(const QWidget& element) {
    QMdiArea* flaeche = Flaeche(element);
    if (flaeche == nullptr) {
        return;
    }
    const QWidget* sicht = flaeche->viewport();
    const QRect platz =
        QRect(element.mapTo(sicht, QPoint(0, 0)), element.size()).adjusted(-luft, -luft, luft, luft);
    Rollen(*flaeche->verticalScrollBar(), platz.top(), platz.bottom(), sicht->height());
    Rollen(*flaeche->horizontalScrollBar(), platz.left(), platz.right(), sicht->width());
}
