// The progress bar on the help panel. What it shows for which value is core/fortschritt.h; the routines that
// drive it are in core/hauptfenster.h.
#pragma once

class QWidget;

void FortschrittsbalkenBauen(QWidget* hilfepanel);
