// The message with one button. A window lives for one message: whoever shows it makes it anew. Its size is
// fixed and doesn't follow its text.
#pragma once

#include "core/meldungstext.h"
#include "dialogs/dialoggrund.h"

#include <array>

class Panel;
class QPushButton;

class frmMeldung : public Dialoggrund {
    Q_OBJECT

public:
    // The message as it is shown, its values in their places.
    explicit frmMeldung(const MeldungsText& meldung);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void BilderBauen();
    void NummerBauen(std::string_view nummer);
    void TasteBauen();
    void Beschriften(const QString& text, const QString& antwort);
    void Anordnen();
    void ZurKenntnisNehmen();

    int bild_; // of picMeldung; a number that has none shows no picture
    std::array<QLabel*, 12> picMeldung_{};
    Panel* pnlPic_;
    Panel* pnlNr_;
    QLabel* lblNr_;
    Textschild* lblMeldung_;
    QPushButton* cmdKenntnis_;
    int gruesse_ = 0; // lines printed on the window so far
};
