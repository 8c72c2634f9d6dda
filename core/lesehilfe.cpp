#include "core/lesehilfe.h"

#include "core/kontrastfrage.h"
#include "core/oberflaeche.h"

#include <QApplication>
#include <QToolTip>
#include <QWidget>

namespace {

double faktor = 1.0;

constexpr Schriftpunkte grundgroesse = 9_pt;

QFont GroessereSchrift() {
    QFont schrift = Schrift(grundgroesse);
    schrift.setPixelSize(qRound(schrift.pixelSize() * faktor));
    return schrift;
}

QPalette HellePalette() {
    const QColor flaeche(233, 230, 223);
    const QColor schrift(24, 24, 24);
    const QColor matt(138, 134, 126);       // out of use
    const QColor platzhalter(110, 106, 99); // to be read
    QPalette palette(flaeche, flaeche);
    palette.setColor(QPalette::WindowText, schrift);
    palette.setColor(QPalette::Text, schrift);
    palette.setColor(QPalette::ButtonText, schrift);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(246, 244, 239));
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 223));
    palette.setColor(QPalette::ToolTipText, Qt::black);
    palette.setColor(QPalette::PlaceholderText, platzhalter);
    palette.setColor(QPalette::Highlight, QColor(38, 92, 156));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(22, 82, 150));
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, rolle, matt);
    }
    return palette;
}

QPalette Kontrastpalette() {
    const QColor ausserDienst(90, 90, 90);
    QPalette palette(Qt::white, Qt::white);
    for (const auto rolle :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
          QPalette::Highlight, QPalette::Dark, QPalette::Mid, QPalette::Shadow, QPalette::PlaceholderText}) {
        palette.setColor(rolle, Qt::black);
    }
    for (const auto rolle : {QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase,
                             QPalette::HighlightedText, QPalette::Light, QPalette::Midlight}) {
        palette.setColor(rolle, Qt::white);
    }
    palette.setColor(QPalette::Link, QColor(0, 0, 160));
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, rolle, ausserDienst);
    }
    return palette;
}

} // namespace

void LesehilfeEinrichten() {
    static const bool einmal = [] {
        faktor = Schriftfaktor(QApplication::font().pointSizeF());
        KontrastBeobachten(KontrastSetzen);
        return true;
    }();
    static_cast<void>(einmal);
}

void SchriftfaktorVorgeben(double wert) {
    faktor = wert;
}

void SystemschriftGeben(QWidget& fenster) {
    if (faktor > 1.0) {
        fenster.setFont(GroessereSchrift());
    }
}

QPalette Programmpalette(bool hoherKontrast) {
    return hoherKontrast ? Kontrastpalette() : HellePalette();
}

void KontrastSetzen(bool hoch) {
    const QPalette palette = Programmpalette(hoch);
    if (palette != QApplication::palette()) {
        QApplication::setPalette(palette);
        QToolTip::setPalette(palette);
    }
}
