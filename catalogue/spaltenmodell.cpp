#include "catalogue/spaltenmodell.h"

#include "core/oberflaeche.h"

#include <utility>

void Spaltenmodell::setListe(std::shared_ptr<const Fragenliste> liste) {
    beginResetModel();
    liste_ = std::move(liste);
    endResetModel();
}

int Spaltenmodell::rowCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(liste_->anzahl());
}

QVariant Spaltenmodell::data(const QModelIndex& stelle, int rolle) const {
    const bool alsText = rolle == Qt::DisplayRole || rolle == Qt::EditRole || rolle == Qt::ToolTipRole;
    if (!alsText || !checkIndex(stelle, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    return Anzeige(liste_->wert(static_cast<std::size_t>(stelle.row()), spalte_));
}
