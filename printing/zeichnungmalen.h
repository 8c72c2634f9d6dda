// Paints a page's elements with the toolkit. Places nothing itself.
#pragma once

#include "printing/druckschrift.h"
#include "printing/zeichnung.h"

#include <functional>

class QPainter;

// versatzX, versatzY: the page's origin on the device's sheet, in mm. fortschritt is called thirty times,
// evenly over the elements.
void ZeichnungMalen(QPainter& maler, const Zeichnung& zeichnung, const Druckschriften& schriften,
                    double versatzX, double versatzY, const std::function<void()>& fortschritt);
