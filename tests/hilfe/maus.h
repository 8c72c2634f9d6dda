// A real mouse and a real keyboard: a second process sends the events through the display server, as a drag
// needs, which runs an event loop of its own between press and release. Every routine comes back when the
// program has seen the event, and fails the test when it doesn't. Only for tests on a virtual screen.
#pragma once

#include "tests/hilfe/versagen.h"

#include <QPoint>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>

namespace maus {

// Moves the pointer to a place in a control, its middle unless told.
void Bewegen(const QWidget* ziel, std::optional<QPoint> stelle = {}, Stelle aufrufer = Stelle::hier());

// Clicks with the left button; the modifiers are held meanwhile.
void Klicken(const QWidget* ziel, Qt::KeyboardModifiers tasten = Qt::NoModifier,
             std::optional<QPoint> stelle = {}, Stelle aufrufer = Stelle::hier());
// The same where the press itself may open a dialog, which then gets the release.
void Druecken(const QWidget* ziel, Qt::KeyboardModifiers tasten = Qt::NoModifier,
              Stelle aufrufer = Stelle::hier());
void Doppelklicken(const QWidget* ziel, std::optional<QPoint> stelle = {}, Stelle aufrufer = Stelle::hier());
// The same where the second press itself may open a dialog, which then gets the release.
void DoppeltDruecken(const QWidget* ziel, std::optional<QPoint> stelle = {},
                     Stelle aufrufer = Stelle::hier());
void RechtsKlicken(const QWidget* ziel, Stelle aufrufer = Stelle::hier());

// Drags from one control to another with the modifiers held from press to release. While the pointer stands
// over the target, ueberZiel is asked again and again until it is true (ten seconds at most, then the test
// fails); only then the button is released. Comes back after the drop and all it caused.
void Ziehen(const QWidget* von, const QWidget* nach, Qt::KeyboardModifiers tasten = Qt::NoModifier,
            const std::function<bool()>& ueberZiel = {}, Stelle aufrufer = Stelle::hier());

// Types text, or presses a key as "ctrl+s", "alt+F4", "Return", into whatever has the focus.
void Tippen(const QString& text, Stelle aufrufer = Stelle::hier());
void Taste(const QString& taste, Stelle aufrufer = Stelle::hier());

} // namespace maus
