// The start window: a picture, the version and one button that goes on to the main window.
#pragma once

#include <QWidget>

#include <string>
#include <string_view>

class QLabel;
class QPushButton;
struct Startorte;

class frmStart : public QWidget {
    Q_OBJECT

public:
    // lieferung: what AppPfad is made of, in the program's notation; "" where nothing is to be made.
    explicit frmStart(const std::string& lieferung = {});

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    void BildLaden(const std::string& lieferung);
    // The bar in place of the version, and the button out of use, until AppPfad is complete.
    void Einrichten(const std::string& lieferung);

    QPixmap bild_;
    QLabel* lblVersion_ = nullptr;
    QPushButton* cmdStart_ = nullptr;
};

// Tells, once after the start, when nothing can be saved in the program's folder.
void SchreibortPruefen(std::string_view ordner);

// Sets AppPfad and shows the start window, which makes that folder where it is a person's own.
void StartfensterZeigen(const Startorte& orte);
