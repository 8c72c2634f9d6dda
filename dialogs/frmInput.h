// The dialog for one line of text. One window serves the whole run: it is hidden, never closed. The result
// goes to InputErgebnis.
#pragma once

#include "dialogs/dialoggrund.h"

#include <array>

class QLineEdit;
class QPushButton;

class frmInput : public Dialoggrund {
    Q_OBJECT

public:
    frmInput();

    // Request and title; the entry line takes InputVorgabe, the picture follows NachrichtBild.
    void Fragen(const QString& text, const QString& titel);

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
    void OK_Click();
    void Abbruch_Click();

    std::array<QLabel*, 9> picSymbol_{}; // 1 to 8
    QLabel* lblInput_;
    QLineEdit* txtInput_;
    QPushButton* cmdOK_;
    QPushButton* cmdAbbruch_;
    QPushButton* cmdHilfe_;
};
