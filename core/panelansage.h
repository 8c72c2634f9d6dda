// What a screen reader is told of a panel: a button where it can be pressed by key, else a text; and that it
// can be pressed.
#pragma once

// Once is enough; more often does no harm.
void PanelansageEinrichten();
