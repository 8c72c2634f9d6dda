// What the tests of the pictures compare with.
#pragma once

#include "core/bilder.h"

#include <QImage>

#include <string_view>

// The picture as it is compiled in, for a screen of that resolution.
inline QImage Abbild(std::string_view name, double aufloesung) {
    return Bild(name, aufloesung).toImage().convertToFormat(QImage::Format_ARGB32);
}

// No point that can be seen.
inline bool Leer(const QImage& bild) {
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            if (qAlpha(bild.pixel(x, y)) > 128) {
                return false;
            }
        }
    }
    return true;
}
