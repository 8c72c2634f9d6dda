// One column of the question list as a list model: the combo boxes read the texts where they stand, so that
// a long list costs no more than its texts. Which columns belong together is the window's affair.
#pragma once

#include "catalogue/fragenliste.h"

#include <QAbstractListModel>

#include <memory>

class Spaltenmodell : public QAbstractListModel {
    Q_OBJECT

public:
    Spaltenmodell(Spalte spalte, QObject* eltern) : QAbstractListModel(eltern), spalte_(spalte) {}

    // Shows that list's column in place of the one it showed.
    void setListe(std::shared_ptr<const Fragenliste> liste);

    [[nodiscard]] int rowCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& stelle, int rolle) const override;

private:
    Spalte spalte_;
    std::shared_ptr<const Fragenliste> liste_ = std::make_shared<Fragenliste>();
};
