// The file dialog's preview: a small grid on what is known of a form file without opening it. It reads the
// file's head and changes nothing of the open form.
#pragma once

#include "core/panel.h"

#include <string>

class QPushButton;
class QTableWidget;

class Dateivorschau : public Panel {
    Q_OBJECT

public:
    // The panel "pnlDatei" with its grid and the button that ends the preview; hidden at first.
    explicit Dateivorschau(QWidget* eltern);

    // Fills the grid for a file. False, with a report and the grid as it was, when the file can't be read.
    bool Fuellen(const std::string& pfad);

Q_SIGNALS:
    // The user has seen enough: by the button or by a click on the grid.
    void beendet();

private:
    void Zeile(int zeile, const QString& links, const QString& mitte, const QString& rechts = QString());

    QTableWidget* grdDatei_;
    QPushButton* cmdDateiInfoEnde_;
};
