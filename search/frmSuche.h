// The window of the search: words, theme and points go in, the questions that fit come out, best first, with
// each key. Which fit is search/suche.h, what becomes of one search/trefferweg.h.
#pragma once

#include "search/suche.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class Textzeile;
class Treffermodell;
class Treffertabelle;

class frmSuche : public QWidget {
    Q_OBJECT

public:
    frmSuche();

    // The text gets the focus, all of it selected.
    void Ansprechen();

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void Aufbauen();
    void SuchzeileBauen(QGridLayout& raster);
    void TabelleBauen();
    void Verbinden();
    void TabelleVerbinden();
    void Wiederherstellen();
    void Behalten() const;

    // A key was pressed or a choice made: the hits now, and a look at the disk.
    void Eingegeben();
    void Suchen();
    void PunkteFuellen();
    void AnzahlZeigen();
    void Gewaehlt(int zeile);
    void Ziehen(int zeile);
    void Einsetzen(int zeile);
    [[nodiscard]] Suchfilter Filter() const;

    Suchlauf suchlauf_;
    Textzeile* txtSuche_ = nullptr;
    QComboBox *cmbThema_ = nullptr, *cmbPunkte_ = nullptr;
    QCheckBox* chkUnbenutzt_ = nullptr;
    Treffertabelle* tblTreffer_ = nullptr;
    Treffermodell* modell_ = nullptr;
    QLabel *lblFrage_ = nullptr, *lblTreffer_ = nullptr;
};
