#include "dialogs/sinnbilder.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>

namespace {

const QColor tinte(84, 58, 40);
const QColor papier(255, 252, 243);
const QColor blau(150, 190, 222);
const QColor gelb(246, 205, 92);
const QColor rot(232, 122, 98);
const QColor gruen(158, 200, 124);

void Kreis(QPainter& maler, const QColor& farbe) {
    maler.setBrush(farbe);
    maler.drawEllipse(QRectF(3, 3, 26, 26));
}

void Punkt(QPainter& maler, double x, double y) {
    maler.setBrush(tinte);
    maler.drawEllipse(QPointF(x, y), 0.9, 0.9);
}

void Bogenblatt(QPainter& maler) {
    maler.setBrush(papier);
    maler.drawRoundedRect(QRectF(6, 3, 20, 26), 3, 3);
}

void Frage(QPainter& maler) {
    Kreis(maler, blau);
    QPainterPath haken(QPointF(12, 12.5));
    haken.cubicTo(12, 6, 21, 6.5, 20.5, 12.5);
    haken.cubicTo(20.2, 16, 16, 15.5, 16, 19.5);
    maler.setBrush(Qt::NoBrush);
    maler.drawPath(haken);
    Punkt(maler, 16, 24);
}

void Hinweis(QPainter& maler) {
    Kreis(maler, blau);
    maler.drawLine(QPointF(16, 15), QPointF(16, 23));
    Punkt(maler, 16, 9.5);
}

void Ausruf(QPainter& maler) {
    Kreis(maler, gelb);
    maler.drawLine(QPointF(16, 8.5), QPointF(16, 18));
    Punkt(maler, 16, 23);
}

void Fehlerzeichen(QPainter& maler) {
    QPainterPath dreieck(QPointF(16, 4));
    dreieck.lineTo(29, 27);
    dreieck.lineTo(3, 27);
    dreieck.closeSubpath();
    maler.setBrush(rot);
    maler.drawPath(dreieck);
    maler.drawLine(QPointF(16, 12), QPointF(16, 18.5));
    Punkt(maler, 16, 23);
}

// A small board of coloured fields on a sheet.
void Formular(QPainter& maler) {
    Bogenblatt(maler);
    maler.drawLine(QPointF(10, 8), QPointF(22, 8));
    double x = 10;
    double y = 12.5;
    for (const QColor& farbe : {gelb, gruen, rot, blau}) {
        maler.setBrush(farbe);
        maler.drawRect(QRectF(x, y, 6, 6));
        y = x > 10 ? 18.5 : y;
        x = x > 10 ? 10 : 16;
    }
}

void Fertig(QPainter& maler) {
    Kreis(maler, gruen);
    maler.setBrush(Qt::NoBrush);
    maler.drawPolyline(QPolygonF{QPointF(10, 16.5), QPointF(14.5, 21), QPointF(22.5, 11.5)});
}

void Drucker(QPainter& maler) {
    maler.setBrush(papier);
    maler.drawRect(QRectF(9, 4, 14, 9));
    maler.setBrush(gelb);
    maler.drawRoundedRect(QRectF(3, 12, 26, 11), 3, 3);
    maler.setBrush(papier);
    maler.drawRect(QRectF(9, 19, 14, 9));
    maler.drawLine(QPointF(12, 24), QPointF(20, 24));
    Punkt(maler, 25, 16);
}

// An open door with the way out.
void Ende(QPainter& maler) {
    maler.setBrush(papier);
    maler.drawRoundedRect(QRectF(5, 4, 15, 25), 2, 2);
    maler.setBrush(rot);
    maler.drawPolygon(QPolygonF{QPointF(5, 4), QPointF(13, 8), QPointF(13, 28.5), QPointF(5, 28.5)});
    maler.setBrush(Qt::NoBrush);
    maler.drawLine(QPointF(17, 16), QPointF(28, 16));
    maler.drawPolyline(QPolygonF{QPointF(24, 12), QPointF(28, 16), QPointF(24, 20)});
}

void Blatt(QPainter& maler) {
    Bogenblatt(maler);
    for (const double y : {10.0, 15.0, 20.0}) {
        maler.drawLine(QPointF(11, y), QPointF(21, y));
    }
}

void Ordner(QPainter& maler) {
    maler.setBrush(gelb);
    maler.drawPolygon(QPolygonF{QPointF(3, 8), QPointF(12, 8), QPointF(15, 11), QPointF(29, 11),
                                QPointF(29, 26), QPointF(3, 26)});
    maler.drawLine(QPointF(3, 15), QPointF(29, 15));
}

// The rule book.
void Regel(QPainter& maler) {
    maler.setBrush(gruen);
    maler.drawRoundedRect(QRectF(5, 4, 22, 24), 3, 3);
    maler.setBrush(papier);
    maler.drawRoundedRect(QRectF(11, 9, 12, 7), 2, 2);
    maler.drawLine(QPointF(9, 4), QPointF(9, 28));
}

void Herz(QPainter& maler) {
    QPainterPath herz(QPointF(16, 27));
    herz.cubicTo(-3, 15, 6, 1, 16, 10);
    herz.cubicTo(26, 1, 35, 15, 16, 27);
    maler.setBrush(rot);
    maler.drawPath(herz);
}

struct Art {
    void (*malen)(QPainter&);
    const char* wort;
};

// In the order of the enumeration.
constexpr std::array<Art, 12> arten{{{Frage, "Frage"},
                                     {Hinweis, "Hinweis"},
                                     {Ausruf, "Achtung"},
                                     {Fehlerzeichen, "Fehler"},
                                     {Formular, "Formular"},
                                     {Fertig, "Erledigt"},
                                     {Drucker, "Drucken"},
                                     {Ende, "Ende"},
                                     {Blatt, "Datei"},
                                     {Ordner, "Ordner"},
                                     {Regel, "Spielregel"},
                                     {Herz, "Dank"}}};

const Art& ArtVon(Sinnbild bild) {
    return arten[static_cast<std::size_t>(bild)];
}

template <std::size_t n>
Sinnbild AusTabelle(const std::array<Sinnbild, n>& tabelle, int platz) {
    return platz < 0 || platz >= static_cast<int>(n) ? Sinnbild::Hinweis
                                                     : tabelle[static_cast<std::size_t>(platz)];
}

} // namespace

QPixmap SinnbildMalen(Sinnbild bild, double aufloesung) {
    const int kante = static_cast<int>(std::lround(32 * aufloesung));
    QPixmap flaeche(kante, kante);
    flaeche.setDevicePixelRatio(aufloesung);
    flaeche.fill(Qt::transparent);
    QPainter maler(&flaeche);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(tinte, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    ArtVon(bild).malen(maler);
    return flaeche;
}

Sinnbild MeldungSinnbild(int nummer) {
    using enum Sinnbild;
    return AusTabelle(std::array{Blatt, Sinnbild::Fehler, Hinweis, Frage, Regel, Ausruf, Formular, Fertig,
                                 Ordner, Ende, Herz, Drucker},
                      nummer);
}

Sinnbild NachrichtSinnbild(int nummer) {
    using enum Sinnbild;
    return AusTabelle(std::array{Hinweis, Ende, Hinweis, Drucker, Herz, Herz, Formular, Frage, Drucker,
                                 Drucker, Regel, Ordner, Ausruf},
                      nummer);
}

Sinnbild EingabeSinnbild(int nummer) {
    using enum Sinnbild;
    return AusTabelle(std::array{Hinweis, Frage, Hinweis, Blatt, Ordner, Formular, Regel, Fertig, Ausruf},
                      nummer);
}

const char* SinnbildWort(Sinnbild bild) {
    return ArtVon(bild).wort;
}

QLabel* SinnbildLabel(QWidget* eltern, const char* feld, int nummer, Sinnbild bild) {
    auto* label = new QLabel(eltern);
    label->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(feld)).arg(nummer));
    label->setAccessibleName(QString::fromUtf8(SinnbildWort(bild)));
    label->setPixmap(SinnbildMalen(bild, qGuiApp->devicePixelRatio()));
    label->resize(32, 32);
    label->hide();
    return label;
}
