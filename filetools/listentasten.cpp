#include "filetools/listentasten.h"

#include <QKeyEvent>
#include <QListWidget>

#include <algorithm>

bool ErstenPfeilAusfuehren(QListWidget* liste, const QKeyEvent& taste) {
    const bool pfeil = taste.key() == Qt::Key_Down || taste.key() == Qt::Key_Up;
    if (!pfeil || liste->count() == 0 || !liste->selectedItems().isEmpty()) {
        return false;
    }
    liste->setCurrentRow(std::max(0, liste->currentRow()), QItemSelectionModel::ClearAndSelect);
    return true;
}
