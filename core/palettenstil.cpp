#include "core/palettenstil.h"

#include <QStyleOption>

#include <algorithm>

namespace {

constexpr std::size_t hoechstensBekannte = 32; // colours of forms and cells; more are on no screen at a time

} // namespace

Palettenstil::Palettenstil(QStyle* grund) : QProxyStyle(grund) {}

// Who calls the style has filled in the values just for this, and reads the palette no more; it has the same
// colours afterwards.
void Palettenstil::Vereinheitlichen(const QStyleOption* angaben) const {
    if (angaben == nullptr) {
        return;
    }
    auto& palette =
        const_cast<QStyleOption*>(angaben)->palette; // NOLINT(cppcoreguidelines-pro-type-const-cast)
    const auto fund = std::ranges::find(bekannte_, palette);
    if (fund == bekannte_.end()) {
        bekannte_.push_front(palette);
        bekannte_.resize(std::min(bekannte_.size(), hoechstensBekannte));
        return;
    }
    bekannte_.splice(bekannte_.begin(), bekannte_, fund);
    if (bekannte_.front().cacheKey() != palette.cacheKey()) {
        const QPalette::ColorGroup gruppe = palette.currentColorGroup();
        palette = bekannte_.front();
        palette.setCurrentColorGroup(gruppe);
    }
}

void Palettenstil::drawPrimitive(PrimitiveElement element, const QStyleOption* angaben, QPainter* maler,
                                 const QWidget* fuer) const {
    Vereinheitlichen(angaben);
    QProxyStyle::drawPrimitive(element, angaben, maler, fuer);
}

void Palettenstil::drawControl(ControlElement element, const QStyleOption* angaben, QPainter* maler,
                               const QWidget* fuer) const {
    Vereinheitlichen(angaben);
    QProxyStyle::drawControl(element, angaben, maler, fuer);
}

void Palettenstil::drawComplexControl(ComplexControl element, const QStyleOptionComplex* angaben,
                                      QPainter* maler, const QWidget* fuer) const {
    Vereinheitlichen(angaben);
    QProxyStyle::drawComplexControl(element, angaben, maler, fuer);
}
