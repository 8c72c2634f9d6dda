// Pictures of windows for people to look at; they lie in bilder/ of the build folder. They prove nothing by
// themselves.
#pragma once

#include <QString>

class QWidget;

// Paints the window with all its controls to <name>.png and returns the path.
QString BildVon(QWidget* fenster, const QString& name);
// The same for the whole screen as it is, with window frames.
QString BildVomBildschirm(const QString& name);
