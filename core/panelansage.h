// What a screen reader is told of a panel: a button where it can be pressed by key, else a text; and that it
// can be pressed; of a spin control its number. What it reads out by itself, wherever the user is: the status
// line and the flag.
#pragma once

class QWidget;

// Once is enough; more often does no harm.
void PanelansageEinrichten();
// A panel or a label whose changes are read out. Before the first reader asks for it.
void WechselAnsagen(QWidget* element);
// The text of such an element is another one; of any other it does nothing. That one has come into sight is
// told by the toolkit.
void GewechseltAnsagen(QWidget* element);
