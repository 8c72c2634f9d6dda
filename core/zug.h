// The one drag that there is and the marks of its targets, shared by core/ziehen.cpp (the mouse) and
// core/ziehtasten.cpp (the keys). Nobody else includes this.
#pragma once

#include "core/ziehen.h"

#include <QDrag>
#include <QPointer>
#include <QWidget>

#include <utility>

// Hangs below the control it speaks for, and goes with it. Without steps the control takes nothing.
class Zielmarke : public QObject {
public:
    Zielmarke(QWidget* element, ZiehBild bild, Ablegen ablegen)
        : QObject(element), bild_(bild), ablegen_(std::move(ablegen)) {}

    [[nodiscard]] bool nimmt() const { return static_cast<bool>(ablegen_); }
    [[nodiscard]] ZiehBild bild() const { return bild_; }
    // The steps may take the control away, and the mark with it.
    void ausfuehren(const Ziehwert& wert) const {
        const Ablegen schritte = ablegen_;
        schritte(wert);
    }

private:
    ZiehBild bild_;
    Ablegen ablegen_;
};

struct Zug {
    Ziehwert wert;
    Erneuerung erneuern;
    QPointer<QWidget> quelle;
    QPointer<Zielmarke> getroffen;
    QPointer<QDrag> drag; // none while a question is merely held
    ZiehBild bild = ZiehBild::Keins;
    double pixelverhaeltnis = 1.0;
    bool ohneMaus = false; // a press by key is under way
    bool gehalten = false;
};
Zug& AktuellerZug();

// The mark of exactly that control, nullptr for none.
Zielmarke* EigeneMarke(const QObject* element);
// Makes F8 drop the question held on the control, and Esc let go of it.
void ZieltastenEinrichten(QWidget* ziel);
