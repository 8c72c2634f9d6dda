// The fonts of the pages and their measures at the printer's resolution. Where Arial or Arial Black is
// missing, the best face of the same metrics serves.
#pragma once

#include "printing/zeichnung.h"

#include <QFont>
#include <QFontMetricsF>

#include <array>
#include <vector>

class QPaintDevice;

// The toolkit's font for a font of the page.
[[nodiscard]] QFont DruckFont(const Druckschrift& schrift);

// Measures as the device will set them; the device must outlive the object.
class Druckschriften final : public Schriftmass {
public:
    explicit Druckschriften(QPaintDevice& geraet);

    [[nodiscard]] Millimeter Breite(std::string_view text, const Druckschrift& schrift) const override;
    // Most buffers of a line that is being filled are far from its limit: for them the letters are added up.
    [[nodiscard]] Millimeter BreiteGegen(std::string_view text, const Druckschrift& schrift,
                                         Millimeter grenze) const override;
    [[nodiscard]] Millimeter Hoehe(const Druckschrift& schrift) const override;

    struct Eintrag {
        Druckschrift schrift;
        QFont font;
        QFontMetricsF mass;                    // in the device's pixels
        std::array<Millimeter, 128> zeichen{}; // widths of single letters, 0 for one not yet measured
    };
    // Font and measures, made at the first use. Valid until the next call.
    [[nodiscard]] Eintrag& Finden(const Druckschrift& schrift) const;

private:
    [[nodiscard]] Millimeter Zeichensumme(std::string_view text, const Druckschrift& schrift) const;

    QPaintDevice& geraet_;
    Aufloesung aufloesung_;
    mutable std::vector<Eintrag> eintraege_;
};
