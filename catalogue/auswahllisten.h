// The drop-down lists of the selection dialog: quick with any number of entries, wider than their box, and
// one signal for a pick of whatever kind. What a pick does is the window's affair.
#pragma once

#include <QString>

#include <functional>
#include <string_view>

class QAbstractItemModel;
class QComboBox;
class QWidget;

// A list whose drop-down is that many logical pixels wide. Without a model it stores its entries itself.
QComboBox* AuswahlListe(QWidget* eltern, const QString& name, int klappbreite,
                        QAbstractItemModel* modell = nullptr);

// Runs the steps whenever an entry is picked, by user or program, also the same one once more. Run-time
// errors inside are reported with that location.
void BeiWahl(QComboBox* liste, std::string_view ort, std::function<void()> schritte);
