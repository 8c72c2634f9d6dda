// The pictures at the pointer while a question is dragged. Each has a shape of its own, so that none is told
// by its colour alone. When which one shows is core/ziehen.
#pragma once

#include "core/ziehen.h"

#include <QPixmap>

// Edge of a picture in logical pixels; its middle is the point that the pointer shows at.
inline constexpr int ziehBildKante = 32;

// picBildAufnehmen, picBildAblegen, picBildNein or picAtom1, for a screen of that pixel ratio. A null
// picture for Keins.
[[nodiscard]] QPixmap Ziehpixmap(ZiehBild bild, double pixelverhaeltnis);
