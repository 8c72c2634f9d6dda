#include "printing/zeichnungmalen.h"

#include <QPainter>
#include <QString>

#include <cstddef>

namespace {

constexpr std::size_t schritte = 30;

// Turns each kind of element into calls of the toolkit, in the device's units.
class Malgang {
public:
    Malgang(QPainter& maler, const Druckschriften& schriften, Millimeter ursprungX, Millimeter ursprungY)
        : maler_(maler),
          schriften_(schriften),
          waagerecht_(maler.device()->logicalDpiX()),
          senkrecht_(maler.device()->logicalDpiY()),
          ursprungX_(ursprungX),
          ursprungY_(ursprungY) {}

    void operator()(const Rechteck& r) {
        StiftSetzen(r.stift);
        maler_.setBrush(r.fuellung ? QBrush(Qfarbe(*r.fuellung)) : QBrush(Qt::NoBrush));
        maler_.drawRect(QRectF(Punkt(r.x, r.y), Punkt(r.x + r.breite, r.y + r.hoehe)));
    }
    void operator()(const Strich& s) {
        StiftSetzen(s.stift);
        maler_.drawLine(QLineF(Punkt(s.x1, s.y1), Punkt(s.x2, s.y2)));
    }
    void operator()(const Kreis& k) {
        StiftSetzen(k.stift);
        maler_.setBrush(Qt::NoBrush);
        maler_.drawEllipse(Punkt(k.x, k.y), waagerecht_.Geraetepixel(k.radius),
                           senkrecht_.Geraetepixel(k.radius));
    }
    void operator()(const Textstelle& t) {
        const Druckschriften::Eintrag& eintrag = schriften_.Finden(t.schrift);
        maler_.setPen(Qt::black);
        if (schrift_ != t.schrift) { // a picture that is recorded keeps each font that is set
            maler_.setFont(eintrag.font);
            schrift_ = t.schrift;
        }
        maler_.drawText(Punkt(t.x, t.y) + QPointF(0.0, eintrag.mass.ascent()),
                        QString::fromStdString(t.text));
    }
    void operator()(const Zuschnitt& z) {
        if (z.flaeche) {
            const Flaeche& f = *z.flaeche;
            maler_.setClipRect(QRectF(Punkt(f.x, f.y), Punkt(f.x + f.breite, f.y + f.hoehe)));
        } else {
            maler_.setClipping(false);
        }
    }

private:
    static QColor Qfarbe(Farbe farbe) { return {farbe.rot, farbe.gruen, farbe.blau}; }

    [[nodiscard]] QPointF Punkt(Millimeter x, Millimeter y) const {
        return {waagerecht_.Geraetepixel(x, ursprungX_), senkrecht_.Geraetepixel(y, ursprungY_)};
    }

    void StiftSetzen(const Stift& stift) {
        const double breite = waagerecht_.Geraetepixel(stift.punkte);
        maler_.setPen(QPen(Qfarbe(stift.farbe), breite, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    }

    QPainter& maler_;
    const Druckschriften& schriften_;
    Aufloesung waagerecht_, senkrecht_;
    Millimeter ursprungX_, ursprungY_;
    Druckschrift schrift_{Schriftart::Arial, 0_pt, false}; // in force; none at first
};

} // namespace

void SchriftenLaden(std::span<const Zeichnung> seiten, const Druckschriften& schriften,
                    const std::function<void()>& fortschritt) {
    std::size_t alle = 0;
    for (const Zeichnung& seite : seiten) {
        alle += seite.size();
    }
    std::size_t gelesen = 0;
    std::size_t gemeldet = 0;
    for (const Zeichnung& seite : seiten) {
        for (const Element& element : seite) {
            if (const Textstelle* text = std::get_if<Textstelle>(&element)) {
                static_cast<void>(schriften.Finden(text->schrift));
            }
            ++gelesen;
            for (; fortschritt && gemeldet < gelesen * schritte / alle; ++gemeldet) {
                fortschritt();
            }
        }
    }
}

void ZeichnungMalen(QPainter& maler, const Zeichnung& zeichnung, const Druckschriften& schriften,
                    Millimeter ursprungX, Millimeter ursprungY) {
    Malgang gang(maler, schriften, ursprungX, ursprungY);
    for (const Element& element : zeichnung) {
        std::visit(gang, element);
    }
    maler.setClipping(false);
}
