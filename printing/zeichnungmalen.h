// Paints a page's elements with the toolkit. Places nothing itself.
#pragma once

#include "printing/druckschrift.h"
#include "printing/zeichnung.h"

#include <functional>
#include <span>

class QPainter;

// Loads every font that the pages need; fortschritt is called thirty times, evenly over the elements. What a
// caller's step may throw comes from here, while nothing has been sent to the device yet.
void SchriftenLaden(std::span<const Zeichnung> seiten, const Druckschriften& schriften,
                    const std::function<void()>& fortschritt);

// ursprungX, ursprungY: the page's origin on the device's sheet.
void ZeichnungMalen(QPainter& maler, const Zeichnung& zeichnung, const Druckschriften& schriften,
                    Millimeter ursprungX, Millimeter ursprungY);
