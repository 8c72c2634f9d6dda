// The findings as rows of a list: Art, Feld, Befund. Another list is taken over where it differs, so that
// what stays keeps its row, its marking and its place on the screen.
#pragma once

#include "checking/befund.h"

#include <QAbstractTableModel>

class Befundmodell : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setBefunde(Befunde befunde);
    [[nodiscard]] const Befunde& befunde() const { return befunde_; }

    [[nodiscard]] int rowCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& stelle, int rolle) const override;
    [[nodiscard]] QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;

private:
    Befunde befunde_;
};
