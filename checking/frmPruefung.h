// The window with what the check of the open form has found. It follows the form, leads to the place of a
// finding and has quotation marks replaced; what is a finding at all is checking/pruefung.h.
#pragma once

#include "checking/befund.h"
#include "checking/pruefschriften.h"
#include "forms/formularstand.h"

#include <QWidget>

#include <optional>

class Befundmodell;
class Formularfolger;
class QLabel;
class QPushButton;
class QTableView;

class frmPruefung : public QWidget {
    Q_OBJECT

public:
    frmPruefung();

    // Looks at the form now.
    void Nachsehen();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void Aufbauen();
    void ListeBauen();
    void Verbinden();

    void Zeigen(Befunde befunde);
    void MarkierungSetzen(const std::optional<Befund>& markiert);
    void TasteBeschriften();
    [[nodiscard]] std::optional<Befund> Markiert() const;
    void ZumFeld(int zeile);
    void Ersetzen();

    Pruefschriften schriften_;
    std::optional<Formularstand> stand_; // as of the last look, none without a form
    Formularfolger* folger_ = nullptr;
    Befundmodell* modell_ = nullptr;
    QLabel* lblBefunde_ = nullptr;
    QTableView* tblBefunde_ = nullptr;
    QPushButton* cmdErsetzen_ = nullptr;
    QPushButton* cmdAbbruch_ = nullptr;
};
