// Draws a hit's texts with what was found in them marked.
#pragma once

#include <QStyledItemDelegate>

class Treffermaler : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* maler, const QStyleOptionViewItem& option, const QModelIndex& stelle) const override;
};
