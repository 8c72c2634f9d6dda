// A small drawing of the sheet that a paper format gives: the form across a whole A4, or in the upper half of
// an upright one. A picture only.
#pragma once

#include <QWidget>

class Blattskizze : public QWidget {
    Q_OBJECT

public:
    // halb: the form takes the upper half of an upright sheet.
    Blattskizze(QWidget* eltern, const QString& name, bool halb);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    bool halb_;
};
