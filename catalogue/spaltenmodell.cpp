#include "catalogue/spaltenmodell.h"

#include "core/oberflaeche.h"

#include <utility>

void Spaltenmodell::setWerte(std::vector<std::string> werte) {
    beginResetModel();
    werte_ = std::move(werte);
    endResetModel();
}

int Spaltenmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(werte_.size());
}

QVariant Spaltenmodell::data(const QModelIndex& stelle, int rolle) const {
    const bool alsText = rolle == Qt::DisplayRole || rolle == Qt::EditRole || rolle == Qt::ToolTipRole;
    if (!alsText || !checkIndex(stelle, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    return Anzeige(werte_[static_cast<std::size_t>(stelle.row())]);
}
