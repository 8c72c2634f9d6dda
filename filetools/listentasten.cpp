#include "filetools/listentasten.h"

#include <QAbstractItemView>
#include <QKeyEvent>

#include <algorithm>

bool ErstenPfeilAusfuehren(QAbstractItemView* liste, const QKeyEvent& taste) {
    const bool pfeil = taste.key() == Qt::Key_Down || taste.key() == Qt::Key_Up;
    if (!pfeil || liste->model()->rowCount() == 0 || liste->selectionModel()->hasSelection()) {
        return false;
    }
    liste->selectionModel()->setCurrentIndex(
        liste->model()->index(std::max(0, liste->currentIndex().row()), 0),
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    return true;
}
