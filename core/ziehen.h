// Dragging a question from one place to another: one drag at a time, begun by a source and ended by at most
// one target. The target's steps run after the drag has ended, so that they may ask the user. The same way
// can be gone with keys. Which drag is allowed and what a drop does is the callers' affair.
#pragma once

#include "core/ziehwert.h"

#include <cstdint>
#include <functional>
#include <optional>

#include <QtCore/qnamespace.h>

class QAbstractScrollArea;
class QWidget;

// The pictures at the pointer while a question is dragged: taken up, over a target, over what takes nothing,
// over the trash. Keins while nothing is dragged.
enum class ZiehBild : std::uint8_t { Keins, Aufnehmen, Ablegen, Nein, Atom };
[[nodiscard]] ZiehBild AktuellesZiehBild();

// What the source would give now; no value when it gives none any more.
using Erneuerung = std::function<std::optional<Ziehwert>()>;

// Drags a question out of its source; call it while the mouse button is down. Comes back after the drop and
// what it caused. Esc cancels. A source or a target that is gone by then leaves the drop without effect.
// While another drag runs it does nothing. A question that is held by key may wait long: its source is asked
// again at the drop, where erneuern is given.
void Ziehen(QWidget* quelle, Ziehwert wert, Erneuerung erneuern = {});

// What is being dragged, or was dragged last.
[[nodiscard]] const Ziehwert& Gezogen();

// Makes a control a target: bild shows while the drag is over it, ablegen runs after the drop with what was
// dropped. Works for any control; a text box goes on taking foreign text as ever. A second call replaces the
// first.
using Ablegen = std::function<void(const Ziehwert&)>;
void ZielEinrichten(QWidget* ziel, ZiehBild bild, Ablegen ablegen);
// Makes a control, and what lies in it and isn't a target, one that takes nothing. Controls without either
// take nothing as well.
void KeinZiel(QWidget* steuerelement);

// Runs druck at each press of the left button on the text area of a box, with the keys held. True of it: the
// press was more than an ordinary click, and the box doesn't get it.
void DruckEinrichten(QAbstractScrollArea* feld, std::function<bool(Qt::KeyboardModifiers)> druck);

// The way without a mouse. A source hands in what a press on it does; Shift+F8 and Ctrl+F8 then do what a
// press with that key does, and the question is held where the press would have begun a drag. F8 on a target
// drops it there, Esc on a source or a target lets go of it.
void TastenEinrichten(QWidget* quelle, std::function<void(Qt::KeyboardModifiers)> druecken);
// Runs a press without a mouse: a call of Ziehen inside it holds the question. True when one is held then.
bool OhneMausAufnehmen(const std::function<void()>& druecken);
// Drops the question held; false when none is or the control is no target.
bool OhneMausAblegen(QWidget* ziel);
[[nodiscard]] bool OhneMausGehalten();
void OhneMausLoslassen();
// Lets go of a question out of a form of that kind, which goes or shows other texts from now on. What is
// parked, or comes from the catalogue, stays held.
void OhneMausLoslassen(Formart herkunft);

// The kind of drag that the keys held at a press ask for.
[[nodiscard]] std::optional<Zugart> ZugartFuer(Qt::KeyboardModifiers tasten);
