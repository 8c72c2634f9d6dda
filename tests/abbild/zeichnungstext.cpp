#include "zeichnungstext.h"

#include "abbildzeile.h"

#include <QColor>
#include <QStringList>

#include <cmath>

namespace {

// Without a minus in front of nothing.
QString Mass(double mm) {
    const double hundertstel = std::round(mm * 100.0);
    return QString::number(hundertstel == 0.0 ? 0.0 : hundertstel / 100.0, 'f', 2);
}

template <typename Einheit>
QString Mass(Laenge<Einheit> laenge) {
    return Mass(static_cast<double>(laenge.zahl()));
}

template <typename Zahl>
QString Ort(Zahl x, Zahl y) {
    return Mass(x) + u',' + Mass(y);
}

QString Farbwert(Farbe farbe) {
    return QColor(farbe.rot, farbe.gruen, farbe.blau).name();
}

QString Strichart(const Stift& stift) {
    return QStringLiteral("pen %1 %2").arg(stift.punkte.zahl()).arg(Farbwert(stift.farbe));
}

QString Elementzeile(const Rechteck& kasten) {
    return QStringLiteral("rectangle %1 %2x%3 %4 fill %5")
        .arg(Ort(kasten.x, kasten.y), Mass(kasten.breite), Mass(kasten.hoehe), Strichart(kasten.stift),
             kasten.fuellung ? Farbwert(*kasten.fuellung) : QStringLiteral("none"));
}

QString Elementzeile(const Strich& strich) {
    return QStringLiteral("line %1 to %2 %3")
        .arg(Ort(strich.x1, strich.y1), Ort(strich.x2, strich.y2), Strichart(strich.stift));
}

QString Elementzeile(const Kreis& kreis) {
    return QStringLiteral("circle %1 radius %2 %3")
        .arg(Ort(kreis.x, kreis.y), Mass(kreis.radius), Strichart(kreis.stift));
}

QString Elementzeile(const Textstelle& text) {
    const QString familie =
        text.schrift.art == Schriftart::ArialBlack ? QStringLiteral("Arial Black") : QStringLiteral("Arial");
    return QStringLiteral("text %1 %2 %3%4 %5")
        .arg(Ort(text.x, text.y), familie, Mass(text.schrift.groesse),
             text.schrift.fett ? QStringLiteral(" bold") : QString(),
             abbild::Gefasst(QString::fromStdString(text.text)));
}

QString Elementzeile(const Zuschnitt& zuschnitt) {
    return zuschnitt.flaeche ? QStringLiteral("within %1 %2x%3")
                                   .arg(Ort(zuschnitt.flaeche->x, zuschnitt.flaeche->y),
                                        Mass(zuschnitt.flaeche->breite), Mass(zuschnitt.flaeche->hoehe))
                             : QStringLiteral("within the page");
}

QString Oder(const std::string& farbe) {
    return farbe.empty() ? QStringLiteral("none") : QString::fromStdString(farbe);
}

} // namespace

namespace abbild {

QByteArray Zeichnungstext(const Zeichnung& zeichnung) {
    QStringList zeilen;
    for (const Element& element : zeichnung) {
        zeilen << std::visit([](const auto& teil) { return Elementzeile(teil); }, element);
    }
    return (zeilen.join(u'\n') + u'\n').toUtf8();
}

QByteArray Seitentext(const PdfSeite& seite) {
    QStringList zeilen{QStringLiteral("page %1x%2").arg(Mass(seite.breite), Mass(seite.hoehe))};
    for (const Pfad& pfad : seite.pfade) {
        zeilen << QStringLiteral("path of %1 corners %2 to %3 pen %4 %5 fill %6")
                      .arg(pfad.ecken)
                      .arg(Ort(pfad.links, pfad.oben), Ort(pfad.rechts, pfad.unten), Mass(pfad.strich),
                           Oder(pfad.linie), Oder(pfad.fuellung));
    }
    for (const Wort& wort : seite.worte) {
        zeilen << QStringLiteral("word %1 to %2 %3")
                      .arg(Ort(wort.links, wort.oben), Ort(wort.rechts, wort.unten),
                           Gefasst(QString::fromStdString(wort.text)));
    }
    return (zeilen.join(u'\n') + u'\n').toUtf8();
}

} // namespace abbild
