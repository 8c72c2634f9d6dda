// The help panel at the bottom of the main window: its caption is the status text. A text too long for one
// line beside the clipboard panels takes two smaller ones.
#pragma once

#include "core/panel.h"

class Hilfepanel : public Panel {
    Q_OBJECT

public:
    explicit Hilfepanel(QWidget* eltern);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
};
