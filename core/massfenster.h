// A window whose measures and fonts can be scaled as a whole: it lays itself out anew from the measures of
// its original size. Its texts stay as they are, and so do the focus and the lines at the top of its text
// boxes.
#pragma once

#include "core/massstab.h"

#include <QFont>
#include <QHash>
#include <QRect>
#include <QWidget>

class Textfeld;

class Massfenster : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    [[nodiscard]] virtual QSize Originalgroesse() const = 0;
    [[nodiscard]] Massstab massstab() const { return massstab_; }
    void MassstabSetzen(Massstab massstab);

protected:
    // Places all controls and sets all fonts for that size.
    virtual void Auslegen(Massstab massstab) = 0;

private:
    // Which character began the top line of a box when the user scrolled it last: at another size the line
    // may begin elsewhere, and coming back has to find the same one.
    struct Rollstand {
        int zeichen = 0;
        int wert = 0;
        int fassung = 0; // of the text
    };
    [[nodiscard]] Rollstand Rollstelle(Textfeld* feld) const;
    void Zurueckrollen(Textfeld* feld, Rollstand stand);

    Massstab massstab_;
    QHash<const Textfeld*, Rollstand> gerollt_;
};

// The program's face at a size, see Schrift(Schriftpunkte, bool).
[[nodiscard]] QFont Schrift(Schriftpunkte groesse, bool fett, Massstab massstab);
// Sets a geometry from the measures of the original size; its edges are rounded.
void TwipsGeometrie(QWidget* steuerelement, Twips links, Twips oben, Twips breite, Twips hoehe,
                    Massstab massstab);
void PixelGeometrie(QWidget* steuerelement, QRect original, Massstab massstab);
