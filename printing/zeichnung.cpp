#include "printing/zeichnung.h"

#include <algorithm>

namespace {

struct Verschiebung {
    Millimeter x, y;

    template <typename Teil>
    void operator()(Teil& teil) const {
        teil.x += x;
        teil.y += y;
    }
    void operator()(Strich& strich) const {
        strich.x1 += x;
        strich.x2 += x;
        strich.y1 += y;
        strich.y2 += y;
    }
    void operator()(Zuschnitt& zuschnitt) const {
        if (zuschnitt.flaeche) {
            (*this)(*zuschnitt.flaeche);
        }
    }
};

struct Umrisse {
    const Schriftmass& mass;

    Flaeche operator()(const Rechteck& r) const { return {r.x, r.y, r.breite, r.hoehe}; }
    Flaeche operator()(const Strich& s) const {
        const Millimeter x = std::min(s.x1, s.x2);
        const Millimeter y = std::min(s.y1, s.y2);
        return {x, y, std::max(s.x1, s.x2) - x, std::max(s.y1, s.y2) - y};
    }
    Flaeche operator()(const Kreis& k) const {
        return {k.x - k.radius, k.y - k.radius, 2.0F * k.radius, 2.0F * k.radius};
    }
    Flaeche operator()(const Textstelle& t) const {
        return {t.x, t.y, mass.Breite(t.text, t.schrift), mass.Hoehe(t.schrift)};
    }
    Flaeche operator()(const Zuschnitt& /*zuschnitt*/) const { return {}; }
};

} // namespace

void TextZentriert(Zeichnung& zeichnung, const Schriftmass& mass, Millimeter x, Millimeter y,
                   const Druckschrift& schrift, std::string_view text) {
    if (text.empty()) {
        return;
    }
    zeichnung.emplace_back(Textstelle{x - mass.Breite(text, schrift) / 2.0F, y - mass.Hoehe(schrift) / 2.0F,
                                      schrift, std::string(text)});
}

void TextZeilen(Zeichnung& zeichnung, const Schriftmass& mass, Millimeter x, Millimeter y,
                const Druckschrift& schrift, const std::vector<std::string_view>& zeilen) {
    const Millimeter hoehe = mass.Hoehe(schrift);
    for (const std::string_view zeile : zeilen) {
        if (!zeile.empty()) {
            zeichnung.emplace_back(Textstelle{x, y, schrift, std::string(zeile)});
        }
        y += hoehe;
    }
}

Element Verschoben(Element element, Millimeter x, Millimeter y) {
    std::visit(Verschiebung{x, y}, element);
    return element;
}

Flaeche Umriss(const Element& element, const Schriftmass& mass) {
    return std::visit(Umrisse{mass}, element);
}
