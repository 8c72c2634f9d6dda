// The list of forms: the files of one folder by name, with the numbers of the marked one. A double click or
// Enter opens it, which is the affair of whoever made the list. A tool window that stays above the main
// window.
#pragma once

#include "core/formart.h"
#include "persistence/formulardatei.h"

#include <QWidget>

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Ordnerwaechter;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTimer;
class QVBoxLayout;

class frmFKformulare : public QWidget {
    Q_OBJECT

public:
    // oeffnen opens the file of a path; true when it was taken.
    frmFKformulare(QWidget* eltern, std::function<bool(const std::string& pfad)> oeffnen);

    // Takes the two buttons that choose the list into or out of use.
    void TastenSetzen(bool fk, bool hb);
    // Reads the folder; one that can't be read is reported if wanted and shows no file. What was marked stays
    // marked as long as it is there.
    void Auffrischen(bool melden);

    // Called by the user: it comes up and gets the focus, which takes the window system a moment.
    void Rufen();
    // That moment.
    [[nodiscard]] bool WartetAufFokus() const { return wartetAufFokus_; }

Q_SIGNALS:
    // The window goes; the next one is made anew.
    void geschlossen();

protected:
    bool event(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    struct Vorschaustand {
        FKIni inKraft; // as they were when the preview was made
        FKIni gezeigt; // of the files marked since
    };

    void Aufbauen();
    QWidget* ListeBauen();
    void TastenBauen(QVBoxLayout* spalte);
    void MusterBauen(QVBoxLayout* spalte);
    void InfoBauen(QVBoxLayout* spalte);
    void Verbinden();
    void Einpassen();

    void ListeWaehlen(Formart art);
    void MusterSetzen(std::size_t stelle);
    void ListeFuellen(std::vector<std::string> namen);
    [[nodiscard]] std::string Markiert() const;
    void Markieren();
    void Vorschau();
    void Oeffnen();

    bool wartetAufFokus_ = false;
    std::string ordner_; // own notation
    std::string muster_;
    std::vector<std::string> namen_;  // as the list shows them
    std::optional<Formart> gewaehlt_; // by one of the two buttons
    std::optional<Vorschaustand> stand_;
    std::function<bool(const std::string& pfad)> oeffnen_;

    QListWidget* filDateiliste_ = nullptr;
    QLabel* lblDateiInfo_ = nullptr;
    std::array<QRadioButton*, 2> optPattern_{};
    QPushButton* cmdNeuFK_ = nullptr;
    QPushButton* cmdNeuHB_ = nullptr;
    QPushButton* cmdAbbruch_ = nullptr;
    QTimer* vorschau_ = nullptr; // the preview of the file marked last, when the keys are done
    Ordnerwaechter* waechter_ = nullptr;
};
