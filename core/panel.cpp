#include "core/panel.h"

#include "core/oberflaeche.h"
#include "core/panelansage.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int schmal = 20; // pixels; two digits need all of less, in a form that stands smaller

} // namespace

Panel::Panel(QWidget* eltern, const QString& name) : QFrame(eltern) {
    PanelansageEinrichten();
    setObjectName(name);
    setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Raised));
}

void Panel::setCaption(const QString& caption) {
    if (caption == caption_) {
        return;
    }
    caption_ = caption;
    NamenSetzen();
    GewechseltAnsagen(this);
    update();
    Q_EMIT captionGeaendert();
}

void Panel::setAnsage(const QString& ansage) {
    ansage_ = ansage;
    NamenSetzen();
}

void Panel::NamenSetzen() {
    const QString wort = caption_.trimmed();
    setAccessibleName(ansage_.isEmpty() || wort.isEmpty() ? ansage_ + wort
                                                          : ansage_ + QStringLiteral(": ") + wort);
}

void Panel::setValue(double prozent) {
    value_ = std::min(prozent, 100.0);
    update();
}

void Panel::setFarben(const QColor& grund, const QColor& schrift) {
    if (grund == grund_ && schrift == schrift_) {
        return;
    }
    grund_ = grund;
    schrift_ = schrift;
    update();
}

QColor Panel::grund() const {
    return grund_.isValid() ? grund_ : Systemflaeche();
}

QColor Panel::schrift() const {
    return schrift_.isValid() ? schrift_ : palette().color(QPalette::ButtonText);
}

void Panel::setAusrichtung(Qt::Alignment ausrichtung) {
    ausrichtung_ = ausrichtung;
    update();
}

void Panel::paintEvent(QPaintEvent* ereignis) {
    QPainter maler(this);
    const QRect innen = rect().adjusted(1, 1, -1, -1);
    const bool mitStand = value_ >= 0.0;
    maler.fillRect(innen, mitStand ? QColor(Qt::white) : grund());
    QString text = caption_;
    if (mitStand) {
        QRect balken = innen;
        balken.setWidth(static_cast<int>(innen.width() * value_ / 100.0));
        maler.fillRect(balken, grund());
        text = QString::number(static_cast<int>(value_)) + QStringLiteral(" %");
    }
    maler.setPen(isEnabled() ? schrift() : palette().color(QPalette::Disabled, QPalette::ButtonText));
    const int luft = innen.width() < schmal ? 0 : 2;
    const QRect textflaeche = innen.adjusted(luft, 0, -luft, 0);
    // Blanks ahead of a caption are part of it; only what doesn't fit gives way, visibly.
    maler.drawText(textflaeche, static_cast<int>(ausrichtung_ | Qt::AlignVCenter) | Qt::TextSingleLine,
                   fontMetrics().elidedText(text, Qt::ElideRight, textflaeche.width()));
    maler.end();
    QFrame::paintEvent(ereignis);
    if (hasFocus()) {
        QPainter rahmen(this);
        rahmen.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        rahmen.drawRect(innen.adjusted(1, 1, -2, -2));
    }
}

void Panel::mouseReleaseEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton && rect().contains(ereignis->position().toPoint())) {
        Q_EMIT geklickt();
    }
}

void Panel::mouseDoubleClickEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton) {
        Q_EMIT doppeltGeklickt();
    }
}

// Keys that a control on the panel leaves over go on to the window.
void Panel::keyPressEvent(QKeyEvent* ereignis) {
    if (hasFocus() && (ereignis->key() == Qt::Key_Space || ereignis->key() == Qt::Key_Return)) {
        Q_EMIT geklickt();
        return;
    }
    QFrame::keyPressEvent(ereignis);
}
