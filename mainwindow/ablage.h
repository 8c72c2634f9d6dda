// The clipboard panels of the main window: one parked question and its answer. They outlive the forms and end
// with the program.
#pragma once

#include "core/ziehwert.h"

#include <string>

class QWidget;

// The parked texts, "" for none.
[[nodiscard]] std::string AblageFrage();
[[nodiscard]] std::string AblageAntwort();

// Builds pnlCopyF and pnlCopyA on the help panel and makes the help panel a target as well.
void AblageBauen(QWidget* hilfepanel);
// Places the two panels for the present width of the help panel.
void AblageAnordnen();

// Parks a question, as a drop does; vomHilfepanel: it fell on the help panel instead of pnlCopyF.
void AblageAblegen(const Ziehwert& wert, bool vomHilfepanel);
void AblageLeeren();
