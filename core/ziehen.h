// Dragging a question from one place to another: one drag at a time, begun by a source and ended by at most
// one target. The target's steps run after the drag has ended, so that they may ask the user. Which drag is
// allowed and what a drop does is the callers' affair.
#pragma once

#include <QMimeData>

#include <cstdint>
#include <functional>
#include <string>

class QDropEvent;
class QWidget;

// 0 a drag from the selection dialog, 1 a move, 2 a copy, 27 the test form's copy.
inline std::int16_t DragArt = 0;
// Cell or row at which the drag began; 0 for the clipboard panel.
inline std::int16_t DragFeld = 0;
// Tag of the window where the press happened: "FKFragen", "HBFragen" or "Auswahl".
inline std::string DragHerkunft;

// The pictures at the pointer while a question is dragged.
enum class ZiehBild : std::uint8_t { Keins, Aufnehmen, Ablegen, Nein, Atom };
[[nodiscard]] ZiehBild AktuellesZiehBild();

// Drags the text of a source; comes back after the drop and what it caused.
void Ziehen(QWidget* quelle, const std::string& frage);

// The text being dragged.
[[nodiscard]] const std::string& GezogeneFrage();

// Makes a control a target: bild shows while the drag is over it, ablegen runs after the drop.
void ZielEinrichten(QWidget* ziel, ZiehBild bild, std::function<void()> ablegen);
// Makes a control one that takes nothing.
void KeinZiel(QWidget* steuerelement);
