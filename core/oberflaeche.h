// Small things that every window needs: places in twips, texts between model and toolkit, colours, the one
// light palette, the size of the screen. Holds no state but the palette it sets.
#pragma once

#include "core/farbe.h"
#include "core/laenge.h"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QSize>
#include <QString>

#include <string>
#include <string_view>

class QWidget;

// Texts of the toolkit (line feed) from texts of the model (UTF-8, CR LF), and back.
[[nodiscard]] QString Anzeige(std::string_view text);
[[nodiscard]] std::string Modelltext(const QString& text);

[[nodiscard]] inline QColor Qfarbe(Farbe farbe) {
    return QColor(farbe.rot, farbe.gruen, farbe.blau);
}
// System face: the palette's button colour.
[[nodiscard]] QColor Systemflaeche();

// The program's face in a size. Sizes are fixed to logical pixels, as the windows' measures are, so that
// captions fit whatever resolution the desktop claims.
[[nodiscard]] QFont Schrift(Schriftpunkte groesse, bool fett = false);

// Mouse pointer to the hourglass, and back to normal. Either may be called twice.
void SanduhrZeigen();
void NormalerZeiger();

// Fusion style, the one light palette and the toolkit's own texts in German. Once, before the first window.
void OberflaecheEinrichten();

// Size of the screen that a window stands on, or of the first one, in logical pixels.
[[nodiscard]] QSize Bildschirmgroesse(const QWidget* fenster);
// Tests set a size of their own; an empty one takes it back.
void BildschirmgroesseVorgeben(QSize groesse);

// Sets left, top, width and height. Right and bottom edge are rounded, not width and height, so that what
// adjoins in twips adjoins in pixels.
void TwipsGeometrie(QWidget* steuerelement, Twips links, Twips oben, Twips breite, Twips hoehe);
