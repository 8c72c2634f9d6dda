// The label with the folder of the file dialog: a path too long for it is shortened in the middle, and its
// last folder stays legible. Its text is the whole path.
#pragma once

#include "dialogs/dialoggrund.h"

class Pfadschild : public Textschild {
    Q_OBJECT
    Q_PROPERTY(QString gezeigt READ gezeigt)

public:
    using Textschild::Textschild;

    // What stands on the screen.
    [[nodiscard]] QString gezeigt() const;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
};
