#include "search/treffertabelle.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

Treffertabelle::Treffertabelle(QWidget* eltern) : QTableView(eltern) {
    setObjectName(QStringLiteral("tblTreffer"));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setHighlightSections(false);
    setMouseTracking(true);
}

void Treffertabelle::mousePressEvent(QMouseEvent* ereignis) {
    QTableView::mousePressEvent(ereignis);
    gedrueckt_ = ereignis->position().toPoint();
    const QModelIndex stelle = indexAt(gedrueckt_);
    zeile_ = ereignis->button() == Qt::LeftButton && stelle.isValid() ? stelle.row() : -1;
}

void Treffertabelle::mouseMoveEvent(QMouseEvent* ereignis) {
    if (!ereignis->buttons().testFlag(Qt::LeftButton)) {
        QTableView::mouseMoveEvent(ereignis);
        return;
    }
    // With the button down rows aren't chosen on the way: the one that was pressed is dragged.
    const QPoint weg = ereignis->position().toPoint() - gedrueckt_;
    if (zeile_ >= 0 && weg.manhattanLength() >= QApplication::startDragDistance()) {
        Q_EMIT gezogen(std::exchange(zeile_, -1));
    }
}

void Treffertabelle::keyPressEvent(QKeyEvent* ereignis) {
    if (currentIndex().isValid() && (ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter)) {
        Q_EMIT bestaetigt(currentIndex().row());
    } else if (currentIndex().isValid() && ereignis->matches(QKeySequence::Copy)) {
        Q_EMIT kopieren(currentIndex().row());
    } else {
        QTableView::keyPressEvent(ereignis);
    }
}
