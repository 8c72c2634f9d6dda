// The table of hits as a control: a hit is dragged out of it, chosen by Enter, shown by a double click,
// copied. What that does is the window's affair.
#pragma once

#include <QPoint>
#include <QTableView>

class Treffertabelle : public QTableView {
    Q_OBJECT

public:
    explicit Treffertabelle(QWidget* eltern);

Q_SIGNALS:
    // The left button is down on that row and has moved far enough for a drag.
    void gezogen(int zeile);
    void bestaetigt(int zeile);
    void kopieren(int zeile);

protected:
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    QPoint gedrueckt_;
    int zeile_ = -1; // pressed, -1 for none
};
