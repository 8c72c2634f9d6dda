#include "checking/pruefschriften.h"

#include "printing/druckschrift.h"

#include <QImage>

namespace {

// Of a sheet only the resolution counts.
QImage Leeres() {
    constexpr double punkteJeZoll = 1200.0;
    const int jeMeter = qRound(punkteJeZoll / mmJeZoll * 1000.0);
    QImage leeres(1, 1, QImage::Format_Mono);
    leeres.setDotsPerMeterX(jeMeter);
    leeres.setDotsPerMeterY(jeMeter);
    return leeres;
}

} // namespace

struct Pruefschriften::Blatt {
    QImage leeres = Leeres();
    Druckschriften schriften{leeres};
};

Pruefschriften::Pruefschriften() : blatt_(std::make_unique<Blatt>()) {}
Pruefschriften::~Pruefschriften() = default;

const Schriftmass& Pruefschriften::mass() const {
    return blatt_->schriften;
}
