// A small drawing of the sheet that a paper format gives: the form across a whole A4, or in the upper half of
// an upright one. A picture only.
#pragma once

#include <QLabel>

class Blattskizze : public QLabel {
    Q_OBJECT

public:
    // halb: the form takes the upper half of an upright sheet.
    Blattskizze(QWidget* eltern, const QString& name, bool halb);
};
