// The question with its five answer buttons. One window serves the whole run: it is hidden, never closed, and
// keeps the answer to the question that it was given last.
#pragma once

#include "core/meldungstext.h"
#include "dialogs/dialoggrund.h"

#include <array>

class QAbstractButton;
class QPushButton;

class frmNachricht : public Dialoggrund {
    Q_OBJECT

public:
    frmNachricht();

    // Puts a question, as it is shown. Closing it by its frame counts as beimSchliessen.
    void Stellen(const NachrichtText& frage, Antwort beimSchliessen);
    [[nodiscard]] Antwort antwort() const { return antwort_; }

    void reject() override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    void TastenBauen();
    void TastenAnordnen();
    void BildZeigen(bool sichtbar);
    void Beantworten(int taste);

    int bild_ = 0;   // of picSymbol; a number that has none shows no picture
    int tasten_ = 0; // button set
    Antwort antwort_ = Antwort::Abbrechen;
    std::array<QLabel*, 13> picSymbol_{}; // 1 to 12
    std::array<QPushButton*, 5> cmdAntwort_{};
    Textschild* lblNachrichtentext_;
};
