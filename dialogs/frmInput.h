// The dialog for one line of text. One window serves the whole run: it is hidden, never closed, and keeps
// what was entered last.
#pragma once

#include "dialogs/dialoggrund.h"

#include <array>
#include <optional>
#include <string>

class QLineEdit;
class QPushButton;

class frmInput : public Dialoggrund {
    Q_OBJECT

public:
    frmInput();

    // Picture 1 to 8, title and request; vorgabe is the text proposed.
    void Fragen(int bild, const QString& titel, const QString& text, const QString& vorgabe);
    // The line after OK, no value after Abbrechen.
    [[nodiscard]] const std::optional<std::string>& ergebnis() const { return ergebnis_; }

    void reject() override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void ZeileBauen();
    QPushButton* TasteBauen(const char* name, const QString& wort, double links);
    void TabfolgeSetzen();
    void VorgabeEinsetzen();
    void Uebernehmen();
    void Abbrechen();

    int bild_ = 0;
    QString vorgabe_;
    std::optional<std::string> ergebnis_;
    std::array<QLabel*, 9> picSymbol_{}; // 1 to 8
    QLabel* lblInput_;
    QLineEdit* txtInput_;
    QPushButton* cmdOK_;
    QPushButton* cmdAbbruch_;
    QPushButton* cmdHilfe_;
};
