// The start window: a picture, the version and one button that goes on to the main window.
#pragma once

#include <QWidget>

#include <string_view>

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

// Tells, once after the start, when nothing can be saved in the program's folder.
void SchreibortPruefen(std::string_view ordner);

// Sets AppPfad to the program's folder and shows the start window.
void StartfensterZeigen();
