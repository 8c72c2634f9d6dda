// The frame with the drives: a row of buttons, or a list in its place. Says which drive was picked and leaves
// what follows to its owner.
#pragma once

#include <QGroupBox>

#include <string>
#include <vector>

class QComboBox;
class QPushButton;

class Laufwerksfeld : public QGroupBox {
    Q_OBJECT

public:
    // The frame "fraLaufwerk" with the system's drives.
    explicit Laufwerksfeld(QWidget* eltern);

    // True while the list stands in place of the buttons.
    [[nodiscard]] bool listeSteht() const;
    void ListeZeigen(bool liste);
    // The view after the command for finding a file: no button, the list in a frame of its own width.
    void SuchansichtZeigen();

Q_SIGNALS:
    // Root folder in the program's own notation.
    void gewaehlt(const std::string& wurzel);

protected:
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;

private:
    std::vector<QPushButton*> cmdLaufwerk_;
    QComboBox* drvList_;
};
