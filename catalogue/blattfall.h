// The sheet that falls into the waste basket when a question is thrown away: seven pictures, one a tick of
// the timer, and then nothing. Throws nothing away itself.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include <array>

inline constexpr int anzahlBlaetter = 7;

// The waste basket with the places of the seven sheets; it can have the keyboard's focus.
class Blattfall : public QWidget {
    Q_OBJECT
    // Number of the sheet that shows at the next tick; 7 at rest.
    Q_PROPERTY(int BlattNr READ BlattNr)

public:
    explicit Blattfall(QWidget* eltern);

    [[nodiscard]] int BlattNr() const { return blattNr_; }
    // The sheet begins to fall at the next tick.
    void Anstossen() { blattNr_ = 0; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    void Tick();

    std::array<QLabel*, anzahlBlaetter> picBlatt_{};
    QTimer Timer1_;
    int blattNr_ = anzahlBlaetter;
};
