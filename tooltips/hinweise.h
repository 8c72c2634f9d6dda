// What a control tells about itself: the tip beside the pointer with its title, and the line in the help
// panel while the pointer is over it. Every control that the user can point at has one; the texts stand in
// the tables of each subsystem.
#pragma once

#include "core/hinweistext.h"

#include <QString>

#include <span>
#include <string_view>

class QWidget;
class clsToolTipDeluxe;

// An empty status leaves the last line of the help panel standing. Tips are UTF-8, lines joined by CR LF. The
// title tells the style as well (tooltips/tooltipregeln.h).
void HinweisSetzen(QWidget* steuerelement, std::string_view tipp, std::string_view titel,
                   std::string_view status);

// The same for the controls of a window by a table of its own. A row for one member goes before the row for
// the whole array; a name that the window doesn't have is passed over.
void HinweiseSetzen(QWidget& fenster, std::span<const Hinweistext> tabelle);

// Makes the tip object of a window, for a window that asks for a width of its own (in pixels). The others get
// theirs with their first tip.
void TippsEinrichten(QWidget* fenster, int breite);
// The tip object of the window that a control is in; made now if there is none yet.
[[nodiscard]] clsToolTipDeluxe& Tippobjekt(QWidget& steuerelement);

// The control that speaks when the pointer is over an element: itself, the control whose label it is, or the
// nearest one around it within the window.
struct Hinweisstelle {
    QWidget* bereich = nullptr; // what the pointer has to leave
    QWidget* element = nullptr; // nullptr where nobody speaks
};
[[nodiscard]] Hinweisstelle HinweisstelleVon(QWidget* element);
[[nodiscard]] QString Hinweistitel(const QWidget& element);
[[nodiscard]] QString Hinweisstatus(const QWidget& element);
