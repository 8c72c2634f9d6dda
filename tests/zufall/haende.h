// Does a step in strokes: press, move, release, key down. Each is an event of the window system at one of our
// windows, in its own turn of the event loop, since a press may open a dialog or begin a drag that runs a
// loop of its own.
#pragma once

#include "tests/zufall/handgriff.h"
#include "tests/zufall/ziele.h"

#include <QPointer>
#include <QWindow>

#include <deque>
#include <functional>

class Haende {
public:
    // A step whose place is out of reach is no stroke at all.
    void beginnen(const Handgriff& schritt);
    [[nodiscard]] bool fertig() const { return striche_.empty(); }
    // The next stroke; comes back when all it caused has ended.
    void strich();

private:
    void Klicken(const Treffer& ort, Qt::MouseButton taste, const Handgriff& schritt);
    void Ziehen(const Treffer& von, const Handgriff& schritt);
    void Tasten(int taste, Qt::KeyboardModifiers zusatz, const QString& text);
    void Tippen(const QString& text);
    void Maus(const QPointer<QWindow>& fenster, QPoint stelle, QEvent::Type art, Qt::MouseButton taste,
              Qt::KeyboardModifiers zusatz);
    void Drehen(const Treffer& ort, const Handgriff& schritt);
    void Schliessen(const Treffer& ort);

    std::deque<std::function<void()>> striche_;
    int zeit_ = 0; // of the events, in milliseconds
};
