// In which size a form stands on the screen, in per cent of its original one: lengths and fonts at a size,
// the steps from one size to the next, and which size serves for the room there is. Places nothing itself.
#pragma once

#include "core/laenge.h"

#include <algorithm>
#include <string_view>

class Massstab {
public:
    static constexpr int kleinster = 60;
    static constexpr int original = 100;
    static constexpr int groesster = 200;

    constexpr Massstab() = default;
    // Held to the smallest and the largest one.
    explicit constexpr Massstab(int prozent) : prozent_(std::clamp(prozent, kleinster, groesster)) {}

    [[nodiscard]] constexpr int prozent() const { return prozent_; }
    [[nodiscard]] constexpr bool istOriginal() const { return prozent_ == original; }

    // An edge at this size, to the nearest pixel, a half away from zero. Edges are rounded, not widths, so
    // that what adjoins goes on adjoining.
    [[nodiscard]] constexpr int Kante(int pixel) const {
        constexpr int halb = original / 2;
        return (pixel * prozent_ + (pixel < 0 ? -halb : halb)) / original;
    }
    // The width of a line, which never vanishes.
    [[nodiscard]] constexpr int Strich(int pixel) const { return std::max(1, Kante(pixel)); }
    // A font's size in pixels. Rounded down, so that a text has no less room than before; but no smaller than
    // can be read.
    [[nodiscard]] constexpr int Schriftgroesse(int pixel) const {
        constexpr int lesbar = 9;
        return std::max(pixel * prozent_ / original, std::min(pixel, lesbar));
    }
    [[nodiscard]] friend constexpr Twips operator*(Twips laenge, Massstab massstab) {
        return laenge * massstab.prozent_ / original;
    }
    [[nodiscard]] friend constexpr bool operator==(Massstab, Massstab) = default;

private:
    int prozent_ = original;
};

// What the user wants: a size of his own, or the original one as far as there is room for it.
struct Groessenwunsch {
    bool anpassen = true;
    Massstab eigener;
    friend constexpr bool operator==(Groessenwunsch, Groessenwunsch) = default;
};
// From texts that were kept; what is no number or out of range is the original size, and all but "0" means to
// fit.
[[nodiscard]] Groessenwunsch WunschAus(std::string_view groesse, std::string_view anpassen);

// The next full step of ten per cent above a size, or below it for richtung -1; the size itself at the end.
[[nodiscard]] Massstab NaechsteStufe(Massstab jetzt, int richtung);

struct Pixelflaeche {
    int breite = 0;
    int hoehe = 0;
};
// The size that serves. rand: what a frame adds, at any size the same. Fitting never makes a form larger than
// the original.
[[nodiscard]] Massstab MassstabFuer(const Groessenwunsch& wunsch, Pixelflaeche original, Pixelflaeche rand,
                                    Pixelflaeche frei);

// Where something is to begin so that its part from von to bis can be seen; its beginning rather than its
// end.
[[nodiscard]] constexpr int MitTeilZuSehen(int stelle, int von, int bis, int frei) {
    return std::max(std::min(stelle, frei - bis), -von);
}
// Where something of that length is to begin so that it lies inside, or leaves nothing free where it is
// longer.
[[nodiscard]] constexpr int Hineingerueckt(int stelle, int laenge, int frei) {
    return std::clamp(stelle, std::min(0, frei - laenge), std::max(0, frei - laenge));
}
