// Rolls the next step, from a seed and what is on the screen. Most steps meet a control, a few meet nothing.
#pragma once

#include "tests/zufall/handgriff.h"

#include <QPointer>
#include <QWidget>

#include <random>

class Handwuerfel {
public:
    explicit Handwuerfel(unsigned saat) : zufall_(saat) {}

    [[nodiscard]] Handgriff Wurf();
    // A step that should leave the menu or dialog that is open: by a button, by Esc, or by the frame.
    [[nodiscard]] Handgriff Ausgang();

private:
    // 0 to grenze - 1.
    int Zahl(int grenze) { return static_cast<int>(zufall_() % static_cast<unsigned>(grenze)); }
    bool Prozent(int anteil) { return Zahl(100) < anteil; }
    template <typename Liste>
    const typename Liste::value_type& Eines(const Liste& liste) {
        return liste[static_cast<typename Liste::size_type>(Zahl(static_cast<int>(liste.size())))];
    }

    QWidget* Fensterwahl();
    QPoint Stelle(const QWidget& fenster);
    QPoint StelleIn(const QWidget& fenster, const QWidget& element);
    Ort Ortswahl();
    Ort Ziehort();
    std::optional<Handgriff> Vorliebe();
    Qt::KeyboardModifiers Zusatz(int anteil);
    Handgriff Mausschritt();
    Handgriff Tastenschritt();
    QString Text();

    std::mt19937 zufall_;
    QPointer<QWidget> dialog_; // open since so many steps
    int seit_ = 0;
};
