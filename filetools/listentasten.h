// The first arrow key in a list, the same in the file dialog, the list of forms and other lists.
#pragma once

class QAbstractItemView;
class QKeyEvent;

// While nothing is marked the arrow key up or down marks the row on which the keyboard stands, which the
// toolkit would skip. True when it did.
bool ErstenPfeilAusfuehren(QAbstractItemView* liste, const QKeyEvent& taste);
