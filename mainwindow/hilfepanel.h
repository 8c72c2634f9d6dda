// The help panel at the bottom of the main window: its caption is the status text. A text too long for one
// line beside the clipboard panels takes two smaller ones; what is longer still ends in dots.
#pragma once

#include "core/panel.h"

#include <string>
#include <string_view>

class Hilfepanel : public Panel {
    Q_OBJECT

public:
    explicit Hilfepanel(QWidget* eltern);

    // Status text about a file, with a {} for its name and one for its folder, as far as the two lines take
    // them; the panel's tip tells the whole path, in the program's notation, until the next call.
    void DateiZeigen(std::string_view text, const std::string& pfad);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QString grundtipp_; // the panel's own tip, before there was a file to tell about
};
