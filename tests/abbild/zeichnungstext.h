// Printed pages as text, one line an element in drawing order, in millimetres to the hundredth.
#pragma once

#include "printing/zeichnung.h"
#include "tests/printing/pdfleser.h"

#include <QByteArray>

namespace abbild {

[[nodiscard]] QByteArray Zeichnungstext(const Zeichnung& zeichnung);
// A page that has been read back from its file: paths, then words.
[[nodiscard]] QByteArray Seitentext(const PdfSeite& seite);

} // namespace abbild
