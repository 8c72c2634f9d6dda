#include "tooltips/tooltipfenster.h"

#include "core/oberflaeche.h"

#include <QBitmap>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int innenrand = 6;
constexpr int rundung = 8;
constexpr int symbolKante = 16;
constexpr int symbolAbstand = 5;
constexpr int titelAbstand = 4;

QFont Textschrift() {
    return Schrift(8.25);
}
QFont Titelschrift() {
    return Schrift(8.25, true);
}

// A blue disc with the letter i.
void HinweisMalen(QPainter& maler, const QRectF& platz) {
    maler.setPen(QPen(QColor(20, 62, 130), 1));
    maler.setBrush(QColor(44, 104, 196));
    maler.drawEllipse(platz.adjusted(0.5, 0.5, -0.5, -0.5));
    maler.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap));
    const QPointF mitte = platz.center();
    maler.drawLine(mitte + QPointF(0, -0.5), mitte + QPointF(0, 4));
    maler.drawPoint(mitte + QPointF(0, -4));
}

// A yellow triangle with a mark of exclamation.
void WarnungMalen(QPainter& maler, const QRectF& platz) {
    maler.setPen(QPen(QColor(64, 44, 0), 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    maler.setBrush(QColor(255, 204, 0));
    maler.drawPolygon(
        QPolygonF({QPointF(platz.center().x(), platz.top() + 1), platz.bottomRight() + QPointF(-0.5, -1.5),
                   platz.bottomLeft() + QPointF(0.5, -1.5)}));
    maler.setPen(QPen(Qt::black, 2, Qt::SolidLine, Qt::RoundCap));
    const QPointF mitte = platz.center();
    maler.drawLine(mitte + QPointF(0, -2), mitte + QPointF(0, 2));
    maler.drawPoint(mitte + QPointF(0, 5));
}

void SymbolMalen(QPainter& maler, int symbol, const QRectF& platz) {
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    symbol == tipp::symbolWarnung ? WarnungMalen(maler, platz) : HinweisMalen(maler, platz);
    maler.restore();
}

int Symbolbreite(const Tippaussehen& aussehen) {
    return aussehen.stil.symbol == tipp::symbolKeins ? 0 : symbolKante + symbolAbstand;
}

} // namespace

// No parent: a tip belongs to its object and is no control of the window that it speaks for.
Tippfenster::Tippfenster()
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                           Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint) {
    setObjectName(QStringLiteral("tippfenster"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void Tippfenster::Stellen(const Tippaussehen& aussehen, const QString& text) {
    aussehen_ = aussehen;
    text_ = text;
    setAccessibleName(aussehen.titel);
    setAccessibleDescription(text);
    Umbrechen();
    double textbreite = 0.0;
    for (int i = 0; i < zeilen_.lineCount(); ++i) {
        textbreite = std::max(textbreite, zeilen_.lineAt(i).naturalTextWidth());
    }
    const int titel =
        aussehen.titel.isEmpty()
            ? 0
            : Symbolbreite(aussehen) + QFontMetrics(Titelschrift()).horizontalAdvance(aussehen.titel);
    const int breite = std::max(titel, std::min(aussehen.breite, static_cast<int>(std::ceil(textbreite))));
    resize(breite + 2 * innenrand,
           Titelhoehe() + static_cast<int>(std::ceil(zeilen_.boundingRect().height())) + 2 * innenrand);
    update();
}

// Blanks at the beginning of a line are part of the text; a word wider than the tip is broken.
void Tippfenster::Umbrechen() {
    QString zeilen = text_;
    zeilen.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    zeilen_.clearLayout();
    zeilen_.setFont(Textschrift());
    zeilen_.setTextOption(option);
    zeilen_.setText(zeilen);
    zeilen_.beginLayout();
    double y = 0.0;
    for (QTextLine zeile = zeilen_.createLine(); zeile.isValid(); zeile = zeilen_.createLine()) {
        zeile.setLineWidth(std::max(1, aussehen_.breite));
        zeile.setPosition(QPointF(0, y));
        y += std::ceil(zeile.height());
    }
    zeilen_.endLayout();
}

int Tippfenster::Titelhoehe() const {
    if (aussehen_.titel.isEmpty()) {
        return 0;
    }
    return std::max(symbolKante, QFontMetrics(Titelschrift()).height()) + titelAbstand;
}

// The corners of a balloon are no part of the window.
void Tippfenster::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    if (!aussehen_.ballon) {
        clearMask();
        return;
    }
    QBitmap maske(size());
    maske.fill(Qt::color0);
    QPainter maler(&maske);
    maler.setBrush(Qt::color1);
    maler.drawRoundedRect(rect().adjusted(0, 0, -1, -1), rundung, rundung);
    maler.end();
    setMask(maske);
}

void Tippfenster::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    const QColor schrift = Qfarbe(aussehen_.stil.schrift);
    maler.fillRect(rect(), Qfarbe(aussehen_.stil.grund));
    maler.setPen(QPen(QColor(96, 92, 84), 1));
    const QRect rahmen = rect().adjusted(0, 0, -1, -1);
    aussehen_.ballon ? maler.drawRoundedRect(rahmen, rundung, rundung) : maler.drawRect(rahmen);
    if (!aussehen_.titel.isEmpty()) {
        const int hoehe = Titelhoehe() - titelAbstand;
        if (aussehen_.stil.symbol != tipp::symbolKeins) {
            const int oben = innenrand + (hoehe - symbolKante) / 2;
            SymbolMalen(maler, aussehen_.stil.symbol, QRectF(innenrand, oben, symbolKante, symbolKante));
        }
        maler.setFont(Titelschrift());
        maler.setPen(schrift);
        const int links = innenrand + Symbolbreite(aussehen_);
        maler.drawText(QRect(links, innenrand, width() - links, hoehe),
                       static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine,
                       aussehen_.titel);
    }
    maler.setPen(schrift);
    zeilen_.draw(&maler, QPointF(innenrand, innenrand + Titelhoehe()));
}
