// The question with its five answer buttons. One window serves the whole run: it is hidden, never closed. The
// answer goes to NachrichtAntwort.
#pragma once

#include "dialogs/dialoggrund.h"

#include <array>

class QAbstractButton;
class QPushButton;

class frmNachricht : public Dialoggrund {
    Q_OBJECT

public:
    frmNachricht();

    // Text and title; the picture and the buttons follow NachrichtBild and NachrichtTasten.
    void Stellen(const QString& text, const QString& titel);

    void reject() override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    void TastenBauen();
    void TastenAnordnen();
    void BildZeigen(bool sichtbar);
    void Antwort_Click(int taste);

    std::array<QLabel*, 13> picSymbol_{}; // 1 to 12
    std::array<QPushButton*, 5> cmdAntwort_{};
    Textschild* lblNachrichtentext_;
};
