// The selection dialog: theme, sub-theme and question are picked here, and the question chosen is dragged
// into a form from the orange field. Questions of the forms dragged onto its trash field are blanked.
// Reading the catalogue is catalogue/katalogladen, a drop on a form the form's own affair.
#pragma once

#include "catalogue/fragenliste.h"

#include <QWidget>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class Blattfall;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class Spaltenmodell;
class Textfeld;

class frmAuswahl : public QWidget {
    Q_OBJECT

public:
    explicit frmAuswahl(QWidget* eltern);

    [[nodiscard]] std::string frage() const;
    [[nodiscard]] std::string antwort() const;
    // Picks theme, sub-theme and question as the user would.
    void FrageZeigen(std::string_view thema, std::string_view unterthema, std::string_view frage,
                     std::size_t nr);
    // Lets the sheet fall into the waste basket.
    void BlattFallenLassen();

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void Aufbauen();
    QGroupBox* AuswahlAufbauen();
    QGroupBox* MuellAufbauen();
    void FelderAufbauen(QGridLayout* raster);
    void VerborgeneAufbauen(QWidget* rahmen);
    void EreignisseVerbinden();
    void Einpassen();

    void ThemaGewaehlt();
    void UnterthemaGewaehlt();
    void FrageGewaehlt();
    void ListenSetzen(std::shared_ptr<const Fragenliste> liste);
    void FrageZiehen();
    void FrageAufnehmen();

    QComboBox *cmbThemen_ = nullptr, *cmbUnter_ = nullptr, *cmbFrage_ = nullptr;
    // What the four lists show, one column each.
    std::shared_ptr<const Fragenliste> fragen_ = std::make_shared<Fragenliste>();
    std::vector<Spaltenmodell*> spalten_;
    QLineEdit *txtNr_ = nullptr, *txtPunkte_ = nullptr;
    Textfeld *txtFrage_ = nullptr, *txtAntwort_ = nullptr;
    Blattfall* blattfall_ = nullptr;
};
