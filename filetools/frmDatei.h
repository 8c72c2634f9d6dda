// The program's own file dialog: choose a file to open or name one to save, and small work on files and
// folders in place. Its caption tells which of the two it is for. The questions around files and folders are
// dateiaktionen.h and ordneraktionen.h.
#pragma once

#include "filetools/dateiaktionen.h"
#include "filetools/dateidialog.h"

#include <QDialog>

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

class Dateivorschau;
class Laufwerksfeld;
class Pfadschild;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QRadioButton;

class frmDatei : public QDialog {
    Q_OBJECT

public:
    explicit frmDatei(const Dateiauswahl& auswahl);

    // Folder that the dialog shows, own notation.
    [[nodiscard]] const std::string& ordner() const { return ordner_; }
    // Path chosen, as DateidialogZeigen gives it. While the dialog shows it is that of the last click on a
    // file, and before any the caller's; no value once it was cancelled.
    [[nodiscard]] const std::optional<std::string>& gewaehlt() const { return gewaehlt_; }

    // Esc and the frame's close box are cmdAbbrechen.
    void reject() override;

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    // Building, in frmDateiAufbau.cpp
    QPushButton* TasteBauen(const QString& name, const QString& aufschrift, QWidget* eltern);
    QWidget* ListenBauen();
    QWidget* OrdnerspalteBauen();
    void TastenFuellen(QGroupBox* rahmen, const char* feld, const std::vector<const char*>& worte,
                       std::span<QPushButton*> tasten);
    QWidget* AktionenBauen();
    QWidget* ZeilenBauen(const Dateiauswahl& auswahl);
    QWidget* MusterBauen(const Dateiauswahl& auswahl);
    QWidget* TastenBauen();
    QWidget* SicherungBauen(bool benutzbar);

    void ListenVerbinden();
    void TastenVerbinden();

    // Folder, pattern and choice, in frmDateiListen.cpp
    void Anfangen(const Dateiauswahl& auswahl);
    bool OrdnerSetzen(const std::string& ordner);
    void OrdnerBetreten(const QListWidgetItem* eintrag);
    void Auffrischen(const std::string& name);
    void MusterSetzen(const std::string& muster);
    void Filtern();
    void Waehlen(const QListWidgetItem* eintrag);
    void NameZeigen(const std::string& name);
    [[nodiscard]] Dateiort Ort() const;

    // Commands
    void Bestaetigen();
    void Laden();
    void Speichern();
    void DateiBefehl(int index);
    void OrdnerBefehl(int index);
    void VorschauZeigen();
    void VorschauBeenden();
    void Suchansicht();

    std::string ordner_;
    std::string muster_;
    std::vector<std::string> alleDateien_; // of the folder, whatever the pattern
    std::optional<std::string> gewaehlt_;

    QWidget* picDatei_ = nullptr;
    QWidget* picList_ = nullptr;
    QWidget* picButtons_ = nullptr;
    QListWidget* filDateiliste_ = nullptr;
    QListWidget* dirVerzeichnisliste_ = nullptr;
    Laufwerksfeld* fraLaufwerk_ = nullptr;
    QGroupBox* fraDir_ = nullptr;
    QGroupBox* fraOrdner_ = nullptr;
    QGroupBox* fraDatei_ = nullptr;
    Dateivorschau* pnlDatei_ = nullptr;
    Pfadschild* lblDir_ = nullptr;
    QLabel* lblDateienAnzahl_ = nullptr;
    QLabel* lblAlleDateienAnzahl_ = nullptr;
    QLineEdit* txtDateiname_ = nullptr;
    QComboBox* cmbAppend_ = nullptr;
    QCheckBox* chkBackUp_ = nullptr;
    std::vector<QRadioButton*> optAppend_;
    std::array<QPushButton*, 4> cmdDatei_{};
    std::array<QPushButton*, 3> cmdOrdner_{};
    QPushButton* cmdVorschau_ = nullptr;
    QPushButton* cmdPfadZerlegen_ = nullptr;
    QPushButton* cmdLaden_ = nullptr;
    QPushButton* cmdSpeichern_ = nullptr;
    QPushButton* cmdAbbrechen_ = nullptr;
    QPushButton* cmdHilfe_ = nullptr;
};
