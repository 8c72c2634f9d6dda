// Lengths that know their unit: twips of the windows' measures, millimetres of the pages, points of the fonts
// and dots of the pages' lines. No length turns into a plain number or into another unit by itself; this is
// the one place where it does, under a name that says what is lost. Logical pixels are the toolkit's plain
// int, and a device's own pixels its plain double.
#pragma once

#include <cmath>

// Arithmetic stays in the unit's own type of number, so that a typed measure is the bare one bit by bit.
template <typename Einheit>
class Laenge {
public:
    using Zahl = typename Einheit::Zahl;

    constexpr Laenge() = default;
    explicit constexpr Laenge(Zahl zahl) : zahl_(zahl) {}

    // The number of units, for what has no notion of a length: a file, a text, the toolkit.
    [[nodiscard]] constexpr Zahl zahl() const { return zahl_; }

    constexpr Laenge& operator+=(Laenge andere) {
        zahl_ += andere.zahl_;
        return *this;
    }

    [[nodiscard]] friend constexpr Laenge operator-(Laenge a) { return Laenge(-a.zahl_); }
    [[nodiscard]] friend constexpr Laenge operator+(Laenge a, Laenge b) { return Laenge(a.zahl_ + b.zahl_); }
    [[nodiscard]] friend constexpr Laenge operator-(Laenge a, Laenge b) { return Laenge(a.zahl_ - b.zahl_); }
    [[nodiscard]] friend constexpr Laenge operator*(Laenge a, Zahl faktor) {
        return Laenge(a.zahl_ * faktor);
    }
    [[nodiscard]] friend constexpr Laenge operator*(Zahl faktor, Laenge a) {
        return Laenge(faktor * a.zahl_);
    }
    [[nodiscard]] friend constexpr Laenge operator/(Laenge a, Zahl teiler) {
        return Laenge(a.zahl_ / teiler);
    }
    [[nodiscard]] friend constexpr Zahl operator/(Laenge a, Laenge b) { return a.zahl_ / b.zahl_; }
    [[nodiscard]] friend constexpr bool operator==(Laenge, Laenge) = default;
    [[nodiscard]] friend constexpr bool operator<(Laenge a, Laenge b) { return a.zahl_ < b.zahl_; }
    [[nodiscard]] friend constexpr bool operator>(Laenge a, Laenge b) { return b < a; }
    [[nodiscard]] friend constexpr bool operator<=(Laenge a, Laenge b) { return a.zahl_ <= b.zahl_; }
    [[nodiscard]] friend constexpr bool operator>=(Laenge a, Laenge b) { return b <= a; }

private:
    Zahl zahl_{};
};

struct TwipsEinheit {
    using Zahl = double; // a measure of the screen may be a fraction of another
};
struct MillimeterEinheit {
    using Zahl = float; // single precision is a part of the pages' layout
};
struct SchriftpunktEinheit {
    using Zahl = float;
};
struct DruckpunktEinheit {
    using Zahl = int;
};

// 15 to a logical pixel: 1440 to the inch of 96 pixels.
using Twips = Laenge<TwipsEinheit>;
// A millimetre of paper.
using Millimeter = Laenge<MillimeterEinheit>;
// Sizes of fonts, 72 to the inch. "Punkte" alone are those that a question is worth.
using Schriftpunkte = Laenge<SchriftpunktEinheit>;
// Whole dots, 600 to the inch: widths of the pages' lines.
using Druckpunkte = Laenge<DruckpunktEinheit>;

[[nodiscard]] constexpr Twips operator""_tw(unsigned long long zahl) {
    return Twips(static_cast<double>(zahl));
}
[[nodiscard]] constexpr Millimeter operator""_mm(unsigned long long zahl) {
    return Millimeter(static_cast<float>(zahl));
}
[[nodiscard]] constexpr Millimeter operator""_mm(long double zahl) {
    return Millimeter(static_cast<float>(zahl));
}
[[nodiscard]] constexpr Schriftpunkte operator""_pt(unsigned long long zahl) {
    return Schriftpunkte(static_cast<float>(zahl));
}
[[nodiscard]] constexpr Schriftpunkte operator""_pt(long double zahl) {
    return Schriftpunkte(static_cast<float>(zahl));
}
[[nodiscard]] constexpr Druckpunkte operator""_dp(unsigned long long zahl) {
    return Druckpunkte(static_cast<int>(zahl));
}

inline constexpr double twipsJePixel = 15.0;
inline constexpr double mmJeZoll = 25.4;
inline constexpr double schriftpunkteJeZoll = 72.0;
inline constexpr double druckpunkteJeZoll = 600.0;
inline constexpr double pixelJeZoll = 96.0; // logical ones, whatever resolution the desktop claims
// For sizes that the toolkit keeps in points. Loses nothing.
inline constexpr double pixelJeSchriftpunkt = pixelJeZoll / schriftpunkteJeZoll;

// To the nearest logical pixel, a half away from zero: loses up to half a pixel.
[[nodiscard]] constexpr int Pixel(Twips laenge) {
    const double pixel = laenge.zahl() / twipsJePixel;
    return static_cast<int>(pixel < 0 ? pixel - 0.5 : pixel + 0.5);
}
// The same for a font's size, to the nearest whole one.
[[nodiscard]] inline int Pixel(Schriftpunkte groesse) {
    return static_cast<int>(
        std::lround(static_cast<double>(groesse.zahl()) * pixelJeZoll / schriftpunkteJeZoll));
}
// Loses nothing.
[[nodiscard]] constexpr Twips TwipsAus(int pixel) {
    return Twips(pixel * twipsJePixel);
}
// Whole millimetres, as the printable area counts: loses up to half of one.
[[nodiscard]] inline Millimeter GanzeMillimeter(double mm) {
    return Millimeter(static_cast<float>(std::lrint(mm)));
}
[[nodiscard]] inline long GanzeZahl(Millimeter laenge) {
    return std::lrint(laenge.zahl());
}

// A device's resolution in one direction, in its own pixels to the inch.
class Aufloesung {
public:
    explicit constexpr Aufloesung(int jeZoll) : jeMm_(jeZoll / mmJeZoll), mm_(mmJeZoll / jeZoll) {}

    // In double precision, which loses nothing that could be seen.
    [[nodiscard]] constexpr double Geraetepixel(Millimeter laenge) const {
        return static_cast<double>(laenge.zahl()) * jeMm_;
    }
    [[nodiscard]] constexpr double Geraetepixel(Druckpunkte breite) const {
        return breite.zahl() / druckpunkteJeZoll * mmJeZoll * jeMm_;
    }
    // A place on the sheet that counts from an origin on it; they are added in double precision too.
    [[nodiscard]] constexpr double Geraetepixel(Millimeter ort, Millimeter ursprung) const {
        return (static_cast<double>(ort.zahl()) + static_cast<double>(ursprung.zahl())) * jeMm_;
    }
    // Rounds to single precision.
    [[nodiscard]] constexpr Millimeter MillimeterAus(double geraetepixel) const {
        return Millimeter(static_cast<float>(geraetepixel * mm_));
    }

private:
    double jeMm_, mm_;
};
