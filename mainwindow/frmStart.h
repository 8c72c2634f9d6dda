// The start window: a picture, the version and one button that goes on to the main window.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

class frmStart : public QWidget {
    Q_OBJECT

public:
    frmStart();

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    void BildLaden();

    QPixmap bild_;
    QLabel* lblVersion_ = nullptr;
    QPushButton* cmdStart_ = nullptr;
};

// Sets AppPfad to the program's folder and shows the start window.
void StartfensterZeigen();
