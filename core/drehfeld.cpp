#include "core/drehfeld.h"

#include "core/panel.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>
#include <QWheelEvent>

namespace {

constexpr QSize groesse(20, 28);
constexpr int fokusrand = 1; // pixels around the buttons, for the mark of the focus

QToolButton* TasteBauen(QWidget* eltern, const char* name, Qt::ArrowType pfeil, const QString& ansage) {
    auto* taste = new QToolButton(eltern);
    taste->setObjectName(QLatin1String(name));
    taste->setArrowType(pfeil);
    taste->setAccessibleName(ansage);
    taste->setAutoRepeat(true);
    taste->setFocusPolicy(Qt::NoFocus); // the control as a whole takes it
    return taste;
}

} // namespace

Drehfeld::Drehfeld(QWidget* eltern, const QString& name, const QString& was)
    : QWidget(eltern),
      hoch_(TasteBauen(this, "hoch", Qt::UpArrow, was + QStringLiteral(" erhöhen"))),
      runter_(TasteBauen(this, "runter", Qt::DownArrow, was + QStringLiteral(" verringern"))) {
    setObjectName(name);
    setAccessibleName(was);
    setFocusPolicy(Qt::StrongFocus);
    connect(hoch_, &QToolButton::clicked, this, &Drehfeld::hoch);
    connect(runter_, &QToolButton::clicked, this, &Drehfeld::runter);
    resize(groesse);
}

QSize Drehfeld::sizeHint() const {
    return groesse;
}

void Drehfeld::setZahlpanel(const Panel* panel) {
    panel_ = panel;
    connect(panel, &Panel::captionGeaendert, this, [this] {
        QAccessibleValueChangeEvent ereignis(this, Zahl());
        QAccessible::updateAccessibility(&ereignis);
    });
}

int Drehfeld::Zahl() const {
    return panel_.isNull() ? 0 : panel_->caption().trimmed().toInt();
}

void Drehfeld::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    const QRect innen = rect().adjusted(fokusrand, fokusrand, -fokusrand, -fokusrand);
    const int mitte = innen.height() / 2;
    hoch_->setGeometry(innen.x(), innen.y(), innen.width(), mitte);
    runter_->setGeometry(innen.x(), innen.y() + mitte, innen.width(), innen.height() - mitte);
}

void Drehfeld::paintEvent(QPaintEvent* ereignis) {
    QWidget::paintEvent(ereignis);
    if (hasFocus()) {
        QPainter maler(this);
        maler.setPen(QPen(palette().color(QPalette::Highlight), 1));
        maler.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void Drehfeld::keyPressEvent(QKeyEvent* ereignis) {
    switch (ereignis->key()) {
    case Qt::Key_Up:
    case Qt::Key_Plus:
        Q_EMIT hoch();
        return;
    case Qt::Key_Down:
    case Qt::Key_Minus:
        Q_EMIT runter();
        return;
    default:
        QWidget::keyPressEvent(ereignis);
    }
}

// A turn of the wheel meant for the window must not change a number that happens to lie under the pointer.
void Drehfeld::wheelEvent(QWheelEvent* ereignis) {
    ereignis->ignore();
}
