// Where the pages of a document lie below each other: their rectangles for a width, a way of fitting and a
// size. Only geometry, in logical pixels; pages count from 0.
#pragma once

#include "periphery/dokumentansicht.h"

#include <QRect>
#include <QSizeF>

#include <span>
#include <vector>

inline constexpr double kleinsteGroesse = 0.25;
inline constexpr double groessteGroesse = 4.0;
inline constexpr int seitenabstand = 8; // around each page

struct Seitenlage {
    std::vector<QRect> plaetze;
    QSize gesamt; // with the distances around

    // Page at a height; the last one above it where the height lies between two. -1 without pages.
    [[nodiscard]] int SeiteBei(int hoehe) const;
};

// The places for pages with these measures in points in an area of that size; groesse counts for Frei alone.
[[nodiscard]] Seitenlage SeitenLegen(std::span<const QSizeF> masse, QSize flaeche, Passung passung,
                                     double groesse);
