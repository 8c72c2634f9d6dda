// The toolkit's style with the program's palettes. The style keeps a picture of each control it draws, by the
// number of the control's palette, and never forgets the name of one; but each control in a window with a
// colour of its own gets a palette with a number of its own. So equal palettes reach the style as one, and a
// form that is opened finds the pictures of the one before.
#pragma once

#include <QPalette>
#include <QProxyStyle>

#include <list>

class Palettenstil : public QProxyStyle {
    Q_OBJECT

public:
    // Takes the style that draws.
    explicit Palettenstil(QStyle* grund);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* angaben, QPainter* maler,
                       const QWidget* fuer) const override;
    void drawControl(ControlElement element, const QStyleOption* angaben, QPainter* maler,
                     const QWidget* fuer) const override;
    void drawComplexControl(ComplexControl element, const QStyleOptionComplex* angaben, QPainter* maler,
                            const QWidget* fuer) const override;

private:
    void Vereinheitlichen(const QStyleOption* angaben) const;

    mutable std::list<QPalette> bekannte_; // those used last first
};
