// One column of the question list as a list model: the combo boxes read the texts where they stand, so that
// a long list costs no more than its texts. Which columns belong together is the window's affair.
#pragma once

#include <QAbstractListModel>

#include <string>
#include <vector>

class Spaltenmodell : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    // Takes the texts (UTF-8) in place of those it had.
    void setWerte(std::vector<std::string> werte);
    [[nodiscard]] const std::vector<std::string>& werte() const { return werte_; }

    [[nodiscard]] int rowCount(const QModelIndex& eltern = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& stelle, int rolle) const override;

private:
    std::vector<std::string> werte_;
};
