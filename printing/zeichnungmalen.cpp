#include "printing/zeichnungmalen.h"

#include <QPainter>
#include <QString>

#include <cstddef>

namespace {

constexpr double mmJeZoll = 25.4;
constexpr double punkteJeZoll = 600.0;
constexpr std::size_t schritte = 30;

// Turns each kind of element into calls of the toolkit, in the device's units.
class Malgang {
public:
    Malgang(QPainter& maler, const Druckschriften& schriften, double versatzX, double versatzY)
        : maler_(maler),
          schriften_(schriften),
          jeMmX_(maler.device()->logicalDpiX() / mmJeZoll),
          jeMmY_(maler.device()->logicalDpiY() / mmJeZoll),
          versatzX_(versatzX),
          versatzY_(versatzY) {}

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
        const double radius = static_cast<double>(k.radius);
        maler_.drawEllipse(Punkt(k.x, k.y), radius * jeMmX_, radius * jeMmY_);
    }
    void operator()(const Textstelle& t) {
        const Druckschriften::Eintrag& eintrag = schriften_.Finden(t.schrift);
        maler_.setPen(Qt::black);
        maler_.setFont(eintrag.font);
        maler_.drawText(Punkt(t.x, t.y) + QPointF(0.0, eintrag.mass.ascent()),
                        QString::fromStdString(t.text));
    }

private:
    static QColor Qfarbe(Farbe farbe) { return {farbe.rot, farbe.gruen, farbe.blau}; }

    [[nodiscard]] QPointF Punkt(float x, float y) const {
        return {(static_cast<double>(x) + versatzX_) * jeMmX_, (static_cast<double>(y) + versatzY_) * jeMmY_};
    }

    void StiftSetzen(const Stift& stift) {
        const double breite = stift.punkte / punkteJeZoll * mmJeZoll * jeMmX_;
        maler_.setPen(QPen(Qfarbe(stift.farbe), breite, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    }

    QPainter& maler_;
    const Druckschriften& schriften_;
    double jeMmX_, jeMmY_;
    double versatzX_, versatzY_;
};

} // namespace

void SchriftenLaden(const Zeichnung& zeichnung, const Druckschriften& schriften,
                    const std::function<void()>& fortschritt) {
    std::size_t gelesen = 0;
    std::size_t gemeldet = 0;
    for (const Element& element : zeichnung) {
        if (const Textstelle* text = std::get_if<Textstelle>(&element)) {
            static_cast<void>(schriften.Finden(text->schrift));
        }
        ++gelesen;
        for (; fortschritt && gemeldet < gelesen * schritte / zeichnung.size(); ++gemeldet) {
            fortschritt();
        }
    }
}

void ZeichnungMalen(QPainter& maler, const Zeichnung& zeichnung, const Druckschriften& schriften,
                    double versatzX, double versatzY) {
    Malgang gang(maler, schriften, versatzX, versatzY);
    for (const Element& element : zeichnung) {
        std::visit(gang, element);
    }
}
