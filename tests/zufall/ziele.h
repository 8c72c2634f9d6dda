// What a person could reach with a hand at this moment: windows, controls in them, and the names under which
// a place is found again.
#pragma once

#include "tests/zufall/handgriff.h"

#include <QList>

#include <optional>

class QWidget;

// The open list or menu, or else the modal dialog, or else all windows that show; ordered by their names.
[[nodiscard]] QList<QWidget*> ErreichbareFenster();
// Name of a window, or its class where it has none.
[[nodiscard]] QString Fenstername(const QWidget& fenster);

// The controls of a window that show, in a steady order.
[[nodiscard]] QList<QWidget*> Elemente(const QWidget& fenster);

// The place by the control that lies there.
[[nodiscard]] Ort OrtVon(const QWidget& fenster, QPoint stelle);

// A window and a point in it.
struct Treffer {
    QWidget* fenster = nullptr;
    QPoint stelle;
};
// No value where there is nothing of these names, or it lies out of reach.
[[nodiscard]] std::optional<Treffer> Suchen(const Ort& ort);
