// How far letters and symbols stand out: the ratio of relative luminances after WCAG 2.1.
#pragma once

#include <QColor>
#include <QHash>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

inline double Leuchtdichte(QRgb farbe) {
    const auto linear = [](int wert) {
        const double anteil = wert / 255.0;
        return anteil <= 0.03928 ? anteil / 12.92 : std::pow((anteil + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(farbe)) + 0.7152 * linear(qGreen(farbe)) + 0.0722 * linear(qBlue(farbe));
}

// 1 to 21.
inline double Kontrast(QRgb eine, QRgb andere) {
    const double a = Leuchtdichte(eine);
    const double b = Leuchtdichte(andere);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

inline QHash<QRgb, int> Farben(const QImage& bild) {
    QHash<QRgb, int> anzahl;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            ++anzahl[bild.pixel(x, y) | 0xFF000000U];
        }
    }
    return anzahl;
}

// The colour of most of a picture.
inline QRgb Grundfarbe(const QImage& bild) {
    const QHash<QRgb, int> anzahl = Farben(bild);
    QRgb grund = 0;
    int meiste = 0;
    for (auto farbe = anzahl.cbegin(); farbe != anzahl.cend(); ++farbe) {
        if (farbe.value() > meiste) {
            grund = farbe.key();
            meiste = farbe.value();
        }
    }
    return grund;
}

// Of what stands out most in a picture against its ground. Two pixels are chance, three are a stroke.
inline double Bildkontrast(const QImage& bild, QRgb grund) {
    std::vector<double> kontraste;
    const QHash<QRgb, int> anzahl = Farben(bild);
    for (auto farbe = anzahl.cbegin(); farbe != anzahl.cend(); ++farbe) {
        kontraste.insert(kontraste.end(), static_cast<std::size_t>(farbe.value()),
                         Kontrast(farbe.key(), grund));
    }
    std::ranges::sort(kontraste, std::greater{});
    return kontraste.size() < 3 ? 1.0 : kontraste[2];
}
