// A label whose words stand above columns of equal width, one word a column. Its text keeps the blanks that
// part the words.
#pragma once

#include <QLabel>

class Spaltenschild : public QLabel {
    Q_OBJECT

public:
    Spaltenschild(QWidget* eltern, const QString& name, const QString& text);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
};
