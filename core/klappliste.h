// A drop-down list as the program uses it: the wheel over it changes nothing and leaves the focus where it is
// while the list is closed, so that scrolling a window never chooses by accident.
#pragma once

#include <QComboBox>

#include <functional>

class Klappliste : public QComboBox {
public:
    explicit Klappliste(QWidget* eltern, const QString& name);

protected:
    void wheelEvent(QWheelEvent* ereignis) override;
};

// For a list that stands in the place of another control while the user chooses: Esc, in the open list or in
// the closed one, ends the choice. beenden then brings the other control back.
void EscBeendet(QComboBox* liste, std::function<void()> beenden);
