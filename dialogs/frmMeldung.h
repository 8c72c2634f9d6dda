// The message with one button. A window lives for one message: whoever shows it makes it anew. Its size is
// fixed and doesn't follow its text.
#pragma once

#include "dialogs/dialoggrund.h"

#include <array>

class Panel;
class QPushButton;

class frmMeldung : public Dialoggrund {
    Q_OBJECT

public:
    // Takes picture and number from MeldungBild and MeldungNummer.
    frmMeldung();

    void Beschriften(const QString& text, const QString& antwort);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void BilderBauen();
    void NummerBauen();
    void TasteBauen();
    void Anordnen();
    void Kenntnis_Click();

    std::array<QLabel*, 12> picMeldung_{};
    Panel* pnlPic_;
    Panel* pnlNr_;
    QLabel* lblNr_;
    Textschild* lblMeldung_;
    QPushButton* cmdKenntnis_;
    int gruesse_ = 0; // lines printed on the window so far
};
