#include "checking/fuehren.h"

#include "core/formularfenster.h"
#include "core/insbild.h"
#include "core/oberflaeche.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace {

constexpr int luft = 8;

QRect Platz(const QWidget& element, const QWidget& flaeche) {
    return {element.mapTo(&flaeche, QPoint(0, 0)), element.size()};
}

// To the top or to the bottom, whichever leaves the control free.
void AusDemWeg(QMdiSubWindow& rahmen, const QRect& platz) {
    const int unten = rahmen.parentWidget()->height() - rahmen.height() - luft;
    for (const int y : {rahmen.y(), unten, luft}) {
        if (!QRect(QPoint(rahmen.x(), y), rahmen.size()).intersects(platz)) {
            rahmen.move(rahmen.x(), y);
            return;
        }
    }
}

} // namespace

void ZumOrt(Formularfenster& form, const Befundort& ort, QWidget& liste) {
    form.NachVorn();
    auto* element = form.fenster()->findChild<QWidget*>(Anzeige(Ortselement(ort)));
    if (element == nullptr) {
        return;
    }
    element->setFocus(Qt::OtherFocusReason);
    auto* rahmen = qobject_cast<QMdiSubWindow*>(liste.parentWidget());
    if (rahmen != nullptr && rahmen->mdiArea() != nullptr) {
        const QPoint vorher = rahmen->pos();
        InsBild(*element);
        rahmen->move(vorher); // it doesn't scroll with the form
        AusDemWeg(*rahmen, Platz(*element, *rahmen->parentWidget()));
    }
}
