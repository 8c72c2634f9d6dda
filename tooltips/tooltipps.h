// The standard styles of the tool tips. They act on the object of the window that was opened last; the main
// window holds an object of its own, which they never reach.
#pragma once

#include "tooltips/tooltip.h"

#include <string_view>

// Written by each window but the main one when it loads, and when the user comes back to it. It is empty
// before the first such window and after the end of the last one.
inline QPointer<clsToolTipDeluxe> ToolTip;

// Title "Hinweis".
void ToolTipStandard();
// The same colours with a title of the caller's.
void ToolTipTitel(std::string_view titel);
// Title "Hiiiilfee !" on a stronger yellow.
void ToolTipHilfe();
// Title "Schließen", white on red, with a warning.
void ToolTipSchliessen();

// Colours, title and symbol at once, for an object that its window holds itself.
void StilSetzen(clsToolTipDeluxe& objekt, std::string_view titel, const tipp::Stil& stil);
