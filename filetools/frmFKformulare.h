// The list of forms: the files of one folder by name, with the numbers of the marked one. A double click or
// Enter opens it. A tool window that stays above the main window. Reading and opening a form are
// persistence/oeffnen.
#pragma once

#include <QWidget>

#include <array>
#include <cstdint>
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
    explicit frmFKformulare(QWidget* eltern);

    // Takes the two buttons that choose the list into or out of use.
    void TastenSetzen(bool fk, bool hb);
    // Reads the folder; one that can't be read is reported if wanted and shows no file. What was marked stays
    // marked as long as it is there.
    void Auffrischen(bool melden);

Q_SIGNALS:
    // The window goes; the next one is made anew.
    void geschlossen();

protected:
    bool event(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    // The values that the preview of a form changes.
    struct Kopfzahlen {
        std::string formTyp;
        std::int16_t felderGesamt = 0;
        std::int16_t fragenProWissen = 0;
        std::int16_t anzahlWissen = 0;
        bool operator==(const Kopfzahlen&) const = default;
        [[nodiscard]] static Kopfzahlen Jetzt();
        void Einsetzen() const;
    };
    struct Vorschaustand {
        Kopfzahlen eigene;  // of the open form
        Kopfzahlen gezeigt; // of the files marked since
    };

    void Aufbauen();
    QWidget* ListeBauen();
    void TastenBauen(QVBoxLayout* spalte);
    void MusterBauen(QVBoxLayout* spalte);
    void InfoBauen(QVBoxLayout* spalte);
    void Verbinden();
    void Einpassen();

    void ListeWaehlen(std::string_view tag);
    void MusterSetzen(std::size_t stelle);
    void ListeFuellen(std::vector<std::string> namen);
    [[nodiscard]] std::string Markiert() const;
    void DateiUebernehmen();
    void Markieren();
    void Vorschau();
    void Oeffnen();

    std::string ordner_; // own notation
    std::string muster_;
    std::vector<std::string> namen_; // as the list shows them
    std::optional<Vorschaustand> stand_;

    QListWidget* filDateiliste_ = nullptr;
    QLabel* lblDateiInfo_ = nullptr;
    std::array<QRadioButton*, 2> optPattern_{};
    QPushButton* cmdNeuFK_ = nullptr;
    QPushButton* cmdNeuHB_ = nullptr;
    QPushButton* cmdAbbruch_ = nullptr;
    QTimer* vorschau_ = nullptr; // the preview of the file marked last, when the keys are done
    Ordnerwaechter* waechter_ = nullptr;
};
