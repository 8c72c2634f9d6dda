// The first arrow key in a list of files, the same in the file dialog and the list of forms.
#pragma once

class QKeyEvent;
class QListWidget;

// While nothing is marked the arrow key up or down marks the row on which the keyboard stands, which the
// toolkit would skip. True when it did.
bool ErstenPfeilAusfuehren(QListWidget* liste, const QKeyEvent& taste);
